// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ListTable.h"

#include "Quorvan/Toolkit/ListModel.h"
#include "Quorvan/Toolkit/PlainToolTip.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
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

ListTable::ListTable(ListModel* model, QWidget* parent)
    : QTableView(parent)
    , list_(model) {
    model->setParent(this);
    setModel(model);
    prototypes_.resize(static_cast<std::size_t>(model->columnCount()));
    setItemDelegate(new TextDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerPixel);
    setUpHeader();
    ListTable::fitToFont();
}

void ListTable::setUpHeader() {
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    QHeaderView* header = horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionsClickable(true);
    header->setSortIndicatorShown(false);
    connect(header, &QHeaderView::sectionClicked, this, [this](int column) { headerClicked(column); });
}

void ListTable::fitToFont() {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
}

void ListTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        fitToFont();
}

void ListTable::reloadData() {
    const QModelIndex current = currentIndex();
    list_->reload();
    const int last = list_->rowCount() - 1;
    if (current.isValid() && last >= 0)
        selectionModel()->setCurrentIndex(list_->index(std::min(current.row(), last), current.column()),
                                          QItemSelectionModel::NoUpdate);
}

void ListTable::setEmptyText(const QString& text) {
    emptyText_ = text;
    setAccessibleDescription(list_->rowCount() == 0 ? text : QString());
    viewport()->update();
}

/// Goes by ranges: asking row by row would look through all of them each time.
std::vector<int> ListTable::selectedRowIndexes() const {
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void ListTable::setSortDescriptorPrototype(int column, SortDescriptor prototype) {
    prototypes_[static_cast<std::size_t>(column)] = std::move(prototype);
}

bool ListTable::isSortedBy(const std::string& key, bool& ascending) const {
    if (!descriptor_ || descriptor_->key != key)
        return false;
    ascending = descriptor_->ascending;
    return true;
}

void ListTable::setSortDescriptor(const std::optional<SortDescriptor>& descriptor) {
    descriptor_ = descriptor;
    horizontalHeader()->setSortIndicatorShown(descriptor_.has_value());
    for (std::size_t column = 0; descriptor_ && column < prototypes_.size(); ++column)
        if (prototypes_[column] && prototypes_[column]->key == descriptor_->key)
            horizontalHeader()->setSortIndicator(
                static_cast<int>(column), descriptor_->ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void ListTable::headerClicked(int column) {
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

void ListTable::sortKeepingSelection() {
    std::unordered_set<const void*> selected;
    for (const int row : selectedRowIndexes())
        selected.insert(list_->object(row));
    onSort_();
    QItemSelection selection;
    for (int row = 0; !selected.empty() && row < list_->rowCount(); ++row)
        if (selected.contains(list_->object(row)))
            selection.select(list_->index(row, 0), list_->index(row, list_->columnCount() - 1));
    selectionModel()->select(selection, QItemSelectionModel::Select);
}

void ListTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (list_->rowCount() > 0 || emptyText_.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(24, 24, -24, -24), Qt::AlignCenter | Qt::TextWordWrap,
                     emptyText_);
}

bool ListTable::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        if (index.isValid() && !index.data(Qt::ToolTipRole).isValid()) {
            const QString tip = showsInFull(index) ? QString() : plainToolTip(index.data().toString());
            QToolTip::showText(help->globalPos(), tip, viewport(), visualRect(index));
            return true;
        }
    }
    return QTableView::viewportEvent(event);
}

bool ListTable::showsInFull(const QModelIndex& index) const {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    return itemDelegateForIndex(index)->sizeHint(option, index).width() <= visualRect(index).width();
}

} // namespace quorvan
