// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Identities/IdentifySourceViewController.h"

#include "Common/ServerDetails.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/Localized.h"

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace quorvan {

IdentifySourceViewController::IdentifySourceViewController()
    : domainIdentity(ServerDetails::serverInfo().getIdentityType()) {
    setWindowTitle(L("Identify_Source_Title"));
}

void IdentifySourceViewController::prepare(ViewController& view, IdentityBrowserDelegate& receiver,
                                           const IdentityWish& /*wish*/) {
    delegate.set(view, receiver);
}

void IdentifySourceViewController::loadView() {
    SelectSourceOfIdentityLabel = outlet(new QLabel(this), "SelectSourceOfIdentityLabel");
    MorvaneBtn = outlet(new QRadioButton(this), "MorvaneBtn");
    ADBtn = outlet(new QRadioButton(this), "ADBtn");
    OkBtn = outlet(new QPushButton(this), "OkBtn");
    OkBtn->setDefault(true);
    CancelBtn = outlet(new QPushButton(this), "CancelBtn");
    connect(MorvaneBtn, &QRadioButton::clicked, this, [this] { onClickMorvaneButton(); });
    connect(ADBtn, &QRadioButton::clicked, this, [this] { onClickADButton(); });
    connect(OkBtn, &QPushButton::clicked, this, [this] { onClickOkay(); });
    connect(CancelBtn, &QPushButton::clicked, this, [this] { onClickCancel(); });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(CancelBtn);
    buttons->addStretch();
    buttons->addWidget(OkBtn);
    auto* page = new QVBoxLayout(this);
    page->addWidget(SelectSourceOfIdentityLabel);
    page->addWidget(MorvaneBtn);
    page->addWidget(ADBtn);
    page->addSpacing(fontMetrics().lineSpacing());
    page->addStretch();
    page->addLayout(buttons);
    setTabOrders({MorvaneBtn, ADBtn, OkBtn, CancelBtn});
}

void IdentifySourceViewController::viewDidLoad() {
    initMainView();
    chooseActiveDirectory(domainIdentity == identityActiveDirectory);
}

void IdentifySourceViewController::initMainView() {
    SelectSourceOfIdentityLabel->setText(L("Select_source_of_identity_Label"));
    MorvaneBtn->setText(L("Morvane_title"));
    ADBtn->setText(L("Active_Directory_title"));
    OkBtn->setText(L("OK_title"));
    CancelBtn->setText(L("Cancel_title"));
}

void IdentifySourceViewController::viewDidAppear() {
    (ADBtn->isChecked() ? ADBtn : MorvaneBtn)->setFocus();
}

/// The two exclude each other: switching one on switches the other off.
void IdentifySourceViewController::chooseActiveDirectory(bool on) {
    (on ? ADBtn : MorvaneBtn)->setChecked(true);
}

void IdentifySourceViewController::onClickOkay() {
    if (IdentifySourceDelegate* receiver = delegate.get())
        receiver->onReturnIdentifySource(
            std::string(ADBtn->isChecked() ? identityActiveDirectory : identityMorvane));
    endSheet();
}

} // namespace quorvan
