// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/ContainerViewController.h"
#include "Quorvan/Controller/Shell/MenuEntry.h"
#include "Quorvan/Controller/Shell/SalvagePurgeSegueController.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTabWidget>

namespace quorvan::test {
namespace {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, AsksWhoIsLoggedInBeforeItOpens) {
    const Texts marks = {"Path selected is",
                         "Path mapped and selected is",
                         "Volume mapping with username",
                         "init",
                         "Get userType Request : ",
                         "Get userType Response: ",
                         "pipe closed"};
    openWindow();
    Texts found;
    for (const std::string& line : log.lines)
        std::ranges::copy_if(marks, std::back_inserter(found),
                             [&](const auto& mark) { return line.starts_with(mark); });
    EXPECT_EQ(found, marks);
    EXPECT_EQ(defaultOf("loggedUserType"), "ActiveDirectory");
    EXPECT_EQ(world.network->openDescriptors(), 0U);
    EXPECT_EQ(state("menu1 menu2 menu3 menu6 menu4"), "Trustee_Rights_Title, File_System_Rights_Title, "
                                                      "User_Quota_Title, Information_Title, Settings_Title");
    play("| title RM_Window_Title | managedServer on files.meridal.example | tryAgainBtn hidden | alerts");
}

TEST_F(MainWindowTest, OpensWithoutAnAnswerAndAsksAgainOnRequest) {
    for (const auto& [mountError, openError, line] : {std::tuple{0, ENOENT, "Failed with err - -1"},
                                                      {EHOSTUNREACH, 0, "Failed with err - 113"},
                                                      {0, 0, "Failed with err - -25300"}}) {
        world.sharedDefaults->values("group.tarnix.common").erase("loggedUserType");
        if (mountError == 0 && openError == 0)
            losePassword();
        world.server->misbehaviour.mountError = mountError;
        world.server->misbehaviour.openError = openError;
        openWindow();
        EXPECT_THAT(log.take(), Contains(line));
        EXPECT_EQ(isShown("noticeText"), std::string_view(line).ends_with("-25300")) << "says what to do";
        EXPECT_EQ(reached(), "tryAgainBtn") << "no view could say whose rights it shows";
        play("tryAgainBtn | alerts Err_Operation_Failed, Err_Operation_Failed | TrusteeRightsView grey");
        mend();
        forgetServer();
        play("tryAgainBtn | alerts | TrusteeRightsView ready | SalvagePurgeView ready | tryAgainBtn hidden");
    }
    breakPipes();
    defaultOf("loggedUserType") = "Morvane";
    openWindow();
    EXPECT_EQ(defaultOf("loggedUserType"), "Morvane") << "the kind of the last answer stays";
    EXPECT_TRUE(isEnabled("TrusteeRightsView"));
}

TEST_F(MainWindowTest, LeadsToEveryPageByKeyAndBackAskingAnew) {
    const std::pair<const char*, const char*> pages[] = {{"Trustee_Rights_Title", "closeBtn"},
                                                         {"File_System_Rights_Title", "cancelBtn"},
                                                         {"User_Quota_Title", "closeButton"},
                                                         {"Information_Title", "closeButton"},
                                                         {"Settings_Title", "CloseBtn"}};
    openWindow();
    for (std::size_t number = 0; const auto& [pageTitle, closeButton] : pages) {
        for (std::size_t step = 0; step < number; ++step)
            act("key Tab");
        EXPECT_EQ(act("key Return").title(), pageTitle);
        EXPECT_EQ(window->size(), window->sizeHint().boundedTo(window->screen()->availableSize()));
        const QPointer<QWidget> left = window->container->childControllers().front();
        defaultOf("loggedUserType") = "Morvane";
        EXPECT_EQ(act(closeButton).title(), "Rights Management");
        EXPECT_EQ(defaultOf("loggedUserType"), "ActiveDirectory");
        EXPECT_TRUE(control("TrusteeRightsView").hasFocus() && left.isNull());
        EXPECT_EQ(requestsTo("/ZelSmbPipe"), ++number + 1);
    }
}

TEST_F(MainWindowTest, LoadsATabAnewOnEachVisit) {
    open("rights");
    EXPECT_TRUE(control("rightsTable").hasFocus());
    auto& tabs = control<QTabWidget>("tabView");
    EXPECT_EQ(tabs.tabText(0) + tabs.tabText(1) + tabs.tabText(2) + tabs.tabText(3),
              "Rights_LabelInherited_Rights_LabelEffective_Rights_LabelTrustee_Directories_Label");
    const std::size_t loads = requestsTo("/FilesCmdPipe");
    EXPECT_EQ(act("tab 2").requestsTo("/FilesCmdPipe"), loads + 2)
        << "the user's own rights, and all others'";
    EXPECT_EQ(act("tab 0").requestsTo("/FilesCmdPipe"), 2 * loads + 2);
}

TEST_F(MainWindowTest, SettingsSwitchBothDirectoriesOnAndOutliveThePage) {
    play(R"(
        open settings              | ListBoth off | LogInfoLabel /Users/<username>/Library/Logs/tarnix
        ListBoth, CloseBtn, TrusteeRightsView | count 5
        open settings pnovak       | ListBoth on
    )");
    EXPECT_EQ(value("ListBoth"), "AD_Trustee_Label");
    play("ListBoth, CloseBtn, TrusteeRightsView | count 1");
    EXPECT_EQ(open("settings").value("ListBoth"), "Morvane_Trustee_Label");
}

TEST_F(MainWindowTest, LeavesThePlaceOfTheSettingsOutWhereTheyAreSwitchedOff) {
    bundle->features->at("enableSettings") = false;
    openWindow();
    EXPECT_FALSE(isShown("SettingView"));
    auto& menu = control("MainView");
    EXPECT_EQ(menu.size(), QSize(387, 337));
    QRegion covered;
    for (const auto& [name, left, lower] : {std::tuple{"TrusteeRightsView", 44, 178},
                                            {"FileSystemRightsView", 224, 178},
                                            {"DirectoryQuotaView", 44, 39},
                                            {"UserQuotaView", 224, 39}}) {
        const auto& entry = control<MenuEntry>(name);
        // Origins count from the lower left corner.
        EXPECT_EQ(QPoint(entry.x(), menu.height() - entry.y() - entry.height()), QPoint(left, lower));
        EXPECT_TRUE(menu.rect().contains(entry.geometry()) && !covered.intersects(entry.geometry()));
        covered += entry.geometry();
        for (const QLabel* label : entry.findChildren<QLabel*>())
            EXPECT_TRUE(label->isHidden() || label->height() >= label->heightForWidth(label->width()));
    }
}

TEST_F(MainWindowTest, KeepsIconsBesideTheTextsFromRightToLeftToo) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    openWindow();
    QApplication::setLayoutDirection(Qt::LeftToRight);
    const auto& entry = control<MenuEntry>("TrusteeRightsView");
    for (const QLabel* label : entry.findChildren<QLabel*>())
        EXPECT_LT(label->geometry().right(), entry.width() - 54) << "a margin of 14, an icon of 40";
    EXPECT_TRUE(control<QLineEdit>("managedPath").alignment().testFlag(Qt::AlignRight));
}

TEST_F(MainWindowTest, LeadsToTheDeletedFilesAndSendsNothing) {
    openWindow();
    for (const auto& [entry, name] :
         {std::pair{"salvageSegue", "Salvage_Title"}, {"purgeSegue", "Purge_Title"}}) {
        EXPECT_EQ(act(entry).value("deletedFileButton"), name);
        for (const std::string button : {"deletedFileButton", "moreInfoButton"}) {
            EXPECT_EQ(act(button).value("actionButton"), name);
            EXPECT_EQ(title(), "More_Information_Title");
            EXPECT_EQ(act("cancelButton").title(), name);
        }
        EXPECT_EQ(act("closeButton").title(), "Rights Management");
    }
    EXPECT_EQ(world.server->requestCount(), requestsTo("/ZelSmbPipe")) << "more than who is logged in";
    const SalvagePurgeSegueController unnamed(std::nullopt, nullptr, nullptr);
    EXPECT_STREQ(salvagePurgeTitleKey(identifierID), "Purge_Title");
}

TEST_F(MainWindowTest, KeepsAPageThatIsTooLargeOnTheScreen) {
    struct HugePage : ViewController {
        QSize sizeHint() const override { return {20000, 300}; }
    };
    Storyboard::named("Main").add("settingsView", [] { return new HugePage; });
    openWindow();
    const QRect screen = window->screen()->availableGeometry();
    window->move(screen.left() + 100, screen.top() + 20);
    act("SettingView");
    EXPECT_EQ(window->frameGeometry().width(), screen.width());
    EXPECT_TRUE(screen.contains(window->frameGeometry()));
    Storyboard::named("Main").add("optionsViewController", [] { return new HugePage; });
    openWindow();
    EXPECT_LE(window->width(), screen.width());
}

} // namespace
} // namespace quorvan::test
