// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"
#include "Quorvan/Toolkit/RightsTableModel.h"

namespace quorvan {

inline const std::string& trusteeNameOf(const std::shared_ptr<Trustees>& trustee) {
    return trustee->trusteeName;
}

/// The rows of a view's list, which may change between reloads. `Show` says with static functions what a
/// row looks like: text(row, textColumn), icon(row, textColumn), rights(row), identity(row).
template <class Row, class Show>
class RowsOf : public RightsRowSource {
public:
    explicit RowsOf(const std::vector<Row>& rows)
        : rows_(rows) {}

    int rowCount() const override { return static_cast<int>(rows_.size()); }
    QString text(int row, int textColumn) const override { return Show::text(at(row), textColumn); }
    QIcon icon(int row, int textColumn) const override { return Show::icon(at(row), textColumn); }
    std::uint16_t rights(int row) const override { return Show::rights(at(row)); }
    std::string identity(int row) const override { return Show::identity(at(row)); }

private:
    const Row& at(int row) const { return rows_[static_cast<std::size_t>(row)]; }

    const std::vector<Row>& rows_;
};

/// A trustee: its name with an icon.
struct ShowTrustee {
    static QString text(const std::shared_ptr<Trustees>& trustee, int textColumn);
    static QIcon icon(const std::shared_ptr<Trustees>& trustee, int textColumn);
    static std::uint16_t rights(const std::shared_ptr<Trustees>& trustee) { return trustee->rights; }
    static std::string identity(const std::shared_ptr<Trustees>& trustee) { return trustee->trusteeID; }
};
using TrusteeRows = RowsOf<std::shared_ptr<Trustees>, ShowTrustee>;

/// A trustee on one of several paths.
struct ShowDirectoryRights {
    static QString text(const DirectoryRights& entry, int textColumn);
    static QIcon icon(const DirectoryRights& entry, int textColumn);
    static std::uint16_t rights(const DirectoryRights& entry) { return entry.trustee->rights; }
    static std::string identity(const DirectoryRights& entry) {
        return entry.path.str() + '\n' + entry.trustee->trusteeID;
    }
};
using DirectoryRightsRows = RowsOf<DirectoryRights, ShowDirectoryRights>;

} // namespace quorvan
