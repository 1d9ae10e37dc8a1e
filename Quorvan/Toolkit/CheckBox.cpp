// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/CheckBox.h"

#include "Quorvan/Toolkit/Contrast.h"

#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace quorvan {

namespace {

constexpr double outlineContrast = 1.1 * visibleContrast; ///< a soft edge takes some of it away

} // namespace

void paintBox(QPainter& painter, const QRect& area, const QPalette& palette, Qt::CheckState state,
              BoxUse use) {
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const bool isToRead = use == BoxUse::toRead;
    const QColor fill = mixedColor(base, text, isToRead ? 0.09F : use == BoxUse::pressed ? 0.25F : 0.0F);
    const QColor edgeColor = use == BoxUse::hovered ? palette.color(QPalette::Active, QPalette::Highlight)
                                                    : mixedColor(base, text, isToRead ? 0.55F : 0.65F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(withContrast(edgeColor, fill, outlineContrast));
    painter.setBrush(fill);
    constexpr qreal mostEdge = 13; // some styles count the empty space around a box in
    const qreal edge = std::min<qreal>({area.width() - 1.0, area.height() - 1.0, mostEdge});
    QRectF outline(0, 0, edge, edge);
    outline.moveCenter(QRectF(area).center());
    painter.drawRoundedRect(outline, 2, 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(withContrast(mixedColor(base, text, isToRead ? 0.8F : 1.0F), fill, legibleContrast),
                        outline.width() / 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&outline](qreal x, qreal y) {
        return outline.topLeft() + QPointF(x * outline.width(), y * outline.height());
    };
    if (state == Qt::Checked) {
        QPainterPath tick(at(0.25, 0.5));
        tick.lineTo(at(0.44, 0.7));
        tick.lineTo(at(0.76, 0.3));
        painter.drawPath(tick);
    } else if (state == Qt::PartiallyChecked) {
        painter.drawLine(at(0.3, 0.5), at(0.7, 0.5));
    }
    painter.restore();
}

void CheckBox::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect box = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
    const BoxUse use = !isEnabled()   ? BoxUse::toRead
                       : isDown()     ? BoxUse::pressed
                       : underMouse() ? BoxUse::hovered
                                      : BoxUse::toClick;
    paintBox(painter, box, palette(), checkState(), use);
    const QRect focusArea = style()->subElementRect(QStyle::SE_CheckBoxFocusRect, &option, this);
    option.rect = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    const QColor window = palette().color(QPalette::Active, QPalette::Window);
    const QColor windowText = palette().color(QPalette::Active, QPalette::WindowText);
    const QColor quiet = withContrast(mixedColor(window, windowText, 0.75F), window, legibleContrast);
    option.palette.setColor(QPalette::Disabled, QPalette::WindowText, quiet);
    painter.drawControl(QStyle::CE_CheckBoxLabel, option);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = focusArea;
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

} // namespace quorvan
