// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Identities/BrowseMorvaneUserListViewController.h"

#include "Common/Error.h"
#include "Common/Log.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/Toolkit/Localized.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <cstdio>
#include <span>

namespace quorvan {

namespace {

const std::string users = "Users";
const std::string groups = "Groups";
const std::string containers = "Containers";

/// The object classes of a category; none for an unknown one.
std::span<const std::string_view> classesOf(const std::string& category) {
    if (category == users)
        return MorvaneObjectTypes::USERS;
    if (category == groups)
        return MorvaneObjectTypes::GROUPS;
    if (category == containers)
        return MorvaneObjectTypes::CONTAINERS;
    return {};
}

} // namespace

SharedTreeName& SharedTreeName::value() {
    static SharedTreeName shared{std::string(Constants::NIL)};
    return shared;
}

BrowseMorvaneUserListViewController::BrowseMorvaneUserListViewController()
    : serverIP(unwrap(ServerDetails::serverInfo().serverIP, "There is no server to work on"))
    , searchTree(SharedTreeName::value().treeName) {
    setWindowTitle(L("Browse_Morvane_Title"));
}

void BrowseMorvaneUserListViewController::prepare(ViewController& view, IdentityBrowserDelegate& receiver,
                                                  const IdentityWish& wish) {
    delegate.set(view, receiver);
    tellWhenClosed(view, receiver);
    takeWish(wish);
}

void BrowseMorvaneUserListViewController::buildHead(QBoxLayout& page) {
    treeTextField = outlet(new QLineEdit(this), "treeTextField", plainL("Node_label_morvane"));
    buildFetchControls(page, treeTextField, "Node_label_morvane");
    connect(userTypePopUp, &QComboBox::activated, this, [this] { onChangeUserType(userTypePopUp); });
    connect(treeTextField, &QLineEdit::returnPressed, btnFetch, &QPushButton::click);
}

void BrowseMorvaneUserListViewController::viewDidLoad() {
    setUsersCategory();
    initMainView();
    connect(treeTextField, &QLineEdit::textChanged, this, [this] { controlTextDidChange(); });
}

void BrowseMorvaneUserListViewController::setUsersCategory() {
    if (classesOf(currUserType).empty())
        usersCategory = {{users}, {groups}, {containers}};
    else
        usersCategory = {{currUserType}};
}

void BrowseMorvaneUserListViewController::initMainView() {
    treeTextField->setPlaceholderText(QStringLiteral(".O=kestmoor.T=tree."));
    if (SharedTreeName::value().treeName != Constants::NIL)
        treeTextField->setText(QString::fromStdString(SharedTreeName::value().treeName));
    btnFetch->setEnabled(!searchTree.empty() && usersCategory.size() == 1);
}

void BrowseMorvaneUserListViewController::viewDidAppear() {
    BrowserOf::viewDidAppear();
    displayUserTypeForDomainPopUp();
    if (usersCategory.size() == 1)
        treeTextField->setFocus();
    else
        userTypePopUp->setFocus();
}

void BrowseMorvaneUserListViewController::displayUserTypeForDomainPopUp() {
    displayUserTypes(usersCategory);
}

void BrowseMorvaneUserListViewController::controlTextDidChange() {
    searchTree = treeTextField->text().toStdString();
    SharedTreeName::value().treeName = searchTree;
    forgetRows();
    btnFetch->setEnabled(true);
}

void BrowseMorvaneUserListViewController::onChangeUserType(QObject* sender) {
    const auto* popUp = qobject_cast<QComboBox*>(sender);
    if (popUp == nullptr || popUp->currentIndex() < 0)
        return;
    const std::string& category = usersCategory[static_cast<std::size_t>(popUp->currentIndex())].type;
    if (category.empty())
        return;
    btnFetch->setEnabled(true);
    if (popUp->property("identifier") == "idUserType")
        currUserType = category;
    searchField->clear();
    forgetRows();
}

void BrowseMorvaneUserListViewController::fetchUserList() {
    forgetRows();
    if (searchTree.empty() || currUserType.empty())
        return;
    xmlController = std::make_unique<XMLReadWriteController>();
    std::string result;
    ScopedPipe pipe(*xmlController, serverIP, pipes::directoryTree);
    if (!pipe.isOpen()) {
        Log("Failed with err - %d", pipe.status());
        displayErrorMsg(errorCode::operationFailed);
    } else {
        std::vector<User> entries;
        result = xmlController->getMorvaneBrowse(searchTree, entries);
        pipe.close();
        showRows(filterOnUserType(currUserType, entries), result == "0");
        disableFetch();
    }
    if (result != "0") {
        Log("Failed with kelp err - %@", result);
        displayErrorMsg(errorCode::operationFailed);
    }
}

std::vector<User> BrowseMorvaneUserListViewController::filterOnUserType(const std::string& type,
                                                                        const std::vector<User>& list) {
    const auto classes = classesOf(type);
    std::vector<User> kept;
    for (const User& entry : list) {
        if (type == users)
            std::puts(entry.trusteeType.str().c_str());
        if (std::ranges::find(classes, lowercased(entry.trusteeType.str())) != classes.end())
            kept.push_back(entry);
    }
    std::fflush(stdout);
    return kept;
}

void BrowseMorvaneUserListViewController::onSearch(SearchField* field) {
    if (!isSearching)
        searchFilter_.setRows(userlist,
                              [](const User& user) -> const std::string& { return user.trusteeName; });
    BrowserOf::onSearch(field);
}

std::vector<User> BrowseMorvaneUserListViewController::rowsMatching(const std::string& text) {
    return searchFilter_.matching(backupUserList, text);
}

void BrowseMorvaneUserListViewController::onSelect() {
    const std::vector<User> chosen = selectedRows();
    if (chosen.empty())
        return;
    BrowseMorvaneDelegate* receiver = delegate.get();
    if (receiver == nullptr || receiver->onReturnMorvaneSelectedUser(chosen))
        endSheet();
}

const char* BrowseMorvaneUserListViewController::iconName() const {
    return currUserType == users ? "user_Morvane" : "group_Morvane";
}

QString BrowseMorvaneUserListViewController::emptyText() const {
    if (!userCount)
        return L("Browse_Morvane_Start_Label");
    const char* found = "No_Users_Below_Label";
    if (currUserType == groups)
        found = "No_Groups_Below_Label";
    else if (currUserType == containers)
        found = "No_Containers_Below_Label";
    return L(found).arg(QString::fromStdString(searchTree));
}

} // namespace quorvan
