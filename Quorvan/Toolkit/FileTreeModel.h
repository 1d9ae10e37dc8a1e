// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/FileItem.h"

#include <QAbstractItemModel>

#include <optional>
#include <vector>

namespace quorvan {

/// The tree below one item. A folder is listed each time it is opened, and forgotten when it is closed.
class FileTreeModel : public QAbstractItemModel {
public:
    explicit FileTreeModel(const FileItem& root, QObject* parent = nullptr);

    const FileItem& item(const QModelIndex& index) const { return nodeOf(index).item; }
    /// Whether there is anything in an item. Closed folders are looked into the first time they are asked
    /// about, which is when they come into view: a folder of many folders must not cost a listing of each.
    bool isExpandable(const QModelIndex& index) const;

    void open(const QModelIndex& index);  ///< lists it
    void close(const QModelIndex& index); ///< forgets what was in it

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    struct Node {
        FileItem item;
        Node* parent = nullptr;
        std::vector<Node> children; ///< never changes its size while there are indexes into it
        bool isOpen = false;
        mutable std::optional<bool> hasEntries; ///< of a closed folder, once looked into
    };
    static Node& nodeOf(const QModelIndex& index) { return *static_cast<Node*>(index.internalPointer()); }

    std::vector<Node> top_; ///< the root item alone
};

} // namespace quorvan
