// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/RightsTableModel.h"

#include <QTableView>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvan {

class RightsCheckBoxDelegate;

struct SortDescriptor {
    std::string key;
    bool ascending;
};

/// The table of every rights view: text columns, then a check box for each of the eight rights.
///
/// The keyboard: arrows move, space clicks the box they stand on, Tab leaves the table. Clicking a
/// box with the mouse leaves the selection alone.
class RightsTable : public QTableView {
public:
    RightsTable(std::vector<RightsTextColumn> textColumns, std::unique_ptr<RightsRowSource> rows,
                QWidget* parent = nullptr);

    void setEnablingRule(RightsTableModel::EnablingRule rule) { model_->isEnabled = std::move(rule); }
    void setClickHandler(RightsTableModel::ClickHandler handler) { model_->onClick = std::move(handler); }

    /// A table that is switched off takes neither ticks nor a selection, but unlike a disabled widget it
    /// scrolls, can be read with the keyboard and looks legible.
    void setSwitchedOn(bool on);
    bool isSwitchedOn() const { return switchedOn_; }

    /// Shows the rows as they are now. The keyboard stays where it was, nothing is selected.
    void reloadData();
    void setColumnHeader(int textColumn, const QString& header) { model_->setHeader(textColumn, header); }
    /// Shown in the middle of a table without rows.
    void setEmptyText(const QString& text);
    const QString& emptyText() const { return emptyText_; }

    std::vector<int> selectedRowIndexes() const; ///< ascending
    QModelIndex box(int row, const std::string& identifier) const;

    // Sorting

    /// Lets a click on a column's header sort by the prototype's key, in its direction first.
    void setSortDescriptorPrototype(int column, SortDescriptor prototype);
    const std::optional<SortDescriptor>& sortDescriptor() const { return descriptor_; }
    /// Called when the user has changed the descriptor; has to sort the rows and reload.
    void setSortHandler(std::function<void()> handler) { onSort_ = std::move(handler); }
    /// Says in which order the rows stand, when they no longer stand in the one that the user chose.
    void setSortDescriptor(const std::optional<SortDescriptor>& descriptor);

protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event = nullptr) const override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    void setUpHeader();
    void fitToFont();
    void headerClicked(int column);
    void sortKeepingSelection();
    bool showsInFull(const QModelIndex& index) const;

    RightsTableModel* model_;
    RightsCheckBoxDelegate* boxes_;
    std::optional<SortDescriptor> descriptor_;
    std::vector<std::optional<SortDescriptor>> prototypes_;
    std::function<void()> onSort_;
    QString emptyText_;
    bool switchedOn_ = true;
};

} // namespace quorvan
