// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/RightsTabViewController.h"

#include "Common/FeatureFlags.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Shell/MainMenu.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/ChangeButtons.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NameSort.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/Storyboard.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace quorvan {

namespace {

/// The first trustee of a list with that ID; null when there is none.
Trustees* findByID(const TrusteeList& trustees, const std::string& id) {
    const auto found = std::find_if(trustees.begin(), trustees.end(),
                                    [&id](const auto& trustee) { return trustee->trusteeID == id; });
    return found == trustees.end() ? nullptr : found->get();
}

} // namespace

RightsTabViewController::RightsTabViewController()
    : IdentityChoice(static_cast<ViewController&>(*this), TrusteeContext::domainIdentity, {}) {}

RightsTabViewController& RightsTabViewController::besides(const ViewController& view) {
    const ViewController* window = view.parentController();
    require(window != nullptr && !window->childControllers().empty(), "The view is no tab");
    auto* tab = dynamic_cast<RightsTabViewController*>(window->childControllers().front());
    require(tab != nullptr, "The trustee rights are not the first tab");
    return *tab;
}

void RightsTabViewController::viewDidLoad() {
    rightsTable->setSortDescriptorPrototype(0, {"TrusteeName", true});
    readMultiForest();
    bothIdentitiesFlag = featureFlag(*featureFlagDict, "bothIdentities");
    addBothTrusteesFlag = featureFlag(*featureFlagDict, "addBothTrustees");
    enableSettingsFlag = featureFlag(*featureFlagDict, "enableSettings");
    initRightsMainView();
}

void RightsTabViewController::initRightsMainView() {
    addRemoveLabel->setText(L("Add_Remove_Label"));
    applyBtn->setText(L("Apply_title"));
    revertBtn->setText(L("Revert_title"));
    rightsTable->setColumnHeader(0, L("Col_UserGrp_Name"));
    currentPath->setPath(selectedPathName());

    const bool isCheckBox = !enableSettingsFlag && bothIdentitiesFlag;
    const char* title = "Rights_Label_Title";
    if (isCheckBox && addBothTrusteesFlag)
        title = domainIdentity == identityActiveDirectory ? "Morvane_Trustee_Label" : "AD_Trustee_Label";
    else if (isCheckBox)
        title = "Both_Trustee_Label";
    showCheck->setText(L(title));
    showCheck->setVisible(isCheckBox);
    showCheckCaption->setText(plainL(title));
    showCheckCaption->setVisible(!isCheckBox);
}

void RightsTabViewController::viewWillAppear() {
    readAgain();
}

bool RightsTabViewController::readAgain() {
    wasRead_ = true;
    reading = Reading::whole;
    search_.end(*searchField);
    showCheck->setChecked(Shared::value().bothID);
    if (showCheck->isChecked())
        onShowBothMorvaneAD(showCheck);
    else
        initRightsTable();
    setTabState();
    redisplay();
    return wasRead_;
}

void RightsTabViewController::viewDidAppear() {
    rightsTable->scrollToTop();
    const QWidget* focus = window()->focusWidget();
    if (focus == nullptr || !focus->isVisible()) // it was in the page before
        rightsTable->setFocus();
}

void RightsTabViewController::initRightsTable() {
    if (!loadTrustees(trusteeList, domainIdentity))
        giveUp();
    editedTrusteeList = copyOf(trusteeList);
    rightsTable->setSortDescriptor({});
}

void RightsTabViewController::initRightsTable(const std::string& domain) {
    TrusteeList loaded;
    if (!loadTrustees(loaded, domain))
        giveUp();
    std::ranges::copy(copyOf(loaded), std::back_inserter(trusteeList));
    std::ranges::copy(copyOf(loaded), std::back_inserter(editedTrusteeList));
    rightsTable->setSortDescriptor({});
}

void RightsTabViewController::giveUp() {
    wasRead_ = false;
    onReturnMainMenu();
}

void RightsTabViewController::setTabState() {
    addBtn->setEnabled(canEdit() && !(showCheck->isChecked() && !addBothTrusteesFlag));
    removeBtn->setEnabled(canEdit());
    rightsTable->setSwitchedOn(canEdit());
    showCheck->setEnabled(canEdit());
    readOnlyLabel->setVisible(!canEdit());
    setChangesEnabled(false);
}

void RightsTabViewController::setChangesEnabled(bool enabled) {
    quorvan::setChangesEnabled(enabled, revertBtn, applyBtn, rightsTable);
    showPending();
}

void RightsTabViewController::redisplay() {
    quorvan::redisplay(*rightsTable, isSearching, *searchField, emptyListKey(reading, "No_Trustees_Label"));
    showPending();
}

std::vector<PendingChange> RightsTabViewController::pendingChanges() const {
    using Kind = PendingChange::Kind;
    std::unordered_set<std::string> known;
    if (!trackTrusteeList.empty())
        for (const auto& trustee : trusteeList)
            known.insert(trustee->trusteeID);
    std::vector<PendingChange> changes;
    for (const auto& trustee : trackTrusteeList) {
        const Kind kind = trustee->status == "REMOVE"          ? Kind::removed
                          : known.contains(trustee->trusteeID) ? Kind::changed
                                                               : Kind::added;
        changes.push_back(rightsChange(trustee->trusteeID, kind, trustee->trusteeName, trustee->rights));
    }
    return changes;
}

void RightsTabViewController::showPending() {
    pendingLine->show(pendingChanges(), {rightsTable});
}

void RightsTabViewController::onShowBothMorvaneAD(QCheckBox* sender) {
    const bool on = sender->isChecked();
    if (bothIdentitiesFlag && !addBothTrusteesFlag)
        addBtn->setEnabled(!on);
    domainIdentity = ServerDetails::serverInfo().getIdentityType();
    Shared::value().bothID = on && bothIdentitiesFlag;
    if (Shared::value().bothID) {
        trackTrusteeList.clear();
        editedTrusteeList.clear();
        trusteeList.clear();
        initRightsTable(std::string(identityActiveDirectory));
        initRightsTable(std::string(identityMorvane));
    } else {
        initRightsTable();
    }
    redisplay();
}

void RightsTabViewController::removeSelectedRow(QObject* /*sender*/) {
    const std::vector<int> selected = rightsTable->selectedRowIndexes();
    if (!selected.empty()) {
        removedTrusteeList = takeRows(editedTrusteeList, selected);
        for (const auto& trustee : removedTrusteeList)
            trustee->status = "REMOVE";
        std::ranges::copy(removedTrusteeList, std::back_inserter(trackTrusteeList));
    }
    redisplay();
    setChangesEnabled(true);
}

void RightsTabViewController::onMouseClickCheckbox(const RightsCheckBox& sender) {
    auto& row = editedTrusteeList[static_cast<std::size_t>(sender.row)];
    Trustees trustee = *row;
    trustee.rights = sender.appliedTo(trustee.rights);
    row = std::make_shared<Trustees>(trustee);
    if (Trustees* tracked = findByID(trackTrusteeList, trustee.trusteeID)) {
        tracked->rights = trustee.rights;
    } else {
        trustee.status = "ADD";
        trackTrusteeList.push_back(std::make_shared<Trustees>(trustee));
    }
    if (Trustees* backup = findByID(backupEditedTrusteeList, trustee.trusteeID))
        backup->rights = trustee.rights;
    setChangesEnabled(true);
}

void RightsTabViewController::onSearch(SearchField* sender) {
    search_.setText(sender->text().toStdString(), *rightsTable);
    redisplay();
}

void RightsTabViewController::sortDescriptorsDidChange() {
    if (rightsTable->isSortedBy("TrusteeName", sortAscending))
        reloadTrusteeList();
}

void RightsTabViewController::reloadTrusteeList() {
    if (sortOrder == TrusteeOrder::TrusteeName)
        sortByName(editedTrusteeList, sortAscending, trusteeNameOf);
    redisplay();
}

void RightsTabViewController::onRevertClick(QObject* /*sender*/) {
    trackTrusteeList.clear();
    if (std::exchange(mustRead_, false)) {
        loadAgain();
    } else {
        editedTrusteeList = copyOf(trusteeList);
        rightsTable->setSortDescriptor({});
        redisplay();
    }
    setChangesEnabled(false);
}

void RightsTabViewController::onApplyClick(QObject* /*sender*/) {
    if (trackTrusteeList.empty())
        return;
    auto pipe = openPipe(pipes::files);
    if (!pipe)
        return;
    xmlController->setTrustee(trackTrusteeList, selectedPath, domainIdentity);
    pipe.reset();
    mustRead_ = reportLoss(trackTrusteeList.size());
    if (mustRead_)
        return;
    const std::vector<PendingChange> sent = pendingChanges();
    trackTrusteeList.clear();
    loadAgain();
    setChangesEnabled(false);
    if (!wasRead_ || reading != Reading::whole)
        return;
    std::unordered_map<std::string, std::int64_t> now;
    for (const auto& trustee : trusteeList)
        now[trustee->trusteeID] = trustee->rights;
    tellOutcome(sent, now);
}

void RightsTabViewController::loadAgain() {
    wasRead_ = true;
    reading = Reading::whole;
    search_.end(*searchField);
    if (showCheck->isChecked()) {
        onShowBothMorvaneAD(showCheck);
    } else {
        initRightsTable();
        redisplay();
    }
}

void RightsTabViewController::onReturnMainMenu() {
    returnToMainMenu(*this);
}

} // namespace quorvan
