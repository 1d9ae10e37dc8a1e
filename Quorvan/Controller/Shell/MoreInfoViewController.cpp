// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/MoreInfoViewController.h"

#include "Quorvan/Controller/Shell/SalvagePurgeSegueController.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

void MoreInfoViewController::loadView() {
    auto* text = outlet(new QLabel(L("Salvage_Purge_More_Label"), this), "moreInfoLabel");
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setMinimumWidth(56 * fontMetrics().averageCharWidth());
    actionButton = outlet(new QPushButton(this), "actionButton");
    actionButton->setEnabled(false);
    actionButton->setToolTip(L("Salvage_Purge_Nothing_Sent_Label"));
    cancelButton = outlet(new QPushButton(L("Close_title"), this), "cancelButton");
    cancelButton->setDefault(true);
    connect(cancelButton, &QPushButton::clicked, this, [this] { onCancel(); });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cancelButton);
    buttons->addStretch();
    buttons->addWidget(actionButton);
    auto* page = new QVBoxLayout(this);
    page->addWidget(text);
    page->addSpacing(fontMetrics().lineSpacing() / 2);
    page->addLayout(buttons);
}

void MoreInfoViewController::viewDidLoad() {
    setWindowTitle(plainL("More_Information_Title"));
    actionButton->setText(L(salvagePurgeTitleKey(callerID)));
}

void MoreInfoViewController::onCancel() {
    endSheet();
}

} // namespace quorvan
