// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Bundle.h"
#include "Quorvan/Controller/Quota/AddUserQuotaViewController.h"
#include "Quorvan/Controller/Selection/SelectionContext.h"
#include "Quorvan/Toolkit/PendingChanges.h"
#include "Quorvan/Toolkit/SearchFilter.h"
#include "Quorvan/Toolkit/ViewController.h"

#include <optional>
#include <string>

class QLabel;
class QPushButton;
class QToolButton;

namespace quorvan {

class ListTable;
class PathLabel;
class SearchField;
class Segue;

/// The user quota page: the users with a limit on the volume of the selected path.
///
/// What is added, edited and removed is marked in the rows and sent on Apply, removals first. The lists
/// share their rows, so that a change of one shows in all of them.
class UserQuotaViewController : public ViewController, public SelectionContext, public AddUserQuotaDelegate {
public:
    // Outlets
    PathLabel* selectedPathLabel = nullptr;
    QLabel* userQuotaTabTitle = nullptr;
    SearchField* searchField = nullptr;
    ListTable* userQuotaTable = nullptr;
    QPushButton* addUQButton = nullptr;
    QPushButton* editUQButton = nullptr;
    QPushButton* removeUQButton = nullptr;
    QLabel* readOnlyLabel = nullptr; ///< says why nothing can be changed, where that is so
    QPushButton* closeButton = nullptr;
    QPushButton* revert = nullptr;
    QPushButton* applyButton = nullptr;
    QToolButton* overLimitBtn = nullptr; ///< how many users are over their limit; leads to the next one
    PendingLine* pendingLine = nullptr;  ///< what waits for Apply

    UserQuotaList users;         ///< as last read
    UserQuotaList usersEdited;   ///< with those added, without those removed
    UserQuotaList usersDisplay;  ///< the rows
    UserQuotaList usersToRemove; ///< in the order in which they were removed
    std::string searchString;    ///< what the rows are searched for; empty without a search
    UserQuotaData::Order sortOrder = UserQuotaData::Order::displayName;
    bool sortAscending = true;
    bool isSupervisor = false;
    bool isAccessControl = false;

    std::optional<platform::FeatureDictionary> featureFlagDict;
    bool addBothTrusteesFlag = false;

    void loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return false; }

    void loadStrings();
    void initUserQuota();
    void checkMappedInUserRights();
    /// Reads the list anew; what was changed and not sent is gone.
    void getUserQuotaInfo();
    void setUserQuotaInfo();
    UserQuotaList getOperationsToPerform() const;
    void onSearch(SearchField* field);
    void sortDescriptorsDidChange();
    void onClickAdd();
    void onClickEdit();
    void onClickRemove();
    void onClickRevert();
    void onClickApply();
    void prepare(const Segue& segue);
    /// Marks for sending. Goes by the selected rows' numbers in usersEdited, also while a search or a sort
    /// shows other users in these rows.
    void updateOperationsToPerformWithModify();
    /// Puts what the dialog hands back into the list; changed and new rows come first.
    bool onReturnAddedUsers(const UserQuotaList& returned) override;
    void onReturnMainMenu();

private:
    std::vector<PendingChange> pendingChanges() const;
    void showPending();
    void tellOutcomeOf(const std::vector<PendingChange>& sent) const;
    void buildControls();
    void layOutControls();
    void connectControls();
    std::unique_ptr<ScopedPipe> openQuotaPipe();
    void redisplay();
    void forgetSearch();
    void goToNextOverLimit();

    bool wasRead_ = false; ///< the lists are what the server has
    Reading reading_ = Reading::whole;
    SearchFilter searchFilter_; ///< of searched_
    UserQuotaList searched_;    ///< the rows of usersEdited that have a name, while they are searched
};

} // namespace quorvan
