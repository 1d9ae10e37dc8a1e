// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/EffectiveRightsViewController.h"

#include "Common/Fatal.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Controller/Shell/MainMenu.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/NameSort.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/RightsBoxes.h"
#include "Quorvan/ViewModal/RightsWay.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace quorvan {

void EffectiveRightsViewController::viewDidLoad() {
    effRightsTable->setSortDescriptorPrototype(0, {"TrusteeName", true});
    readFlags();
}

void EffectiveRightsViewController::viewDidAppear() {
    initEffRightsMainView();
    domainIdentity = ServerDetails::serverInfo().getIdentityType();
    disableWhereBothAreShown(selectUserBtn);
    initEffRightsTable();
    redisplay();
}

void EffectiveRightsViewController::initEffRightsMainView() {
    effectiveLabel->setText(L("Effective_Label"));
    selectTrusteeLabel->setText(L("Select_Effective_Trustee_Label"));
    userGroupLabel->setText(L("User_Group_Label"));
    effRightsTable->setColumnHeader(0, L("Col_UserGrp_Name"));
    currentPath->setPath(selectedPathName());
    checkMappedInUserRights();
}

void EffectiveRightsViewController::checkMappedInUserRights() {
    if (!loadOwnRights(renewController()))
        return;
    const bool mayChoose = isSupervisor || isAccessControl;
    if (mayChoose)
        selectUserBtn->setEnabled(true);
    selectUserBtn->setToolTip(L(mayChoose ? "Choose_Effective_Tip_Label" : "Choose_Needs_Rights_Label"));
}

void EffectiveRightsViewController::initEffRightsTable() {
    trusteeList.clear();
    reading_ = Reading::whole;
    effRightsTable->setSortDescriptor({});
    const std::int32_t status = Shared::value().bothID
                                    ? loadBothIdentities()
                                    : renewController().getEffectiveRightsforPathHandleDFS(
                                          serverIP, trusteeList, selectedPath, mappedPath, domainIdentity);
    if (status == 0) {
        reading_ = readingOfList(reading_);
        return;
    }
    reportFailed(status);
    onReturnMainMenu();
}

/// Only the second half tells whether the load has failed.
std::int32_t EffectiveRightsViewController::loadBothIdentities() {
    std::int32_t status = 0;
    for (const auto identityType : {identityActiveDirectory, identityMorvane}) {
        TrusteeList loaded;
        status = renewController().getEffectiveRightsforPathHandleDFS(serverIP, loaded, selectedPath,
                                                                      mappedPath, std::string(identityType));
        std::ranges::copy(copyOf(loaded), std::back_inserter(trusteeList));
        if (xmlController->loss() != 0)
            break; // half a list would look whole
        reading_ = readingOfList(reading_);
    }
    return status;
}

void EffectiveRightsViewController::readAgain() {
    if (!chosenID_.empty()) {
        domainIdentity = chosenType_;
        initEffRforUser(chosenID_);
    }
    domainIdentity = ServerDetails::serverInfo().getIdentityType();
    search_.end(*searchField);
    initEffRightsTable();
    redisplay();
}

void EffectiveRightsViewController::redisplay() {
    quorvan::redisplay(*effRightsTable, isSearching, *searchField,
                       emptyListKey(reading_, "No_Trustees_Label"));
}

bool EffectiveRightsViewController::onReturnMorvaneSelectedUser(const std::vector<User>& users) {
    require(!users.empty(), "The browser returned no identity");
    keepIdentityType();
    userGroupField->setPath(QString::fromStdString(users.back().trusteeName));
    initEffRforUser(users.back().trusteeID);
    return true;
}

bool EffectiveRightsViewController::onReturnSelectedUser(const std::vector<std::string>& names,
                                                         const std::vector<std::string>& ids,
                                                         const std::string& /*category*/) {
    const std::size_t count = std::min(names.size(), ids.size());
    require(count != 0, "The browser returned no identity");
    keepIdentityType();
    userGroupField->setPath(QString::fromStdString(names[count - 1]));
    initEffRforUser(ids[count - 1]);
    return true;
}

void EffectiveRightsViewController::initEffRforUser(const std::string& userID) {
    chosenID_ = userID;
    chosenType_ = domainIdentity;
    whyBtn->setEnabled(true);
    auto pipe = openPipe(pipes::files);
    if (!pipe)
        return effectiveBoxes->setUnknown();
    const auto read = rightsOfUser(*xmlController, selectedPath, userID, domainIdentity);
    pipe.reset();
    if (reportLoss() || !read)
        return effectiveBoxes->setUnknown(); // those of the identity before are not this one's
    effRforUser = *read;
    setEffR();
}

void EffectiveRightsViewController::setEffR() {
    effectiveBoxes->setRights(effRforUser.uright);
}

void EffectiveRightsViewController::onSearch(SearchField* sender) {
    search_.setText(sender->text().toStdString(), *effRightsTable);
    redisplay();
}

void EffectiveRightsViewController::sortDescriptorsDidChange() {
    if (effRightsTable->isSortedBy("TrusteeName", sortAscending))
        reloadTrusteeList();
}

void EffectiveRightsViewController::reloadTrusteeList() {
    sortByName(trusteeList, sortAscending, trusteeNameOf);
    redisplay();
}

void EffectiveRightsViewController::onReturnMainMenu() {
    returnToMainMenu(*this);
}

} // namespace quorvan
