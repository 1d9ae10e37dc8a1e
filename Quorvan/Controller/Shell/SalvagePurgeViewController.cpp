// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/SalvagePurgeViewController.h"

#include "Quorvan/Controller/Selection/SelectionContext.h"
#include "Quorvan/Controller/Shell/MainMenu.h"
#include "Quorvan/Controller/Shell/MoreInfoViewController.h"
#include "Quorvan/Controller/Shell/SalvagePurgeSegueController.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/PathLabel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

void SalvagePurgeViewController::loadView() {
    currentPath = outlet(new PathLabel(this), "currentPath", L("Managed_Path_Label"));
    purposeLabel = outlet(new QLabel(this), "purposeLabel");
    nothingSentLabel = outlet(new QLabel(L("Salvage_Purge_Nothing_Sent_Label"), this), "nothingSentLabel");
    QFont bold = font();
    bold.setBold(true);
    nothingSentLabel->setFont(bold);
    for (QLabel* text : {purposeLabel, nothingSentLabel})
        text->setWordWrap(true);
    deletedFileButton = outlet(new QPushButton(this), "deletedFileButton");
    deletedFileButton->setToolTip(L("Deleted_Files_Tip_Label"));
    moreInfoButton = outlet(new QPushButton(L("More_Information_title"), this), "moreInfoButton");
    closeButton = outlet(new QPushButton(L("Close_title"), this), "closeButton");
    closeButton->setToolTip(L("Close_Tip_Label"));
    for (QPushButton* button : {deletedFileButton, moreInfoButton})
        connect(button, &QPushButton::clicked, this, [this] { onClickMoreInfo(); });
    leaveOnBackKey(*closeButton);
    connect(closeButton, &QPushButton::clicked, this, [this] {
        if (presentingController() != nullptr)
            onClose();
        else
            returnToMainMenu(*this);
    });

    const int gap = fontMetrics().lineSpacing();
    auto* actions = new QHBoxLayout;
    actions->addWidget(deletedFileButton);
    actions->addWidget(moreInfoButton);
    actions->addStretch();
    auto* page = new QVBoxLayout(this);
    page->addWidget(currentPath);
    page->addSpacing(gap / 2);
    page->addWidget(purposeLabel);
    page->addWidget(nothingSentLabel);
    page->addSpacing(gap / 2);
    page->addLayout(actions);
    page->addStretch();
    page->addSpacing(gap);
    page->addWidget(closeButton, 0, Qt::AlignLeft);
}

void SalvagePurgeViewController::viewDidLoad() {
    const std::string titleKey = salvagePurgeTitleKey(identifierID);
    currentPath->setPath(SelectionContext::selectedPathName());
    deletedFileButton->setText(L(titleKey));
    purposeLabel->setText(L(titleKey == "Salvage_Title" ? "Salvage_Purpose_Label" : "Purge_Purpose_Label"));
}

void SalvagePurgeViewController::viewDidAppear() {
    deletedFileButton->setFocus();
}

QSize SalvagePurgeViewController::sizeHint() const {
    const QFontMetrics metrics = fontMetrics();
    return ViewController::sizeHint().expandedTo(
        {70 * metrics.averageCharWidth(), 14 * metrics.lineSpacing()});
}

void SalvagePurgeViewController::prepare(const Segue& segue) {
    if (segue.identifier != "moreInfoSegue")
        return;
    if (auto* sheet = dynamic_cast<MoreInfoViewController*>(segue.destination))
        sheet->callerID = identifierID;
}

void SalvagePurgeViewController::onClickMoreInfo() {
    SheetSegue segue("moreInfoSegue", this, new MoreInfoViewController);
    prepare(segue);
    segue.perform();
}

void SalvagePurgeViewController::onClose() {
    endSheet();
}

} // namespace quorvan
