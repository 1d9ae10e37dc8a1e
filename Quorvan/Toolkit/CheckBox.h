// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCheckBox>

namespace quorvan {

/// What a box is there for, as far as it shows.
enum class BoxUse { toRead, toClick, hovered, pressed };

/// Draws a box, the same in every style: some outline one so faintly that it is lost on the table, and grey
/// out the tick of one that is only there to be read until it cannot be told from none, or colour it like
/// one that can be clicked. `state` as of QCheckBox.
void paintBox(QPainter& painter, const QRect& area, const QPalette& palette, Qt::CheckState state,
              BoxUse use);

/// A check box whose outline can be seen in every palette, and which is legible while it is disabled.
class CheckBox : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quorvan
