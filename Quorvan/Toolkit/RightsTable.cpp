// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/RightsTable.h"

#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/RightsCheckBoxDelegate.h"
#include "Quorvan/Toolkit/TextDelegate.h"

#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace quorvan {

namespace {

std::vector<ColumnWidths::Kind> kindsOf(const std::vector<RightsTextColumn>& textColumns) {
    std::vector<ColumnWidths::Kind> kinds(textColumns.size(), ColumnWidths::Kind::text);
    kinds.insert(kinds.end(), rightsColumns.size(), ColumnWidths::Kind::box);
    return kinds;
}

} // namespace

RightsTable::RightsTable(const std::vector<RightsTextColumn>& textColumns,
                         std::unique_ptr<RightsRowSource> rows, QWidget* parent)
    : ListTable(new RightsTableModel(textColumns, std::move(rows)), parent, kindsOf(textColumns))
    , model_(static_cast<RightsTableModel*>(model()))
    , boxes_(new RightsCheckBoxDelegate(this)) {
    for (int column = 0; column < model_->columnCount(); ++column)
        if (column >= model_->textColumnCount())
            setItemDelegateForColumn(column, boxes_);
        else if (model_->textColumn(column).elide != Qt::ElideRight)
            setItemDelegateForColumn(column, new TextDelegate(this, model_->textColumn(column).elide));
    viewport()->setMouseTracking(true);
    RightsTable::fitToFont();
}

void RightsTable::fitToFont() {
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QModelIndex none;
    const QSize box = boxes_->sizeHint(option, none);
    verticalHeader()->setDefaultSectionSize(std::max(box.height(), fontMetrics().height() + 8));
    letterWidth_ = std::max(box.width(), fontMetrics().horizontalAdvance(QLatin1Char('W')) + 20);
    wordWidth_ = letterWidth_;
    for (int column = model_->textColumnCount(); column < model_->columnCount(); ++column)
        wordWidth_ = std::max(wordWidth_, fontMetrics().horizontalAdvance(model_->rightName(column)) + 20);
    horizontalHeader()->setMinimumSectionSize(letterWidth_);
}

/// Above the boxes stand words where the names leave room for them, and letters where they do not.
void RightsTable::fitColumns() {
    ColumnWidths& widths = columnWidths();
    const bool hasRoom = widths.roomForTexts(wordWidth_) >= widths.needOfTexts();
    model_->showWords(hasRoom);
    widths.setBoxWidth(hasRoom ? wordWidth_ : letterWidth_);
    widths.fit();
}

void RightsTable::clickBoxes(std::uint16_t rights, std::uint16_t wanted) {
    for (const int row : selectedRowIndexes())
        for (int column = model_->textColumnCount(); column < model_->columnCount(); ++column) {
            const std::uint16_t bit = model_->right(column)->bit;
            const QModelIndex box = model_->index(row, column);
            const auto state = (wanted & bit) != 0 ? Qt::Checked : Qt::Unchecked;
            if ((rights & bit) != 0 && box.data(Qt::CheckStateRole).toInt() != state)
                model_->setData(box, state, Qt::CheckStateRole); // which leaves alone what may not be clicked
        }
}

void RightsTable::addRowActions(QMenu& menu) {
    if (!switchedOn_ || !model_->whyGrey)
        return;
    menu.addSeparator();
    constexpr std::uint16_t all = 0xFFFF;
    QMenu* grant = menu.addMenu(L("Grant_title"));
    QMenu* takeAway = menu.addMenu(L("Take_Away_title"));
    QMenu* preset = menu.addMenu(L("Set_Rights_title"));
    for (int column = model_->textColumnCount(); column < model_->columnCount(); ++column) {
        const std::uint16_t bit = model_->right(column)->bit;
        for (const bool on : {true, false})
            setGrey(*(on ? grant : takeAway)
                         ->addAction(model_->rightName(column), this,
                                     [this, bit, on] { clickBoxes(bit, on ? all : 0); }),
                    model_->whyGrey(bit));
    }
    using Rights = KelpRights;
    constexpr std::uint16_t read = Rights::read | Rights::fileScan;
    constexpr std::uint16_t write = read | Rights::write | Rights::erase | Rights::create | Rights::modify;
    constexpr std::uint16_t rest = write | Rights::accessControl;
    for (const auto& [title, rights] : {std::pair{"Preset_Read_title", read},
                                        {"Preset_Write_title", write},
                                        {"Preset_All_title", rest},
                                        {"Preset_None_title", std::uint16_t{0}}})
        preset->addAction(L(title), this, [this, wanted = rights] { clickBoxes(all, wanted); });
    for (QMenu* each : {grant, takeAway, preset})
        setGrey(*each->menuAction(), selectedRowIndexes().empty() ? "Why_Nothing_Selected_Label" : nullptr);
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
