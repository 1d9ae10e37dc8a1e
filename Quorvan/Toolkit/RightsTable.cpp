// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/RightsTable.h"

#include "Quorvan/Toolkit/RightsCheckBoxDelegate.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace quorvan {

namespace {

/// Draws the icon of a selected row in the colour of its text; in its own it could drown.
class TextDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (option->icon.isNull() || !option->state.testFlag(QStyle::State_Selected))
            return;
        const qreal ratio = option->widget != nullptr ? option->widget->devicePixelRatioF() : 1.0;
        QPixmap shape = option->icon.pixmap(option->decorationSize, ratio);
        QPainter painter(&shape);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(shape.rect(), option->palette.color(QPalette::HighlightedText));
        painter.end();
        option->icon = QIcon();
        option->icon.addPixmap(shape, QIcon::Selected);
    }
};

} // namespace

RightsTable::RightsTable(std::vector<RightsTextColumn> textColumns, std::unique_ptr<RightsRowSource> rows,
                         QWidget* parent)
    : QTableView(parent)
    , model_(new RightsTableModel(std::move(textColumns), std::move(rows), this))
    , boxes_(new RightsCheckBoxDelegate(this)) {
    setModel(model_);
    prototypes_.resize(static_cast<std::size_t>(model_->columnCount()));
    setItemDelegate(new TextDelegate(this));
    for (int column = model_->textColumnCount(); column < model_->columnCount(); ++column)
        setItemDelegateForColumn(column, boxes_);

    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerPixel);
    viewport()->setMouseTracking(true);
    setUpHeader();
    fitToFont();
}

void RightsTable::setUpHeader() {
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(false);
    for (int column = 0; column < model_->columnCount(); ++column)
        header->setSectionResizeMode(column, model_->right(column) == nullptr ? QHeaderView::Stretch
                                                                              : QHeaderView::Fixed);
    connect(header, &QHeaderView::sectionClicked, this, [this](int column) { headerClicked(column); });
}

/// All rows have one height, so that the table never measures any of them.
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

void RightsTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitToFont();
}

void RightsTable::setSwitchedOn(bool on) {
    switchedOn_ = on;
    setSelectionMode(on ? ExtendedSelection : NoSelection);
    if (!on)
        clearSelection();
    viewport()->update();
}

void RightsTable::reloadData() {
    const QModelIndex current = currentIndex();
    model_->reload();
    const int last = model_->rowCount() - 1;
    if (current.isValid() && last >= 0)
        selectionModel()->setCurrentIndex(model_->index(std::min(current.row(), last), current.column()),
                                          QItemSelectionModel::NoUpdate);
}

void RightsTable::setEmptyText(const QString& text) {
    emptyText_ = text;
    setAccessibleDescription(model_->rowCount() == 0 ? text : QString());
    viewport()->update();
}

std::vector<int> RightsTable::selectedRowIndexes() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

QModelIndex RightsTable::box(int row, const std::string& identifier) const {
    return model_->index(row, model_->columnOf(identifier));
}

void RightsTable::setSortDescriptorPrototype(int column, SortDescriptor prototype) {
    prototypes_[static_cast<std::size_t>(column)] = std::move(prototype);
}

void RightsTable::setSortDescriptor(const std::optional<SortDescriptor>& descriptor) {
    descriptor_ = descriptor;
    horizontalHeader()->setSortIndicatorShown(descriptor_.has_value());
    for (std::size_t column = 0; descriptor_ && column < prototypes_.size(); ++column)
        if (prototypes_[column] && prototypes_[column]->key == descriptor_->key)
            horizontalHeader()->setSortIndicator(
                static_cast<int>(column), descriptor_->ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void RightsTable::headerClicked(int column) {
    const auto& prototype = prototypes_[static_cast<std::size_t>(column)];
    if (!prototype) {
        setSortDescriptor(std::optional(descriptor_)); // the header has moved its arrow all the same
        return;
    }
    const bool again = descriptor_ && descriptor_->key == prototype->key;
    setSortDescriptor(SortDescriptor{prototype->key, again ? !descriptor_->ascending : prototype->ascending});
    if (onSort_)
        sortKeepingSelection();
}

void RightsTable::sortKeepingSelection() {
    std::unordered_set<const void*> selected;
    for (const int row : selectedRowIndexes())
        selected.insert(model_->rows().object(row));
    onSort_();
    QItemSelection selection;
    for (int row = 0; !selected.empty() && row < model_->rowCount(); ++row)
        if (selected.contains(model_->rows().object(row)))
            selection.select(model_->index(row, 0), model_->index(row, model_->columnCount() - 1));
    selectionModel()->select(selection, QItemSelectionModel::Select);
}

QItemSelectionModel::SelectionFlags RightsTable::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
    const bool isMouse = event != nullptr &&
                         (event->type() == QEvent::MouseButtonPress ||
                          event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseMove);
    if (isMouse && index.flags().testFlag(Qt::ItemIsUserCheckable)) {
        const QPoint at = static_cast<const QMouseEvent*>(event)->position().toPoint();
        if (RightsCheckBoxDelegate::boxArea(visualRect(index), this).contains(at))
            return QItemSelectionModel::NoUpdate;
    }
    return QTableView::selectionCommand(index, event);
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

void RightsTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (model_->rowCount() > 0 || emptyText_.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap,
                     emptyText_);
}

/// A text that the column cuts off shows in full as a tool tip.
bool RightsTable::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        if (index.isValid() && model_->right(index.column()) == nullptr) {
            QToolTip::showText(help->globalPos(), showsInFull(index) ? QString() : index.data().toString(),
                               viewport(), visualRect(index));
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

bool RightsTable::showsInFull(const QModelIndex& index) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    return itemDelegateForIndex(index)->sizeHint(option, index).width() <= visualRect(index).width();
}

} // namespace quorvan
