// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ListTable.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/SearchField.h"
#include "Quorvan/Toolkit/SearchFilter.h"

#include <QSignalBlocker>

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace quorvan {

/// Takes the rows at the positions `selected` (ascending) out of a list and returns them; both keep their
/// order.
template <class Row>
std::vector<Row> takeRows(std::vector<Row>& rows, const std::vector<int>& selected) {
    std::vector<Row> taken;
    std::vector<Row> kept;
    auto next = selected.begin();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const bool isSelected = next != selected.end() && static_cast<std::size_t>(*next) == row;
        (isSelected ? taken : kept).push_back(std::move(rows[row]));
        if (isSelected)
            ++next;
    }
    rows = std::move(kept);
    return taken;
}

/// A view's search: saves the view's rows when it begins, shows those that match, and brings the saved ones
/// back when it ends. What happens to the rows in between is the view's to put into the backup, or not.
template <class Row>
class RowSearch {
public:
    using KeyOf = const std::string& (*)(const Row&);

    /// A row matches when one of its keys does.
    RowSearch(std::vector<Row>& rows, std::vector<Row>& backup, bool& isSearching, std::vector<KeyOf> keys)
        : rows_(rows)
        , backup_(backup)
        , isSearching_(isSearching)
        , keys_(std::move(keys)) {}
    RowSearch(const RowSearch&) = delete;
    RowSearch& operator=(const RowSearch&) = delete;

    /// Follows what the user has typed. The table has to be reloaded afterwards.
    void setText(const std::string& text, ListTable& table) {
        if (!text.empty()) {
            if (!isSearching_)
                begin(table);
            rows_ = matching(text);
        } else if (isSearching_) {
            rows_ = backup_;
        }
        if (isSearching_)
            table.setSortDescriptor(backupOrder_);
        isSearching_ = !text.empty();
    }

    /// The rows are about to be read anew: nothing is looked for in them any more, as the field says.
    void end(SearchField& field) {
        const QSignalBlocker quiet(&field);
        field.clear();
        isSearching_ = false;
        backup_.clear();
    }

private:
    void begin(const ListTable& table) {
        isSearching_ = true;
        backup_ = rows_;
        backupOrder_ = table.sortDescriptor();
        filters_.resize(keys_.size());
        for (std::size_t key = 0; key < keys_.size(); ++key)
            filters_[key].setRows(backup_, keys_[key]);
    }

    std::vector<Row> matching(const std::string& text) const {
        std::vector<std::size_t> found;
        for (const SearchFilter& filter : filters_) {
            const std::vector<std::size_t> more = filter.matches(text);
            std::vector<std::size_t> before = std::exchange(found, {});
            std::set_union(before.begin(), before.end(), more.begin(), more.end(), std::back_inserter(found));
        }
        std::vector<Row> rows;
        rows.reserve(found.size());
        for (const std::size_t row : found)
            rows.push_back(backup_[row]);
        return rows;
    }

    std::vector<Row>& rows_;
    std::vector<Row>& backup_;
    bool& isSearching_;
    std::vector<KeyOf> keys_;
    std::vector<SearchFilter> filters_; ///< of backup_, one for each key
    std::optional<SortDescriptor> backupOrder_;
};

/// Shows a searchable table's rows as they are now; one without rows says why.
inline void redisplay(ListTable& table, bool isSearching, const SearchField& field,
                      const char* emptyKey = "No_Trustees_Label", const char* noMatchKey = "No_Match_Label") {
    table.reloadData();
    table.setEmptyText(isSearching ? L(noMatchKey).arg(field.text()) : L(emptyKey));
}

} // namespace quorvan
