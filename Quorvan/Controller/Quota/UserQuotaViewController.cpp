// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Quota/UserQuotaViewController.h"

#include "Common/FeatureFlags.h"
#include "Quorvan/Controller/Quota/UserQuotaRows.h"
#include "Quorvan/Controller/Selection/OwnRights.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Controller/Shell/MainMenu.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/ChangeButtons.h"
#include "Quorvan/Toolkit/FailedStatus.h"
#include "Quorvan/Toolkit/ListRows.h"
#include "Quorvan/Toolkit/NameSort.h"
#include "Quorvan/Toolkit/Segue.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>

namespace quorvan {

namespace {

using Actions = UserQuotaConstants::Actions;
using Sid = std::optional<std::string>; ///< two that are missing are the same

const std::string& userNameOf(const std::shared_ptr<UserQuotaData>& user) {
    return unwrap(user->displayName, "A user with a quota has no name");
}

} // namespace

void UserQuotaViewController::viewDidLoad() {
    userQuotaTable->setSortDescriptorPrototype(0, {"displayName", true});
    loadStrings();
    featureFlagDict = readFeatureFlags();
    addBothTrusteesFlag = featureFlag(*featureFlagDict, "addBothTrustees");
    initUserQuota();
}

void UserQuotaViewController::viewDidAppear() {
    userQuotaTable->setFocus();
}

void UserQuotaViewController::initUserQuota() {
    renewController();
    for (QPushButton* button : {addUQButton, removeUQButton, editUQButton})
        button->setEnabled(false);
    checkMappedInUserRights();
    getUserQuotaInfo();
    if (Shared::value().bothID && !addBothTrusteesFlag) {
        addUQButton->setEnabled(false);
        editUQButton->setEnabled(false);
    }
}

void UserQuotaViewController::checkMappedInUserRights() {
    const auto rights = loadOwnRights(*xmlController, selectedPath, serverIP, mappedPath, domainIdentity);
    if (rights) {
        isSupervisor = rights->isSupervisor;
        isAccessControl = rights->isAccessControl;
        if (isSupervisor) {
            for (QPushButton* button : {addUQButton, removeUQButton, editUQButton})
                button->setEnabled(true);
            setChangesEnabled(false, revert, applyButton, userQuotaTable);
        }
    }
    readOnlyLabel->setVisible(rights && !isSupervisor);
}

/// The quotas are read and set by one controller for as long as the page lives.
std::unique_ptr<ScopedPipe> UserQuotaViewController::openQuotaPipe() {
    return openPipeOf(*xmlController, pipes::userQuotas);
}

void UserQuotaViewController::getUserQuotaInfo() {
    for (UserQuotaList* list : {&users, &usersToRemove, &usersEdited, &usersDisplay})
        list->clear();
    auto pipe = openQuotaPipe();
    wasRead_ = pipe != nullptr;
    if (wasRead_) {
        std::vector<std::string> identityTypes = {domainIdentity};
        if (Shared::value().bothID)
            identityTypes = {std::string(identityActiveDirectory), std::string(identityMorvane)};
        for (const std::string& identityType : identityTypes) {
            if (xmlController->loss() == 0)
                xmlController->getUserQuotaInfo(selectedPath, users, identityType);
        }
        pipe.reset();
        wasRead_ = !reportLoss();
        if (wasRead_)
            reading_ = readingOfList();
        else
            users.clear(); // half a list would look whole
        usersEdited = users;
        usersDisplay = users;
    }
    forgetSearch();
    redisplay();
}

/// The rows are all there and in the order of usersEdited again; so the field and the header say.
void UserQuotaViewController::forgetSearch() {
    const QSignalBlocker quiet(searchField);
    searchField->clear();
    searchString.clear();
    searched_.clear();
    userQuotaTable->setSortDescriptor({});
}

void UserQuotaViewController::redisplay() {
    quorvan::redisplay(*userQuotaTable, !searchString.empty(), *searchField,
                       wasRead_ ? emptyListKey(reading_, "No_User_Quotas_Label")
                                : "User_Quotas_Unknown_Label");
    showPending();
    const auto over =
        std::ranges::count_if(usersDisplay, [](const auto& user) { return isOverLimit(*user); });
    overLimitBtn->setText(L("Over_Limit_Label", static_cast<int>(over)));
    overLimitBtn->setVisible(over > 0);
}

void UserQuotaViewController::goToNextOverLimit() {
    const auto rows = static_cast<int>(usersDisplay.size());
    const int current = userQuotaTable->currentIndex().isValid() ? userQuotaTable->currentIndex().row() : -1;
    for (int step = 1; step <= rows; ++step) {
        const int row = (current + step) % rows;
        if (isOverLimit(*usersDisplay[static_cast<std::size_t>(row)])) {
            userQuotaTable->showRows(row);
            userQuotaTable->setFocus();
            return;
        }
    }
}

std::vector<PendingChange> UserQuotaViewController::pendingChanges() const {
    using Kind = PendingChange::Kind;
    std::vector<PendingChange> changes;
    for (const auto& user : getOperationsToPerform()) {
        const Kind kind = user->action == Actions::REMOVE ? Kind::removed
                          : user->action == Actions::ADD  ? Kind::added
                                                          : Kind::changed;
        changes.push_back({user->SID.value_or(""), kind,
                           QString::fromStdString(user->displayName.value_or("")),
                           UserQuotaColumn::limitOf(*user), user->quotaLimit.value_or(0)});
    }
    return changes;
}

void UserQuotaViewController::showPending() {
    pendingLine->show(pendingChanges(), {userQuotaTable});
}

/// A user whose limit was removed stays in the list of those who use space.
void UserQuotaViewController::tellOutcomeOf(const std::vector<PendingChange>& sent) const {
    std::unordered_map<std::string, std::int64_t> removed;
    for (const PendingChange& change : sent) // the last one of a user decides
        if (change.kind == PendingChange::Kind::removed)
            removed[change.identity] = change.value;
        else
            removed.erase(change.identity);
    std::unordered_map<std::string, std::int64_t> now;
    for (const auto& user : users) {
        const std::string id = user->SID.value_or("");
        const auto former = removed.find(id);
        if (former == removed.end() || former->second == user->quotaLimit)
            now[id] = user->quotaLimit.value_or(0);
    }
    tellOutcome(sent, now);
}

void UserQuotaViewController::onSearch(SearchField* field) {
    searchString = field->text().toStdString();
    if (searchString.empty()) {
        usersDisplay = usersEdited;
        searched_.clear();
    } else {
        if (searched_.empty()) {
            std::ranges::copy_if(usersEdited, std::back_inserter(searched_),
                                 [](const auto& user) { return user->displayName.has_value(); });
            searchFilter_.setRows(searched_, userNameOf);
        }
        usersDisplay = searchFilter_.matching(searched_, searchString);
    }
    userQuotaTable->setSortDescriptor({});
    redisplay();
}

void UserQuotaViewController::sortDescriptorsDidChange() {
    if (!userQuotaTable->isSortedBy("displayName", sortAscending))
        return;
    sortByName(usersDisplay, sortAscending, userNameOf);
    redisplay();
}

void UserQuotaViewController::onClickRemove() {
    std::unordered_map<Sid, std::size_t> removed; // how often each
    for (const int row : userQuotaTable->selectedRowIndexes()) {
        const auto& user = usersDisplay[static_cast<std::size_t>(row)];
        user->action = Actions::REMOVE;
        usersToRemove.push_back(user);
        ++removed[user->SID];
    }
    std::erase_if(usersDisplay, [&](const auto& user) { return removed.contains(user->SID); });
    // The first row of a SID goes, once for each time that it was removed.
    std::erase_if(usersEdited, [&](const auto& user) {
        const auto found = removed.find(user->SID);
        if (found == removed.end() || found->second == 0)
            return false;
        --found->second;
        return true;
    });
    searched_.clear();
    redisplay();
    setChangesEnabled(true, revert, applyButton, userQuotaTable);
}

void UserQuotaViewController::onClickAdd() {
    auto* dialog = new AddUserQuotaViewController;
    dialog->delegate.emplace().set(*this, *this);
    presentAsSheet(dialog);
}

void UserQuotaViewController::onClickEdit() {
    SheetSegue segue("editUserQuotaSegue", this, new AddUserQuotaViewController);
    prepare(segue);
    segue.perform();
}

void UserQuotaViewController::prepare(const Segue& segue) {
    if (segue.identifier != "editUserQuotaSegue")
        return;
    updateOperationsToPerformWithModify();
    auto* dialog = dynamic_cast<AddUserQuotaViewController*>(segue.destination);
    require(dialog != nullptr, "Quotas are edited in another view");
    dialog->delegate.emplace().set(*this, *this);
    dialog->edits = true;
    for (const int row : userQuotaTable->selectedRowIndexes())
        dialog->users.push_back(usersDisplay[static_cast<std::size_t>(row)]);
}

void UserQuotaViewController::updateOperationsToPerformWithModify() {
    for (const int row : userQuotaTable->selectedRowIndexes()) {
        if (static_cast<std::size_t>(row) >= usersEdited.size())
            break; // users who share a SID can stand in more rows than there are users
        auto& action = usersEdited[static_cast<std::size_t>(row)]->action;
        if (action == Actions::NONE)
            action = Actions::MODIFY;
    }
    showPending();
}

bool UserQuotaViewController::onReturnAddedUsers(const UserQuotaList& returned) {
    if (returned.empty())
        return true;
    const UserQuotaList before = usersEdited;
    std::unordered_map<Sid, std::size_t> positions;
    for (std::size_t position = 0; position < usersEdited.size(); ++position)
        positions.emplace(usersEdited[position]->SID, position); // of several, the first
    std::unordered_set<std::size_t> touched;
    usersDisplay.clear();
    for (const auto& user : returned) {
        const auto [position, isNew] = positions.emplace(user->SID, usersEdited.size());
        if (isNew) {
            usersEdited.push_back(user);
        } else {
            UserQuotaData& listed = *usersEdited[position->second];
            listed.action = user->action;
            listed.quotaLimit = user->quotaLimit;
            listed.quotaUsed = user->quotaUsed;
            listed.quotaAvailable = user->quotaAvailable;
            touched.insert(position->second);
        }
        usersDisplay.push_back(usersEdited[position->second]);
    }
    for (std::size_t position = 0; position < before.size(); ++position)
        if (!touched.contains(position))
            usersDisplay.push_back(before[position]);
    forgetSearch();
    redisplay();
    userQuotaTable->showRows(0, static_cast<int>(returned.size()));
    setChangesEnabled(true, revert, applyButton, userQuotaTable);
    return true;
}

UserQuotaList UserQuotaViewController::getOperationsToPerform() const {
    UserQuotaList operations = usersToRemove;
    std::ranges::copy_if(usersEdited, std::back_inserter(operations),
                         [](const auto& user) { return user->action != Actions::NONE; });
    return operations;
}

void UserQuotaViewController::setUserQuotaInfo() {
    const UserQuotaList operations = getOperationsToPerform();
    const std::vector<PendingChange> sent = pendingChanges();
    auto pipe = openQuotaPipe();
    if (!pipe) {
        getUserQuotaInfo();
        return;
    }
    const std::string result = xmlController->setUserQuotaInfo(selectedPath, operations, domainIdentity);
    pipe.reset();
    if (reportLoss(operations.size()))
        return;
    setChangesEnabled(false, revert, applyButton, userQuotaTable);
    if (result == "0") {
        getUserQuotaInfo();
        if (wasRead_ && reading_ == Reading::whole)
            tellOutcomeOf(sent);
    } else {
        reportFailedResult(result);
    }
}

void UserQuotaViewController::onClickApply() {
    setUserQuotaInfo();
}

void UserQuotaViewController::onClickRevert() {
    usersToRemove.clear();
    getUserQuotaInfo();
    setChangesEnabled(false, revert, applyButton, userQuotaTable);
}

void UserQuotaViewController::onReturnMainMenu() {
    returnToMainMenu(*this);
}

} // namespace quorvan
