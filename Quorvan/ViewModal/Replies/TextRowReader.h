// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/Replies/XMLElement.h"
#include "Quorvan/ViewModal/Replies/XMLElementSearch.h"

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan {

/// Reads a list whose rows are texts by name, as fast as it can be done: the list may have a row for every
/// user there is. `row` gets, for each child element of the element at `list`, the texts of its first child
/// elements of each of `names`, "" without one, and may take them.
class TextRowReader {
public:
    using Row = std::function<void(std::vector<std::string>& texts)>;
    TextRowReader(ElementPath list, std::initializer_list<std::string_view> names, Row row);

    void didStartElement(std::string_view name, XMLAttributes attributes);
    void didEndElement(std::string_view name);
    void foundCharacters(std::string_view text);

    /// Fatal unless there was such a list.
    void requireList() const { list_.requireFound(); }

private:
    enum Level : std::size_t { outside, inList, inRow, inText };
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    void endText();

    XMLElementSearch list_;
    std::vector<std::string_view> names_;
    Row row_;
    std::vector<std::string> texts_;
    std::vector<bool> seen_;
    std::size_t level_ = outside; ///< how many open elements there are from the list on
    std::size_t current_ = none;  ///< the text that is being read
    std::size_t pieceBegin_ = 0;  ///< where its part after the last tag begins
};

} // namespace quorvan
