// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>

namespace quorvan {

/// A colour between two others; `share` 1 is `to`.
QColor mixedColor(const QColor& from, const QColor& to, float share);

/// The palette for a box that can be clicked: styles outline one with a darkened window colour, which is
/// lost on most tables and on dark windows.
QPalette boxPalette(QPalette palette);

/// Draws a box that is there to be read, the same in every style: styles grey out its tick until it cannot
/// be told from none, or colour it like one that can be clicked. `state` as of QCheckBox.
void paintReadOnlyBox(QPainter& painter, const QRect& box, const QPalette& palette, Qt::CheckState state);

/// A check box whose outline can be seen in every palette, and which is legible while it is disabled.
class CheckBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quorvan
