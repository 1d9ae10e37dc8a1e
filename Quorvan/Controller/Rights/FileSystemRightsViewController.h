// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityChoice.h"
#include "Quorvan/Controller/Rights/BrowseFolderViewController.h"
#include "Quorvan/Toolkit/PendingChanges.h"
#include "Quorvan/Toolkit/RightsPage.h"
#include "Quorvan/Toolkit/RightsTable.h"
#include "Quorvan/Toolkit/TrusteeRows.h"

class QLabel;
class QPushButton;

namespace quorvan {

class PathLabel;
class Segue;

/// The page on which a supervisor of the selected path sees every path below it on which one user or group
/// holds rights, changes them, and adds and removes paths.
///
/// Apply sends one request for each pending change. Choosing another identity drops them.
class FileSystemRightsViewController : public RightsPage,
                                       public IdentityChoiceOnPath,
                                       public BrowseFolderDelegate {
public:
    FileSystemRightsViewController()
        : IdentityChoiceOnPath(static_cast<ViewController&>(*this), {"", false}) {}

    // Outlets
    PathLabel* currentPath = nullptr;
    QLabel* fsrTitle = nullptr;
    QLabel* usergrpTitle = nullptr;
    PathLabel* namefield = nullptr; ///< the chosen identity
    QPushButton* selectUserBtn = nullptr;
    QPushButton* grpBtn = nullptr;
    RightsTable* fsrTable = nullptr;
    QLabel* addRemoveTitle = nullptr;
    QPushButton* addBtn = nullptr;
    QPushButton* removeBtn = nullptr;
    QLabel* readOnlyLabel = nullptr; ///< says why no identity can be chosen, where that is so
    QPushButton* cancelBtn = nullptr;
    QPushButton* revertBtn = nullptr;
    QPushButton* applyBtn = nullptr;
    PendingLine* pendingLine = nullptr; ///< what waits for Apply

    /// A pending change, for the identity that is chosen when it is sent.
    struct TrackedRights {
        std::string identityName;
        std::shared_ptr<FileRights> rights;
        std::string status; ///< "ADD" or "REMOVE"
    };

    std::vector<IdentityFileRights> frightsList;                 ///< as last loaded
    std::vector<std::shared_ptr<FileRights>> editedfrightsList;  ///< the rows
    std::vector<std::shared_ptr<FileRights>> backupfrightsList;  ///< reserved for a search; emptied by a load
    std::vector<std::shared_ptr<FileRights>> removedfrightsList; ///< reserved; emptied by a load
    std::vector<TrackedRights> trackfrightsList;                 ///< in the order the changes were made
    std::string selectedTrusteeID;
    std::string SelectedTrusteeName; ///< only known of identities of the tree
    std::string SelectedTrusteeType;
    FileRights::Order sortOrder = FileRights::Order::fpath;
    bool sortAscending = true; ///< of this view alone
    bool newFileBrowserFlag = false;
    bool isSearching = false; ///< reserved: the page has no search

    void loadView() override;
    void viewDidLoad() override;

    void initFSRMainView();
    void checkMappedInUserRights();
    void setBtnState();
    bool initFSRRightsTable(const std::string& userID);
    /// The server path of a local file address: VOL1:\dir of file:///Volumes/VOL1/dir
    static std::string formatPath(const std::string& selpath);
    void prepare(const Segue& segue);
    void sortDescriptorsDidChange();

    bool onReturnMorvaneSelectedUser(const std::vector<User>& users) override;
    bool onReturnSelectedUser(const std::vector<std::string>& names, const std::vector<std::string>& ids,
                              const std::string& category) override;
    void onAddPath(QObject* sender);
    void onReturnSelectedPath(const std::vector<std::string>& selpath) override;
    void removeSelectedRow(QObject* sender);
    void onMouseClickCheckbox(const RightsCheckBox& sender);
    void onRevertClick(QObject* sender);
    void onApply(QObject* sender);
    void onReturnMainMenu();

private:
    std::vector<PendingChange> pendingChanges() const;
    void showPending();
    void tellOutcomeOf(std::vector<PendingChange> sent) const;
    static void tellInDoubt(const char* key, const std::vector<PendingChange>& sent);
    Reading reading_ = Reading::whole;
    bool mustRead_ = false; ///< what is shown as saved may not be: the connection was lost in an Apply
    void buildIdentity();
    void buildTable();
    void buildButtons();
    void layOutControls();
    void showLoadedRows();
    bool reloadChosenIdentity();
    void send(const TrackedRights& change);
    bool isBelowSelection(const std::string& path) const;
    void track(std::shared_ptr<FileRights> rights, const char* status);
    void setChangesEnabled(bool enabled);
    void redisplay();
};

} // namespace quorvan
