// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/RightsTableModel.h"

#include "Quorvan/Toolkit/ShownText.h"

#include "Common/Fatal.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PlainToolTip.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace quorvan {

std::uint16_t RightsCheckBox::appliedTo(std::uint16_t mask) const {
    for (const RightsColumn& column : rightsColumns)
        if (std::string_view(identifier) == column.identifier)
            return withRight(mask, column.bit, ticked);
    fatal("No right with the identifier %@", identifier);
}

RightsTableModel::RightsTableModel(std::vector<RightsTextColumn> textColumns,
                                   std::unique_ptr<RightsRowSource> rows)
    : textColumns_(std::move(textColumns))
    , rows_(std::move(rows))
    , tickedText_(L("Right_Ticked_Label"))
    , untickedText_(L("Right_Unticked_Label")) {
    reload();
    std::transform(rightsColumns.begin(), rightsColumns.end(), rightNames_.begin(),
                   [](const RightsColumn& column) { return plainL(column.nameKey); });
}

const RightsColumn* RightsTableModel::right(int column) const {
    const int right = column - textColumnCount();
    return right >= 0 && right < static_cast<int>(rightsColumns.size())
               ? &rightsColumns[static_cast<std::size_t>(right)]
               : nullptr;
}

const QString& RightsTableModel::rightName(int column) const {
    return rightNames_[static_cast<std::size_t>(column - textColumnCount())];
}

int RightsTableModel::columnOf(const std::string& identifier) const {
    for (int column = 0; column < columnCount(); ++column) {
        const RightsColumn* box = right(column);
        if (identifier ==
            (box != nullptr ? box->identifier : textColumns_[static_cast<std::size_t>(column)].identifier))
            return column;
    }
    return -1;
}

void RightsTableModel::setHeader(int textColumn, const QString& header) {
    textColumns_[static_cast<std::size_t>(textColumn)].header = header;
    emit headerDataChanged(Qt::Horizontal, textColumn, textColumn);
}

void RightsTableModel::showWords(bool words) {
    if (std::exchange(showsWords_, words) != words)
        emit headerDataChanged(Qt::Horizontal, textColumnCount(), columnCount() - 1);
}

int RightsTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : textColumnCount() + static_cast<int>(rightsColumns.size());
}

Qt::ItemFlags RightsTableModel::flags(const QModelIndex& index) const {
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    const RightsColumn* box = right(index.column());
    // A box that may not be clicked stays within reach of the keyboard, so that it can be read out.
    flags.setFlag(Qt::ItemIsUserCheckable, box != nullptr && whyFixed(*box) == nullptr);
    return flags;
}

QVariant RightsTableModel::data(const QModelIndex& index, int role) const {
    // The rows may have become fewer since the last reload.
    if (!index.isValid() || index.row() >= rows_->rowCount())
        return {};
    return right(index.column()) == nullptr ? textData(index, role) : rightData(index, role);
}

QVariant RightsTableModel::textData(const QModelIndex& index, int role) const {
    if (role == Qt::DisplayRole)
        return shownText(rows_->text(index.row(), index.column()));
    if (role == Qt::AccessibleTextRole)
        return accessibleText(index.row(), shownText(rows_->text(index.row(), index.column())));
    if (role == Qt::DecorationRole)
        return rows_->icon(index.row(), index.column());
    return {};
}

QVariant RightsTableModel::rightData(const QModelIndex& index, int role) const {
    const bool ticked = (rows_->rights(index.row()) & right(index.column())->bit) != 0;
    if (role == Qt::CheckStateRole)
        return ticked ? Qt::Checked : Qt::Unchecked;
    const QString stop = ticked ? stoppedBy(index) : QString();
    if (role == stoppedRole)
        return !stop.isEmpty();
    const char* const why = whyFixed(*right(index.column()));
    const QString reason = why != nullptr ? L(why) : QString();
    if (role == Qt::AccessibleDescriptionRole)
        return reason;
    if (role != Qt::ToolTipRole && role != Qt::AccessibleTextRole)
        return {};
    QString text = rightName(index.column());
    if (role == Qt::AccessibleTextRole)
        text = (ticked ? tickedText_ : untickedText_).arg(text);
    if (!stop.isEmpty())
        text = L("Right_Stopped_Label").arg(text, stop);
    if (role == Qt::AccessibleTextRole)
        return text;
    return plainToolTip(reason.isEmpty() ? text : text + QLatin1Char('\n') + reason);
}

QString RightsTableModel::stoppedBy(const QModelIndex& index) const {
    if (stopped_.empty())
        return {};
    const auto row = stopped_.find(rows_->identity(index.row()));
    if (row != stopped_.end())
        for (const auto& [bit, path] : row->second)
            if (bit == right(index.column())->bit)
                return path;
    return {};
}

void RightsTableModel::setStopped(std::unordered_map<std::string, StoppedRights> stopped) {
    stopped_ = std::move(stopped);
    if (rowCount() > 0)
        emit dataChanged(index(0, textColumnCount()), index(rowCount() - 1, columnCount() - 1));
}

QVariant RightsTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    const RightsColumn* box = right(section);
    if (role == Qt::DisplayRole && box == nullptr)
        return textColumns_[static_cast<std::size_t>(section)].header;
    if (role == Qt::DisplayRole)
        return showsWords_ ? rightName(section) : QString::fromLatin1(box->identifier);
    if (role == Qt::TextAlignmentRole)
        return QVariant(box != nullptr ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignLeft);
    if (box != nullptr && role == Qt::AccessibleTextRole)
        return rightName(section);
    if (box != nullptr && role == Qt::ToolTipRole)
        return plainToolTip(L(box->explainedKey).arg(rightName(section)));
    return {};
}

bool RightsTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !index.isValid() || index.row() >= rows_->rowCount() ||
        !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    if (onClick)
        onClick({index.row(), right(index.column())->identifier, value.toInt() == Qt::Checked});
    emit dataChanged(index, index);
    return true;
}

} // namespace quorvan
