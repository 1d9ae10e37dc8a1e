// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/RightsPage.h"

class QPushButton;

namespace quorvan {

/// The frame of the trustee rights page: the tabs, and the way back to the options page.
class TrusteeRightsTabView : public RightsPage {
public:
    using RightsPage::RightsPage;

    QPushButton* closeBtn = nullptr;

    void loadView() override;

    void onReturnMainMenu();
};

} // namespace quorvan
