// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan {

/// The search rule of every list: a name matches when it contains the text, or when the text, read as
/// a pattern (`*` any run of characters, `?` one character), matches the whole name. Case and
/// diacritical marks do not count.
///
/// The names are folded once, when a search starts, so that a keystroke only compares.
class SearchFilter {
public:
    /// Takes the rows to search; `nameOf(row)` is what is searched.
    template <class Row, class NameOf>
    void setRows(const std::vector<Row>& rows, NameOf nameOf) {
        clear();
        for (const Row& row : rows)
            append(nameOf(row));
    }

    void clear();

    /// The rows whose names match, in order. `rows` are those of setRows.
    template <class Row>
    std::vector<Row> matching(const std::vector<Row>& rows, std::string_view text) const {
        std::vector<Row> found;
        for (const std::size_t row : matches(text))
            found.push_back(rows[row]);
        return found;
    }

    /// The positions of the names that match, ascending.
    std::vector<std::size_t> matches(std::string_view text) const;

private:
    void append(std::string_view name);
    std::string_view key(std::size_t row) const;
    std::vector<std::size_t> rowsContaining(std::string_view text) const;

    std::string keys_; ///< all folded names, each followed by a byte that no UTF-8 text holds
    std::vector<std::size_t> ends_;
};

} // namespace quorvan
