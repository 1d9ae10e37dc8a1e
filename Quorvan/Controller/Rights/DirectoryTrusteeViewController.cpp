// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/DirectoryTrusteeViewController.h"

#include "Platform/Services.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Controller/Shell/MainMenu.h"
#include "Quorvan/Modal/ParentPaths.h"
#include "Quorvan/Toolkit/ChangeButtons.h"
#include "Quorvan/Toolkit/NameSort.h"
#include "Quorvan/Toolkit/NoticeLine.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/ShownText.h"
#include "Quorvan/ViewModal/RightsWay.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace quorvan {

namespace {

const std::string& nameOf(const DirectoryRights& row) {
    return row.trustee->trusteeName;
}

const std::string& pathOf(const DirectoryRights& row) {
    return row.path;
}

} // namespace

DirectoryTrusteeViewController::Side DirectoryTrusteeViewController::makeSide(bool isSub) {
    Rows& edited = isSub ? editedSubtrusteeList : editedParenttrusteeList;
    Rows& backup = isSub ? searchListBackup : searchListBackupPar;
    bool& isSearching = isSub ? isSearchingSubDir : isSearchingParentDir;
    return {isSub ? subdirTable : parentdirTable,
            isSub ? searchInSubField : searchInParentField,
            isSub ? removeBtnSub : removeBtnParent,
            isSub ? subdirLabel : parentdirLabel,
            isSub ? removeLabel1 : removeLabel2,
            isSub ? subtrusteeList : parenttrusteeList,
            edited,
            backup,
            isSearching,
            isSub ? "No_Sub_Trustees_Label" : "No_Parent_Trustees_Label",
            {edited, backup, isSearching, {nameOf, pathOf}}};
}

void DirectoryTrusteeViewController::viewDidLoad() {
    subdirTable->setSortDescriptorPrototype(0, {"TrusteeName", true});
    parentdirTable->setSortDescriptorPrototype(0, {"TrusteeName", true});
    initTrusteeDirMainView();
}

void DirectoryTrusteeViewController::viewDidAppear() {
    setTabState();
    loadAgain();
}

void DirectoryTrusteeViewController::initTrusteeDirMainView() {
    subdirLabel->setText(L("Subdirectories_Label"));
    parentdirLabel->setText(L("Parent_dir_Label"));
    for (const Side* side : {&sub_, &parent_}) {
        side->removeLabel->setText(L("Remove_Trustee_Label"));
        side->table->setColumnHeader(0, L("Col_UserGrp_Name"));
        side->table->setColumnHeader(1, L("Col_Path"));
    }
    applybtn->setText(L("Apply_title"));
    revertbtn->setText(L("Revert_title"));
    currentPath->setPath(QString::fromStdString(selectedPath));
}

void DirectoryTrusteeViewController::isSuperiorUser() {
    const RightsTabViewController& trustees = RightsTabViewController::besides(*this);
    isSupervisor = trustees.isSupervisor;
    isAccessControl = trustees.isAccessControl;
}

void DirectoryTrusteeViewController::setTabState() {
    isSuperiorUser();
    for (const Side* side : {&sub_, &parent_}) {
        side->table->setSwitchedOn(canEdit());
        side->removeBtn->setEnabled(canEdit());
    }
    readOnlyLabel->setVisible(!canEdit());
    setChangesEnabled(false);
}

void DirectoryTrusteeViewController::setChangesEnabled(bool enabled) {
    quorvan::setChangesEnabled(enabled, revertbtn, applybtn, subdirTable);
    showPending();
}

std::vector<PendingChange> DirectoryTrusteeViewController::pendingChanges() const {
    std::vector<PendingChange> changes;
    for (const DirectoryRights& row : trackTrusteeList) {
        const auto kind =
            row.trustee->status == "REMOVE" ? PendingChange::Kind::removed : PendingChange::Kind::changed;
        changes.push_back(rightsChange(ShowDirectoryRights::identity(row), kind,
                                       row.trustee->trusteeName.str() + " " + row.path.str(),
                                       row.trustee->rights));
    }
    return changes;
}

void DirectoryTrusteeViewController::showPending() {
    pendingLine->show(pendingChanges(), {subdirTable, parentdirTable});
}

void DirectoryTrusteeViewController::initTable(const std::string& path, Rows& list, bool subDirFlag) {
    // Where a link leads the selection, the view follows; where one leads another path, it does not.
    std::string otherServer = serverIP;
    std::string otherPath = path;
    std::string& server = subDirFlag ? serverIP : otherServer;
    std::string& sent = subDirFlag ? selectedPath : otherPath;
    std::vector<std::string> identityTypes = {domainIdentity};
    if (Shared::value().bothID)
        identityTypes = {std::string(identityActiveDirectory), std::string(identityMorvane)};
    Reading& reading = (subDirFlag ? sub_ : parent_).reading;
    reading = Reading::whole;
    std::int32_t status = 0; // of the last one, which alone tells whether the load has failed
    for (const std::string& identityType : identityTypes) {
        status = renewController().getIRRequestHandleDFS(server, list, mappedPath, sent, identityType);
        if (xmlController->loss() != 0)
            break; // half a list would look whole
        reading = readingOfList(reading);
    }
    if (status == 0)
        return;
    reportFailed(status);
    wasRead_ = false;
    onReturnMainMenu();
}

void DirectoryTrusteeViewController::initSubDirTable() {
    subtrusteeList.clear();
    initTable(selectedPath, subtrusteeList, true);
    showLoaded(sub_);
}

void DirectoryTrusteeViewController::initParentDirTable() {
    const std::string root = volumeOfPath(selectedPath);
    parenttrusteeList.clear();
    parentdirTable->setStopped({});
    initTable(root, parenttrusteeList, false);
    filterContentForSearchText(parenttrusteeList, getParentPaths(selectedPath));
    showLoaded(parent_);
}

void DirectoryTrusteeViewController::showAssignment(const std::string& id, const std::string& path) {
    for (const Side* side : {&parent_, &sub_})
        for (std::size_t row = 0; row < side->edited.size(); ++row)
            if (side->edited[row].trustee->trusteeID == id && side->edited[row].path == path) {
                side->table->showRows(static_cast<int>(row));
                side->table->setFocus();
                return;
            }
}

void DirectoryTrusteeViewController::markStoppedRights() {
    const platform::BusyScope busy(platform::services().busy);
    auto pipe = openPipe(pipes::files);
    if (!pipe)
        return;
    std::vector<FolderOnWay> way = readRightsWay(*xmlController, selectedPath, domainIdentity);
    pipe.reset();
    if (reportLoss())
        return;
    std::unordered_map<std::string, std::size_t> places;
    QStringList unread;
    for (std::size_t folder = 0; folder < way.size(); ++folder) {
        places.emplace(way[folder].path, folder);
        way[folder].assignments.clear(); // the rows hold those of both directories
        if (!way[folder].isVisible)
            unread.append(shownText(QString::fromStdString(way[folder].path)));
    }
    for (const DirectoryRights& row : parenttrusteeList)
        if (const auto place = places.find(row.path); place != places.end())
            way[place->second].assignments.push_back({row.trustee->trusteeID, row.trustee->rights, {}});

    std::unordered_map<std::string, StoppedRights> stopped;
    int count = 0;
    for (const DirectoryRights& row : parenttrusteeList)
        if (const auto place = places.find(row.path); place != places.end())
            for (const StoppedRight& each : stoppedRights(way, row.trustee->trusteeID, place->second)) {
                stopped[ShowDirectoryRights::identity(row)].emplace_back(
                    each.right, shownText(QString::fromStdString(way[each.folder].path)));
                count += (row.trustee->rights & each.right) != 0 ? 1 : 0;
            }
    parentdirTable->setStopped(std::move(stopped));
    if (unread.isEmpty())
        NoticeLine::tell(NoticeLine::Kind::done,
                         count == 0 ? L("Stopped_None_Label") : L("Stopped_Count_Label", count));
    else
        NoticeLine::tell(NoticeLine::Kind::problem,
                         L("Stopped_Unread_Label").arg(unread.join(QStringLiteral(", "))));
}

void DirectoryTrusteeViewController::filterContentForSearchText(Rows& rows,
                                                                const std::vector<std::string>& paths) {
    Rows kept;
    for (const std::string& path : paths)
        std::ranges::copy_if(rows, std::back_inserter(kept),
                             [&path](const DirectoryRights& row) { return row.path == path; });
    rows = std::move(kept);
}

void DirectoryTrusteeViewController::showLoaded(Side& side) {
    side.edited = copyOf(side.loaded);
    side.table->setSortDescriptor({});
    redisplay(side);
}

void DirectoryTrusteeViewController::redisplay(const Side& side) {
    quorvan::redisplay(*side.table, side.isSearching, *side.field, emptyListKey(side.reading, side.emptyKey),
                       "No_Match_Path_Label");
}

void DirectoryTrusteeViewController::updateRigthsWithCheckbox(DirectoryRights& row,
                                                              const RightsCheckBox& sender) {
    row.trustee->rights = sender.appliedTo(row.trustee->rights);
}

void DirectoryTrusteeViewController::onMouseClickCheckbox(Side& side, const RightsCheckBox& sender) {
    DirectoryRights& row = side.edited[static_cast<std::size_t>(sender.row)];
    row.trustee = std::make_shared<Trustees>(*row.trustee); // other lists show the old one
    updateRigthsWithCheckbox(row, sender);
    Trustees trustee = *row.trustee;

    const auto sameIdentity = [&trustee](const DirectoryRights& other) {
        return other.trustee->trusteeID == trustee.trusteeID;
    };
    // Whatever its path: the first row of an identity follows all of them.
    const auto backup = std::ranges::find_if(side.backup, sameIdentity);
    if (backup != side.backup.end()) {
        backup->trustee = std::make_shared<Trustees>(*backup->trustee);
        backup->trustee->rights = trustee.rights;
    }
    const auto tracked = std::ranges::find_if(trackTrusteeList, [&](const DirectoryRights& other) {
        return other.path == row.path && sameIdentity(other);
    });
    if (tracked != trackTrusteeList.end()) {
        tracked->trustee->rights = trustee.rights;
    } else {
        trustee.status = "ADD";
        trackTrusteeList.push_back({std::make_shared<Trustees>(trustee), row.path});
    }
    setChangesEnabled(true);
}

void DirectoryTrusteeViewController::removeSelected(Side& side) {
    const Rows removed = takeRows(side.edited, side.table->selectedRowIndexes());
    for (const DirectoryRights& row : removed)
        row.trustee->status = "REMOVE";
    std::ranges::copy(removed, std::back_inserter(trackTrusteeList));
    redisplay(side);
    setChangesEnabled(true);
}

void DirectoryTrusteeViewController::removeTrusteeforSubdir(QObject* /*sender*/) {
    removeSelected(sub_);
}

void DirectoryTrusteeViewController::removeTrusteeforParentDir(QObject* /*sender*/) {
    removeSelected(parent_);
}

void DirectoryTrusteeViewController::onSearch(Side& side, SearchField* sender) {
    side.search.setText(sender->text().toStdString(), *side.table);
    redisplay(side);
}

void DirectoryTrusteeViewController::onSearchSubdir(SearchField* sender) {
    onSearch(sub_, sender);
}

void DirectoryTrusteeViewController::onSearchParentdir(SearchField* sender) {
    onSearch(parent_, sender);
}

void DirectoryTrusteeViewController::sortDescriptorsDidChange(Side& side) {
    if (!side.table->isSortedBy("TrusteeName", sortAscending))
        return;
    sortByName(side.edited, sortAscending, nameOf);
    redisplay(side);
}

void DirectoryTrusteeViewController::onRevertClick(QObject* /*sender*/) {
    trackTrusteeList.clear();
    if (std::exchange(mustRead_, false)) {
        loadAgain();
    } else {
        showLoaded(parent_);
        showLoaded(sub_);
    }
    setChangesEnabled(false);
}

void DirectoryTrusteeViewController::onApplyClick(QObject* /*sender*/) {
    if (trackTrusteeList.empty())
        return;
    auto pipe = openPipe(pipes::files);
    if (!pipe)
        return;
    xmlController->setTrusteeforDir(trackTrusteeList, domainIdentity);
    pipe.reset();
    mustRead_ = reportLoss(trackTrusteeList.size());
    if (mustRead_)
        return;
    const std::vector<PendingChange> sent = pendingChanges();
    trackTrusteeList.clear();
    loadAgain();
    setChangesEnabled(false);
    if (!wasRead_ || sub_.reading != Reading::whole || parent_.reading != Reading::whole)
        return;
    std::unordered_map<std::string, std::int64_t> now;
    for (const Rows* rows : {&subtrusteeList, &parenttrusteeList})
        for (const DirectoryRights& row : *rows)
            now[ShowDirectoryRights::identity(row)] = row.trustee->rights;
    tellOutcome(sent, now);
}

void DirectoryTrusteeViewController::loadAgain() {
    wasRead_ = true;
    for (Side* side : {&sub_, &parent_})
        side->search.end(*side->field);
    initSubDirTable();
    initParentDirTable();
}

void DirectoryTrusteeViewController::onReturnMainMenu() {
    returnToMainMenu(*this);
}

} // namespace quorvan
