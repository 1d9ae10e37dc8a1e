// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the information page and their layout.
#include "Quorvan/Controller/Information/InformationViewController.h"

#include "Quorvan/Controller/Information/InformationAttributes.h"
#include "Quorvan/Toolkit/CheckBox.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/QuotaLimit.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QTabWidget>
#include <QVBoxLayout>

namespace quorvan {

void InformationViewController::loadView() {
    auto* page = new QVBoxLayout(this);
    buildHeader(*page);
    directoryQuotaTabView = outlet(new QTabWidget(this), "directoryQuotaTabView");
    KelpAttributesTab = outlet(buildAttributes(), "KelpAttributesTab");
    KelpAttributesTab->setEnabled(false); // applied unread, all of them would be switched off
    directoryQuotaTab = outlet(buildQuota(), "directoryQuotaTab");
    directoryQuotaTabView->addTab(KelpAttributesTab, QString());
    directoryQuotaTabView->addTab(directoryQuotaTab, QString());
    page->addWidget(directoryQuotaTabView, 1);
    readOnlyLabel = outlet(new QLabel(L("Information_Read_Only_Label"), this), "readOnlyLabel");
    readOnlyLabel->setWordWrap(true);
    page->addWidget(readOnlyLabel);
    buildButtons(*page);
    connectControls();
}

void InformationViewController::buildHeader(QVBoxLayout& page) {
    pathLabel = outlet(new QLabel(this), "pathLabel");
    currentPath = outlet(new PathLabel(this), "currentPath", L("Managed_Path_Label"));
    ownerTextField = outlet(new QLabel(this), "ownerTextField");
    ownerIcon = outlet(new QLabel(this), "ownerIcon");
    ownerIcon->hide();
    ownerField = outlet(new ValueField(this), "ownerField", plainL("Owner_Label"));
    changeOwnerButton = outlet(new QPushButton(L("Change_Owner_title"), this), "changeOwnerButton");
    changeOwnerButton->setToolTip(L("Change_Owner_Tip_Label"));

    auto* owner = new QHBoxLayout;
    owner->addWidget(ownerIcon);
    owner->addWidget(ownerField, 1);
    owner->addWidget(changeOwnerButton);
    auto* header = new QGridLayout;
    header->addWidget(pathLabel, 0, 0);
    header->addWidget(currentPath, 0, 1);
    header->addWidget(ownerTextField, 1, 0);
    header->addLayout(owner, 1, 1);
    page.addLayout(header);
}

QWidget* InformationViewController::buildAttributes() {
    auto* tab = new QWidget(this);
    auto* grid = new QGridLayout(tab);
    grid->setHorizontalSpacing(32);
    constexpr int rows = 4;
    for (int at = 0; const AttributeBox& each : attributeBoxes) {
        auto* box = outlet(new CheckBox(tab), each.outletName);
        box->setProperty("identifier", each.identifier);
        box->setToolTip(L(each.tipKey));
        explainWhenGrey(*box, std::string_view(each.attribute) == "doNotCompress"
                                  ? "Why_File_Only_Label"
                                  : "Why_Read_Only_File_Label");
        connect(box, &QCheckBox::clicked, this, [this, box] { onAttrChange(box); });
        this->*each.box = box;
        grid->addWidget(box, at % rows, at / rows);
        ++at;
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(rows, 1);
    return tab;
}

QWidget* InformationViewController::buildQuota() {
    auto* tab = new QWidget(this);
    limitQuotaLabel = outlet(new QLabel(tab), "limitQuotaLabel");
    dirQuotaLimit = outlet(new ValueField(tab), "dirQuotaLimit", plainL("Limit_Label"));
    selectUnit = outlet(new QComboBox(tab), "selectUnit", L("Unit_Label"));
    editLimitBtn = outlet(new QPushButton(L("Edit_Limit_title"), tab), "editLimitBtn");
    editLimitBtn->setToolTip(L("Edit_Limit_Tip_Label"));
    removeLimitBtn = outlet(new QPushButton(L("Remove_Limit_title"), tab), "removeLimitBtn");
    removeLimitBtn->setToolTip(L("Remove_Limit_Tip_Label"));
    usedQuotaLabel = outlet(new QLabel(tab), "usedQuotaLabel");
    dirQuotaUsed = outlet(new ValueField(tab), "dirQuotaUsed", plainL("Used_Label"));
    availableQuotaLable = outlet(new QLabel(tab), "availableQuotaLable");
    dirQuotaAvailable = outlet(new ValueField(tab), "dirQuotaAvailable", plainL("Available_Label"));
    quotaBar = outlet(new QProgressBar(tab), "quotaBar", L("Quota_Bar_Label"));
    quotaBar->hide();
    overLimitIcon = outlet(new QLabel(tab), "overLimitIcon");
    const int edge = fontMetrics().height();
    overLimitIcon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(edge, edge));
    overLimitIcon->hide();
    QSizePolicy keepingPlace = selectUnit->sizePolicy();
    keepingPlace.setRetainSizeWhenHidden(true);
    selectUnit->setSizePolicy(keepingPlace);
    setLimitEditable(false);

    auto* limit = new QHBoxLayout;
    limit->addWidget(dirQuotaLimit);
    limit->addWidget(selectUnit);
    limit->addStretch();
    limit->addWidget(editLimitBtn);
    limit->addWidget(removeLimitBtn);
    auto* grid = new QGridLayout(tab);
    grid->addWidget(limitQuotaLabel, 0, 0);
    grid->addLayout(limit, 0, 1);
    grid->addWidget(usedQuotaLabel, 1, 0);
    grid->addWidget(dirQuotaUsed, 1, 1);
    grid->addWidget(availableQuotaLable, 2, 0);
    grid->addWidget(dirQuotaAvailable, 2, 1);
    auto* usage = new QHBoxLayout;
    usage->addWidget(overLimitIcon);
    usage->addWidget(quotaBar, 1);
    grid->addLayout(usage, 3, 1);
    grid->setRowStretch(4, 1);
    return tab;
}

void InformationViewController::buildButtons(QVBoxLayout& page) {
    closeButton = outlet(new QPushButton(this), "closeButton");
    closeButton->setToolTip(L("Close_Tip_Label"));
    pendingLine = outlet(new PendingLine(this), "pendingLine");
    applyButton = outlet(new QPushButton(this), "applyButton");
    pendingLine->setApplyButton(*applyButton);
    applyButton->setToolTip(L("Apply_Tip_Label"));
    applyButton->setEnabled(false);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(closeButton);
    buttons->addStretch();
    buttons->addWidget(pendingLine);
    buttons->addWidget(applyButton);
    page.addLayout(buttons);
}

void InformationViewController::connectControls() {
    explainWhenGrey(*changeOwnerButton,
                    [this] { return isSupervisor ? "Why_Both_Shown_Label" : "Why_Needs_Supervisor_Label"; });
    explainWhenGrey(*editLimitBtn, [this] {
        return isSupervisor ? "Why_Being_Edited_Label" : "Why_Needs_Supervisor_Label";
    });
    explainWhenGrey(*removeLimitBtn, "Why_Needs_Supervisor_Label");
    explainWhenGrey(*applyButton, "Why_Nothing_Waits_Label");
    connect(changeOwnerButton, &QPushButton::clicked, this,
            [this] { onSelectTrusteeClick(changeOwnerButton); });
    connect(editLimitBtn, &QPushButton::clicked, this, [this] { onClickEditQuota(editLimitBtn); });
    connect(removeLimitBtn, &QPushButton::clicked, this, [this] { onClickRemove(); });
    connect(dirQuotaLimit, &QLineEdit::textEdited, this, [this] { onChangeQuotaLimit(dirQuotaLimit); });
    connect(dirQuotaLimit, &QLineEdit::returnPressed, applyButton, [this] { applyButton->click(); });
    for (QWidget* field : {static_cast<QWidget*>(dirQuotaLimit), static_cast<QWidget*>(selectUnit)})
        connect(new QShortcut(Qt::Key_Escape, field, nullptr, nullptr, Qt::WidgetShortcut),
                &QShortcut::activated, this, [this] { leaveLimitEditing(); });
    connect(selectUnit, &QComboBox::activated, this, [this] { onChangeUnit(); });
    connect(applyButton, &QPushButton::clicked, this, [this] { onApply(); });
    leaveOnBackKey(*closeButton);
    reloadOnRefreshKey(*this, pendingLine, [this] { readAgain(); });
    connect(closeButton, &QPushButton::clicked, this, [this] { onReturnMainMenu(); });
}

void InformationViewController::loadStrings() {
    pathLabel->setText(L("Path_Label"));
    ownerTextField->setText(L("Owner_Label"));
    limitQuotaLabel->setText(L("Limit_Label"));
    usedQuotaLabel->setText(L("Used_Label"));
    availableQuotaLable->setText(L("Available_Label"));
    closeButton->setText(L("Close_title"));
    applyButton->setText(L("Apply_title"));
    for (const AttributeBox& each : attributeBoxes)
        (this->*each.box)->setText(L(each.titleKey));
    directoryQuotaTabView->setAccessibleName(plainL("Information_Title"));
    directoryQuotaTabView->setTabText(0, L("KELP_Attr_Label"));
    directoryQuotaTabView->setTabText(1, L("Directory_Quota_Label"));
    fillQuotaUnits(*selectUnit);
}

/// Room for long paths and names.
QSize InformationViewController::sizeHint() const {
    return ViewController::sizeHint().expandedTo({80 * fontMetrics().averageCharWidth(), 0});
}

} // namespace quorvan
