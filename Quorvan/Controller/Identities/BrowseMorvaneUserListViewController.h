// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityBrowserSheet.h"
#include "Quorvan/Toolkit/SearchFilter.h"
#include "Quorvan/Toolkit/WeakDelegate.h"
#include "Quorvan/ViewModal/ScopedPipe.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <memory>
#include <string>
#include <vector>

class QLineEdit;

namespace quorvan {

/// The base that was typed last in any browser of the tree, for the next one to begin with.
class SharedTreeName {
public:
    static SharedTreeName& value();

    std::string treeName;
};

/// The sheet in which the user picks users, groups or containers of the server's own tree, below a base
/// like ".O=kestmoor.T=tree.".
class BrowseMorvaneUserListViewController : public BrowserOf<User, FetchingBrowserSheet> {
public:
    BrowseMorvaneUserListViewController();

    WeakDelegate<BrowseMorvaneDelegate> delegate;

    // Outlets
    QLineEdit* treeTextField = nullptr;

    std::unique_ptr<XMLReadWriteController> xmlController; ///< anew for each fetch
    const std::string serverIP;
    std::vector<UserType> usersCategory;
    std::string searchTree;              ///< where to search
    std::vector<User> ldapContainerList; ///< reserved; containers are rows of userlist

    void prepare(ViewController& view, IdentityBrowserDelegate& receiver, const IdentityWish& wish) override;
    void viewDidLoad() override;
    void viewDidAppear() override;

    void setUsersCategory();
    void initMainView();
    void displayUserTypeForDomainPopUp();
    void controlTextDidChange();
    void onChangeUserType(QObject* sender);
    void fetchUserList() override;
    void onSearch(SearchField* field) override;
    void onSelect() override;

    /// The entries of one category, by their object class; of an unknown category none.
    static std::vector<User> filterOnUserType(const std::string& type, const std::vector<User>& list);

protected:
    void buildHead(QBoxLayout& page) override;
    const std::string& listedName(std::size_t row) const override { return userlist[row].trusteeName; }
    const char* iconName() const override;
    QString emptyText() const override;
    std::vector<User> rowsMatching(const std::string& text) override;

private:
    SearchFilter searchFilter_;
};

} // namespace quorvan
