// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ViewController.h"

class QPushButton;

namespace quorvan {

/// The frame of the trustee rights page: the tabs, and the way back to the options page.
class TrusteeRightsTabView : public ViewController {
public:
    using ViewController::ViewController;

    QPushButton* closeBtn = nullptr;

    void loadView() override;
    QSize sizeHint() const override;

    void onReturnMainMenu();
};

} // namespace quorvan
