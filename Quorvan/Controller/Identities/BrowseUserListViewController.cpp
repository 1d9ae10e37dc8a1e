// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Identities/BrowseUserListViewController.h"

#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PlainToolTip.h"

#include <QComboBox>
#include <QPushButton>

namespace quorvan {

BrowseUserListViewController::BrowseUserListViewController() {
    setWindowTitle(L("Browse_AD_Title"));
    setSearchIsSlow();
}

BrowseLdapViewModal& BrowseUserListViewController::ldapList() {
    if (!ldapList_)
        ldapList_ = std::make_unique<BrowseLdapViewModal>(currUserType);
    return *ldapList_;
}

void BrowseUserListViewController::prepare(ViewController& view, IdentityBrowserDelegate& receiver,
                                           const IdentityWish& wish) {
    delegate.set(view, receiver);
    tellWhenClosed(view, receiver);
    takeWish(wish);
}

void BrowseUserListViewController::buildHead(QBoxLayout& page) {
    domainPopUp = outlet(new QComboBox(this), "domainPopUp", plainL("Node_label"));
    domainPopUp->setProperty("identifier", "idDomainName");
    buildFetchControls(page, domainPopUp, "Node_label");
    for (QComboBox* popUp : {userTypePopUp, domainPopUp})
        connect(popUp, &QComboBox::activated, this, [this, popUp] { onChangeDomainPopUp(popUp); });
}

void BrowseUserListViewController::initMainView() {
    explainWhenGrey(*searchField, "Why_No_Place_Label");
    searchField->setEnabled(false);
}

void BrowseUserListViewController::viewDidAppear() {
    displayDomainsPopup();
    displayUserTypeForDomainPopUp();
    BrowserOf::viewDidAppear();
    if (ldapList().userTypeCount == 1)
        domainPopUp->setFocus();
    else
        userTypePopUp->setFocus();
}

void BrowseUserListViewController::displayDomainsPopup() {
    availableDomains = BrowseLdapViewModal::getAvaialbleDomains();
    for (const std::string& domain : availableDomains)
        domainPopUp->addItem(QString::fromStdString(domain));
    domainPopUp->setCurrentIndex(-1);
    domainPopUp->setPlaceholderText(L("Browse_Choose_Label"));
}

void BrowseUserListViewController::displayUserTypeForDomainPopUp() {
    displayUserTypes(ldapList().usersCategory);
}

void BrowseUserListViewController::onChangeDomainPopUp(QObject* sender) {
    const auto* popUp = qobject_cast<QComboBox*>(sender);
    if (popUp == nullptr || popUp->currentIndex() < 0)
        return;
    const QString identifier = popUp->property("identifier").toString();
    if (identifier == QLatin1String("idUserType")) {
        currUserType = ldapList().usersCategory[static_cast<std::size_t>(popUp->currentIndex())].type;
    } else if (identifier == QLatin1String("idDomainName")) {
        selectedDomain = popUp->currentText().toStdString();
        ldapList().selectedDomain = selectedDomain;
        domainPopUp->setToolTip(plainToolTip(popUp->currentText())); // it may be too long for its place
    }
    btnFetch->setEnabled(true);
    searchField->setEnabled(isPlaceChosen());
    searchField->clear();
    forgetRows();
}

void BrowseUserListViewController::fetchUserList() {
    BrowseLdapViewModal& directory = ldapList();
    if (!currUserType.empty() && !directory.selectedDomain.empty()) {
        directory.ldapUserList.clear();
        directory.ldapGroupList.clear();
        showRows(directory.getUserListforType(currUserType));
    }
    disableFetch();
}

std::vector<LdapRow> BrowseUserListViewController::rowsMatching(const std::string& text) {
    return ldapList().searchAD(text, currUserType);
}

void BrowseUserListViewController::onSelect() {
    std::vector<std::string> names;
    std::vector<std::string> sids;
    for (const auto& [name, sid] : selectedRows()) {
        names.push_back(name);
        sids.push_back(sid);
    }
    if (names.empty())
        return;
    BrowseLdapDelegate* receiver = delegate.get();
    if (receiver == nullptr || receiver->onReturnSelectedUser(names, sids, currUserType))
        endSheet();
}

QString BrowseUserListViewController::emptyText() const {
    if (availableDomains.empty())
        return L("No_Domains_Label");
    if (!userCount)
        return L("Browse_AD_Start_Label");
    const char* found = currUserType == "Users" ? "No_Users_In_Label" : "No_Groups_In_Label";
    if (ldapList_->listingFailed)
        found = "Domain_Silent_Label";
    return L(found).arg(QString::fromStdString(selectedDomain));
}

} // namespace quorvan
