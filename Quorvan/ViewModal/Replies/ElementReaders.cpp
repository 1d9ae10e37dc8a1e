// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/ElementReaders.h"

namespace quorvan {

void ElementReader::didStartElement(std::string_view name, XMLAttributes attributes) {
    if (subtree_.isOpen() || search_.didStartElement(name))
        subtree_.didStartElement(name, attributes);
}

void ElementReader::didEndElement(std::string_view name) {
    if (!subtree_.isOpen() || subtree_.didEndElement(name))
        search_.didEndElement();
}

void ElementReader::foundCharacters(std::string_view text) {
    if (subtree_.isOpen())
        subtree_.foundCharacters(text);
}

std::optional<XMLElement> ElementReader::find() const {
    return search_.found() ? std::optional(subtree_.element()) : std::nullopt;
}

XMLElement ElementReader::element() const {
    search_.requireFound();
    return subtree_.element();
}

void RowReader::didStartElement(std::string_view name, XMLAttributes attributes) {
    if (inList_)
        subtree_.didStartElement(name, attributes);
    else
        inList_ = list_.didStartElement(name);
}

void RowReader::didEndElement(std::string_view name) {
    if (!subtree_.isOpen()) {
        inList_ = false;
        list_.didEndElement();
    } else if (subtree_.didEndElement(name)) {
        row_(subtree_.element());
    }
}

void RowReader::foundCharacters(std::string_view text) {
    if (subtree_.isOpen())
        subtree_.foundCharacters(text);
}

} // namespace quorvan
