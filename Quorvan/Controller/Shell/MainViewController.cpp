// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/MainViewController.h"

#include "Common/Error.h"
#include "Common/FeatureFlags.h"
#include "Common/ServerDetails.h"
#include "Platform/Services.h"
#include "Quorvan/AppDelegate.h"
#include "Quorvan/Controller/Selection/FailedOperation.h"
#include "Quorvan/Controller/Shell/MenuEntry.h"
#include "Quorvan/Controller/Shell/PageSegues.h"
#include "Quorvan/Controller/Shell/SalvagePurgeSegueController.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/NoticeLine.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/Storyboard.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

namespace quorvan {
namespace {

template <class PageSegueType>
void follow(MainViewController& from, const char* page) {
    PageSegueType(&from, Storyboard::named("Main").instantiate(page)).perform();
}

/// What an entry of the page looks like and where it leads.
struct EntryKind {
    MenuEntry* MainViewController::*view;
    QLabel* MainViewController::*label;
    const char* viewName;
    const char* labelName;
    const char* titleKey;
    const char* descriptionKey;
    const char* iconName;
    const char* page; ///< identifier in the storyboard
    void (*follow)(MainViewController&, const char*);
};

using Page = MainViewController;
const std::array<EntryKind, 5> entryKinds = {{
    {&Page::TrusteeRightsView, &Page::menu1, "TrusteeRightsView", "menu1", "Trustee_Rights_Title",
     "Trustee_Rights_Description_Label", "page_trustee_rights", "trusteeRightsView",
     follow<TrusteeRightsSegue>},
    {&Page::FileSystemRightsView, &Page::menu2, "FileSystemRightsView", "menu2", "File_System_Rights_Title",
     "File_System_Rights_Description_Label", "page_file_system_rights", "fileSystemRightsView",
     follow<FileSystemRightsSegue>},
    {&Page::UserQuotaView, &Page::menu3, "UserQuotaView", "menu3", "User_Quota_Title",
     "User_Quota_Description_Label", "page_user_quota", "userQuotaView", follow<UserQuotaSegue>},
    {&Page::DirectoryQuotaView, &Page::menu6, "DirectoryQuotaView", "menu6", "Information_Title",
     "Information_Description_Label", "page_information", "informationView", follow<InformationSegue>},
    {&Page::SettingView, &Page::menu4, "SettingView", "menu4", "Settings_Title", "Settings_Description_Label",
     "page_settings", "settingsView", follow<SettingsSegue>},
}};

bool loggedInUserIsKnown() {
    const auto suite = platform::services().sharedDefaults->openSuite(groupSuiteName);
    return suite && suite->string("loggedUserType");
}

} // namespace

MainViewController::MainViewController()
    : serverIP(unwrap(ServerDetails::serverInfo().serverIP, "There is no server to work on")) {}

void MainViewController::loadView() {
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(16, 12, 16, 16);
    page->setSpacing(10);
    buildHeader();
    buildEntries();
    page->addStretch();
}

void MainViewController::buildHeader() {
    managedPath = outlet(new PathLabel(this), "managedPath", L("Managed_Path_Label"));
    managedPath->setPath(QString::fromStdString(
        unwrap(ServerDetails::serverInfo().selectedPathName, "There is no selected path")));
    managedServer = outlet(new QLabel(L("Managed_Server_Label").arg(QString::fromStdString(serverIP)), this),
                           "managedServer");
    managedServer->setTextFormat(Qt::PlainText);
    managedServer->setIndent(2); // in line with the path above
    tryAgainBtn = outlet(new QPushButton(L("Try_Again_title"), this), "tryAgainBtn");
    tryAgainBtn->setToolTip(L("Try_Again_Tip_Label"));
    connect(tryAgainBtn, &QPushButton::clicked, this, [this] {
        NoticeLine::forget();
        platform::services().network->forgetRefusals();
        checkLoggedInUser();
        updateEntries();
    });

    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(managedPath);
    texts->addWidget(managedServer);
    auto* header = new QHBoxLayout;
    header->addLayout(texts, 1);
    header->addWidget(tryAgainBtn);
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    auto* page = static_cast<QVBoxLayout*>(layout());
    page->addLayout(header);
    page->addWidget(line);
}

void MainViewController::buildEntries() {
    MainView = outlet(new QWidget(this), "MainView");
    auto* entries = new QVBoxLayout(MainView);
    entries->setContentsMargins(0, 0, 0, 0);
    entries->setSpacing(8);
    for (const EntryKind& kind : entryKinds) {
        auto* entry = outlet(new MenuEntry(kind.iconName, L(kind.descriptionKey), this), kind.viewName);
        this->*kind.view = entry;
        this->*kind.label = outlet(entry->title, kind.labelName);
        entries->addWidget(entry);
        connect(entry, &QPushButton::clicked, this, [this, &kind] {
            NoticeLine::forget();
            kind.follow(*this, kind.page);
        });
    }
    layout()->addWidget(MainView);
    buildDeletedFiles();
}

void MainViewController::buildDeletedFiles() {
    SalvagePurgeView = outlet(new QToolButton(this), "SalvagePurgeView");
    SalvagePurgeView->setText(L("Salvage_Purge_title"));
    SalvagePurgeView->setAutoRaise(true);
    SalvagePurgeView->setFocusPolicy(Qt::StrongFocus);
    SalvagePurgeView->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(SalvagePurgeView);
    for (const char* segue : {"salvageSegue", "purgeSegue"}) {
        QAction* action = menu->addAction(L(salvagePurgeTitleKey(segue)), this, [this, segue] {
            NoticeLine::forget();
            SalvagePurgeSegueController(segue, this,
                                        Storyboard::named("Main").instantiate("salvagePurgeView"))
                .perform();
        });
        action->setObjectName(QLatin1String(segue));
    }
    SalvagePurgeView->setMenu(menu);
    static_cast<QVBoxLayout*>(layout())->addWidget(SalvagePurgeView, 0, Qt::AlignLeft);
}

void MainViewController::viewDidLoad() {
    checkLoggedInUser();
    initMainView();
    featureFlagDict = readFeatureFlags();
    enableSettingsFlag = featureFlag(*featureFlagDict, "enableSettings");
    if (!enableSettingsFlag)
        layOutWithoutSettings();
    updateEntries();
}

void MainViewController::viewWillAppear() {
    window()->setWindowTitle(plainL("RM_Window_Title"));
}

void MainViewController::viewDidAppear() {
    if (TrusteeRightsView->isEnabled())
        TrusteeRightsView->setFocus();
    else
        tryAgainBtn->setFocus();
}

void MainViewController::checkLoggedInUser() {
    xmlController = std::make_unique<XMLReadWriteController>();
    ScopedPipe pipe(*xmlController, serverIP, pipes::smbInformation);
    if (!pipe.isOpen()) {
        Log("Failed with err - %d", pipe.status());
        displayErrorMsg(errorCode::operationFailed);
        if (pipe.status() == errSecItemNotFound)
            NoticeLine::tell(NoticeLine::Kind::problem,
                             L("No_Password_Label").arg(QString::fromStdString(serverIP)));
        return;
    }
    const std::string userType = xmlController->getUserType();
    if (xmlController->loss() != 0) {
        pipe.close();
        reportFailedOperation(*xmlController, serverIP, xmlController->loss());
        return;
    }
    if (!featureFlag(readFeatureFlags(), "MorvaneSupport") && userType == identityMorvane) {
        pipe.drop(); // an alert runs an event loop
        displayErrorMsg(errorCode::loggedUserMorvane);
        AppDelegate::terminate();
        return;
    }
    const auto suite = platform::services().sharedDefaults->openSuite(groupSuiteName);
    if (suite &&
        suite->string("loggedUserType") != userType) { // writing would undo a selection that arrives now
        suite->setString("loggedUserType", userType);
        suite->synchronize();
    }
}

void MainViewController::initMainView() {
    for (const EntryKind& kind : entryKinds)
        (this->*kind.view)->setTitle(plainL(kind.titleKey));
}

/// No page can be opened before it is known who is logged in: every view works in that user's kind.
void MainViewController::updateEntries() {
    const bool known = loggedInUserIsKnown();
    for (const EntryKind& kind : entryKinds)
        (this->*kind.view)->setEnabled(known);
    SalvagePurgeView->setEnabled(known);
    tryAgainBtn->setVisible(!known);
}

/// The sizes and places are those of the installations without settings page. Places are given from
/// the lower left corner of MainView; widgets count from the upper left one.
void MainViewController::layOutWithoutSettings() {
    constexpr QSize mainSize(387, 337);
    constexpr QSize entrySize(119, 120);
    constexpr int left = 44;
    constexpr int right = 224;
    constexpr int lower = 39;
    constexpr int upper = 178;
    SettingView->hide();
    delete MainView->layout();
    MainView->setFixedSize(mainSize);
    const auto place = [&](MenuEntry* entry, int x, int y) {
        entry->makeCompact();
        entry->setGeometry(QRect({x, mainSize.height() - y - entrySize.height()}, entrySize));
    };
    place(TrusteeRightsView, left, upper);
    place(FileSystemRightsView, right, upper);
    place(DirectoryQuotaView, left, lower);
    place(UserQuotaView, right, lower);
}

} // namespace quorvan
