// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/RightsTable.h"

#include "Quorvan/Toolkit/RightsCheckBoxDelegate.h"
#include "Quorvan/Toolkit/TextDelegate.h"

#include <QHeaderView>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace quorvan {

RightsTable::RightsTable(std::vector<RightsTextColumn> textColumns, std::unique_ptr<RightsRowSource> rows,
                         QWidget* parent)
    : ListTable(new RightsTableModel(std::move(textColumns), std::move(rows)), parent)
    , model_(static_cast<RightsTableModel*>(model()))
    , boxes_(new RightsCheckBoxDelegate(this)) {
    const int last = model_->textColumnCount() - 1;
    for (int column = 0; column <= last; ++column) {
        horizontalHeader()->setSectionResizeMode(column, column == last ? QHeaderView::Stretch
                                                                        : QHeaderView::Interactive);
        if (model_->textColumn(column).elide == Qt::ElideLeft)
            setItemDelegateForColumn(column, new TextDelegate(this, Qt::ElideLeft));
    }
    for (int column = last + 1; column < model_->columnCount(); ++column) {
        horizontalHeader()->setSectionResizeMode(column, QHeaderView::Fixed);
        setItemDelegateForColumn(column, boxes_);
    }
    viewport()->setMouseTracking(true);
    RightsTable::fitToFont();
}

void RightsTable::fitToFont() {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QModelIndex none;
    const QSize box = boxes_->sizeHint(option, none);
    verticalHeader()->setDefaultSectionSize(std::max(box.height(), fontMetrics().height() + 8));
    const int width = std::max(box.width(), fontMetrics().horizontalAdvance(QLatin1Char('W')) + 20);
    horizontalHeader()->setMinimumSectionSize(width);
    for (int column = model_->textColumnCount(); column < model_->columnCount(); ++column)
        horizontalHeader()->resizeSection(column, width);
}

void RightsTable::resizeEvent(QResizeEvent* event) {
    ListTable::resizeEvent(event);
    shareTextWidth();
}

/// Names get what they usually need and paths the rest, which is never the smaller part.
void RightsTable::shareTextWidth() {
    const int texts = model_->textColumnCount();
    const int boxes = model_->columnCount() - texts;
    const int room = viewport()->width() - boxes * columnWidth(model_->columnCount() - 1);
    for (int column = 0; column < texts - 1; ++column)
        setColumnWidth(column, std::min(28 * fontMetrics().averageCharWidth(), room * 2 / 5));
}

void RightsTable::setSwitchedOn(bool on) {
    switchedOn_ = on;
    setSelectionMode(on ? ExtendedSelection : NoSelection);
    if (!on)
        clearSelection();
    viewport()->update();
}

QModelIndex RightsTable::box(int row, const std::string& identifier) const {
    return model_->index(row, model_->columnOf(identifier));
}

QItemSelectionModel::SelectionFlags RightsTable::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
    const bool isMouse = event != nullptr &&
                         (event->type() == QEvent::MouseButtonPress ||
                          event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseMove);
    if (isMouse) {
        if (isOnBox(index, *static_cast<const QMouseEvent*>(event)))
            return QItemSelectionModel::NoUpdate;
    }
    return QTableView::selectionCommand(index, event);
}

bool RightsTable::isOnBox(const QModelIndex& index, const QMouseEvent& event) const {
    return index.flags().testFlag(Qt::ItemIsUserCheckable) &&
           RightsCheckBoxDelegate::boxArea(visualRect(index), this).contains(event.position().toPoint());
}

/// The keyboard goes on where the mouse was: a box takes the press for itself, and the view would not move.
void RightsTable::mousePressEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && isOnBox(index, *event))
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    QTableView::mousePressEvent(event);
}

/// A drag that starts on a box is no selection.
void RightsTable::mouseMoveEvent(QMouseEvent* event) {
    if (!boxes_->isPressed())
        QTableView::mouseMoveEvent(event);
}

/// A button that is let go beside its box clicks nothing, and no box hears of it.
void RightsTable::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    boxes_->forgetPress();
    viewport()->update();
}

} // namespace quorvan
