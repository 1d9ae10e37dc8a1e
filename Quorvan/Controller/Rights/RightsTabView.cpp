// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the trustee rights tab and their layout.
#include "Quorvan/Controller/Rights/RightsTabViewController.h"

#include "Quorvan/Controller/Rights/WhyViewController.h"
#include "Quorvan/Toolkit/CheckBox.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/PathLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

void RightsTabViewController::loadView() {
    buildControls();
    layOutControls();
    connectControls();
}

void RightsTabViewController::buildControls() {
    // In the order in which Tab visits them.
    currentPath = outlet(new PathLabel(this), "currentPath", L("Managed_Path_Label"));
    showCheck = outlet(new CheckBox(this), "showCheck");
    showCheckCaption = outlet(new QLabel(this), "showCheckCaption");
    auto* table = new RightsTable({{"username", L("Col_UserGrp_Name")}},
                                  std::make_unique<TrusteeRows>(editedTrusteeList), this);
    searchField = outlet(new SearchField(table, this), "searchField");
    rightsTable = outlet(table, "rightsTable", plainL("Rights_Label_Title"));
    addWhyAction(*this, *this, *rightsTable, [this](int row) {
        const Trustees& trustee = *editedTrusteeList[static_cast<std::size_t>(row)];
        return WhyQuestion{{trustee.trusteeID, trustee.trusteeName}, selectedPath};
    });
    addRemoveLabel = outlet(new QLabel(this), "addRemoveLabel");
    addBtn = outlet(new QPushButton(L("Add_title"), this), "addBtn");
    removeBtn = outlet(new QPushButton(L("Remove_title"), this), "removeBtn");
    pendingLine = outlet(new PendingLine(this), "pendingLine");
    revertBtn = outlet(new QPushButton(this), "revertBtn");
    applyBtn = outlet(new QPushButton(this), "applyBtn");
    pendingLine->setApplyButton(*applyBtn);
    readOnlyLabel = outlet(new QLabel(L("Rights_Read_Only_Label"), this), "readOnlyLabel");
    readOnlyLabel->setWordWrap(true);

    addBtn->setToolTip(L("Add_Tip_Label"));
    removeBtn->setToolTip(L("Remove_Tip_Label"));
    revertBtn->setToolTip(L("Revert_Tip_Label"));
    applyBtn->setToolTip(L("Apply_Tip_Label"));
    explainWhenGrey(*addBtn,
                    [this] { return canEdit() ? "Why_Both_Shown_Label" : "Why_Needs_Rights_Label"; });
    explainWhenGrey(*removeBtn, "Why_Needs_Rights_Label");
    for (QPushButton* button : {revertBtn, applyBtn})
        explainWhenGrey(*button, "Why_Nothing_Waits_Label");
}

void RightsTabViewController::layOutControls() {
    auto* heading = new QHBoxLayout;
    heading->addWidget(showCheck);
    heading->addWidget(showCheckCaption);
    heading->addStretch();
    heading->addWidget(searchField);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(addRemoveLabel);
    buttons->addWidget(addBtn);
    buttons->addWidget(removeBtn);
    buttons->addStretch();
    buttons->addWidget(pendingLine);
    buttons->addWidget(revertBtn);
    buttons->addWidget(applyBtn);

    auto* page = new QVBoxLayout(this);
    page->addWidget(currentPath);
    page->addLayout(heading);
    page->addWidget(rightsTable, 1);
    page->addWidget(readOnlyLabel);
    page->addLayout(buttons);

    setTabOrders({currentPath, showCheck, searchField, rightsTable, addBtn, removeBtn, pendingLine, revertBtn,
                  applyBtn});
}

void RightsTabViewController::connectControls() {
    rightsTable->setRemoveButton(removeBtn);
    reloadOnRefreshKey(*this, pendingLine, [this] { loadAgain(); });
    rightsTable->setGreyRule(
        [this](std::uint16_t bit) { return whyRightIsGrey(bit, isSupervisor, isAccessControl); });
    rightsTable->setClickHandler([this](const RightsCheckBox& sender) { onMouseClickCheckbox(sender); });
    rightsTable->setSortHandler([this] { sortDescriptorsDidChange(); });
    connect(searchField, &QLineEdit::textChanged, this, [this] { onSearch(searchField); });
    connect(showCheck, &QCheckBox::clicked, this, [this] { onShowBothMorvaneAD(showCheck); });
    connect(addBtn, &QPushButton::clicked, this, [this] { onSelectTrusteeClick(addBtn); });
    connect(removeBtn, &QPushButton::clicked, this, [this] { removeSelectedRow(removeBtn); });
    connect(revertBtn, &QPushButton::clicked, this, [this] { onRevertClick(revertBtn); });
    connect(applyBtn, &QPushButton::clicked, this, [this] { onApplyClick(applyBtn); });
}

} // namespace quorvan
