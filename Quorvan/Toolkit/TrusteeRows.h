// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"
#include "Quorvan/Toolkit/RightsTableModel.h"

namespace quorvan {

inline const std::string& trusteeNameOf(const std::shared_ptr<Trustees>& trustee) {
    return trustee->trusteeName;
}

/// The rows of a list of trustees: one text column with name and icon.
class TrusteeRows : public RightsRowSource {
public:
    /// The list is the view's own and may change between reloads.
    explicit TrusteeRows(const TrusteeList& trustees)
        : trustees_(trustees) {}

    int rowCount() const override { return static_cast<int>(trustees_.size()); }
    QString text(int row, int textColumn) const override;
    QIcon icon(int row, int textColumn) const override;
    std::uint16_t rights(int row) const override { return at(row).rights; }
    const void* object(int row) const override { return &at(row); }

private:
    const Trustees& at(int row) const { return *trustees_[static_cast<std::size_t>(row)]; }

    const TrusteeList& trustees_;
};

} // namespace quorvan
