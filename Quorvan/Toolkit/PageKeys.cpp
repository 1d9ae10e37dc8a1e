// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/PageKeys.h"

#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NoticeLine.h"
#include "Quorvan/Toolkit/PendingChanges.h"

#include <QPushButton>
#include <QShortcut>

#include <utility>

namespace quorvan {

void reloadOnRefreshKey(QWidget& page, const PendingLine* pending, std::function<void()> reload) {
    auto* key = new QShortcut(QKeySequence(QKeySequence::Refresh), &page);
    key->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(key, &QShortcut::activated, &page, [pending, reload = std::move(reload)] {
        NoticeLine::forget();
        if (pending == nullptr || pending->texts().isEmpty())
            reload();
        else
            NoticeLine::tell(NoticeLine::Kind::problem, L("No_Reload_Label"));
    });
}

void leaveOnBackKey(QPushButton& button) {
    auto* key = new QShortcut(QKeySequence(QKeySequence::Back), &button);
    QObject::connect(key, &QShortcut::activated, &button, &QPushButton::click);
}

} // namespace quorvan
