// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ListTable.h"

#include "Quorvan/Toolkit/Contrast.h"
#include "Quorvan/Toolkit/Export.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/ListModel.h"
#include "Quorvan/Toolkit/PlainToolTip.h"
#include "Quorvan/Toolkit/TableText.h"
#include "Quorvan/Toolkit/TextDelegate.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace quorvan {

ListTable::ListTable(ListModel* model, QWidget* parent, std::vector<ColumnWidths::Kind> kinds)
    : QTableView(parent)
    , list_(model) {
    model->setParent(this);
    setModel(model);
    kinds.resize(static_cast<std::size_t>(model->columnCount()), ColumnWidths::Kind::text);
    widths_ = new ColumnWidths(*this, std::move(kinds));
    // Longer names may come into view, and then need more room.
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { fitColumns(); });
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
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { rememberPlace(); });
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { rememberPlace(); });
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
    if (event->type() != QEvent::FontChange && event->type() != QEvent::StyleChange)
        return;
    fitToFont();
    widths_->forgetRows();
    fitColumns();
}

void ListTable::resizeEvent(QResizeEvent* event) {
    const QRect current = visualRect(currentIndex());
    const bool wasInView = QRect(QPoint(), event->oldSize()).intersects(current);
    QTableView::resizeEvent(event);
    fitColumns();
    if (wasInView) // a line that appears below takes room from the table
        scrollTo(currentIndex());
}

/// Only a user's own step counts: a reset, too, moves the keyboard, but not to where anybody wanted it.
void ListTable::rememberPlace() {
    const QModelIndex current = currentIndex();
    current_ = current.isValid() ? list_->identityOf(current.row()) : "";
    selected_.clear();
    for (const int row : selectedRowIndexes())
        selected_.push_back(list_->identityOf(row));
}

void ListTable::reloadData() {
    const QModelIndex before = currentIndex();
    const bool wasInView = before.isValid() && viewport()->rect().intersects(visualRect(before));
    const int scrolled = verticalScrollBar()->value();
    const std::string current = current_;
    std::unordered_map<std::string, int> selected; // how often each: identities may repeat
    for (const std::string& identity : selected_)
        ++selected[identity];

    const QSignalBlocker quiet(selectionModel());
    list_->reload();
    int currentRow = -1;
    QItemSelection selection;
    for (int row = 0; row < list_->rowCount() && !(current.empty() && selected.empty()); ++row) {
        const std::string identity = list_->identity(row);
        if (identity.empty())
            continue;
        if (currentRow < 0 && identity == current)
            currentRow = row;
        const auto found = selected.find(identity);
        if (found != selected.end() && found->second-- > 0)
            selection.select(list_->index(row, 0), list_->index(row, list_->columnCount() - 1));
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (currentRow >= 0)
        selectionModel()->setCurrentIndex(list_->index(currentRow, before.isValid() ? before.column() : 0),
                                          QItemSelectionModel::NoUpdate);
    rememberPlace();
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(scrolled);
    if (currentRow >= 0 && wasInView)
        scrollTo(currentIndex());
    fitColumns();
    viewport()->update();
}

void ListTable::showRows(int first, int count) {
    const QModelIndex last = list_->index(first + count - 1, 0);
    selectionModel()->setCurrentIndex(last, QItemSelectionModel::NoUpdate);
    if (selectionMode() != NoSelection)
        selectionModel()->select({list_->index(first, 0), last},
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(list_->index(first, 0));
    scrollTo(last);
}

bool ListTable::lists(const std::string& identity) const {
    for (int row = 0; row < list_->rowCount(); ++row)
        if (list_->identity(row) == identity)
            return true;
    return false;
}

/// Entering the table puts the keyboard on nothing, so that the first step down leads to the first row.
void ListTable::focusInEvent(QFocusEvent* event) {
    const bool wasOnNothing = !currentIndex().isValid();
    QTableView::focusInEvent(event);
    if (wasOnNothing)
        selectionModel()->setCurrentIndex({}, QItemSelectionModel::NoUpdate);
}

void ListTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        copyRows();
    else if (event->key() == Qt::Key_Delete && removeButton_ != nullptr)
        removeButton_->click(); // which does nothing while it is grey
    else
        QTableView::keyPressEvent(event);
}

void ListTable::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu(this);
    menu.addAction(L("Copy_title"), QKeySequence(QKeySequence::Copy), this, [this] { copyRows(); });
    menu.addAction(L("Export_title"), this, [this] { exportRows(); });
    addRowActions(menu);
    if (removeButton_ != nullptr) {
        menu.addSeparator();
        QAction* remove = menu.addAction(removeButton_->text(), QKeySequence(Qt::Key_Delete), removeButton_,
                                         &QPushButton::click);
        remove->setEnabled(removeButton_->isEnabled());
        remove->setToolTip(removeButton_->toolTip()); // which says why it is grey
    }
    menu.addActions(actions());
    showGreyReasons(menu);
    menu.exec(event->globalPos());
}

void ListTable::copyRows() const {
    QGuiApplication::clipboard()->setText(asTabSeparatedText(tableCells(*list_, selectedRowIndexes())));
}

void ListTable::exportRows() {
    const QString file = chooseExport(window(), "Export_title", "Export_Filter_Label", QStringLiteral("csv"));
    if (!file.isEmpty())
        exportRows(file);
}

void ListTable::exportRows(const QString& file) const {
    exportTo(file, asCsv(tableCells(*list_, selectedRowIndexes())));
}

/// Home and End move in the list, not in its row.
QModelIndex ListTable::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const int column = std::max(currentIndex().column(), 0);
    if (list_->rowCount() > 0 && (action == MoveHome || action == MoveEnd))
        return list_->index(action == MoveHome ? 0 : list_->rowCount() - 1, column);
    return QTableView::moveCursor(action, modifiers);
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
        onSort_();
}

void ListTable::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (list_->rowCount() > 0 || emptyText_.isEmpty())
        return;
    QPainter painter(viewport());
    // Quieter than the rows, but legible in every palette; a placeholder's own colour often is not.
    const QColor base = palette().color(QPalette::Base);
    painter.setPen(
        withContrast(mixedColor(base, palette().color(QPalette::Text), 0.67F), base, legibleContrast));
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
