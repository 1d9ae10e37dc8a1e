// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityChoice.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Controller/Selection/TrusteeContext.h"
#include "Quorvan/Modal/Users.h"
#include "Quorvan/Toolkit/ListRows.h"
#include "Quorvan/Toolkit/PendingChanges.h"
#include "Quorvan/Toolkit/RightsTable.h"
#include "Quorvan/Toolkit/TrusteeRows.h"
#include "Quorvan/Toolkit/ViewController.h"
#include "Quorvan/ViewModal/RightsTabViewModal.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

class QCheckBox;
class QLabel;
class QPushButton;

namespace quorvan {

class PathLabel;

/// The first tab of the rights window: the trustees of the selected path and their rights.
///
/// Nothing is sent until Apply, which sends all pending changes in one request and loads the list
/// anew. Pending changes outlive everything but a successful Apply, Revert and a change to both
/// identity types; also another visit to the tab, after which the rows no longer show them.
class RightsTabViewController : public ViewController, public TrusteeContext, public IdentityChoice {
public:
    RightsTabViewController();

    /// The first tab beside a view of the rights window, which knows what the user may do with the path.
    static RightsTabViewController& besides(const ViewController& view);

    // Outlets
    RightsTable* rightsTable = nullptr;
    QCheckBox* showCheck = nullptr; ///< hidden behind showCheckCaption while it is a plain label
    QLabel* showCheckCaption = nullptr;
    SearchField* searchField = nullptr;
    QLabel* addRemoveLabel = nullptr;
    QLabel* readOnlyLabel = nullptr; ///< says why nothing can be changed, where that is so
    QPushButton* applyBtn = nullptr;
    PendingLine* pendingLine = nullptr; ///< what waits for Apply
    QPushButton* revertBtn = nullptr;
    PathLabel* currentPath = nullptr;
    QPushButton* removeBtn = nullptr;
    QPushButton* addBtn = nullptr;

    RightsTabViewModal modalData;
    TrusteeList trusteeList;             ///< as last loaded; edits never touch these objects
    TrusteeList editedTrusteeList;       ///< the rows; while searching, those that match
    TrusteeList backupEditedTrusteeList; ///< the rows as they were when the search started
    TrusteeList removedTrusteeList;      ///< taken out by the latest Remove
    TrusteeList trackTrusteeList;        ///< pending changes, "ADD" or "REMOVE", in the order they were made

    bool bothIdentitiesFlag = false;
    bool addBothTrusteesFlag = false;
    bool enableSettingsFlag = false;
    bool isSearching = false;

    void loadView() override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;

    void initRightsMainView();
    /// Loads the trustees of domainIdentity in place of what the lists held.
    void initRightsTable();
    /// Loads the trustees of one identity type and adds them to the lists.
    void initRightsTable(const std::string& domain);
    /// Reads what each visit to the tab reads. False when that could not be read and the page was left.
    bool readAgain();
    void setTabState();
    void reloadTrusteeList();
    void sortDescriptorsDidChange();

    void onShowBothMorvaneAD(QCheckBox* sender);
    bool onReturnMorvaneSelectedUser(const std::vector<User>& users) override;
    bool onReturnSelectedUser(const std::vector<std::string>& names, const std::vector<std::string>& ids,
                              const std::string& category) override;
    void removeSelectedRow(QObject* sender);
    void onMouseClickCheckbox(const RightsCheckBox& sender);
    void onSearch(SearchField* sender);
    void onRevertClick(QObject* sender);
    void onApplyClick(QObject* sender);
    void onReturnMainMenu();

private:
    std::vector<PendingChange> pendingChanges() const;
    void showPending();
    void loadAgain();
    void giveUp();
    bool wasRead_ = true;   ///< the rows are what the server has
    bool mustRead_ = false; ///< what is shown as saved may not be: the connection was lost in an Apply
    void buildControls();
    void layOutControls();
    void connectControls();
    /// Adds the trustees that are not listed yet. False, and a message, when some were.
    bool add(const TrusteeList& chosen);
    bool canEdit() const { return isSupervisor || isAccessControl; }
    void setChangesEnabled(bool enabled);
    void redisplay();
    bool bothIdentities() const override;

    RowSearch<std::shared_ptr<Trustees>> search_{
        editedTrusteeList, backupEditedTrusteeList, isSearching, {trusteeNameOf}};
};

} // namespace quorvan
