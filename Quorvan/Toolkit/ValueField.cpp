// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ValueField.h"

#include <QPainter>
#include <QStyle>

namespace quorvan {

ValueField::ValueField(QWidget* parent)
    : QLineEdit(parent) {
    setTextMargins(0, 0, 0, 0);
    // Beside its label, in whichever direction the value itself is written.
    setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignAbsolute |
                 Qt::AlignVCenter);
    setEditable(false);
}

void ValueField::setEditable(bool editable) {
    setReadOnly(!editable);
    setFrame(editable);
    setFocusPolicy(editable ? Qt::StrongFocus : Qt::ClickFocus);
    QPalette look;
    if (!editable)
        look.setBrush(QPalette::Base, Qt::transparent);
    setPalette(look);
}

QSize ValueField::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 20, QLineEdit::minimumSizeHint().height()};
}

void ValueField::paintEvent(QPaintEvent* event) {
    constexpr int inset = 2; // where a line edit without frame begins its text
    const QRect room = rect().adjusted(inset, 0, -inset, 0);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width());
    if (hasFocus() || !isReadOnly() || shown == text()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          QPalette::Text);
}

} // namespace quorvan
