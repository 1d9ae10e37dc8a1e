// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the effective rights tab and their layout.
#include "Quorvan/Controller/Rights/EffectiveRightsViewController.h"

#include "Quorvan/Controller/Rights/WhyViewController.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/RightsBoxes.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

void EffectiveRightsViewController::loadView() {
    currentPath = outlet(new PathLabel(this), "currentPath", L("Managed_Path_Label"));
    buildTable();
    buildChosenIdentity();
    reloadOnRefreshKey(*this, nullptr, [this] { readAgain(); });
    layOutControls();
}

void EffectiveRightsViewController::buildTable() {
    effectiveLabel = outlet(new QLabel(this), "effectiveLabel");
    effRightsTable = outlet(new RightsTable({{"username", L("Col_UserGrp_Name")}},
                                            std::make_unique<TrusteeRows>(trusteeList), this),
                            "effRightsTable", plainL("Effective_Rights_Label"));
    searchField = outlet(new SearchField(effRightsTable, this), "searchField");
    effRightsTable->setSortHandler([this] { sortDescriptorsDidChange(); });
    addWhyAction(*this, *this, *effRightsTable, [this](int row) {
        const Trustees& trustee = *trusteeList[static_cast<std::size_t>(row)];
        return WhyQuestion{{trustee.trusteeID, trustee.trusteeName}, selectedPath};
    });
    connect(searchField, &QLineEdit::textChanged, this, [this] { onSearch(searchField); });
}

void EffectiveRightsViewController::buildChosenIdentity() {
    selectTrusteeLabel = outlet(new QLabel(this), "selectTrusteeLabel");
    userGroupLabel = outlet(new QLabel(this), "userGroupLabel");
    userGroupField = outlet(new PathLabel(this), "userGroupField", L("User_Group_Label"));
    userGroupField->setPlaceholderText(L("Nobody_Chosen_Label"));
    selectUserBtn = outlet(new QPushButton(L("Choose_title"), this), "selectUserBtn");
    selectUserBtn->setEnabled(false);
    connect(selectUserBtn, &QPushButton::clicked, this, [this] { onSelectTrusteeClick(selectUserBtn); });
    whyBtn = outlet(new QPushButton(L("Why_Button_title"), this), "whyBtn");
    whyBtn->setToolTip(L("Why_Button_Tip_Label"));
    whyBtn->setEnabled(false);
    explainWhenGrey(*whyBtn, "Why_Nobody_Chosen_Label");
    connect(whyBtn, &QPushButton::clicked, this, [this] {
        explainRights(*this, *this, {{chosenID_, userGroupField->text().toStdString()}, selectedPath});
    });

    effectiveBoxes = outlet(new RightsBoxes(4, this), "effectiveBoxes", L("Select_Effective_Trustee_Label"));
    effectiveBoxes->makeReadOnly();
    readChk = outlet(effectiveBoxes->box(KelpRights::read), "readChk");
    writeChk = outlet(effectiveBoxes->box(KelpRights::write), "writeChk");
    eraseChk = outlet(effectiveBoxes->box(KelpRights::erase), "eraseChk");
    createChk = outlet(effectiveBoxes->box(KelpRights::create), "createChk");
    modifyChk = outlet(effectiveBoxes->box(KelpRights::modify), "modifyChk");
    accessChk = outlet(effectiveBoxes->box(KelpRights::accessControl), "accessChk");
    fsChk = outlet(effectiveBoxes->box(KelpRights::fileScan), "fsChk");
    supervisorChk = outlet(effectiveBoxes->box(KelpRights::supervisor), "supervisorChk");
}

void EffectiveRightsViewController::layOutControls() {
    auto* heading = new QHBoxLayout;
    heading->addWidget(effectiveLabel);
    heading->addStretch();
    heading->addWidget(searchField);

    auto* chosen = new QHBoxLayout;
    chosen->addWidget(userGroupLabel);
    chosen->addWidget(userGroupField, 1);
    chosen->addWidget(whyBtn);
    chosen->addWidget(selectUserBtn);

    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);

    auto* page = new QVBoxLayout(this);
    page->addWidget(currentPath);
    page->addLayout(heading);
    page->addWidget(effRightsTable, 1);
    page->addWidget(line);
    page->addWidget(selectTrusteeLabel);
    page->addLayout(chosen);
    page->addWidget(effectiveBoxes);
    setTabOrders({currentPath, searchField, effRightsTable, userGroupField, whyBtn, selectUserBtn});
}

} // namespace quorvan
