// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/CheckBox.h"

#include <QPainterPath>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace quorvan {

QColor mixedColor(const QColor& from, const QColor& to, float share) {
    const auto mix = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()));
}

QPalette boxPalette(QPalette palette) {
    palette.setCurrentColorGroup(QPalette::Active);
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    // Darkened as usual, by 140, either is three times as light or as dark as the base.
    palette.setColor(QPalette::Window, mixedColor(base, text, base.lightness() < 128 ? 0.75F : 0.27F));
    return palette;
}

void paintReadOnlyBox(QPainter& painter, const QRect& box, const QPalette& palette, Qt::CheckState state) {
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(mixedColor(base, text, 0.55F));
    painter.setBrush(mixedColor(base, text, 0.09F));
    constexpr qreal mostEdge = 13; // some styles count the empty space around a box in
    const qreal edge = std::min<qreal>({box.width() - 1.0, box.height() - 1.0, mostEdge});
    QRectF outline(0, 0, edge, edge);
    outline.moveCenter(QRectF(box).center());
    painter.drawRoundedRect(outline, 2, 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(mixedColor(base, text, 0.8F), outline.width() / 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
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
    if (isEnabled()) {
        option.palette = boxPalette(option.palette);
        painter.drawControl(QStyle::CE_CheckBox, option);
        return;
    }
    const QRect box = style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this);
    paintReadOnlyBox(painter, box, palette(), checkState());
    option.rect = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
    const QColor quiet = mixedColor(palette().color(QPalette::Active, QPalette::Window),
                                    palette().color(QPalette::Active, QPalette::WindowText), 0.75F);
    option.palette.setColor(QPalette::Disabled, QPalette::WindowText, quiet);
    painter.drawControl(QStyle::CE_CheckBoxLabel, option);
}

} // namespace quorvan
