// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/ContainerViewController.h"
#include "Quorvan/Controller/Shell/MenuEntry.h"
#include "Quorvan/Controller/Shell/SalvagePurgeSegueController.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QLabel>
#include <QScreen>
#include <QTabWidget>

namespace quorvan::test {
namespace {

using MainWindowTest = WindowTest;

TEST_F(MainWindowTest, AsksWhoIsLoggedInBeforeItOpens) {
    openWindow();
    Texts marks;
    for (const std::string& line : log.lines)
        for (const char* mark :
             {"Path selected is", "Path mapped and selected is", "Volume mapping with username", "init",
              "Get userType Request : ", "Get userType Response: ", "pipe closed"})
            if (line.starts_with(mark))
                marks.emplace_back(mark);
    EXPECT_THAT(marks,
                ElementsAre("Path selected is", "Path mapped and selected is", "Volume mapping with username",
                            "init", "Get userType Request : ", "Get userType Response: ", "pipe closed"));
    EXPECT_EQ(defaultOf("loggedUserType"), "ActiveDirectory");
    EXPECT_EQ(world.network->openDescriptors(), 0U);
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_EQ(title(), "RM_Window_Title");
    EXPECT_EQ(value("managedServer"), "on files.meridal.example");
    for (const auto& [label, text] : {std::pair{"menu1", "Trustee_Rights_Title"},
                                      {"menu2", "File_System_Rights_Title"},
                                      {"menu3", "User_Quota_Title"},
                                      {"menu6", "Information_Title"},
                                      {"menu4", "Settings_Title"}})
        EXPECT_EQ(value(label), text);
    EXPECT_FALSE(isShown("tryAgainBtn"));
}

TEST_F(MainWindowTest, OpensWithoutAnAnswerAndAsksAgainOnRequest) {
    const struct {
        int mountError, openError;
        const char* line;
    } cases[] = {{0, ENOENT, "Failed with err - -1"},
                 {EHOSTUNREACH, 0, "Failed with err - 113"},
                 {0, 0, "Failed with err - -25300"}};
    for (const auto& [mountError, openError, line] : cases) {
        world.sharedDefaults->values("group.tarnix.common").erase("loggedUserType");
        if (mountError == 0 && openError == 0)
            losePassword();
        world.server->misbehaviour.mountError = mountError;
        world.server->misbehaviour.openError = openError;
        openWindow();
        EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
        EXPECT_THAT(log.take(), Contains(line));
        EXPECT_EQ(reached(), "tryAgainBtn") << "no view could say whose rights it shows";
        EXPECT_FALSE(act("tryAgainBtn").isEnabled("TrusteeRightsView"));
        mend();
        forgetServer();
        EXPECT_TRUE(act("tryAgainBtn").isEnabled("TrusteeRightsView") && !isShown("tryAgainBtn"));
        alerts();
    }
    breakPipes();
    defaultOf("loggedUserType") = "Morvane";
    openWindow();
    EXPECT_EQ(defaultOf("loggedUserType"), "Morvane") << "the kind of the last answer stays";
    EXPECT_TRUE(isEnabled("TrusteeRightsView"));
}

TEST_F(MainWindowTest, LeadsToEveryPageByKeyAndBackAskingAnew) {
    const struct {
        const char *title, *close;
    } pages[] = {{"Trustee_Rights_Title", "closeBtn"}, {"File_System_Rights_Title", "cancelBtn"},
                 {"User_Quota_Title", "closeButton"},  {"Information_Title", "closeButton"},
                 {"Settings_Title", "CloseBtn"},       {"Salvage_Title", "closeButton"},
                 {"Purge_Title", "closeButton"}};
    openWindow();
    for (int number = 0; const auto& page : pages) {
        for (int step = 0; step < number; ++step)
            act("key Tab");
        EXPECT_EQ(act("key Return").title(), page.title);
        EXPECT_EQ(window->size(), window->sizeHint().boundedTo(window->screen()->availableSize()));
        const QPointer<QWidget> left = window->container->childControllers().front();
        defaultOf("loggedUserType") = "Morvane";
        EXPECT_EQ(act(page.close).title(), "Rights Management");
        EXPECT_EQ(defaultOf("loggedUserType"), "ActiveDirectory");
        EXPECT_TRUE(control("TrusteeRightsView").hasFocus() && left.isNull());
        EXPECT_EQ(requestsTo("/ZelSmbPipe"), static_cast<std::size_t>(++number) + 1);
    }
    EXPECT_THAT(alerts(), IsEmpty());
}

TEST_F(MainWindowTest, LoadsATabAnewOnEachVisit) {
    open("rights");
    auto& tabs = control<QTabWidget>("tabView");
    Texts titles;
    for (int item = 0; item < tabs.count(); ++item)
        titles.push_back(tabs.tabText(item).toStdString());
    EXPECT_THAT(titles, ElementsAre("Rights_Label", "Inherited_Rights_Label", "Effective_Rights_Label",
                                    "Trustee_Directories_Label"));
    EXPECT_TRUE(control("rightsTable").hasFocus());
    const std::size_t loads = requestsTo("/FilesCmdPipe");
    act("tab 2");
    EXPECT_EQ(requestsTo("/FilesCmdPipe"), loads + 2) << "the user's own rights, and those of all trustees";
    EXPECT_EQ(act("tab 0").requestsTo("/FilesCmdPipe"), 2 * loads + 2);
}

TEST_F(MainWindowTest, SettingsSwitchBothDirectoriesOnAndOutliveThePage) {
    for (const auto& [user, text, before] : {std::tuple{demo::supervisor, "Morvane_Trustee_Label", false},
                                             {demo::accessControlTree, "AD_Trustee_Label", true}}) {
        EXPECT_EQ(open("settings", user).value("ListBoth"), text);
        EXPECT_EQ(value("ListBoth", "checked"), before ? "true" : "false");
        EXPECT_EQ(value("LogInfoLabel"), "/Users/<username>/Library/Logs/tarnix");
        EXPECT_THAT(act("ListBoth, CloseBtn, TrusteeRightsView").rows(), SizeIs(before ? 1 : 5));
    }
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

TEST_F(MainWindowTest, LeadsToTheDeletedFilesAndSendsNothing) {
    openWindow();
    for (const auto& [entry, expected] :
         {std::pair{"SalvageView", "Salvage_Title"}, {"PurgeView", "Purge_Title"}}) {
        EXPECT_EQ(act(entry).value("deletedFileButton"), expected);
        for (const char* button : {"deletedFileButton", "moreInfoButton"}) {
            act(button);
            EXPECT_EQ(title() + value("actionButton"), std::string("More_Information_Title") + expected);
            act("cancelButton");
        }
        EXPECT_EQ(title(), expected);
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
    const QRect room = window->screen()->availableGeometry();
    window->move(room.left() + 100, room.top() + 20);
    act("SettingView");
    EXPECT_EQ(window->frameGeometry().width(), room.width());
    EXPECT_TRUE(room.contains(window->frameGeometry()));
    Storyboard::named("Main").add("optionsViewController", [] { return new HugePage; });
    openWindow();
    EXPECT_LE(window->width(), room.width());
}

} // namespace
} // namespace quorvan::test
