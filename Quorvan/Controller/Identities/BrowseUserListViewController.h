// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityBrowserSheet.h"
#include "Quorvan/Toolkit/WeakDelegate.h"
#include "Quorvan/ViewModal/BrowseLdapViewModal.h"

#include <memory>
#include <string>
#include <vector>

class QComboBox;

namespace quorvan {

/// The sheet in which the user picks users or groups of Active Directory, domain by domain. A search asks
/// the directory anew.
class BrowseUserListViewController : public BrowserOf<LdapRow, FetchingBrowserSheet> {
public:
    BrowseUserListViewController();

    WeakDelegate<BrowseLdapDelegate> delegate;

    // Outlets
    QComboBox* domainPopUp = nullptr;

    std::vector<std::string> availableDomains; ///< names of their nodes
    std::string selectedDomain;

    /// Made at its first use, for the category that is wanted then.
    BrowseLdapViewModal& ldapList();

    void prepare(ViewController& view, IdentityBrowserDelegate& receiver, const IdentityWish& wish) override;
    void viewDidLoad() override { initMainView(); }
    void viewDidAppear() override;

    void initMainView();
    void displayDomainsPopup();
    void displayUserTypeForDomainPopUp();
    void onChangeDomainPopUp(QObject* sender);
    void fetchUserList() override;
    void onSelect() override;

protected:
    void buildHead(QBoxLayout& page) override;
    const std::string& listedName(std::size_t row) const override { return userlist[row].front(); }
    const char* iconName() const override { return currUserType == "Users" ? "user" : "group"; }
    QString emptyText() const override;
    std::vector<LdapRow> rowsMatching(const std::string& text) override;

private:
    bool isPlaceChosen() const { return !currUserType.empty() && !selectedDomain.empty(); }

    std::unique_ptr<BrowseLdapViewModal> ldapList_;
};

} // namespace quorvan
