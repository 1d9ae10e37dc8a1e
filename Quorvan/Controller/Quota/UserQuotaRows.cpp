// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Quota/UserQuotaRows.h"

#include "Common/Fatal.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/QuotaLimit.h"
#include "Quorvan/Toolkit/ShownText.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"
#include "Quorvan/Toolkit/WarningColor.h"

#include <QApplication>
#include <QStyle>

namespace quorvan {

QString UserQuotaColumn::nameOf(const UserQuotaData& user) {
    return shownText(unwrap(user.displayName, "A user with a quota has no name"));
}

QString UserQuotaColumn::limitOf(const UserQuotaData& user) {
    return byteCount(unwrap(user.quotaLimit, "A user quota has no limit"));
}

QString UserQuotaColumn::usedOf(const UserQuotaData& user) {
    return byteCount(unwrap(user.quotaUsed, "A user quota has no used space"));
}

QString UserQuotaColumn::availableOf(const UserQuotaData& user) {
    std::int64_t available = 0;
    require(!__builtin_sub_overflow(unwrap(user.quotaLimit, "A user quota has no limit"),
                                    unwrap(user.quotaUsed, "A user quota has no used space"), &available),
            "The available space has no number");
    return byteCount(available);
}

bool isOverLimit(const UserQuotaData& user) {
    return user.quotaUsed.value_or(0) > user.quotaLimit.value_or(0) && user.quotaLimit.value_or(0) >= 0;
}

int UserQuotaRows::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant UserQuotaRows::data(const QModelIndex& index, int role) const {
    // The rows may have become fewer since the last reload.
    if (!index.isValid() || index.row() >= listedRows())
        return {};
    const UserQuotaData& user = *users_[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole)
        return columns_[static_cast<std::size_t>(index.column())].text(user);
    if (role == Qt::AccessibleTextRole && index.column() == 0)
        return accessibleText(index.row(), columns_.front().text(user));
    if (role == Qt::DecorationRole && index.column() == 0)
        return userIcon(user.domainIdentity.value_or("").str());
    const UserQuotaColumn& column = columns_[static_cast<std::size_t>(index.column())];
    if (column.text == UserQuotaColumn::usedOf && isOverLimit(user)) {
        if (role == Qt::DecorationRole)
            return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
        if (role == Qt::ForegroundRole)
            return warningTextColor(QApplication::palette());
        if (role == Qt::AccessibleTextRole)
            return L("Over_Limit_Row_Label").arg(column.text(user));
        if (role == Qt::ToolTipRole)
            return L("Over_Limit_Tip_Label");
    }
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column());
    return {};
}

QVariant UserQuotaRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole)
        return plainL(columns_[static_cast<std::size_t>(section)].headerKey);
    if (role == Qt::TextAlignmentRole)
        return alignment(section);
    return {};
}

QVariant UserQuotaRows::alignment(int column) const {
    const bool isAmount = columns_[static_cast<std::size_t>(column)].isAmount;
    return QVariant(Qt::AlignVCenter | (isAmount ? Qt::AlignRight : Qt::AlignLeft));
}

} // namespace quorvan
