// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractTableModel>

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

    /// What stays the same when rows only change places; lets the selection follow a sort.
    virtual const void* object(int row) const = 0;

protected:
    /// How many rows there are now; fewer, perhaps, than are shown.
    virtual int listedRows() const = 0;

private:
    int shownRows_ = 0;
};

} // namespace quorvan
