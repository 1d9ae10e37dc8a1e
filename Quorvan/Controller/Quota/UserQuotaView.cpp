// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the user quota page and their layout.
#include "Quorvan/Controller/Quota/UserQuotaViewController.h"

#include "Quorvan/Controller/Quota/UserQuotaRows.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/ListTable.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/SearchField.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace quorvan {

void UserQuotaViewController::loadView() {
    buildControls();
    layOutControls();
    connectControls();
}

void UserQuotaViewController::buildControls() {
    selectedPathLabel = outlet(new PathLabel(this), "selectedPathLabel", L("Managed_Path_Label"));
    userQuotaTabTitle = outlet(new QLabel(this), "userQuotaTabTitle");
    auto* rows = new UserQuotaRows(usersDisplay,
                                   {{"username", "User_Name_Label", UserQuotaColumn::nameOf, false},
                                    {"limitCol", "Limit_Label", UserQuotaColumn::limitOf, true},
                                    {"usedCol", "Used_Label", UserQuotaColumn::usedOf, true},
                                    {"availableCol", "Available_Label", UserQuotaColumn::availableOf, true}});
    constexpr auto amount = ColumnWidths::Kind::amount;
    userQuotaTable = outlet(new ListTable(rows, this, {ColumnWidths::Kind::text, amount, amount, amount}),
                            "userQuotaTable", plainL("Users_with_Quota_Label"));
    searchField = outlet(new SearchField(userQuotaTable, this), "searchField");
    overLimitBtn = outlet(new QToolButton(this), "overLimitBtn");
    overLimitBtn->setAutoRaise(true);
    overLimitBtn->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    overLimitBtn->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    overLimitBtn->setToolTip(L("Over_Limit_Next_Tip_Label"));
    connect(overLimitBtn, &QToolButton::clicked, this, [this] { goToNextOverLimit(); });
    addUQButton = outlet(new QPushButton(L("Add_title"), this), "addUQButton");
    editUQButton = outlet(new QPushButton(L("Edit_title"), this), "editUQButton");
    removeUQButton = outlet(new QPushButton(L("Remove_title"), this), "removeUQButton");
    readOnlyLabel = outlet(new QLabel(L("User_Quota_Read_Only_Label"), this), "readOnlyLabel");
    readOnlyLabel->setWordWrap(true);
    closeButton = outlet(new QPushButton(this), "closeButton");
    pendingLine = outlet(new PendingLine(this), "pendingLine");
    revert = outlet(new QPushButton(this), "revert");
    applyButton = outlet(new QPushButton(this), "applyButton");
    pendingLine->setApplyButton(*applyButton);
    for (QPushButton* button : {revert, applyButton})
        button->setEnabled(false);

    addUQButton->setToolTip(L("Add_User_Quota_Tip_Label"));
    editUQButton->setToolTip(L("Edit_User_Quota_Tip_Label"));
    removeUQButton->setToolTip(L("Remove_User_Quota_Tip_Label"));
    closeButton->setToolTip(L("Close_Tip_Label"));
    revert->setToolTip(L("Revert_Tip_Label"));
    applyButton->setToolTip(L("Apply_Tip_Label"));
    for (QPushButton* button : {addUQButton, editUQButton, removeUQButton})
        explainWhenGrey(
            *button, [this] { return isSupervisor ? "Why_Both_Shown_Label" : "Why_Needs_Supervisor_Label"; });
    for (QPushButton* button : {revert, applyButton})
        explainWhenGrey(*button, "Why_Nothing_Waits_Label");
}

void UserQuotaViewController::layOutControls() {
    auto* heading = new QHBoxLayout;
    heading->addWidget(userQuotaTabTitle);
    heading->addWidget(overLimitBtn);
    heading->addStretch();
    heading->addWidget(searchField);
    auto* changes = new QHBoxLayout;
    changes->addWidget(addUQButton);
    changes->addWidget(editUQButton);
    changes->addWidget(removeUQButton);
    changes->addStretch();
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(closeButton);
    buttons->addStretch();
    buttons->addWidget(pendingLine);
    buttons->addWidget(revert);
    buttons->addWidget(applyButton);

    auto* page = new QVBoxLayout(this);
    page->addWidget(selectedPathLabel);
    page->addLayout(heading);
    page->addWidget(userQuotaTable, 1);
    page->addWidget(readOnlyLabel);
    page->addLayout(changes);
    page->addSpacing(fontMetrics().height() / 2);
    page->addLayout(buttons);
    setTabOrders({selectedPathLabel, overLimitBtn, searchField, userQuotaTable, addUQButton, editUQButton,
                  removeUQButton, closeButton, pendingLine, revert, applyButton});
}

void UserQuotaViewController::connectControls() {
    userQuotaTable->setSortHandler([this] { sortDescriptorsDidChange(); });
    connect(searchField, &QLineEdit::textChanged, this, [this] { onSearch(searchField); });
    connect(addUQButton, &QPushButton::clicked, this, [this] { onClickAdd(); });
    connect(editUQButton, &QPushButton::clicked, this, [this] { onClickEdit(); });
    connect(removeUQButton, &QPushButton::clicked, this, [this] { onClickRemove(); });
    userQuotaTable->setRemoveButton(removeUQButton);
    reloadOnRefreshKey(*this, pendingLine, [this] { getUserQuotaInfo(); });
    connect(revert, &QPushButton::clicked, this, [this] { onClickRevert(); });
    connect(applyButton, &QPushButton::clicked, this, [this] { onClickApply(); });
    leaveOnBackKey(*closeButton);
    connect(closeButton, &QPushButton::clicked, this, [this] { onReturnMainMenu(); });
    connect(userQuotaTable, &QAbstractItemView::doubleClicked, editUQButton,
            [this] { editUQButton->click(); });
    auto* remove = new QShortcut(QKeySequence(QKeySequence::Delete), userQuotaTable, nullptr, nullptr,
                                 Qt::WidgetShortcut);
    connect(remove, &QShortcut::activated, removeUQButton, [this] { removeUQButton->click(); });
}

void UserQuotaViewController::loadStrings() {
    selectedPathLabel->setPath(selectedPathName());
    userQuotaTabTitle->setText(plainL("Users_with_Quota_Label"));
    closeButton->setText(L("Close_title"));
    revert->setText(L("Revert_title"));
    applyButton->setText(L("Apply_title"));
}

/// Room for long names beside the amounts, and for some fifteen users.
QSize UserQuotaViewController::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return ViewController::sizeHint().expandedTo(
        {100 * metrics.averageCharWidth() + 80, 36 * metrics.lineSpacing()});
}

} // namespace quorvan
