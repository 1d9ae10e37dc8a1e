// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the directory trustees tab and their layout.
#include "Quorvan/Controller/Rights/DirectoryTrusteeViewController.h"

#include "Quorvan/Controller/Rights/WhyViewController.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/TrusteeRows.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace quorvan {

void DirectoryTrusteeViewController::loadView() {
    currentPath = outlet(new PathLabel(this), "currentPath", L("Managed_Path_Label"));
    buildSides();
    readOnlyLabel = outlet(new QLabel(L("Rights_Read_Only_Label"), this), "readOnlyLabel");
    readOnlyLabel->setWordWrap(true);
    pendingLine = outlet(new PendingLine(this), "pendingLine");
    reloadOnRefreshKey(*this, pendingLine, [this] { loadAgain(); });
    revertbtn = outlet(new QPushButton(this), "revertbtn");
    applybtn = outlet(new QPushButton(this), "applybtn");
    pendingLine->setApplyButton(*applybtn);
    revertbtn->setToolTip(L("Revert_Tip_Label"));
    applybtn->setToolTip(L("Apply_Tip_Label"));
    for (QPushButton* button : {revertbtn, applybtn})
        explainWhenGrey(*button, "Why_Nothing_Waits_Label");
    connect(revertbtn, &QPushButton::clicked, this, [this] { onRevertClick(revertbtn); });
    connect(applybtn, &QPushButton::clicked, this, [this] { onApplyClick(applybtn); });
    layOutControls();
}

void DirectoryTrusteeViewController::buildSides() {
    const auto build = [this](Side& side) {
        side.caption = new QLabel(this);
        side.table =
            new RightsTable({{"username", L("Col_UserGrp_Name")}, {"path", L("Col_Path"), Qt::ElideLeft}},
                            std::make_unique<DirectoryRightsRows>(side.edited), this);
        side.field = new SearchField(side.table, this);
        side.field->setPlaceholderText(L("Search_Paths_Placeholder_Label"));
        side.removeLabel = new QLabel(this);
        side.removeBtn = new QPushButton(this);
        side.removeBtn->setToolTip(L("Remove_Tip_Label"));
        explainWhenGrey(*side.removeBtn, "Why_Needs_Rights_Label");
        side.table->setGreyRule(
            [this](std::uint16_t bit) { return whyRightIsGrey(bit, isSupervisor, isAccessControl); });
        side.table->setClickHandler(
            [this, &side](const RightsCheckBox& sender) { onMouseClickCheckbox(side, sender); });
        addWhyAction(*this, *this, *side.table, [&side](int row) {
            const DirectoryRights& entry = side.edited[static_cast<std::size_t>(row)];
            return WhyQuestion{{entry.trustee->trusteeID, entry.trustee->trusteeName}, entry.path};
        });
        side.table->setSortHandler([this, &side] { sortDescriptorsDidChange(side); });
    };
    build(sub_);
    build(parent_);
    outlet(subdirLabel, "subdirLabel");
    outlet(parentdirLabel, "parentdirLabel");
    outlet(subdirTable, "subdirTable", plainL("Subdirectories_Label"));
    outlet(parentdirTable, "parentdirTable", plainL("Parent_dir_Label"));
    outlet(searchInSubField, "searchInSubField", L("Search_Sub_Label"));
    outlet(searchInParentField, "searchInParentField", L("Search_Parent_Label"));
    outlet(removeLabel1, "removeLabel1");
    outlet(removeLabel2, "removeLabel2");
    outlet(removeBtnSub, "removeBtnSub")->setText(L("Remove_title"));
    outlet(removeBtnParent, "removeBtnParent")->setText(L("Remove_Parent_title"));
    stoppedBtn = outlet(new QPushButton(L("Stopped_title"), this), "stoppedBtn");
    stoppedBtn->setToolTip(L("Stopped_Tip_Label"));
    connect(stoppedBtn, &QPushButton::clicked, this, [this] { markStoppedRights(); });
    subdirTable->setRemoveButton(removeBtnSub);
    parentdirTable->setRemoveButton(removeBtnParent);
    connect(removeBtnSub, &QPushButton::clicked, this, [this] { removeTrusteeforSubdir(removeBtnSub); });
    connect(removeBtnParent, &QPushButton::clicked, this,
            [this] { removeTrusteeforParentDir(removeBtnParent); });
    connect(searchInSubField, &QLineEdit::textChanged, this, [this] { onSearchSubdir(searchInSubField); });
    connect(searchInParentField, &QLineEdit::textChanged, this,
            [this] { onSearchParentdir(searchInParentField); });
}

QWidget* DirectoryTrusteeViewController::panelOf(const Side& side) {
    auto* panel = new QWidget(this);
    auto* heading = new QHBoxLayout;
    heading->addWidget(side.caption);
    heading->addStretch();
    heading->addWidget(side.field);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(side.removeLabel);
    buttons->addWidget(side.removeBtn);
    buttons->addStretch();
    if (&side == &parent_)
        buttons->addWidget(stoppedBtn);
    auto* rows = new QVBoxLayout(panel);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addLayout(heading);
    rows->addWidget(side.table, 1);
    rows->addLayout(buttons);
    return panel;
}

void DirectoryTrusteeViewController::layOutControls() {
    auto* tables = new QSplitter(Qt::Vertical, this);
    tables->setChildrenCollapsible(false);
    tables->addWidget(panelOf(sub_));
    tables->addWidget(panelOf(parent_));

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(readOnlyLabel, 1);
    buttons->addStretch();
    buttons->addWidget(pendingLine);
    buttons->addWidget(revertbtn);
    buttons->addWidget(applybtn);

    auto* page = new QVBoxLayout(this);
    page->addWidget(currentPath);
    page->addWidget(tables, 1);
    page->addLayout(buttons);
    setTabOrders({currentPath, searchInSubField, subdirTable, removeBtnSub, searchInParentField,
                  parentdirTable, removeBtnParent, stoppedBtn, pendingLine, revertbtn, applybtn});
}

} // namespace quorvan
