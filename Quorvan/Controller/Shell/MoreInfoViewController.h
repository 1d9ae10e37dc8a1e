// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ViewController.h"

#include <string>

class QPushButton;

namespace quorvan {

/// The sheet that says what salvaging and purging are, and what this version does about them.
class MoreInfoViewController : public ViewController {
public:
    using ViewController::ViewController;

    // Outlets
    QPushButton* actionButton = nullptr; ///< titled after the page's purpose, and always disabled
    QPushButton* cancelButton = nullptr;

    std::string callerID; ///< what the page goes by

    void loadView() override;
    void viewDidLoad() override;

    void onCancel();
};

} // namespace quorvan
