// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/UserQuotaData.h"
#include "Quorvan/Toolkit/ListModel.h"

#include <QString>

#include <vector>

namespace quorvan {

/// One column of a list of user quotas.
struct UserQuotaColumn {
    const char* identifier;
    const char* headerKey;
    QString (*text)(const UserQuotaData& user); ///< a value that is missing is fatal
    bool isAmount;

    static QString nameOf(const UserQuotaData& user);
    static QString limitOf(const UserQuotaData& user);
    static QString usedOf(const UserQuotaData& user);
    static QString availableOf(const UserQuotaData& user);
};

/// Whether a user takes more than the limit allows.
bool isOverLimit(const UserQuotaData& user);

/// The rows of a list of user quotas; the first column carries the icon of the user's directory, and what is
/// over its limit a warning.
class UserQuotaRows : public ListModel {
public:
    /// The list is the view's own.
    UserQuotaRows(const UserQuotaList& users, std::vector<UserQuotaColumn> columns)
        : users_(users)
        , columns_(std::move(columns)) {}

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    std::string identity(int row) const override {
        return users_[static_cast<std::size_t>(row)]->SID.value_or("");
    }

protected:
    int listedRows() const override { return static_cast<int>(users_.size()); }

private:
    QVariant alignment(int column) const;

    const UserQuotaList& users_;
    std::vector<UserQuotaColumn> columns_;
};

} // namespace quorvan
