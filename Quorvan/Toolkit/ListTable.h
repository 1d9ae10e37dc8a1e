// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ColumnWidths.h"
#include "Quorvan/Toolkit/ListModel.h"

#include <QTableView>

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

class QMenu;
class QPushButton;

namespace quorvan {

struct SortDescriptor {
    std::string key;
    bool ascending;
};

/// A table of rows that the user selects and sorts: rows of one height, a text when there are none, and a
/// tool tip for each text that its column cuts off. Tab leaves it. The selected rows, or all when there are
/// none, can be copied and exported.
class ListTable : public QTableView {
public:
    /// Takes the model. The columns hold texts unless `kinds` says otherwise.
    explicit ListTable(ListModel* model, QWidget* parent = nullptr,
                       std::vector<ColumnWidths::Kind> kinds = {});

    /// Shows the rows as they are now. The keyboard and the selection stay with what the rows are about;
    /// where that is gone, they are on nothing. The list does not scroll.
    void reloadData();
    /// Selects these rows alone, and brings keyboard and eye to the last of them.
    void showRows(int first, int count = 1);
    /// Marks the rows whose changes wait to be applied.
    void setPending(std::unordered_map<std::string, ListModel::Pending> pending) {
        list_->setPending(std::move(pending));
        fitColumns(); // a marked name takes more room
    }
    /// Whether one of the rows is about that.
    bool lists(const std::string& identity) const;
    /// Lets the Delete key and the context menu click the button that removes rows.
    void setRemoveButton(QPushButton* button) { removeButton_ = button; }
    /// Writes the rows into a file; tells the user when that fails, and then leaves what was there.
    void exportRows(const QString& file) const;
    /// Shown in the middle of a table without rows.
    void setEmptyText(const QString& text);
    const QString& emptyText() const { return emptyText_; }

    std::vector<int> selectedRowIndexes() const; ///< ascending

    // Sorting

    /// Lets a click on a column's header sort by the prototype's key, in its direction first.
    void setSortDescriptorPrototype(int column, SortDescriptor prototype);
    const std::optional<SortDescriptor>& sortDescriptor() const { return descriptor_; }
    /// Whether the user sorts by `key`; in which direction, is then stored in `ascending`.
    bool isSortedBy(const std::string& key, bool& ascending) const;
    /// Called when the user has changed the descriptor; has to sort the rows and reload.
    void setSortHandler(std::function<void()> handler) { onSort_ = std::move(handler); }
    /// Says in which order the rows stand, when they no longer stand in the one that the user chose.
    void setSortDescriptor(const std::optional<SortDescriptor>& descriptor);

protected:
    /// Sets the height that all rows have, so that the table never measures any of them.
    virtual void fitToFont();
    /// Adds what can be done with the selected rows to their menu.
    virtual void addRowActions(QMenu& /*menu*/) {}
    /// Gives the columns their widths, in the room that there is.
    virtual void fitColumns() { widths_->fit(); }
    ColumnWidths& columnWidths() { return *widths_; }
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void setUpHeader();
    void headerClicked(int column);
    void rememberPlace();
    void copyRows() const;
    void exportRows();
    bool showsInFull(const QModelIndex& index) const;

    ListModel* list_;
    ColumnWidths* widths_;
    QPushButton* removeButton_ = nullptr;
    std::optional<SortDescriptor> descriptor_;
    std::vector<std::optional<SortDescriptor>> prototypes_;
    std::function<void()> onSort_;
    QString emptyText_;

    // What the keyboard is on and what is selected; the rows may have changed before the table hears of it.
    std::string current_;
    std::vector<std::string> selected_;
};

} // namespace quorvan
