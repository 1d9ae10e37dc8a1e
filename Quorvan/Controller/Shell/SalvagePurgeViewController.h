// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ViewController.h"

class QLabel;
class QPushButton;

namespace quorvan {

class PathLabel;
class Segue;

/// The page for deleted files: for salvaging or for purging them, as the way to it said. There is no such
/// request yet, and the page says so.
class SalvagePurgeViewController : public ViewController {
public:
    using ViewController::ViewController;

    // Outlets
    PathLabel* currentPath = nullptr;
    QLabel* purposeLabel = nullptr;
    QLabel* nothingSentLabel = nullptr;
    QPushButton* deletedFileButton = nullptr;
    QPushButton* moreInfoButton = nullptr;
    QPushButton* closeButton = nullptr;

    void loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return false; }

    void prepare(const Segue& segue);
    /// Opens the sheet that says more.
    void onClickMoreInfo();
    /// Ends the sheet that the page is in; as a page of the window it stays.
    void onClose();
};

} // namespace quorvan
