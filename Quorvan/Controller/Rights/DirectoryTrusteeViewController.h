// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Selection/SelectionContext.h"
#include "Quorvan/Toolkit/ListRows.h"
#include "Quorvan/Toolkit/PendingChanges.h"
#include "Quorvan/Toolkit/RightsTable.h"
#include "Quorvan/Toolkit/ViewController.h"

#include <cstdint>

class QLabel;
class QPushButton;

namespace quorvan {

class PathLabel;

/// The fourth tab of the rights window: the trustees of every folder below the selected path, and those of
/// the path itself and the folders above it.
///
/// Pending changes of both tables go out in one request; they outlive another visit to the tab, after which
/// the rows no longer show them.
class DirectoryTrusteeViewController : public ViewController, public SelectionContext {
public:
    // Outlets
    PathLabel* currentPath = nullptr;
    QLabel* subdirLabel = nullptr;
    QLabel* parentdirLabel = nullptr;
    QLabel* removeLabel1 = nullptr; ///< of the table above
    QLabel* removeLabel2 = nullptr;
    RightsTable* subdirTable = nullptr;
    RightsTable* parentdirTable = nullptr;
    QPushButton* removeBtnSub = nullptr;
    QPushButton* removeBtnParent = nullptr;
    QPushButton* stoppedBtn = nullptr; ///< marks what does not arrive of the rights above
    SearchField* searchInSubField = nullptr;
    SearchField* searchInParentField = nullptr;
    QLabel* readOnlyLabel = nullptr; ///< says why nothing can be changed, where that is so
    QPushButton* revertbtn = nullptr;
    QPushButton* applybtn = nullptr;
    PendingLine* pendingLine = nullptr; ///< what waits for Apply

    using Rows = std::vector<DirectoryRights>;
    Rows subtrusteeList; ///< as last loaded; edits never touch these objects
    Rows parenttrusteeList;
    Rows editedSubtrusteeList; ///< the rows; while searching, those that match
    Rows editedParenttrusteeList;
    Rows trackTrusteeList; ///< pending changes of both tables, "ADD" or "REMOVE", in the order they were made
    Rows searchListBackup; ///< the rows as they were when the search started
    Rows searchListBackupPar;
    std::uint16_t irf = 0; ///< reserved; stays 0
    bool isSupervisor = false;
    bool isAccessControl = false;
    bool isSearchingSubDir = false;
    bool isSearchingParentDir = false;

    /// Leads to the row of an identity on a path, above or below; nothing where there is none.
    void showAssignment(const std::string& id, const std::string& path);

    void loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;

    void initTrusteeDirMainView();
    void setTabState();
    /// Takes over from the trustee rights tab what the user may do.
    void isSuperiorUser();
    void initSubDirTable();
    void initParentDirTable();
    /// Appends what lies below the selected path (subDirFlag) or below `path`.
    void initTable(const std::string& path, Rows& list, bool subDirFlag);
    /// Keeps the rows on one of the paths, in the order of the paths.
    static void filterContentForSearchText(Rows& rows, const std::vector<std::string>& paths);

    /// Sets or clears in a row the one right whose box was clicked.
    static void updateRigthsWithCheckbox(DirectoryRights& row, const RightsCheckBox& sender);
    void removeTrusteeforSubdir(QObject* sender);
    void removeTrusteeforParentDir(QObject* sender);
    void onSearchSubdir(SearchField* sender);
    void onSearchParentdir(SearchField* sender);
    void onRevertClick(QObject* sender);
    void onApplyClick(QObject* sender);
    /// Reads the filters of the folders above and marks the rights that they stop, until the rows are read
    /// anew.
    void markStoppedRights();
    void onReturnMainMenu();

private:
    std::vector<PendingChange> pendingChanges() const;
    void showPending();
    void loadAgain();
    bool wasRead_ = true;   ///< the rows are what the server has
    bool mustRead_ = false; ///< what is shown as saved may not be: the connection was lost in an Apply
    /// One of the two tables with what belongs to it.
    struct Side {
        RightsTable*& table;
        SearchField*& field;
        QPushButton*& removeBtn;
        QLabel*& caption;
        QLabel*& removeLabel;
        Rows& loaded;
        Rows& edited;
        Rows& backup;
        bool& isSearching;
        const char* emptyKey;
        RowSearch<DirectoryRights> search;
        SelectionContext::Reading reading = SelectionContext::Reading::whole;
    };
    Side makeSide(bool isSub);

    void buildSides();
    void layOutControls();
    QWidget* panelOf(const Side& side);
    void showLoaded(Side& side);
    void onMouseClickCheckbox(Side& side, const RightsCheckBox& sender);
    void removeSelected(Side& side);
    void onSearch(Side& side, SearchField* sender);
    void sortDescriptorsDidChange(Side& side);
    void redisplay(const Side& side);
    bool canEdit() const { return isSupervisor || isAccessControl; }
    void setChangesEnabled(bool enabled);

    Side sub_ = makeSide(true);
    Side parent_ = makeSide(false);
};

} // namespace quorvan
