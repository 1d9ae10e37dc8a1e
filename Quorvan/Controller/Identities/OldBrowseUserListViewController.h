// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityBrowserSheet.h"
#include "Quorvan/Toolkit/WeakDelegate.h"
#include "Quorvan/ViewModal/OldBrowseLdapViewModal.h"

#include <memory>
#include <string>
#include <vector>

class QListWidget;

namespace quorvan {

/// The sheet in which the user picks users or groups where the machine is bound to a single forest: the
/// categories stand in a table of their own, and SIDs are looked up for the chosen names only.
class OldBrowseUserListViewController : public BrowserOf<std::string, IdentityBrowserSheet> {
public:
    OldBrowseUserListViewController();

    WeakDelegate<OldBrowseLdapDelegate> delegate;

    // Outlets
    QListWidget* userTypeTable = nullptr;

    /// Made at its first use, for the category that is wanted then.
    OldBrowseLdapViewModal& ldapList();

    void prepare(ViewController& view, IdentityBrowserDelegate& receiver, const IdentityWish& wish) override;
    void viewDidAppear() override;

    void onChangeUserType();
    void onSelect() override;

protected:
    void buildHead(QBoxLayout& page) override;
    const std::string& listedName(std::size_t row) const override { return userlist[row]; }
    const char* iconName() const override { return currUserType == "Users" ? "user" : "group"; }
    QString emptyText() const override;
    std::vector<std::string> rowsMatching(const std::string& text) override;

private:
    std::unique_ptr<OldBrowseLdapViewModal> ldapList_;
};

} // namespace quorvan
