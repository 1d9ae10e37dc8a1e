// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ListTable.h"
#include "Quorvan/Toolkit/RightsTableModel.h"

#include <memory>
#include <string>
#include <vector>

namespace quorvan {

class RightsCheckBoxDelegate;

/// The table of every rights view: text columns, then a check box for each of the eight rights.
///
/// The keyboard: arrows move, space clicks the box they stand on, Tab leaves the table. Clicking a
/// box with the mouse leaves the selection alone.
class RightsTable : public ListTable {
public:
    RightsTable(const std::vector<RightsTextColumn>& textColumns, std::unique_ptr<RightsRowSource> rows,
                QWidget* parent = nullptr);

    void setGreyRule(RightsTableModel::GreyRule rule) { model_->whyGrey = std::move(rule); }
    void setClickHandler(RightsTableModel::ClickHandler handler) { model_->onClick = std::move(handler); }

    /// A table that is switched off takes neither ticks nor a selection, but unlike a disabled widget it
    /// scrolls, can be read with the keyboard and looks legible.
    void setSwitchedOn(bool on);
    bool isSwitchedOn() const { return switchedOn_; }

    void setColumnHeader(int textColumn, const QString& header) { model_->setHeader(textColumn, header); }
    void setStopped(std::unordered_map<std::string, StoppedRights> stopped) {
        model_->setStopped(std::move(stopped));
    }
    QModelIndex box(int row, const std::string& identifier) const;

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void fitToFont() override;
    void fitColumns() override;
    void addRowActions(QMenu& menu) override;

private:
    /// Clicks the boxes of the selected rows that stand otherwise, one after the other: those of `rights`
    /// alone, which are then on as in `wanted`.
    void clickBoxes(std::uint16_t rights, std::uint16_t wanted);
    bool isOnBox(const QModelIndex& index, const QMouseEvent& event) const;

    RightsTableModel* model_;
    RightsCheckBoxDelegate* boxes_;
    int letterWidth_ = 0; ///< of a column of boxes below a letter, and below the longest word
    int wordWidth_ = 0;
    bool switchedOn_ = true;
};

} // namespace quorvan
