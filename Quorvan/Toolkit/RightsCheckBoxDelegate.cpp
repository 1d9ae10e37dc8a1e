// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/RightsCheckBoxDelegate.h"

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

} // namespace

QRect RightsCheckBoxDelegate::boxArea(const QRect& cell, const QWidget* widget) {
    return boxRect(cell, widget).adjusted(-margin, -margin, margin, margin).intersected(cell);
}

void RightsCheckBoxDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const {
    const QStyle* style = styleOf(option.widget);
    QStyleOptionViewItem cell = option;
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, option.widget);

    QStyleOptionButton box;
    box.rect = boxRect(option.rect, option.widget);
    box.palette = option.palette;
    box.direction = option.direction;
    box.fontMetrics = option.fontMetrics;
    const bool enabled = index.flags().testFlag(Qt::ItemIsUserCheckable);
    const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    box.state = option.state & (QStyle::State_Active | QStyle::State_HasFocus);
    box.state.setFlag(QStyle::State_Enabled, enabled);
    box.state.setFlag(QStyle::State_MouseOver, enabled && option.state.testFlag(QStyle::State_MouseOver));
    box.state.setFlag(QStyle::State_Sunken, pressed_ == index);
    box.state.setFlag(QStyle::State_On, ticked);
    box.state.setFlag(QStyle::State_Off, !ticked);
    style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, option.widget);

    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(box);
        focus.rect = boxArea(option.rect, option.widget);
        focus.state |= QStyle::State_KeyboardFocusChange;
        focus.backgroundColor = option.palette.color(QPalette::Base);
        style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
    }
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
