// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/SettingsController.h"

#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Controller/Shell/MainMenu.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/CheckBox.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/PathLabel.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvan {

void SettingsController::loadView() {
    currentPath = outlet(new PathLabel(this), "currentPath", L("Managed_Path_Label"));
    currentPath->setPath(selectedPathName());
    ListBoth = outlet(new CheckBox(this), "ListBoth");
    explainWhenGrey(*ListBoth, "Why_Needs_Rights_Label");
    AddTrusteesMessage = outlet(new QLabel(this), "AddTrusteesMessage");
    readOnlyLabel = outlet(new QLabel(L("Settings_Read_Only_Label"), this), "readOnlyLabel");
    LogDetailsLabel = outlet(new QLabel(this), "LogDetailsLabel");
    LogInfoLabel = outlet(new QLabel(this), "LogInfoLabel"); // its accessible name is the path
    LogInfoLabel->setTextFormat(Qt::PlainText);              // it holds something in angle brackets
    LogInfoLabel->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    CloseBtn = outlet(new QPushButton(this), "CloseBtn");
    CloseBtn->setToolTip(L("Close_Tip_Label"));
    for (QLabel* text : {AddTrusteesMessage, readOnlyLabel, LogDetailsLabel})
        text->setWordWrap(true);
    connect(ListBoth, &QCheckBox::clicked, this, [this] { onClickListBothIdentites(ListBoth); });
    leaveOnBackKey(*CloseBtn);
    connect(CloseBtn, &QPushButton::clicked, this, [this] { onReturnMainMenu(); });
    layOutControls();
}

void SettingsController::layOutControls() {
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    const int gap = fontMetrics().lineSpacing();
    auto* page = new QVBoxLayout(this);
    page->addWidget(currentPath);
    page->addSpacing(gap / 2);
    page->addWidget(ListBoth, 0, Qt::AlignLeft);
    page->addWidget(AddTrusteesMessage);
    page->addWidget(readOnlyLabel);
    page->addSpacing(gap / 2);
    page->addWidget(line);
    page->addSpacing(gap / 2);
    page->addWidget(LogDetailsLabel);
    page->addWidget(LogInfoLabel);
    page->addStretch();
    page->addSpacing(gap);
    page->addWidget(CloseBtn, 0, Qt::AlignLeft);
}

/// Room for lines that are easy to read.
QSize SettingsController::sizeHint() const {
    const int width = 72 * fontMetrics().averageCharWidth();
    return {width, std::max(heightForWidth(width), ViewController::sizeHint().height())};
}

void SettingsController::initView() {
    ListBoth->setChecked(Shared::value().bothID);
    ListBoth->setText(
        L(domainIdentity == identityActiveDirectory ? "Morvane_Trustee_Label" : "AD_Trustee_Label"));
    AddTrusteesMessage->setText(L("Add_Trustee_Message_Label"));
    LogDetailsLabel->setText(L("Log_Details_Label"));
    LogInfoLabel->setText(QStringLiteral("/Users/<username>/Library/Logs/tarnix"));
    CloseBtn->setText(L("Close_title"));
}

void SettingsController::viewWillAppear() {
    initSettings();
    const bool mayChange = isSupervisor || isAccessControl;
    ListBoth->setEnabled(mayChange);
    readOnlyLabel->setVisible(!mayChange);
}

void SettingsController::viewDidAppear() {
    (ListBoth->isEnabled() ? static_cast<QWidget*>(ListBoth) : CloseBtn)->setFocus();
}

void SettingsController::initSettings() {
    if (!loadTrustees(trusteeList, domainIdentity))
        onReturnMainMenu();
}

void SettingsController::onClickListBothIdentites(QCheckBox* sender) {
    Shared::value().bothID = sender->isChecked();
}

void SettingsController::onReturnMainMenu() {
    returnToMainMenu(*this);
}

} // namespace quorvan
