// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ColumnWidths.h"

#include "Quorvan/Toolkit/ViewState.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace quorvan {
namespace {

constexpr int leastTextCharacters = 24; ///< of a text column, as far as there is room
constexpr int usualTextCharacters = 72; ///< of all text columns beside boxes
constexpr int leastAmountCharacters = 12;
constexpr int leastWidth = 20; ///< of what is read from the state file
constexpr int mostWidth = 4000;

} // namespace

ColumnWidths::ColumnWidths(QTableView& table, std::vector<Kind> kinds)
    : QObject(&table)
    , table_(table)
    , kinds_(std::move(kinds)) {
    QHeaderView* header = table.horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setResizeContentsPrecision(0); // only the rows in view: there may be very many
    connect(header, &QHeaderView::sectionResized, this,
            [this](int column, int /*before*/, int width) { resized(column, width); });
}

QString ColumnWidths::key(int column) const {
    return QStringLiteral("columns/%1/%2").arg(table_.objectName()).arg(column);
}

void ColumnWidths::takeUsersWidths() {
    if (std::exchange(hasTakenUsers_, true))
        return;
    const ViewState state;
    for (int column = 0; column < static_cast<int>(kinds_.size()); ++column) {
        const int width = state.value(key(column)).toInt();
        if (width < leastWidth || width > mostWidth)
            continue;
        users_.insert(column);
        table_.setColumnWidth(column, width);
    }
}

/// Only what is pulled with the mouse is the user's own doing.
void ColumnWidths::resized(int column, int width) {
    if (isFitting_ || QGuiApplication::mouseButtons() == Qt::NoButton || table_.objectName().isEmpty())
        return;
    users_.insert(column);
    ViewState().setValue(key(column), width);
}

int ColumnWidths::need(int column) {
    const Kind kind = kinds_[static_cast<std::size_t>(column)];
    if (kind == Kind::box)
        return boxWidth_;
    needs_.resize(kinds_.size());
    int& most = needs_[static_cast<std::size_t>(column)];
    const int character = table_.fontMetrics().averageCharWidth();
    const int gap = kind == Kind::text ? character : 0; // to the text of the next column
    // A table shows how wide a column would like to be to its base class alone.
    most = std::max({most, static_cast<const QAbstractItemView&>(table_).sizeHintForColumn(column) + gap,
                     table_.horizontalHeader()->sectionSizeHint(column)});
    return std::max(most, character * (kind == Kind::text ? leastTextCharacters : leastAmountCharacters));
}

int ColumnWidths::roomForTexts(int boxWidth) {
    int room = table_.viewport()->width();
    for (int column = 0; column < static_cast<int>(kinds_.size()); ++column) {
        const Kind kind = kinds_[static_cast<std::size_t>(column)];
        if (users_.contains(column))
            room -= table_.columnWidth(column);
        else if (kind != Kind::text)
            room -= kind == Kind::box ? boxWidth : need(column);
    }
    return std::max(room, 0);
}

int ColumnWidths::needOfTexts() {
    int sum = 0;
    for (int column = 0; column < static_cast<int>(kinds_.size()); ++column)
        if (kinds_[static_cast<std::size_t>(column)] == Kind::text && !users_.contains(column))
            sum += need(column);
    return sum;
}

int ColumnWidths::lastText() const {
    int last = -1;
    for (int column = 0; column < static_cast<int>(kinds_.size()); ++column)
        if (kinds_[static_cast<std::size_t>(column)] == Kind::text && !users_.contains(column))
            last = column;
    return last;
}

void ColumnWidths::fit() {
    takeUsersWidths();
    const QScopedValueRollback fitting(isFitting_, true);
    std::vector<std::pair<int, int>> texts; // what each needs, and which it is
    for (int column = 0; column < static_cast<int>(kinds_.size()); ++column) {
        if (users_.contains(column))
            continue;
        if (kinds_[static_cast<std::size_t>(column)] == Kind::text)
            texts.emplace_back(need(column), column);
        else
            table_.setColumnWidth(column, need(column));
    }
    // Those that need less than an equal share get what they need, and the others share the rest. The
    // boxes of a window of usual width stand at its edge, those of tables below each other in one line.
    int room = roomForTexts(boxWidth_);
    int spare = room - needOfTexts();
    if (boxWidth_ != 0)
        spare =
            std::min(spare, usualTextCharacters * table_.fontMetrics().averageCharWidth() - needOfTexts());
    std::sort(texts.begin(), texts.end());
    for (std::size_t at = 0; at < texts.size(); ++at) {
        const int share = room / static_cast<int>(texts.size() - at);
        const bool isLast = texts[at].second == lastText();
        const int width = std::min(texts[at].first, share) + (isLast ? std::max(spare, 0) : 0);
        table_.setColumnWidth(texts[at].second, width);
        room -= std::min(texts[at].first, share);
    }
}

} // namespace quorvan
