// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/FileTreeModel.h"

#include "Quorvan/Toolkit/ShownText.h"

#include "Platform/Services.h"

#include <QFileIconProvider>
#include <QIcon>
#include <QMimeDatabase>

namespace quorvan {

namespace {

QIcon iconOf(const FileItem& item) {
    static const QFileIconProvider provider;
    if (item.isFolder())
        return provider.icon(QFileIconProvider::Folder);
    static const QMimeDatabase types;
    const QString name = QString::fromStdString(item.lastPathComponent());
    const auto type = types.mimeTypeForFile(name, QMimeDatabase::MatchExtension); // does not open it
    return QIcon::fromTheme(type.iconName(),
                            QIcon::fromTheme(type.genericIconName(), provider.icon(QFileIconProvider::File)));
}

} // namespace

FileTreeModel::FileTreeModel(const FileItem& root, QObject* parent)
    : QAbstractItemModel(parent)
    , top_(1, Node{root, nullptr, {}, false, {}}) {}

bool FileTreeModel::isExpandable(const QModelIndex& index) const {
    const Node& node = nodeOf(index);
    if (node.isOpen)
        return !node.children.empty();
    if (!node.hasEntries)
        node.hasEntries = node.item.isExpandable();
    return *node.hasEntries;
}

void FileTreeModel::open(const QModelIndex& index) {
    close(index);
    Node& node = nodeOf(index);
    node.isOpen = true;
    const platform::BusyScope busy(platform::services().busy);
    const std::vector<FileItem> items = node.item.computeChildren();
    if (items.empty())
        return;
    beginInsertRows(index, 0, static_cast<int>(items.size()) - 1);
    node.children.reserve(items.size());
    for (const FileItem& item : items)
        node.children.push_back({item, &node, {}, false, {}});
    endInsertRows();
}

void FileTreeModel::close(const QModelIndex& index) {
    Node& node = nodeOf(index);
    node.isOpen = false;
    node.hasEntries.reset();
    if (node.children.empty())
        return;
    beginRemoveRows(index, 0, static_cast<int>(node.children.size()) - 1);
    node.children.clear();
    endRemoveRows();
}

QModelIndex FileTreeModel::index(int row, int column, const QModelIndex& parent) const {
    const auto& nodes = parent.isValid() ? nodeOf(parent).children : top_;
    if (row < 0 || column != 0 || row >= static_cast<int>(nodes.size()))
        return {};
    return createIndex(row, 0, &nodes[static_cast<std::size_t>(row)]);
}

QModelIndex FileTreeModel::parent(const QModelIndex& child) const {
    Node* const parent = child.isValid() ? nodeOf(child).parent : nullptr;
    if (parent == nullptr)
        return {};
    const auto& siblings = parent->parent != nullptr ? parent->parent->children : top_;
    return createIndex(static_cast<int>(parent - siblings.data()), 0, parent);
}

int FileTreeModel::rowCount(const QModelIndex& parent) const {
    return static_cast<int>(parent.isValid() ? nodeOf(parent).children.size() : top_.size());
}

int FileTreeModel::columnCount(const QModelIndex& /*parent*/) const {
    return 1;
}

bool FileTreeModel::hasChildren(const QModelIndex& parent) const {
    if (!parent.isValid())
        return true;
    const Node& node = nodeOf(parent);
    return node.isOpen ? !node.children.empty() : node.item.isFolder() && node.hasEntries.value_or(true);
}

QVariant FileTreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return shownText(item(index).lastPathComponent());
    if (role == Qt::DecorationRole)
        return iconOf(item(index));
    return {};
}

} // namespace quorvan
