// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/SearchField.h"

#include "Quorvan/Toolkit/Localized.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QShortcut>

namespace quorvan {

SearchField::SearchField(QWidget* list, QWidget* parent)
    : QLineEdit(parent)
    , list_(list) {
    setClearButtonEnabled(true);
    setPlaceholderText(L("Search_Placeholder_Label"));
    setAccessibleName(L("Search_Placeholder_Label"));
    setToolTip(L("Search_Tip_Label"));
    auto* find = new QShortcut(QKeySequence(QKeySequence::Find), this);
    const auto takeFocus = [this] {
        setFocus(Qt::ShortcutFocusReason);
        selectAll();
    };
    connect(find, &QShortcut::activated, this, takeFocus);
    connect(find, &QShortcut::activatedAmbiguously, this, takeFocus); // the fields of a window take turns
}

QSize SearchField::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 32, QLineEdit::sizeHint().height()};
}

void SearchField::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !text().isEmpty())
        clear();
    else if (event->key() == Qt::Key_Down)
        goToFirstHit();
    else
        QLineEdit::keyPressEvent(event);
}

void SearchField::goToFirstHit() {
    list_->setFocus(Qt::TabFocusReason);
    auto* view = qobject_cast<QAbstractItemView*>(list_);
    if (view != nullptr && view->model()->rowCount() > 0)
        view->setCurrentIndex(view->model()->index(0, 0));
}

} // namespace quorvan
