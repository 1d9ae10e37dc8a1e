// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/InheritedRightsViewController.h"

#include "Common/Fatal.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Toolkit/ChangeButtons.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/RightsBoxes.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

namespace {

using View = InheritedRightsViewController;

struct FilterBox {
    QCheckBox* View::*outlet;
    const char* name;
    std::uint16_t bit;
};
constexpr FilterBox filterBoxKinds[] = {{&View::readIRF, "readIRF", KelpRights::read},
                                        {&View::writeIRF, "writeIRF", KelpRights::write},
                                        {&View::eraseIRF, "eraseIRF", KelpRights::erase},
                                        {&View::accessIRF, "accessIRF", KelpRights::accessControl},
                                        {&View::modifyIRF, "modifyIRF", KelpRights::modify},
                                        {&View::fscanIRF, "fscanIRF", KelpRights::fileScan},
                                        {&View::supervisorIRF, "supervisorIRF", KelpRights::supervisor},
                                        {&View::createIRF, "createIRF", KelpRights::create}};

} // namespace

void InheritedRightsViewController::loadView() {
    currentPath = outlet(new PathLabel(this), "currentPath", L("Managed_Path_Label"));
    deselectLabel = outlet(new QLabel(this), "deselectLabel");
    deselectLabel->setWordWrap(true);
    buildBoxes();
    readOnlyLabel = outlet(new QLabel(L("Rights_Read_Only_Label"), this), "readOnlyLabel");
    readOnlyLabel->setWordWrap(true);
    pendingLine = outlet(new PendingLine(this), "pendingLine");
    revertBtn = outlet(new QPushButton(this), "revertBtn");
    applyBtn = outlet(new QPushButton(this), "applyBtn");
    pendingLine->setApplyButton(*applyBtn);
    revertBtn->setToolTip(L("Revert_Tip_Label"));
    applyBtn->setToolTip(L("Apply_Tip_Label"));
    for (QPushButton* button : {revertBtn, applyBtn})
        explainWhenGrey(*button, "Why_Nothing_Waits_Label");
    connect(revertBtn, &QPushButton::clicked, this, [this] { onRevert(revertBtn); });
    connect(applyBtn, &QPushButton::clicked, this, [this] { onApply(applyBtn); });
    reloadOnRefreshKey(*this, pendingLine, [this] {
        if (RightsTabViewController::besides(*this).readAgain())
            initMainView();
    });
    layOutControls();
}

void InheritedRightsViewController::buildBoxes() {
    filterBoxes = outlet(new RightsBoxes(2, this), "filterBoxes", L("Inherited_Deselect_Label"));
    for (const FilterBox& kind : filterBoxKinds) {
        QCheckBox* box = outlet(filterBoxes->box(kind.bit), kind.name);
        this->*kind.outlet = box;
        box->setToolTip(L("Inherited_Box_Tip_Label").arg(box->text()));
        explainWhenGrey(*box, kind.bit == KelpRights::supervisor ? "Inherited_Supervisor_Tip_Label"
                                                                 : "Why_Needs_Rights_Label");
        connect(box, &QCheckBox::clicked, this, [this, box] { onAnyIRFClick(box); });
    }
    supervisorIRF->setEnabled(false);
}

void InheritedRightsViewController::layOutControls() {
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(pendingLine);
    buttons->addWidget(revertBtn);
    buttons->addWidget(applyBtn);

    auto* page = new QVBoxLayout(this);
    page->addWidget(currentPath);
    page->addWidget(deselectLabel);
    page->addSpacing(fontMetrics().lineSpacing() / 2);
    page->addWidget(filterBoxes);
    page->addStretch();
    page->addWidget(readOnlyLabel);
    page->addLayout(buttons);
    setTabOrders({currentPath, filterBoxes, pendingLine, revertBtn, applyBtn});
}

void InheritedRightsViewController::viewDidLoad() {
    initMainView();
    setChangesEnabled(false);
}

void InheritedRightsViewController::initMainView() {
    const RightsTabViewController& trustees = RightsTabViewController::besides(*this);
    irf = unwrap(trustees.irfList, "The trustee rights have no inherited rights filter").uright;
    isSupervisorOrAC = trustees.isSupervisor || trustees.isAccessControl;
    editedIRF = irf;
    hasFailed_ = false;
    setIRF();
    deselectLabel->setText(L("Inherited_Deselect_Label"));
    applyBtn->setText(L("Apply_title"));
    revertBtn->setText(L("Revert_title"));
    setChangesEnabled(isSupervisorOrAC);
    currentPath->setPath(selectedPathName());
    readOnlyLabel->setVisible(!isSupervisorOrAC);
}

void InheritedRightsViewController::setIRF() {
    filterBoxes->setRights(editedIRF);
    for (const FilterBox& kind : filterBoxKinds)
        if (kind.bit != KelpRights::supervisor)
            (this->*kind.outlet)->setEnabled(isSupervisorOrAC);
}

void InheritedRightsViewController::setChangesEnabled(bool enabled) {
    quorvan::setChangesEnabled(enabled, revertBtn, applyBtn, readIRF);
    showPending();
}

std::vector<PendingChange> InheritedRightsViewController::pendingChanges() const {
    if (editedIRF == irf && !hasFailed_)
        return {};
    return {rightsChange("", PendingChange::Kind::changed, plainL("Inherited_Filter_Label").toStdString(),
                         editedIRF)};
}

void InheritedRightsViewController::showPending() {
    pendingLine->show(pendingChanges(), {});
}

void InheritedRightsViewController::onAnyIRFClick(QCheckBox* sender) {
    editedIRF = withRight(editedIRF, RightsBoxes::bitOf(sender), sender->isChecked());
    setChangesEnabled(true);
}

void InheritedRightsViewController::onApply(QObject* /*sender*/) {
    const std::int32_t status =
        renewController().setInheritedRightsforPathHandleDFS(serverIP, editedIRF, selectedPath, mappedPath);
    hasFailed_ = status != 0; // what was sent still waits, though it stands in irf
    if (status == 0)
        setChangesEnabled(false);
    else
        reportFailed(status, 1);
    irf = editedIRF;
    setIRF();
    showPending();
    if (status == 0)
        tellOutcome({}, {});
}

void InheritedRightsViewController::onRevert(QObject* /*sender*/) {
    editedIRF = irf;
    hasFailed_ = false;
    setIRF();
    setChangesEnabled(false);
}

} // namespace quorvan
