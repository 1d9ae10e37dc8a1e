// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/GreyReason.h"

#include "Quorvan/Toolkit/Localized.h"

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvan {
namespace {

class GreyReason : public QObject {
public:
    GreyReason(QWidget& control, std::function<const char*()> whyKey)
        : QObject(&control)
        , control_(control)
        , whyKey_(std::move(whyKey))
        , usual_(control.toolTip()) {
        control.installEventFilter(this);
        show();
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        // The reason may have become another one since the control went grey.
        constexpr QEvent::Type occasions[] = {QEvent::EnabledChange, QEvent::Show, QEvent::ToolTip};
        if (std::ranges::find(occasions, event->type()) != std::end(occasions))
            show();
        return QObject::eventFilter(watched, event);
    }

private:
    void show() { control_.setToolTip(control_.isEnabled() ? usual_ : L(whyKey_())); }

    QWidget& control_;
    std::function<const char*()> whyKey_;
    QString usual_;
};

} // namespace

void explainWhenGrey(QWidget& control, std::function<const char*()> whyKey) {
    new GreyReason(control, std::move(whyKey));
}

void explainWhenGrey(QWidget& control, const char* whyKey) {
    explainWhenGrey(control, [whyKey] { return whyKey; });
}

void setGrey(QAction& action, const char* whyKey) {
    action.setEnabled(whyKey == nullptr);
    action.setToolTip(whyKey != nullptr ? L(whyKey) : QString());
}

void showGreyReasons(QMenu& menu) {
    const QList<QAction*> entries = menu.actions();
    menu.setToolTipsVisible(std::ranges::any_of(
        entries, [](const QAction* entry) { return !entry->isEnabled() && !entry->isSeparator(); }));
    for (const QAction* entry : entries)
        if (entry->menu() != nullptr)
            showGreyReasons(*entry->menu());
}

} // namespace quorvan
