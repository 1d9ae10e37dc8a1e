// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/TextRowReader.h"

#include <utility>

namespace quorvan {

TextRowReader::TextRowReader(ElementPath list, std::initializer_list<std::string_view> names, Row row)
    : list_(std::move(list))
    , names_(names)
    , row_(std::move(row))
    , texts_(names.size())
    , seen_(names.size()) {}

void TextRowReader::didStartElement(std::string_view name, XMLAttributes) {
    if (level_ == outside) {
        level_ = list_.didStartElement(name) ? inList : outside;
        return;
    }
    endText();
    if (++level_ == inRow) {
        for (std::string& text : texts_)
            text.clear();
        seen_.assign(seen_.size(), false);
    } else if (level_ == inText) {
        for (std::size_t at = 0; at < names_.size() && current_ == none; ++at) {
            if (!seen_[at] && names_[at] == name)
                current_ = at;
        }
        if (current_ != none)
            seen_[current_] = true;
        pieceBegin_ = 0;
    }
}

void TextRowReader::didEndElement(std::string_view) {
    if (level_ == outside) {
        list_.didEndElement();
        return;
    }
    endText();
    if (level_ == inText)
        current_ = none;
    else if (level_ == inRow)
        row_(texts_);
    else if (level_ == inList)
        list_.didEndElement();
    --level_;
}

void TextRowReader::foundCharacters(std::string_view text) {
    if (current_ != none)
        texts_[current_] += text;
}

void TextRowReader::endText() {
    if (current_ != none)
        endTextPart(texts_[current_], pieceBegin_);
}

} // namespace quorvan
