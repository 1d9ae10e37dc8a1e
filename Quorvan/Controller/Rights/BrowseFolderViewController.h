// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/FileItem.h"
#include "Quorvan/Toolkit/ViewController.h"

#include <optional>
#include <string>
#include <vector>

class QLabel;
class QPushButton;
class QTreeView;

namespace quorvan {

class FileTreeModel;
class PathLabel;

/// Receives the files and folders that were picked, as percent-escaped file URLs without a slash at their
/// ends: file:///Volumes/VOL1/docs
class BrowseFolderDelegate {
public:
    virtual ~BrowseFolderDelegate() = default;
    virtual void onReturnSelectedPath(const std::vector<std::string>& selpath) = 0;
};

/// The sheet in which the user picks files and folders of a mounted volume.
class BrowseFolderViewController : public ViewController {
public:
    // Outlets
    PathLabel* pathController = nullptr;
    QTreeView* fileBrowser = nullptr;
    QLabel* notMountedLabel = nullptr; ///< says why the tree is empty
    QPushButton* selectBtn = nullptr;
    QPushButton* cancelBtn = nullptr;

    // Set before the sheet is presented

    /// `delegate` is usually `owner` itself; a browser that outlives `owner` has no receiver.
    void setBrowseFileDelegate(ViewController& owner, BrowseFolderDelegate& delegate);
    std::optional<std::string> volpath; ///< the volume's name below /Volumes
    std::string startPath;              ///< what the tree is opened at, where it is in it

    std::optional<FileItem> rootFileItem;

    void loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;
    QSize sizeHint() const override;

    /// The selection has changed.
    void onSelectingfile(QObject* sender);
    void onSelect(QObject* sender);
    void onCancel(QObject* sender);

private:
    void goTo(const std::string& path);

    QPointer<ViewController> owner_;
    BrowseFolderDelegate* browseFileDelegate_ = nullptr; ///< lives as long as owner_
    FileTreeModel* model_ = nullptr;
};

} // namespace quorvan
