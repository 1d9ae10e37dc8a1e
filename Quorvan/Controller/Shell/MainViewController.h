// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Bundle.h"
#include "Quorvan/Toolkit/ViewController.h"
#include "Quorvan/ViewModal/ScopedPipe.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <memory>
#include <optional>
#include <string>

class QLabel;
class QPushButton;
class QToolButton;

namespace quorvan {

class MenuEntry;
class PathLabel;

/// The options page: where every visit begins and from where all other pages are reached. Loading it
/// asks the server who is logged in.
class MainViewController : public ViewController {
public:
    MainViewController();

    // Outlets
    QLabel* menu1 = nullptr; ///< trustee rights
    QLabel* menu2 = nullptr; ///< file-system rights
    QLabel* menu3 = nullptr; ///< user quota
    QLabel* menu4 = nullptr; ///< settings
    QLabel* menu6 = nullptr; ///< information
    MenuEntry* SettingView = nullptr;
    QWidget* MainView = nullptr;
    MenuEntry* DirectoryQuotaView = nullptr; ///< the information entry
    MenuEntry* UserQuotaView = nullptr;
    MenuEntry* TrusteeRightsView = nullptr;
    MenuEntry* FileSystemRightsView = nullptr;
    QToolButton* SalvagePurgeView = nullptr; ///< the way to both pages, which can do nothing yet
    PathLabel* managedPath = nullptr;
    QLabel* managedServer = nullptr;
    QPushButton* tryAgainBtn = nullptr; ///< only there while the kind of the logged-in user is unknown

    std::unique_ptr<XMLReadWriteController> xmlController;
    const std::string serverIP;
    std::optional<platform::FeatureDictionary> featureFlagDict;
    bool enableSettingsFlag = false;

    void loadView() override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;

    /// Asks the server for the kind of the logged-in user and stores it for all views. A kind that
    /// this installation does not support ends the program.
    void checkLoggedInUser();
    void initMainView();

private:
    void buildHeader();
    void buildEntries();
    void buildDeletedFiles();
    void updateEntries();
    void layOutWithoutSettings();
};

} // namespace quorvan
