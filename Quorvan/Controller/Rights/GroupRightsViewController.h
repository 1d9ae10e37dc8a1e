// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Selection/SelectionContext.h"
#include "Quorvan/Modal/RightsExplanation.h"
#include "Quorvan/Modal/Users.h"
#include "Quorvan/Toolkit/ListRows.h"
#include "Quorvan/Toolkit/RightsTable.h"
#include "Quorvan/Toolkit/ViewController.h"
#include "Quorvan/ViewModal/BrowseLdapViewModal.h"

#include <memory>

class QLabel;
class QPushButton;

namespace quorvan {

/// The sheet that shows, for reading, what one user holds below the selected path through its groups.
class GroupRightsViewController : public ViewController, public SelectionContext {
public:
    // Outlets
    QLabel* whoseLabel = nullptr;
    SearchField* searchField = nullptr;
    RightsTable* groupRightsTable = nullptr;
    QPushButton* closeBtn = nullptr;

    // Set before the sheet is presented, as are selectedPath and domainIdentity
    std::string trusteeID;
    std::string SelectedTrusteeName; ///< the user's name in the tree
    QString whose;                   ///< the user's name as it is shown
    bool changesWait = false;        ///< on the page

    /// What a group holds on a path.
    struct GroupRow {
        std::string groupName;
        std::string path;
        std::uint16_t rights = 0;
        RightsHolder group;
    };

    std::vector<std::string> grpIDs;
    std::vector<IdentityFileRights> frightsList;
    std::vector<GroupRow> grpTrusteeList;       ///< the rows; while searching, those that match
    std::vector<GroupRow> backupGrpTrusteeList; ///< the rows as they were when the search started
    std::vector<Group> grouplist;               ///< the user's groups of the tree
    bool isSearching = false;

    /// Looks the user's groups up in Active Directory; made at its first use.
    BrowseLdapViewModal& ldapList();

    void loadView() override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;
    QSize sizeHint() const override;

    void initGroupRightsView();
    /// The IDs of the user's groups.
    std::vector<std::string> initgroupRightsTable(const std::string& trusteeID);
    /// Adds what the groups hold to the rows, which are not emptied before.
    void initEffRightsTable(const std::vector<std::string>& ids);
    void addToDataSource(const std::vector<IdentityFileRights>& arr);
    void onSearch(SearchField* sender);
    void onClose(QObject* sender);

private:
    bool wasRead_ = false; ///< the rows are what the server has
    Reading reading_ = Reading::whole;
    std::vector<std::string> groupsOfTheTree();
    void redisplay();

    RowSearch<GroupRow> search_{grpTrusteeList,
                                backupGrpTrusteeList,
                                isSearching,
                                {[](const GroupRow& row) -> const std::string& { return row.groupName; }}};
    std::unique_ptr<BrowseLdapViewModal> ldapList_;
};

} // namespace quorvan
