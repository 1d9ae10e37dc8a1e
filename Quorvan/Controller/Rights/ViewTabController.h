// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ViewController.h"

class QTabWidget;

namespace quorvan {

/// The tabs of the rights window. Only the view of the current tab is shown; each visit to a tab lets
/// its view appear anew.
class ViewTabController : public ViewController {
public:
    using ViewController::ViewController;

    /// The tab items, as indexes of tabView and of childControllers().
    enum TabItem { rightsTabLabel, inheritedTabLabel, effectiveTabLabel, trusteeDirTabLabel };

    QTabWidget* tabView = nullptr;

    void loadView() override;
    void viewDidLoad() override;
    void viewWillAppear() override { shown_ = true; }
    void viewWillDisappear() override { shown_ = false; }
    std::vector<ViewController*> shownChildren() const override;

private:
    void tabDidChange();

    bool shown_ = false;
    QPointer<ViewController> current_;
};

} // namespace quorvan
