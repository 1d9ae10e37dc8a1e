// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/FileSystemRightsViewController.h"

#include "Common/FeatureFlags.h"
#include "Common/Log.h"
#include "Common/ServerDetails.h"
#include "Platform/PercentEscapes.h"
#include "Platform/VolumesFolder.h"
#include "Quorvan/Controller/Rights/GroupRightsViewController.h"
#include "Quorvan/Controller/Shell/MainMenu.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/Toolkit/ChangeButtons.h"
#include "Quorvan/Toolkit/ListRows.h"
#include "Quorvan/Toolkit/NameSort.h"
#include "Quorvan/Toolkit/NoticeLine.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/Segue.h"
#include "Quorvan/Toolkit/ShownText.h"
#include "Quorvan/Toolkit/Storyboard.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace quorvan {

namespace {

bool isUserType(const std::string& type) {
    const std::string lower = lowercased(type);
    return lower == lowercased(UserQuotaConstants::ObjectTypes::USERS) ||
           std::ranges::find(MorvaneObjectTypes::USERS, lower) != MorvaneObjectTypes::USERS.end();
}

} // namespace

void FileSystemRightsViewController::viewDidLoad() {
    readFlags();
    newFileBrowserFlag = featureFlag(*featureFlagDict, "newFileBrowser");
    initFSRMainView();
    fsrTable->setSortDescriptorPrototype(0, {"fpath", true});
    disableWhereBothAreShown(selectUserBtn);
    redisplay();
}

void FileSystemRightsViewController::initFSRMainView() {
    fsrTitle->setText(L("FSR_Label_Title"));
    addRemoveTitle->setText(L("Add_Remove_Path_Label"));
    usergrpTitle->setText(L("User_Group_Label"));
    applyBtn->setText(L("Apply_title"));
    revertBtn->setText(L("Revert_title"));
    cancelBtn->setText(L("Close_title"));
    grpBtn->setText(L("Group_Rights"));
    fsrTable->setColumnHeader(0, L("Col_Path"));
    currentPath->setPath(selectedPathName());
    checkMappedInUserRights();
}

void FileSystemRightsViewController::checkMappedInUserRights() {
    loadOwnRights(renewController());
    if (isSupervisor)
        selectUserBtn->setEnabled(true);
    readOnlyLabel->setVisible(!isSupervisor);
}

void FileSystemRightsViewController::setBtnState() {
    if (!isSupervisor)
        return;
    grpBtn->setEnabled(isUserType(SelectedTrusteeType));
    addBtn->setEnabled(true);
    removeBtn->setEnabled(true);
}

bool FileSystemRightsViewController::initFSRRightsTable(const std::string& userID) {
    frightsList.clear();
    backupfrightsList.clear();
    removedfrightsList.clear();
    trackfrightsList.clear();
    auto pipe = openPipe(pipes::rights);
    const bool isOpen = pipe != nullptr;
    if (isOpen)
        xmlController->getFSRights(selectedPath, {userID}, frightsList, domainIdentity);
    pipe.reset();
    const bool wasRead = isOpen && !reportLoss();
    if (wasRead)
        reading_ = readingOfList();
    else
        onReturnMainMenu();
    showLoadedRows();
    return wasRead;
}

void FileSystemRightsViewController::showLoadedRows() {
    editedfrightsList.clear();
    for (const IdentityFileRights& loaded : frightsList)
        editedfrightsList.push_back(std::make_shared<FileRights>(loaded.rights));
    fsrTable->setSortDescriptor({});
}

void FileSystemRightsViewController::redisplay() {
    fsrTable->reloadData();
    fsrTable->setEmptyText(L(!selectedTrusteeID.empty() ? emptyListKey(reading_, "FSR_No_Paths_Label")
                             : isSupervisor             ? "FSR_Nobody_Label"
                                                        : "FSR_Not_Allowed_Label"));
    showPending();
}

std::vector<PendingChange> FileSystemRightsViewController::pendingChanges() const {
    using Kind = PendingChange::Kind;
    std::unordered_set<std::string> known;
    if (!trackfrightsList.empty())
        for (const IdentityFileRights& row : frightsList)
            known.insert(row.rights.fpath);
    std::vector<PendingChange> changes;
    for (const TrackedRights& change : trackfrightsList) {
        const std::string& path = change.rights->fpath;
        const Kind kind = change.status == "REMOVE" ? Kind::removed
                          : known.contains(path)    ? Kind::changed
                                                    : Kind::added;
        changes.push_back(rightsChange(path, kind, path, change.rights->frights));
    }
    return changes;
}

void FileSystemRightsViewController::showPending() {
    pendingLine->show(pendingChanges(), {fsrTable});
}

void FileSystemRightsViewController::setChangesEnabled(bool enabled) {
    quorvan::setChangesEnabled(enabled, revertBtn, applyBtn, fsrTable);
    showPending();
}

bool FileSystemRightsViewController::onReturnMorvaneSelectedUser(const std::vector<User>& users) {
    if (!users.empty()) {
        keepIdentityType();
        const User& user = users.back();
        namefield->setPath(QString::fromStdString(user.trusteeName));
        selectedTrusteeID = user.trusteeID;
        SelectedTrusteeName = user.trusteeName;
        SelectedTrusteeType = user.trusteeType;
    }
    return reloadChosenIdentity();
}

bool FileSystemRightsViewController::onReturnSelectedUser(const std::vector<std::string>& names,
                                                          const std::vector<std::string>& ids,
                                                          const std::string& category) {
    if (const std::size_t count = std::min(names.size(), ids.size()); count != 0) {
        keepIdentityType();
        namefield->setPath(QString::fromStdString(names[count - 1]));
        selectedTrusteeID = ids[count - 1];
        SelectedTrusteeType = category;
    }
    return reloadChosenIdentity();
}

bool FileSystemRightsViewController::reloadChosenIdentity() {
    initFSRRightsTable(selectedTrusteeID);
    setBtnState();
    redisplay();
    return true;
}

void FileSystemRightsViewController::onAddPath(QObject* /*sender*/) {
    SheetSegue segue(
        "browseFolderSegue", this,
        Storyboard::named("Main").instantiate(newFileBrowserFlag ? "NewFileBrowser" : "OldFileBrowser"));
    prepare(segue);
    segue.perform();
}

void FileSystemRightsViewController::prepare(const Segue& segue) {
    if (segue.identifier == "browseFolderSegue") {
        require(!mappedPath.empty(), "The mapped path is empty");
        auto& browser = dynamic_cast<BrowseFolderViewController&>(*segue.destination);
        browser.setBrowseFileDelegate(*this, *this);
        browser.volpath = mappedPath.substr(0, mappedPath.find(':'));
        browser.startPath = ServerDetails::serverInfo().selectedAbsolutePath.value_or("");
    } else if (segue.identifier == "browseGroupRights") {
        auto& groups = dynamic_cast<GroupRightsViewController&>(*segue.destination);
        groups.trusteeID = selectedTrusteeID;
        groups.selectedPath = selectedPath;
        groups.SelectedTrusteeName = SelectedTrusteeName;
        groups.domainIdentity = domainIdentity;
        groups.whose = namefield->text();
        groups.changesWait = !trackfrightsList.empty();
    }
}

std::string FileSystemRightsViewController::formatPath(const std::string& selpath) {
    const std::string volumes = std::string("file://") + platform::volumesFolder + "/";
    if (selpath.empty())
        return {};
    std::string path = selpath;
    if (const std::size_t at = path.find(volumes); at != std::string::npos)
        path.erase(at, volumes.size());
    return ServerDetails::serverForm(std::move(path), "\\"); // no colon after a mere volume
}

void FileSystemRightsViewController::onReturnSelectedPath(const std::vector<std::string>& selpath) {
    std::unordered_set<std::string> listed;
    for (const auto& row : editedfrightsList)
        listed.insert(row->fpath);
    const std::size_t shown = editedfrightsList.size();
    QStringList outside;
    for (const std::string& address : selpath) {
        // The address is a URL, the server's path is not.
        const std::string path = formatPath(platform::percentUnescaped(address));
        if (!listed.insert(path).second)
            continue;
        Log("Appended %@ to FSR table", address);
        editedfrightsList.push_back(std::make_shared<FileRights>(FileRights{path, newTrusteeRights}));
        track(editedfrightsList.back(), "ADD");
        if (!isBelowSelection(path))
            outside.append(shownText(path));
    }
    redisplay();
    if (const auto added = editedfrightsList.size() - shown; added > 0) {
        fsrTable->setSortDescriptor({}); // the new rows stand at the end, whatever the order was
        fsrTable->showRows(static_cast<int>(shown), static_cast<int>(added));
    }
    setChangesEnabled(true);
    if (!outside.isEmpty())
        NoticeLine::tell(
            NoticeLine::Kind::problem,
            L("Path_Outside_Label").arg(shownText(selectedPath), outside.join(QStringLiteral(", "))));
}

/// Only what lies there is in the list that is read.
bool FileSystemRightsViewController::isBelowSelection(const std::string& path) const {
    const std::string shown = lowercased(path);
    const std::string top = lowercased(selectedPath);
    return shown.starts_with(top) &&
           (shown.size() == top.size() || top.ends_with('\\') || shown[top.size()] == '\\');
}

void FileSystemRightsViewController::track(std::shared_ptr<FileRights> rights, const char* status) {
    trackfrightsList.push_back({namefield->text().toStdString(), std::move(rights), status});
}

void FileSystemRightsViewController::removeSelectedRow(QObject* /*sender*/) {
    for (auto& removed : takeRows(editedfrightsList, fsrTable->selectedRowIndexes()))
        track(std::move(removed), "REMOVE");
    setChangesEnabled(true);
    redisplay();
}

void FileSystemRightsViewController::onMouseClickCheckbox(const RightsCheckBox& sender) {
    auto& row = editedfrightsList[static_cast<std::size_t>(sender.row)];
    row = std::make_shared<FileRights>(FileRights{row->fpath, sender.appliedTo(row->frights)});
    const auto tracked = std::ranges::find_if(
        trackfrightsList, [&row](const TrackedRights& change) { return change.rights->fpath == row->fpath; });
    if (tracked != trackfrightsList.end())
        tracked->rights->frights = row->frights;
    else
        track(std::make_shared<FileRights>(*row), "ADD");
    setChangesEnabled(true);
}

void FileSystemRightsViewController::onApply(QObject* /*sender*/) {
    if (!trackfrightsList.empty()) {
        const std::vector<PendingChange> sent = pendingChanges();
        while (!trackfrightsList.empty()) {
            send(trackfrightsList.front());
            mustRead_ = reportLoss(1);
            if (mustRead_)
                return; // that change and those after it stay pending
            trackfrightsList.erase(trackfrightsList.begin());
        }
        if (!initFSRRightsTable(selectedTrusteeID))
            tellInDoubt("Sent_In_Doubt_Label", sent);
        else if (reading_ == Reading::whole)
            tellOutcomeOf(sent);
    }
    redisplay();
    setChangesEnabled(false);
}

/// What lies outside of the selection is not in the list that was read, and nothing is known of it.
void FileSystemRightsViewController::tellOutcomeOf(std::vector<PendingChange> sent) const {
    std::vector<PendingChange> outside;
    for (PendingChange& change : sent) {
        if (!isBelowSelection(change.identity))
            outside.push_back(change);
        change.identity = lowercased(change.identity); // the server's spelling may be another one
    }
    std::erase_if(sent, [this](const PendingChange& change) { return !isBelowSelection(change.identity); });
    std::unordered_map<std::string, std::int64_t> now;
    for (const IdentityFileRights& row : frightsList)
        now[lowercased(row.rights.fpath.str())] = row.rights.frights;
    if (!sent.empty())
        tellOutcome(sent, now);
    else if (!outside.empty())
        tellInDoubt("Sent_Outside_Label", outside);
}

/// Names the changes of which it is not known what has become of them, so that they can be made again.
void FileSystemRightsViewController::tellInDoubt(const char* key, const std::vector<PendingChange>& sent) {
    NoticeLine::tell(NoticeLine::Kind::problem, L(key).arg(textsOf(sent)));
}

void FileSystemRightsViewController::send(const TrackedRights& change) {
    const Trustees trustee(namefield->text().toStdString(), selectedTrusteeID, change.rights->frights,
                           change.status, "", "");
    // A link on the way to this path leads this change elsewhere, but not the page, nor the changes after it.
    std::string server = serverIP;
    std::string mapped = mappedPath;
    std::string path = change.rights->fpath;
    renewController().setTrusteeHandleDFS(server, mapped, path, trustee, domainIdentity);
}

void FileSystemRightsViewController::onRevertClick(QObject* /*sender*/) {
    trackfrightsList.clear();
    if (std::exchange(mustRead_, false))
        initFSRRightsTable(selectedTrusteeID);
    else
        showLoadedRows();
    redisplay();
    setChangesEnabled(false);
}

void FileSystemRightsViewController::sortDescriptorsDidChange() {
    if (!fsrTable->isSortedBy("fpath", sortAscending))
        return;
    sortByName(editedfrightsList, sortAscending,
               [](const std::shared_ptr<FileRights>& row) -> const std::string& { return row->fpath; });
    redisplay();
}

void FileSystemRightsViewController::onReturnMainMenu() {
    returnToMainMenu(*this);
}

} // namespace quorvan
