// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Selection/TrusteeContext.h"
#include "Quorvan/Modal/Users.h"
#include "Quorvan/Toolkit/ViewController.h"
#include "Quorvan/ViewModal/RightsTabViewModal.h"

#include <optional>

class QCheckBox;
class QLabel;
class QPushButton;

namespace quorvan {

class PathLabel;

/// The settings page: whether the views work with the identities of both directories. The setting
/// (Shared::value().bothID) lasts as long as the program runs.
class SettingsController : public ViewController, public TrusteeContext {
public:
    // Outlets
    PathLabel* currentPath = nullptr;
    QCheckBox* ListBoth = nullptr;
    QLabel* AddTrusteesMessage = nullptr;
    QLabel* readOnlyLabel = nullptr; ///< says why the setting cannot be changed, where that is so
    QLabel* LogDetailsLabel = nullptr;
    QLabel* LogInfoLabel = nullptr;
    QPushButton* CloseBtn = nullptr;

    RightsTabViewModal modalData;
    TrusteeList trusteeList;

    void loadView() override;
    void viewDidLoad() override { initView(); }
    void viewWillAppear() override;
    void viewDidAppear() override;
    QSize sizeHint() const override;

    void initView();
    /// Asks what the user may do with the selected path.
    void initSettings();
    void onClickListBothIdentites(QCheckBox* sender);
    void onReturnMainMenu();

private:
    void layOutControls();
};

} // namespace quorvan
