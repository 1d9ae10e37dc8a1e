// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/BrowseFolderViewController.h"

#include "Common/Fatal.h"
#include "Platform/Services.h"
#include "Quorvan/Toolkit/FileTreeModel.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PathLabel.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <map>
#include <utility>

namespace quorvan {

namespace {

/// Shows no arrow at folders that turn out to be empty when they come into view. One key must not open all
/// folders of a volume.
class FileTree : public QTreeView {
public:
    using QTreeView::QTreeView;

protected:
    void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override {
        if (static_cast<const FileTreeModel*>(model())->isExpandable(index))
            QTreeView::drawBranches(painter, rect, index);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() != Qt::Key_Asterisk)
            QTreeView::keyPressEvent(event);
    }
};

/// Where a row stands in the tree, from the top: compares as the rows stand on the screen.
std::vector<int> placeOf(QModelIndex index) {
    std::vector<int> place;
    for (; index.isValid(); index = index.parent())
        place.insert(place.begin(), index.row());
    return place;
}

} // namespace

void BrowseFolderViewController::setBrowseFileDelegate(ViewController& owner,
                                                       BrowseFolderDelegate& delegate) {
    owner_ = &owner;
    browseFileDelegate_ = &delegate;
}

void BrowseFolderViewController::loadView() {
    pathController = outlet(new PathLabel(this), "pathController", L("Browse_Folder_Root_Label"));
    fileBrowser = outlet(new FileTree(this), "fileBrowser", plainL("Browse_Folder_Title"));
    fileBrowser->setHeaderHidden(true);
    fileBrowser->setUniformRowHeights(true);
    fileBrowser->setSelectionMode(QAbstractItemView::ExtendedSelection);
    fileBrowser->setEditTriggers(QAbstractItemView::NoEditTriggers);
    fileBrowser->setIconSize({16, 16});
    fileBrowser->setTextElideMode(Qt::ElideMiddle);
    notMountedLabel = outlet(new QLabel(this), "notMountedLabel");
    notMountedLabel->setTextFormat(Qt::PlainText);
    notMountedLabel->setWordWrap(true);
    cancelBtn = outlet(new QPushButton(this), "cancelBtn");
    selectBtn = outlet(new QPushButton(this), "selectBtn");
    selectBtn->setDefault(true);
    connect(cancelBtn, &QPushButton::clicked, this, [this] { onCancel(cancelBtn); });
    connect(selectBtn, &QPushButton::clicked, this, [this] { onSelect(selectBtn); });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cancelBtn);
    buttons->addStretch();
    buttons->addWidget(selectBtn);
    auto* page = new QVBoxLayout(this);
    page->addWidget(pathController);
    page->addWidget(fileBrowser, 1);
    page->addWidget(notMountedLabel);
    page->addLayout(buttons);
    setTabOrders({pathController, fileBrowser, selectBtn, cancelBtn});
}

void BrowseFolderViewController::viewDidLoad() {
    setWindowTitle(L("Browse_Folder_Title"));
    cancelBtn->setText(L("Cancel_title"));
    selectBtn->setText(L("Select_title"));
    explainWhenGrey(*selectBtn, "Why_Nothing_Selected_Label");
    selectBtn->setEnabled(false);
    const std::string root = "/Volumes/" + unwrap(volpath, "The folder browser was given no volume");
    pathController->setPath(QString::fromStdString(root));
    rootFileItem.emplace(root, true);

    model_ = new FileTreeModel(*rootFileItem, this);
    fileBrowser->setModel(model_);
    connect(fileBrowser, &QTreeView::expanded, model_, &FileTreeModel::open);
    connect(fileBrowser, &QTreeView::collapsed, model_, &FileTreeModel::close);
    connect(fileBrowser->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { onSelectingfile(fileBrowser); });
    fileBrowser->expand(model_->index(0, 0));
    goTo(startPath);

    const bool isMounted =
        platform::services().volumes->kindOf(root) != platform::LocalVolumes::Kind::nothing;
    notMountedLabel->setText(L("Volume_Not_Mounted_Label").arg(QString::fromStdString(*volpath)));
    notMountedLabel->setVisible(!isMounted);
}

/// Opens the folders on the way, and leaves the keyboard on the last one; nothing is chosen yet.
void BrowseFolderViewController::goTo(const std::string& path) {
    QModelIndex at = model_->index(0, 0);
    const auto isOnTheWay = [&](const QModelIndex& index) {
        const std::string folder = model_->item(index).path();
        return path == folder || path.starts_with(folder + '/');
    };
    if (!isOnTheWay(at))
        return;
    for (bool goesOn = true; std::exchange(goesOn, false);)
        for (int row = 0; row < model_->rowCount(at) && !goesOn; ++row)
            if (const QModelIndex child = model_->index(row, 0, at); isOnTheWay(child)) {
                goesOn = true;
                at = child;
                fileBrowser->expand(at);
            }
    fileBrowser->selectionModel()->setCurrentIndex(at, QItemSelectionModel::NoUpdate);
    fileBrowser->scrollTo(at, QAbstractItemView::PositionAtCenter);
}

void BrowseFolderViewController::viewDidAppear() {
    fileBrowser->setFocus();
}

QSize BrowseFolderViewController::sizeHint() const {
    return {60 * fontMetrics().averageCharWidth(), 28 * fontMetrics().lineSpacing()};
}

void BrowseFolderViewController::onSelectingfile(QObject* /*sender*/) {
    if (fileBrowser->selectionModel()->hasSelection())
        selectBtn->setEnabled(true);
}

void BrowseFolderViewController::onSelect(QObject* /*sender*/) {
    std::map<std::vector<int>, std::string> selected; // in the order of the rows
    for (const QModelIndex& row : fileBrowser->selectionModel()->selectedRows()) {
        std::string url = model_->item(row).fileUrl;
        if (url.ends_with('/'))
            url.pop_back();
        selected.emplace(placeOf(row), std::move(url));
    }
    std::vector<std::string> urls;
    urls.reserve(selected.size());
    for (auto& [place, url] : selected)
        urls.push_back(std::move(url));
    if (owner_ != nullptr)
        browseFileDelegate_->onReturnSelectedPath(urls);
    endSheet();
}

void BrowseFolderViewController::onCancel(QObject* /*sender*/) {
    endSheet();
}

} // namespace quorvan
