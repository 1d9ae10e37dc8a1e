// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/TrusteeRightsTabView.h"

#include "Quorvan/Controller/MainMenu.h"
#include "Quorvan/Controller/ViewTabController.h"
#include "Quorvan/Toolkit/Localized.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

void TrusteeRightsTabView::loadView() {
    auto* tabs = new ViewTabController(this);
    insertChild(0, tabs);
    closeBtn = outlet(new QPushButton(L("Close_title"), this), "closeBtn");
    closeBtn->setToolTip(L("Close_Tip_Label"));
    connect(closeBtn, &QPushButton::clicked, this, &TrusteeRightsTabView::onReturnMainMenu);

    auto* page = new QVBoxLayout(this);
    page->addWidget(tabs, 1);
    page->addWidget(closeBtn, 0, Qt::AlignLeft);
}

/// Room for long names beside the boxes, and for some fifteen trustees.
QSize TrusteeRightsTabView::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return ViewController::sizeHint().expandedTo(
        {100 * metrics.averageCharWidth() + 80, 38 * metrics.lineSpacing()});
}

void TrusteeRightsTabView::onReturnMainMenu() {
    returnToMainMenu(*this);
}

} // namespace quorvan
