// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/Localized.h"

#include <QAbstractTableModel>

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace quorvan {

/// The rows behind a ListTable, over a list that the view owns and changes between reloads.
class ListModel : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Takes over that the rows have changed. Until then the table shows as many as before.
    void reload() {
        beginResetModel();
        shownRows_ = listedRows();
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : shownRows_; }

    /// What a row is about, whatever its number: it stays the same when rows are sorted, searched or read
    /// anew.
    virtual std::string identity(int row) const = 0;

    /// The same of a row that may be gone since the last reload; "" then.
    std::string identityOf(int row) const { return row < listedRows() ? identity(row) : std::string(); }

    /// What waits to be applied, by the identities of the rows.
    enum class Pending { added, changed };
    void setPending(std::unordered_map<std::string, Pending> pending) {
        pending_ = std::move(pending);
        if (shownRows_ > 0)
            emit dataChanged(index(0, 0), index(shownRows_ - 1, columnCount() - 1));
    }
    std::optional<Pending> pending(int row) const {
        if (pending_.empty())
            return std::nullopt;
        const auto found = pending_.find(identityOf(row));
        return found == pending_.end() ? std::nullopt : std::optional(found->second);
    }

protected:
    /// A text of a row for a screen reader, which says whether a change waits.
    QVariant accessibleText(int row, const QString& text) const {
        const auto waiting = pending(row);
        if (!waiting)
            return {};
        return L(*waiting == Pending::added ? "Pending_Added_Row_Label" : "Pending_Changed_Row_Label")
            .arg(text);
    }

    /// How many rows there are now; fewer, perhaps, than are shown.
    virtual int listedRows() const = 0;

private:
    int shownRows_ = 0;
    std::unordered_map<std::string, Pending> pending_;
};

} // namespace quorvan
