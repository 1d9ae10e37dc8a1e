// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/RightsTabViewController.h"

#include "Common/FeatureFlags.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/FailedStatus.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NameSort.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/SearchField.h"
#include "Quorvan/Toolkit/Storyboard.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace quorvan {

namespace {

const std::string& nameOf(const std::shared_ptr<Trustees>& trustee) {
    return trustee->trusteeName;
}

/// Adding opens an identity browser, so it is offered where there are any.
bool identityBrowsersExist() {
    return Storyboard::named("Main").knows("ViewBrowseAD");
}

/// The first trustee of a list with that ID; null when there is none.
Trustees* findByID(const TrusteeList& trustees, const std::string& id) {
    const auto found = std::find_if(trustees.begin(), trustees.end(),
                                    [&id](const auto& trustee) { return trustee->trusteeID == id; });
    return found == trustees.end() ? nullptr : found->get();
}

std::uint16_t bitOf(const std::string& identifier) {
    for (const RightsColumn& column : rightsColumns)
        if (identifier == column.identifier)
            return column.bit;
    fatal("No right with the identifier %@", identifier);
}

} // namespace

Shared& Shared::value() {
    static Shared shared;
    return shared;
}

RightsTabViewController::RightsTabViewController()
    : serverIP(unwrap(ServerDetails::serverInfo().serverIP, "There is no server to work on"))
    , selectedPath(unwrap(ServerDetails::serverInfo().selectedPathName, "There is no selected path"))
    , mappedPath(unwrap(ServerDetails::serverInfo().mappedPathName, "There is no mapped path"))
    , domainIdentity(ServerDetails::serverInfo().getIdentityType()) {}

void RightsTabViewController::viewDidLoad() {
    rightsTable->setSortDescriptorPrototype(0, {"TrusteeName", true});
    featureFlagDict = readFeatureFlags();
    bothIdentitiesFlag = featureFlag(*featureFlagDict, "bothIdentities");
    multiForestFlag = featureFlag(*featureFlagDict, "multiForest");
    addBothTrusteesFlag = featureFlag(*featureFlagDict, "addBothTrustees");
    enableSettingsFlag = featureFlag(*featureFlagDict, "enableSettings");
    initRightsMainView();
}

void RightsTabViewController::initRightsMainView() {
    addRemoveLabel->setText(L("Add_Remove_Label"));
    applyBtn->setText(L("Apply_title"));
    revertBtn->setText(L("Revert_title"));
    rightsTable->setColumnHeader(0, L("Col_UserGrp_Name"));
    currentPath->setPath(QString::fromStdString(
        unwrap(ServerDetails::serverInfo().selectedPathName, "There is no selected path")));

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
    showCheck->setChecked(Shared::value().bothID);
    if (showCheck->isChecked())
        onShowBothMorvaneAD(showCheck);
    else
        initRightsTable();
    setTabState();
    redisplay();
}

void RightsTabViewController::viewDidAppear() {
    rightsTable->scrollToTop();
    const QWidget* focus = window()->focusWidget();
    if (focus == nullptr || !focus->isVisible()) // it went with the page before
        rightsTable->setFocus();
}

void RightsTabViewController::load(TrusteeList& trustees, const std::string& identityType) {
    xmlController = std::make_unique<XMLReadWriteController>();
    Rights irf = irfList.value_or(Rights());
    const std::int32_t status = xmlController->initializeTrusteesHandleDFS(
        serverIP, trustees, selectedPath, irf, effRights, mappedPath, identityType);
    irfList = irf;
    if (status != 0) {
        reportFailedStatus(status);
        onReturnMainMenu();
    }
}

void RightsTabViewController::initRightsTable() {
    load(trusteeList, domainIdentity);
    editedTrusteeList = copyOf(trusteeList);
    rightsTable->setSortDescriptor({});
    raiseOwnRights();
}

void RightsTabViewController::initRightsTable(const std::string& domain) {
    TrusteeList loaded;
    load(loaded, domain);
    std::ranges::copy(copyOf(loaded), std::back_inserter(trusteeList));
    std::ranges::copy(copyOf(loaded), std::back_inserter(editedTrusteeList));
    rightsTable->setSortDescriptor({});
    raiseOwnRights();
}

/// What the user has been seen to hold stays held for as long as the view lives.
void RightsTabViewController::raiseOwnRights() {
    isSupervisor = isSupervisor || (effRights.uright & KelpRights::supervisor) != 0;
    isAccessControl = isAccessControl || (effRights.uright & KelpRights::accessControl) != 0;
}

void RightsTabViewController::setTabState() {
    setAddEnabled(canEdit() && !(showCheck->isChecked() && !addBothTrusteesFlag));
    removeBtn->setEnabled(canEdit());
    rightsTable->setSwitchedOn(canEdit());
    showCheck->setEnabled(canEdit());
    readOnlyLabel->setVisible(!canEdit());
    setChangesEnabled(false);
}

void RightsTabViewController::setAddEnabled(bool enabled) {
    addBtn->setEnabled(enabled && identityBrowsersExist());
    addBtn->setToolTip(L(identityBrowsersExist() ? "Add_Tip_Label" : "Add_Follows_Label"));
}

void RightsTabViewController::setChangesEnabled(bool enabled) {
    // A button that goes grey under the keyboard would hand it on to whatever comes next, Close perhaps.
    if (!enabled && (applyBtn->hasFocus() || revertBtn->hasFocus()))
        rightsTable->setFocus();
    applyBtn->setEnabled(enabled);
    revertBtn->setEnabled(enabled);
}

void RightsTabViewController::redisplay() {
    rightsTable->reloadData();
    rightsTable->setEmptyText(isSearching ? L("No_Match_Label").arg(searchField->text())
                                          : L("No_Trustees_Label"));
}

void RightsTabViewController::onShowBothMorvaneAD(QCheckBox* sender) {
    const bool on = sender->isChecked();
    if (bothIdentitiesFlag && !addBothTrusteesFlag)
        setAddEnabled(!on);
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
        removedTrusteeList.clear();
        TrusteeList kept;
        auto next = selected.begin();
        for (std::size_t row = 0; row < editedTrusteeList.size(); ++row) {
            const auto& trustee = editedTrusteeList[row];
            if (next != selected.end() && static_cast<std::size_t>(*next) == row) {
                trustee->status = "REMOVE";
                removedTrusteeList.push_back(trustee);
                ++next;
            } else {
                kept.push_back(trustee);
            }
        }
        editedTrusteeList = std::move(kept);
        std::ranges::copy(removedTrusteeList, std::back_inserter(trackTrusteeList));
    }
    redisplay();
    setChangesEnabled(true);
}

void RightsTabViewController::onMouseClickCheckbox(const RightsCheckBox& sender) {
    auto& row = editedTrusteeList[static_cast<std::size_t>(sender.row)];
    Trustees trustee = *row;
    trustee.rights = withRight(trustee.rights, bitOf(sender.identifier), sender.ticked);
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
    const std::string text = sender->text().toStdString();
    if (text.empty()) {
        if (isSearching) {
            editedTrusteeList = backupEditedTrusteeList;
            rightsTable->setSortDescriptor(backupOrder_);
        }
        isSearching = false;
    } else {
        if (!isSearching) {
            backupEditedTrusteeList = editedTrusteeList;
            backupOrder_ = rightsTable->sortDescriptor();
            searchFilter_.setRows(backupEditedTrusteeList, nameOf);
        }
        isSearching = true;
        editedTrusteeList = searchFilter_.matching(backupEditedTrusteeList, text);
        rightsTable->setSortDescriptor(backupOrder_);
    }
    redisplay();
}

void RightsTabViewController::sortDescriptorsDidChange() {
    const auto& descriptor = rightsTable->sortDescriptor();
    if (!descriptor || descriptor->key != "TrusteeName")
        return;
    sortAscending = descriptor->ascending;
    reloadTrusteeList();
}

void RightsTabViewController::reloadTrusteeList() {
    if (sortOrder == TrusteeOrder::TrusteeName)
        sortByName(editedTrusteeList, sortAscending, nameOf);
    redisplay();
}

void RightsTabViewController::onRevertClick(QObject* /*sender*/) {
    editedTrusteeList = copyOf(trusteeList);
    rightsTable->setSortDescriptor({});
    trackTrusteeList.clear();
    redisplay();
    setChangesEnabled(false);
}

void RightsTabViewController::onApplyClick(QObject* /*sender*/) {
    if (trackTrusteeList.empty())
        return;
    xmlController = std::make_unique<XMLReadWriteController>();
    const std::int32_t status = xmlController->openPipe(serverIP, "/IPC$", "/FilesCmdPipe");
    if (status != 0) {
        reportFailedStatus(status);
        return;
    }
    xmlController->setTrustee(trackTrusteeList, selectedPath, domainIdentity);
    XMLReadWriteController::closePipe();
    trackTrusteeList.clear();
    if (showCheck->isChecked()) {
        onShowBothMorvaneAD(showCheck);
    } else {
        initRightsTable();
        redisplay();
    }
    setChangesEnabled(false);
}

void RightsTabViewController::onReturnMainMenu() {
    replacePage(Storyboard::named("Main").instantiate("optionsViewController"),
                QStringLiteral("Rights Management"));
}

} // namespace quorvan
