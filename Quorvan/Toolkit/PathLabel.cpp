// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/PathLabel.h"

#include <QPainter>
#include <QStyle>

namespace quorvan {

PathLabel::PathLabel(QWidget* parent)
    : QLineEdit(parent) {
    setReadOnly(true);
    setFrame(false);
    setFocusPolicy(Qt::ClickFocus);
    setTextMargins(0, 0, 0, 0);
    QPalette label = palette();
    label.setBrush(QPalette::Base, Qt::transparent);
    setPalette(label);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
}

void PathLabel::setPath(const QString& path) {
    setText(path);
    setToolTip(path);
    setCursorPosition(0);
}

QSize PathLabel::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 20, QLineEdit::minimumSizeHint().height()};
}

void PathLabel::paintEvent(QPaintEvent* event) {
    constexpr int inset = 2; // where a line edit without frame begins its text
    const QRect room = rect().adjusted(inset, 0, -inset, 0);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, room.width());
    if (hasFocus() || shown == text()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QPainter painter(this);
    style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                          QPalette::Text);
}

} // namespace quorvan
