// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Identities/OldBrowseUserListViewController.h"

#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/ViewModal/UsersViewModal.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

OldBrowseUserListViewController::OldBrowseUserListViewController() {
    currUserType = "All";
    setWindowTitle(L("Browse_AD_Title"));
    setSearchIsSlow();
}

OldBrowseLdapViewModal& OldBrowseUserListViewController::ldapList() {
    if (!ldapList_)
        ldapList_ = std::make_unique<OldBrowseLdapViewModal>(currUserType);
    return *ldapList_;
}

void OldBrowseUserListViewController::prepare(ViewController& view, IdentityBrowserDelegate& receiver,
                                              const IdentityWish& wish) {
    delegate.set(view, receiver);
    tellWhenClosed(view, receiver);
    takeWish({wish.listType.empty() ? currUserType : wish.listType, wish.isMultipleSel});
}

void OldBrowseUserListViewController::buildHead(QBoxLayout& page) {
    auto* caption = new QLabel(L("View_label"), this);
    userTypeTable = outlet(new QListWidget(this), "userTypeTable", plainL("View_label"));
    caption->setBuddy(userTypeTable);
    for (const UserType& category : ldapList().usersCategory)
        userTypeTable->addItem(plainL(category.type + "_Title"));
    userTypeTable->setFixedHeight(userTypeTable->count() * userTypeTable->sizeHintForRow(0) +
                                  2 * userTypeTable->frameWidth());
    connect(userTypeTable, &QListWidget::itemSelectionChanged, this, [this] { onChangeUserType(); });
    page.addWidget(caption);
    page.addWidget(userTypeTable);
}

void OldBrowseUserListViewController::viewDidAppear() {
    BrowserOf::viewDidAppear();
    userTypeTable->setCurrentRow(0);
    searchField->setFocus();
}

void OldBrowseUserListViewController::onChangeUserType() {
    const int row = userTypeTable->currentRow();
    if (row < 0 || userTypeTable->selectedItems().isEmpty())
        return;
    OldBrowseLdapViewModal& directory = ldapList();
    selectButton->setEnabled(false);
    currUserType = directory.usersCategory[static_cast<std::size_t>(row)].type;
    showRows(currUserType == "Users" ? directory.ldapUserList() : directory.ldapGroupList());
}

std::vector<std::string> OldBrowseUserListViewController::rowsMatching(const std::string& text) {
    return OldBrowseLdapViewModal::searchAD(text, currUserType);
}

void OldBrowseUserListViewController::onSelect() {
    const std::vector<std::string> names = selectedRows();
    if (names.empty())
        return;
    const std::string& category =
        ldapList().usersCategory[static_cast<std::size_t>(userTypeTable->currentRow())].type;
    const DirectoryLookup lookup;
    std::vector<std::string> sids;
    sids.reserve(names.size());
    for (const std::string& name : names)
        sids.push_back(lookup.getSidforObject(name, category, kODAttributeTypeRecordName));
    OldBrowseLdapDelegate* receiver = delegate.get();
    if (receiver == nullptr || receiver->onReturnSelectedUser(names, sids, currUserType))
        endSheet();
}

QString OldBrowseUserListViewController::emptyText() const {
    if (ldapList_ && ldapList_->listingFailed)
        return L("Domain_Silent_Label").arg(QStringLiteral("Active Directory"));
    return L(currUserType == "Users" ? "No_Users_Label" : "No_Groups_Label");
}

} // namespace quorvan
