// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/PlaceholderViewController.h"

#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"

#include <QLabel>
#include <QVBoxLayout>

namespace quorvan {

void PlaceholderViewController::loadView() {
    auto* page = new QVBoxLayout(this);
    page->addStretch();
    auto* picture = new QLabel(this);
    picture->setPixmap(namedIcon("tab_follows").pixmap(QSize(48, 48), devicePixelRatioF()));
    auto* title = new QLabel(title_, this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto* description = new QLabel(description_, this);
    auto* follows = outlet(new QLabel(L("Tab_Follows_Label"), this), "followsLabel");
    follows->setEnabled(false);
    for (QLabel* label : {picture, title, description, follows}) {
        label->setAlignment(Qt::AlignHCenter);
        page->addWidget(label);
    }
    page->addStretch();
}

} // namespace quorvan
