// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/TrusteeRightsTabView.h"

#include "Quorvan/Controller/Rights/ViewTabController.h"
#include "Quorvan/Controller/Shell/MainMenu.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PageKeys.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

void TrusteeRightsTabView::loadView() {
    auto* tabs = new ViewTabController(this);
    insertChild(0, tabs);
    closeBtn = outlet(new QPushButton(L("Close_title"), this), "closeBtn");
    leaveOnBackKey(*closeBtn);
    closeBtn->setToolTip(L("Close_Tip_Label"));
    connect(closeBtn, &QPushButton::clicked, this, &TrusteeRightsTabView::onReturnMainMenu);

    auto* page = new QVBoxLayout(this);
    page->addWidget(tabs, 1);
    page->addWidget(closeBtn, 0, Qt::AlignLeft);
}

void TrusteeRightsTabView::onReturnMainMenu() {
    returnToMainMenu(*this);
}

} // namespace quorvan
