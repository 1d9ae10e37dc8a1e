// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPersistentModelIndex>
#include <QRect>
#include <QStyledItemDelegate>

namespace quorvan {

/// Draws a rights check box in the middle of its cell, as the desktop's style draws one, and lets the
/// mouse and the space bar click it.
class RightsCheckBoxDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The part of a cell that takes clicks: the box and a little around it.
    static QRect boxArea(const QRect& cell, const QWidget* widget);

    bool isPressed() const { return pressed_.isValid(); }
    void forgetPress() { pressed_ = QPersistentModelIndex(); }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    QPersistentModelIndex pressed_; ///< the box under the mouse button that is down
};

} // namespace quorvan
