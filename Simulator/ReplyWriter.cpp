// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/ReplyWriter.h"

namespace quorvan::simulator {

void ReplyWriter::open(const char* name, Attributes attributes) {
    text_.append("<").append(name);
    for (const auto& [attribute, value] : attributes) {
        text_.append(" ").append(attribute).append("=\"");
        escape(value);
        text_ += '"';
    }
    text_ += '>';
    open_.push_back(name);
}

void ReplyWriter::close() {
    text_.append("</").append(open_.back()).append(">");
    open_.pop_back();
}

void ReplyWriter::text(const char* name, std::string_view value, Attributes attributes) {
    open(name, attributes);
    escape(value);
    close();
}

std::string ReplyWriter::finish() {
    while (!open_.empty())
        close();
    return std::move(text_);
}

void ReplyWriter::escape(std::string_view value) {
    for (const char c : value) {
        switch (c) {
        case '&':
            text_ += "&amp;";
            break;
        case '<':
            text_ += "&lt;";
            break;
        case '>':
            text_ += "&gt;";
            break;
        case '"':
            text_ += "&quot;";
            break;
        default:
            if (static_cast<unsigned char>(c) < 0x20)
                text_ += "\xEF\xBF\xBD";
            else
                text_ += c;
        }
    }
}

} // namespace quorvan::simulator
