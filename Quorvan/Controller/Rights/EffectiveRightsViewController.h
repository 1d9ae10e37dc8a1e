// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityChoice.h"
#include "Quorvan/Toolkit/ListRows.h"
#include "Quorvan/Toolkit/RightsTable.h"
#include "Quorvan/Toolkit/TrusteeRows.h"
#include "Quorvan/Toolkit/ViewController.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace quorvan {

class PathLabel;
class RightsBoxes;

/// The third tab of the rights window: what the trustees of the selected path may really do there, and, for
/// one user or group of the user's choice, the same.
///
/// Each visit asks the server anew. A search that is on survives that and goes on over the rows it began
/// with.
class EffectiveRightsViewController : public ViewController, public IdentityChoiceOnPath {
public:
    EffectiveRightsViewController()
        : IdentityChoiceOnPath(static_cast<ViewController&>(*this), {"", false}) {}

    // Outlets
    PathLabel* currentPath = nullptr;
    QLabel* effectiveLabel = nullptr;
    QLabel* selectTrusteeLabel = nullptr;
    QLabel* userGroupLabel = nullptr;
    SearchField* searchField = nullptr;
    RightsTable* effRightsTable = nullptr;
    PathLabel* userGroupField = nullptr;
    QPushButton* selectUserBtn = nullptr;
    QPushButton* whyBtn = nullptr;         ///< explains the rights of the chosen identity
    RightsBoxes* effectiveBoxes = nullptr; ///< holds the eight boxes below
    QCheckBox* readChk = nullptr;
    QCheckBox* writeChk = nullptr;
    QCheckBox* eraseChk = nullptr;
    QCheckBox* modifyChk = nullptr;
    QCheckBox* createChk = nullptr;
    QCheckBox* fsChk = nullptr;
    QCheckBox* accessChk = nullptr;
    QCheckBox* supervisorChk = nullptr;

    TrusteeList trusteeList;             ///< the rows; while searching, those that match
    TrusteeList backupEditedTrusteeList; ///< the rows as they were when the search started
    Rights effRforUser;                  ///< of the chosen identity
    bool isSearching = false;

    void loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;

    void initEffRightsMainView();
    void checkMappedInUserRights();
    void initEffRightsTable();
    /// Asks for the effective rights of one identity and shows them.
    void initEffRforUser(const std::string& userID);
    /// Shows effRforUser.
    void setEffR();
    void reloadTrusteeList();
    void sortDescriptorsDidChange();

    bool onReturnMorvaneSelectedUser(const std::vector<User>& users) override;
    bool onReturnSelectedUser(const std::vector<std::string>& names, const std::vector<std::string>& ids,
                              const std::string& category) override;
    void onSearch(SearchField* sender);
    void onReturnMainMenu();

private:
    void buildTable();
    void buildChosenIdentity();
    void layOutControls();
    std::int32_t loadBothIdentities();
    void redisplay();
    void readAgain();

    std::string chosenID_; ///< whose rights the eight boxes show; empty before the first choice
    std::string chosenType_;
    Reading reading_ = Reading::whole; ///< of the table
    RowSearch<std::shared_ptr<Trustees>> search_{
        trusteeList, backupEditedTrusteeList, isSearching, {trusteeNameOf}};
};

} // namespace quorvan
