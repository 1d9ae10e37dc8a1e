// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Quota/AddUserQuotaViewController.h"

#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Quota/UserQuotaRows.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/ListRows.h"
#include "Quorvan/Toolkit/ListTable.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/QuotaLimit.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <span>
#include <unordered_set>
#include <utility>

namespace quorvan {

AddUserQuotaViewController::AddUserQuotaViewController()
    : IdentityChoice(static_cast<ViewController&>(*this), domainIdentity, {"Users", true, true})
    , domainIdentity(ServerDetails::serverInfo().getIdentityType()) {}

void AddUserQuotaViewController::loadView() {
    userNameLabel = outlet(new QLabel(this), "userNameLabel");
    auto* rows = new UserQuotaRows(users, {{"username", "Col_User_Name", UserQuotaColumn::nameOf, false}});
    userList = outlet(new ListTable(rows, this), "userList", plainL("User_Name_Label"));
    selectTrusteeBtn = outlet(new QPushButton(L("Add_Users_title"), this), "selectTrusteeBtn");
    selectTrusteeBtn->setToolTip(L("Add_Users_Tip_Label"));
    quotaLimitLabel = outlet(new QLabel(this), "quotaLimitLabel");
    quotaLimitTextField = outlet(new QLineEdit(this), "quotaLimitTextField", plainL("Quota_Limit_Label"));
    quotaLimitLabel->setBuddy(quotaLimitTextField);
    selectUnit = outlet(new QComboBox(this), "selectUnit", L("Unit_Label"));
    currentLimits = outlet(new QLabel(this), "currentLimits");
    takeOffBtn = outlet(new QPushButton(L("Take_Off_title"), this), "takeOffBtn");
    takeOffBtn->setToolTip(L("Take_Off_Tip_Label"));
    explainWhenGrey(*takeOffBtn, "Why_Nobody_Chosen_Label");
    userList->setRemoveButton(takeOffBtn);
    cancelBtn = outlet(new QPushButton(this), "cancelBtn");
    okBtn = outlet(new QPushButton(this), "okBtn");
    okBtn->setDefault(true);
    layOutControls();
    connectControls();
}

void AddUserQuotaViewController::layOutControls() {
    auto* limit = new QHBoxLayout;
    limit->addWidget(quotaLimitLabel);
    limit->addWidget(quotaLimitTextField);
    limit->addWidget(selectUnit);
    limit->addWidget(currentLimits);
    limit->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cancelBtn);
    buttons->addStretch();
    buttons->addWidget(okBtn);
    auto* page = new QVBoxLayout(this);
    page->addWidget(userNameLabel);
    page->addWidget(userList, 1);
    auto* chosen = new QHBoxLayout;
    chosen->addWidget(selectTrusteeBtn);
    chosen->addWidget(takeOffBtn);
    chosen->addStretch();
    page->addLayout(chosen);
    page->addSpacing(fontMetrics().height() / 2);
    page->addLayout(limit);
    page->addSpacing(fontMetrics().height() / 2);
    page->addLayout(buttons);
    setTabOrders({userList, selectTrusteeBtn, takeOffBtn, quotaLimitTextField, selectUnit, cancelBtn, okBtn});
}

void AddUserQuotaViewController::connectControls() {
    connect(selectTrusteeBtn, &QPushButton::clicked, this,
            [this] { onSelectTrusteeClick(selectTrusteeBtn); });
    connect(quotaLimitTextField, &QLineEdit::textEdited, this, [this] { onChangeQuotaLimit(); });
    connect(takeOffBtn, &QPushButton::clicked, this, [this] { takeOffSelected(); });
    connect(selectUnit, &QComboBox::activated, this, [this] { onChangeUnit(); });
    connect(okBtn, &QPushButton::clicked, this, [this] { onClickOk(); });
    connect(cancelBtn, &QPushButton::clicked, this, [this] { onCancel(); });
}

void AddUserQuotaViewController::viewDidLoad() {
    readMultiForest();
    initAddUserQuotaView();
    selectUnit->setCurrentIndex(quotaUnitGB);
    showCurrentLimits();
    showUsers();
}

void AddUserQuotaViewController::showUsers() {
    userList->reloadData();
    userList->setEmptyText(L(edits ? "Edit_Nobody_Label" : "No_Users_Chosen_Label"));
    takeOffBtn->setEnabled(!users.empty());
}

/// What is edited begins with what is. Where that is no single number the field stays empty, so that a mere
/// Return changes nobody's limit.
void AddUserQuotaViewController::showCurrentLimits() {
    if (users.empty())
        return;
    const auto isLess = [](const auto& a, const auto& b) { return a->quotaLimit < b->quotaLimit; };
    const auto [first, last] = std::minmax_element(users.begin(), users.end(), isLess);
    const std::int64_t least = (*first)->quotaLimit.value_or(0);
    const std::int64_t most = (*last)->quotaLimit.value_or(0);
    const auto entered = least == most ? enteredQuotaLimit(least) : std::nullopt;
    if (entered) {
        quotaLimitTextField->setText(QString::number(entered->amount));
        selectUnit->setCurrentIndex(entered->unit);
        selectedUnit = entered->unit;
    } else {
        quotaLimitTextField->setText({}); // clear() would count as the user's own change
        currentLimits->setText(least == most
                                   ? L("Current_Limit_Label").arg(byteCount(least))
                                   : L("Current_Limits_Label").arg(byteCount(least), byteCount(most)));
    }
    onChangeQuotaLimit();
}

void AddUserQuotaViewController::takeOffSelected() {
    takeRows(users, userList->selectedRowIndexes());
    showUsers();
    currentLimits->clear();
    if (!quotaLimitTextField->isModified()) // what was typed stays
        showCurrentLimits();
}

void AddUserQuotaViewController::initAddUserQuotaView() {
    setWindowTitle(plainL(edits ? "Edit_User_Quota_Title" : "Add_User_Quota_Title"));
    userNameLabel->setText(plainL("User_Name_Label"));
    quotaLimitLabel->setText(L("Quota_Limit_Label"));
    quotaLimitTextField->setText(QString::fromStdString(quotaLimit.value_or("")));
    fillQuotaUnits(*selectUnit);
    okBtn->setText(L("OK_title"));
    cancelBtn->setText(L("Close_title"));
}

/// Who has to be picked comes first, then the limit.
void AddUserQuotaViewController::viewDidAppear() {
    if (users.empty()) {
        selectTrusteeBtn->setFocus();
    } else {
        quotaLimitTextField->setFocus();
        quotaLimitTextField->selectAll();
    }
}

QSize AddUserQuotaViewController::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return ViewController::sizeHint().expandedTo(
        {60 * metrics.averageCharWidth(), 24 * metrics.lineSpacing()});
}

bool AddUserQuotaViewController::onReturnMorvaneSelectedUser(const std::vector<User>& chosen) {
    std::vector<std::string> names;
    std::vector<std::string> ids;
    for (const User& user : chosen) {
        names.push_back(user.trusteeName);
        ids.push_back(user.trusteeID);
    }
    add(names, ids);
    return true;
}

bool AddUserQuotaViewController::onReturnSelectedUser(const std::vector<std::string>& names,
                                                      const std::vector<std::string>& ids,
                                                      const std::string& /*category*/) {
    add(names, ids);
    return true;
}

void AddUserQuotaViewController::add(const std::vector<std::string>& names,
                                     const std::vector<std::string>& ids) {
    std::unordered_set<std::string> listed;
    for (const auto& user : users)
        if (user->SID)
            listed.insert(*user->SID);
    const auto named = std::span(ids).first(std::min(ids.size(), names.size()));
    const bool areNew = addOnce(std::move(listed), named, [&](std::size_t at) {
        auto user = std::make_shared<UserQuotaData>();
        user->displayName = names[at];
        user->SID = ids[at];
        user->action = UserQuotaConstants::Actions::ADD;
        user->domainIdentity = domainIdentity;
        users.push_back(std::move(user));
    });
    if (!areNew)
        reportDuplicate();
    showUsers();
    // When the browser has closed, which gives the keyboard back to what it was on.
    const auto goToLimit = [this] {
        quotaLimitTextField->setFocus();
        quotaLimitTextField->selectAll();
    };
    QMetaObject::invokeMethod(quotaLimitTextField, goToLimit, Qt::QueuedConnection);
}

void AddUserQuotaViewController::onChangeQuotaLimit() {
    quotaLimit = quotaLimitTextField->text().toStdString();
}

void AddUserQuotaViewController::onChangeUnit() {
    selectedUnit = selectUnit->currentIndex();
}

void AddUserQuotaViewController::onClickOk() {
    const auto bytes = quotaLimitInBytes(quotaLimitTextField->text(), selectedUnit);
    if (!bytes) {
        quotaLimitTextField->setFocus();
        quotaLimitTextField->selectAll();
        presentInvalidQuotaLimit(*this);
        return;
    }
    for (const auto& user : users) {
        user->quotaLimit = *bytes;
        user->quotaAvailable = *bytes;
    }
    AddUserQuotaDelegate* receiver = delegate ? delegate->get() : nullptr;
    if (receiver != nullptr && receiver->onReturnAddedUsers(users))
        endSheet();
}

void AddUserQuotaViewController::onCancel() {
    endSheet();
}

} // namespace quorvan
