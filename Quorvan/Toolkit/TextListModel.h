// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ListModel.h"
#include "Quorvan/Toolkit/PlainToolTip.h"
#include "Quorvan/Toolkit/ShownText.h"

#include <QFont>
#include <QStringList>

#include <string>
#include <utility>
#include <vector>

namespace quorvan {

/// Rows of plain texts. A row that is marked is bold and has a sign in front, which a screen reader is told
/// in words.
class TextListModel : public ListModel {
public:
    struct Row {
        std::string identity; ///< as of ListModel
        QStringList cells;
        QString sign = {}; ///< of a marked row
        QString mark = {}; ///< what the sign says; empty for a row that is not marked
    };

    TextListModel(QStringList headers, std::vector<Row> rows = {})
        : headers_(std::move(headers))
        , rows_(std::move(rows)) {
        reload();
    }

    const std::vector<Row>& rows() const { return rows_; }
    /// The table has to be reloaded afterwards.
    void setRows(std::vector<Row> rows) { rows_ = std::move(rows); }

    std::string identity(int row) const override { return rows_[static_cast<std::size_t>(row)].identity; }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(headers_.size());
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
            return QVariant(Qt::AlignVCenter | Qt::AlignLeft);
        return orientation == Qt::Horizontal && role == Qt::DisplayRole ? QVariant(headers_.value(section))
                                                                        : QVariant();
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (!index.isValid() || index.row() >= listedRows())
            return {};
        const Row& row = rows_[static_cast<std::size_t>(index.row())];
        const QString text = shownText(row.cells.value(index.column()));
        const bool isMarked = !row.mark.isEmpty();
        if (role == Qt::DisplayRole)
            return isMarked && index.column() == 0 ? row.sign + QLatin1Char(' ') + text : text;
        if (role == Qt::ToolTipRole && !text.isEmpty())
            return plainToolTip(text); // which may have been too long for its column
        if (role == Qt::AccessibleTextRole && isMarked && index.column() == 0)
            return text + QLatin1String(", ") + row.mark;
        if (role == Qt::FontRole && isMarked) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    }

protected:
    int listedRows() const override { return static_cast<int>(rows_.size()); }

private:
    QStringList headers_;
    std::vector<Row> rows_;
};

} // namespace quorvan
