// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/MainWindow.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Controller/Rights/TrusteeRightsTabView.h"
#include "Quorvan/Controller/Rights/ViewTabController.h"
#include "Quorvan/Controller/Shell/ContainerViewController.h"
#include "Quorvan/Controller/Shell/MainStoryboard.h"
#include "Quorvan/Controller/Shell/MainViewController.h"
#include "Quorvan/Controller/Shell/MenuEntry.h"
#include "Quorvan/Controller/Shell/SalvagePurgeSegueController.h"
#include "Quorvan/Controller/Shell/SalvagePurgeViewController.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"

#include <QLabel>
#include <QScreen>
#include <QTabWidget>
#include <QTest>

#include <gmock/gmock.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <string>
#include <vector>

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
namespace demo = simulator::demo;

/// The window over a server in memory; texts are their keys.
struct MainWindowTest : testing::Test {
    MainWindowTest() {
        Storyboard::named("Main") = Storyboard();
        fillMainStoryboard();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        ServerDetails::forget();
        Shared::value().bothID = false;
        bundle->texts["Managed_Server_Label"] = "on %1";
    }
    ~MainWindowTest() override { Shared::value().bothID = false; }

    void openWindow() {
        window = std::make_unique<MainWindow>();
        window->load();
        window->present();
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    template <class Page>
    Page& page() const {
        const auto& pages = window->container->childControllers();
        EXPECT_EQ(pages.size(), 1U);
        auto* shown = dynamic_cast<Page*>(pages.front());
        EXPECT_NE(shown, nullptr);
        EXPECT_TRUE(shown->isVisible());
        return *shown;
    }
    MainViewController& options() const { return page<MainViewController>(); }
    void click(QWidget* control) const { QTest::mouseClick(control, Qt::LeftButton); }
    std::string title() const { return window->windowTitle().toStdString(); }
    std::map<std::string, std::string>& defaults() { return world.sharedDefaults->values(groupSuiteName); }
    std::size_t requestsTo(const std::string& pipe) const {
        const auto& requests = world.server->requests();
        return static_cast<std::size_t>(std::count_if(
            requests.begin(), requests.end(), [&](const auto& request) { return request.pipeFile == pipe; }));
    }

    LogRecorder log;
    simulator::Embedded world = simulator::Embedded::demo();
    std::shared_ptr<FakeBundle> bundle = std::make_shared<FakeBundle>();
    std::shared_ptr<RecordingAlerts> alerts = std::make_shared<RecordingAlerts>();
    platform::ScopedServices installed{[this] {
        platform::Services services = world.services();
        services.bundle = bundle;
        services.alerts = alerts;
        return services;
    }()};
    std::unique_ptr<MainWindow> window;
};

const RecordingAlerts::Alert operationFailed{"Error_Title", "Err_Operation_Failed",
                                             platform::AlertStyle::critical};
const RecordingAlerts::Alert passwordMissing{"Error_Title", "Err_Keychain_Not_Found",
                                             platform::AlertStyle::critical};

TEST_F(MainWindowTest, AsksWhoIsLoggedInBeforeItOpens) {
    openWindow();
    std::vector<std::string> marks;
    for (const std::string& line : log.lines)
        for (const char* mark :
             {"Path selected is", "Path mapped and selected is", "Volume mapping with username", "init",
              "Get userType Request : ", "Get userType Response: ", "pipe closed"})
            if (line.starts_with(mark))
                marks.emplace_back(mark);
    EXPECT_THAT(marks,
                ElementsAre("Path selected is", "Path mapped and selected is", "Volume mapping with username",
                            "init", "Get userType Request : ", "Get userType Response: ", "pipe closed"));
    EXPECT_EQ(defaults()["loggedUserType"], "ActiveDirectory");
    EXPECT_EQ(world.network->openDescriptors(), 0U);
    EXPECT_THAT(alerts->shown, IsEmpty());
    EXPECT_EQ(title(), "RM_Window_Title");

    const MainViewController& page = options();
    EXPECT_EQ(page.menu1->text(), "Trustee_Rights_Title");
    EXPECT_EQ(page.menu2->text(), "File_System_Rights_Title");
    EXPECT_EQ(page.menu3->text(), "User_Quota_Title");
    EXPECT_EQ(page.menu6->text(), "Information_Title");
    EXPECT_EQ(page.menu4->text(), "Settings_Title");
    EXPECT_EQ(page.managedServer->text(), "on files.meridal.example");
    EXPECT_TRUE(page.TrusteeRightsView->isEnabled());
    EXPECT_TRUE(page.TrusteeRightsView->hasFocus());
    for (const MenuEntry* entry : {page.FileSystemRightsView, page.UserQuotaView, page.DirectoryQuotaView})
        EXPECT_TRUE(entry->isEnabled());
}

TEST_F(MainWindowTest, OpensWithoutAnAnswerAndAsksAgainOnRequest) {
    const struct {
        int mountError, openError;
        bool withoutPassword;
        const char* line;
    } cases[] = {{0, ENOENT, false, "Failed with err - -1"},
                 {EHOSTUNREACH, 0, false, "Failed with err - 113"},
                 {0, 0, true, "Failed with err - -25300"}};
    for (const auto& failing : cases) {
        ServerDetails::forget();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        defaults().erase("loggedUserType");
        world.logIn(demo::supervisor, demo::password);
        if (failing.withoutPassword)
            world.keychain->items.clear();
        world.server->misbehaviour.mountError = failing.mountError;
        world.server->misbehaviour.openError = failing.openError;
        openWindow();
        EXPECT_THAT(alerts->shown, ElementsAre(operationFailed)) << failing.line;
        EXPECT_THAT(log.take(), testing::Contains(failing.line));
        EXPECT_FALSE(defaults().contains("loggedUserType"));
        EXPECT_FALSE(options().TrusteeRightsView->isEnabled()) << "no view could say whose rights it shows";
        EXPECT_TRUE(options().tryAgainBtn->hasFocus());

        world.server->misbehaviour = {};
        alerts->shown.clear();
        click(options().tryAgainBtn);
        EXPECT_EQ(options().TrusteeRightsView->isEnabled(), !failing.withoutPassword);
        EXPECT_EQ(options().tryAgainBtn->isVisible(), failing.withoutPassword);
        alerts->shown.clear();
    }

    defaults()["loggedUserType"] = "Morvane";
    openWindow();
    EXPECT_EQ(defaults()["loggedUserType"], "Morvane") << "the kind of the last answer stays";
    EXPECT_TRUE(options().TrusteeRightsView->isEnabled());
}

TEST_F(MainWindowTest, LeadsToTheTrusteesAndBackAskingAnew) {
    openWindow();
    QTest::keyClick(options().TrusteeRightsView, Qt::Key_Return);
    EXPECT_EQ(title(), "Trustee_Rights_Title");
    auto& frame = page<TrusteeRightsTabView>();
    EXPECT_EQ(frame.closeBtn->text(), "Close_title");
    auto& tabs = dynamic_cast<ViewTabController&>(*frame.childControllers().front());
    std::vector<std::string> titles;
    for (int item = 0; item < tabs.tabView->count(); ++item)
        titles.push_back(tabs.tabView->tabText(item).toStdString());
    EXPECT_THAT(titles, ElementsAre("Rights_Label", "Inherited_Rights_Label", "Effective_Rights_Label",
                                    "Trustee_Directories_Label"));
    auto* rights = dynamic_cast<RightsTabViewController*>(tabs.childControllers().front());
    ASSERT_NE(rights, nullptr);
    EXPECT_FALSE(rights->trusteeList.empty());
    EXPECT_TRUE(rights->rightsTable->hasFocus());
    EXPECT_EQ(window->size(), window->sizeHint());

    const std::size_t loads = requestsTo("/FilesCmdPipe");
    tabs.tabView->setCurrentIndex(ViewTabController::effectiveTabLabel);
    EXPECT_EQ(requestsTo("/FilesCmdPipe"), loads + 2) << "the user's own rights, and those of all trustees";
    tabs.tabView->setCurrentIndex(ViewTabController::rightsTabLabel);
    EXPECT_EQ(requestsTo("/FilesCmdPipe"), 2 * loads + 2) << "each visit to the tab loads anew";

    defaults()["loggedUserType"] = "Morvane";
    const QPointer<QWidget> left = &frame;
    click(frame.closeBtn);
    EXPECT_EQ(title(), "Rights Management");
    EXPECT_TRUE(options().TrusteeRightsView->hasFocus());
    EXPECT_EQ(requestsTo("/ZelSmbPipe"), 2U);
    EXPECT_EQ(defaults()["loggedUserType"], "ActiveDirectory");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(left.isNull());
}

TEST_F(MainWindowTest, ComesBackFromAPageThatCannotLoad) {
    for (const bool bothDirectories : {false, true}) {
        openWindow();
        Shared::value().bothID = bothDirectories;
        world.server->misbehaviour.onlyPipe = "/FilesCmdPipe";
        world.server->misbehaviour.openError = EACCES;
        alerts->shown.clear();
        click(options().TrusteeRightsView);
        EXPECT_EQ(title(), "Rights Management");
        EXPECT_TRUE(options().TrusteeRightsView->isEnabled());
        EXPECT_THAT(alerts->shown, testing::Each(operationFailed));
        EXPECT_EQ(alerts->shown.size(), bothDirectories ? 2U : 1U);
    }

    ServerDetails::serverInfo().keychainStatus = errSecItemNotFound; // no password in the keyring
    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    world.server->misbehaviour = {};
    alerts->shown.clear();
    Shared::value().bothID = false;
    click(options().TrusteeRightsView);
    EXPECT_THAT(alerts->shown, ElementsAre(passwordMissing, operationFailed));
    EXPECT_EQ(title(), "Rights Management");
}

TEST_F(MainWindowTest, LeavesThePlaceOfTheSettingsOutWhereTheyAreSwitchedOff) {
    bundle->features->at("enableSettings") = false;
    openWindow();
    const MainViewController& page = options();
    EXPECT_FALSE(page.enableSettingsFlag);
    EXPECT_FALSE(page.SettingView->isVisible());
    EXPECT_EQ(page.MainView->size(), QSize(387, 337));
    // Origins count from the lower left corner.
    const auto origin = [&](const QWidget* entry) {
        return QPoint(entry->x(), page.MainView->height() - entry->y() - entry->height());
    };
    EXPECT_EQ(origin(page.DirectoryQuotaView), QPoint(44, 39));
    EXPECT_EQ(origin(page.UserQuotaView), QPoint(224, 39));
    QRegion covered;
    for (const MenuEntry* entry :
         {page.TrusteeRightsView, page.FileSystemRightsView, page.UserQuotaView, page.DirectoryQuotaView}) {
        EXPECT_TRUE(page.MainView->rect().contains(entry->geometry()));
        EXPECT_FALSE(covered.intersects(entry->geometry()));
        covered += entry->geometry();
        for (const QLabel* label : entry->findChildren<QLabel*>())
            EXPECT_TRUE(label->isHidden() || label->height() >= label->heightForWidth(label->width()));
    }
}

TEST_F(MainWindowTest, LeadsToTheDeletedFilesAndSendsNothing) {
    openWindow();
    for (const auto& [entry, expected] : {std::pair(&MainViewController::SalvageView, "Salvage_Title"),
                                          {&MainViewController::PurgeView, "Purge_Title"}}) {
        click(options().*entry);
        auto& files = page<SalvagePurgeViewController>();
        EXPECT_EQ(files.deletedFileButton->text(), expected);
        for (QPushButton* button : {files.deletedFileButton, files.moreInfoButton}) {
            click(button);
            const QWidget* sheet = QApplication::activeModalWidget();
            ASSERT_NE(sheet, nullptr);
            EXPECT_EQ(sheet->findChild<QPushButton*>("actionButton")->text(), expected);
            click(sheet->findChild<QPushButton*>("cancelButton"));
            EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        }
        files.onClose();
        EXPECT_EQ(title(), expected) << "it is no sheet";
        click(files.closeButton);
        EXPECT_EQ(title(), "Rights Management");
    }
    EXPECT_EQ(world.server->requestCount(), requestsTo("/ZelSmbPipe")) << "more than who is logged in";
    const SalvagePurgeSegueController unnamed(std::nullopt, nullptr, nullptr);
    EXPECT_STREQ(salvagePurgeTitleKey(identifierID), "Purge_Title");
}

TEST_F(MainWindowTest, EndsTheProcessWithoutItsSwitches) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const struct {
        const char* flag;
        std::optional<platform::FeatureDictionary> features;
    } cases[] = {{"feature.plist", std::nullopt},
                 {"enableSettings", platform::FeatureDictionary{{"MorvaneSupport", true}}},
                 {"enableSettings",
                  platform::FeatureDictionary{{"MorvaneSupport", true}, {"enableSettings", std::nullopt}}},
                 {"MorvaneSupport", platform::FeatureDictionary{{"enableSettings", true}}}};
    for (const auto& [flag, features] : cases) {
        bundle->features = features;
        EXPECT_DEATH(
            {
                setLogSink({});
                openWindow();
            },
            flag);
    }
}

TEST_F(MainWindowTest, CanBeWorkedWithTheKeyboardAndAScreenReader) {
    const auto expectNamedControls = [this] {
        for (const QWidget* control : window->findChildren<QWidget*>()) {
            if ((control->focusPolicy() & Qt::TabFocus) == 0 || !control->isVisibleTo(window.get()) ||
                control->objectName().startsWith("qt_"))
                continue;
            EXPECT_FALSE(control->accessibleName().isEmpty() &&
                         control->property("text").toString().isEmpty() &&
                         control->property("placeholderText").toString().isEmpty())
                << title() << " " << control->metaObject()->className() << " "
                << control->objectName().toStdString();
        }
    };
    openWindow();
    expectNamedControls();
    const std::pair<const char*, const char*> entries[] = {
        {"TrusteeRightsView", "Trustee_Rights_Title"},
        {"FileSystemRightsView", "File_System_Rights_Title"},
        {"UserQuotaView", "User_Quota_Title"},
        {"DirectoryQuotaView", "Information_Title"},
        {"SettingView", "Settings_Title"},
        {"SalvageView", "Salvage_Title"},
        {"PurgeView", "Purge_Title"}};
    for (int number = 0; const auto& [entry, expected] : entries) {
        openWindow();
        for (int step = 0; step < number; ++step)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), entry);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(title(), expected);
        expectNamedControls();
        ++number;
    }
    EXPECT_THAT(alerts->shown, IsEmpty());
}

TEST_F(MainWindowTest, KeepsAPageThatIsTooLargeOnTheScreen) {
    struct HugePage : ViewController {
        QSize sizeHint() const override { return {20000, 300}; }
    };
    Storyboard::named("Main").add("settingsView", [] { return new HugePage; });
    openWindow();
    const QRect room = window->screen()->availableGeometry();
    window->move(room.left() + 100, room.top() + 20);
    click(options().SettingView);
    EXPECT_EQ(window->frameGeometry().width(), room.width());
    EXPECT_TRUE(room.contains(window->frameGeometry()));

    Storyboard::named("Main").add("optionsViewController", [] { return new HugePage; });
    openWindow();
    EXPECT_LE(window->width(), room.width());
}

} // namespace
} // namespace quorvan::test
