// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/RightsCheckBoxDelegate.h"

#include "Quorvan/Toolkit/CheckBox.h"
#include "Quorvan/Toolkit/RightsTableModel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

namespace quorvan {

namespace {

constexpr int margin = 4; ///< around a box, in device-independent pixels

const QStyle* styleOf(const QWidget* widget) {
    return widget != nullptr ? widget->style() : QApplication::style();
}

QRect boxRect(const QRect& cell, const QWidget* widget) {
    const QStyle* style = styleOf(widget);
    const QSize size(style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, widget),
                     style->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, widget));
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, cell);
}

/// A bar below the box: what is granted here comes no further.
void paintStop(QPainter& painter, const QRect& box, const QStyleOptionViewItem& option) {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QRect bar(box.left() - margin / 2, box.bottom() + 2, box.width() + margin, 3);
    painter.fillRect(bar, option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text));
}

void paintFocusRing(QPainter* painter, const QRect& area, const QStyleOptionViewItem& option) {
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(
        QPen(option.palette.color(selected ? QPalette::HighlightedText : QPalette::Highlight), 1.5));
    painter->drawRoundedRect(QRectF(area).adjusted(1, 1, -1, -1), 3, 3);
    painter->restore();
}

} // namespace

QRect RightsCheckBoxDelegate::boxArea(const QRect& cell, const QWidget* widget) {
    return boxRect(cell, widget).adjusted(-margin, -margin, margin, margin).intersected(cell);
}

void RightsCheckBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const {
    const QStyle* style = styleOf(option.widget);
    QStyleOptionViewItem cell = option;
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, option.widget);

    const auto ticked = static_cast<Qt::CheckState>(index.data(Qt::CheckStateRole).toInt());
    const QRect box = boxRect(option.rect, option.widget);
    const BoxUse use = !index.flags().testFlag(Qt::ItemIsUserCheckable) ? BoxUse::toRead
                       : pressed_ == index                              ? BoxUse::pressed
                       : option.state.testFlag(QStyle::State_MouseOver) ? BoxUse::hovered
                                                                        : BoxUse::toClick;
    paintBox(*painter, box, option.palette, ticked, use);
    if (index.data(RightsTableModel::stoppedRole).toBool())
        paintStop(*painter, box, option);
    if (option.state.testFlag(QStyle::State_HasFocus))
        paintFocusRing(painter, boxArea(option.rect, option.widget), option);
}

QSize RightsCheckBoxDelegate::sizeHint(const QStyleOptionViewItem& option,
                                       const QModelIndex& /*index*/) const {
    const QSize box = boxRect({}, option.widget).size();
    return {box.width() + 4 * margin, box.height() + 2 * margin};
}

bool RightsCheckBoxDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                         const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (!index.flags().testFlag(Qt::ItemIsUserCheckable))
        return false;
    const auto click = [&] {
        const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    };
    const auto isOnBox = [&] {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        return mouse->button() == Qt::LeftButton &&
               boxArea(option.rect, option.widget).contains(mouse->position().toPoint());
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        pressed_ = isOnBox() ? QPersistentModelIndex(index) : QPersistentModelIndex();
        return pressed_.isValid();
    case QEvent::MouseButtonRelease: {
        const bool clicked = pressed_ == index && isOnBox();
        pressed_ = QPersistentModelIndex();
        return clicked && click();
    }
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        return (key == Qt::Key_Space || key == Qt::Key_Select) && click();
    }
    default:
        return false;
    }
}

} // namespace quorvan
