// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Qt/QtAlerts.h"
#include "Quorvan/Application.h"
#include "Quorvan/Controller/Quota/AddUserQuotaViewController.h"
#include "Quorvan/Controller/Rights/EffectiveRightsViewController.h"
#include "Quorvan/Controller/Rights/FileSystemRightsViewController.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Modal/FileItem.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QAccessible>
#include <QMessageBox>
#include <QTimer>

#include <stdexcept>

namespace quorvan::test {
namespace {

using SheetAndLinkTest = WindowTest;

std::size_t changesOf(const simulator::KelpServer& server, const std::string& path) {
    return static_cast<std::size_t>(
        std::ranges::count_if(server.requests(), [&path](const simulator::RecordedRequest& request) {
            return request.text.find("<addTrustee") != std::string::npos &&
                   request.text.find("<fileName>" + path + "</fileName>") != std::string::npos;
        }));
}

TEST_F(SheetAndLinkTest, AChangeBehindALinkLeavesThePageAndTheOtherChangesWhereTheyAre) {
    // Where the rule for what lies behind a link at the selection itself ends up.
    const std::string target = std::string(demo::linkTarget) + "Partners";
    world.secondServer->addPath(target);
    open("files");
    take("selectUserBtn", "Users_Title", meridal, {"Zoe"});
    auto& page = view<FileSystemRightsViewController>();
    const std::string server = page.serverIP;
    page.onReturnSelectedPath({"file:///Volumes/VOL1/Partners", "file:///Volumes/VOL1/Projects"});
    act("applyBtn");
    EXPECT_EQ(changesOf(*world.server, demo::link), 1U);
    EXPECT_EQ(changesOf(*world.secondServer, target), 1U);
    EXPECT_EQ(changesOf(*world.server, "VOL1:\\Projects"), 1U);
    EXPECT_EQ(changesOf(*world.secondServer, "VOL1:\\Projects"), 0U);
    EXPECT_EQ(page.serverIP, server);
    EXPECT_EQ(page.selectedPath, box);
    EXPECT_THAT(rows(), ElementsAre("Box", "Box\\Low RWECMFA")) << "the list is the selection's again";
}

/// Where both directories are worked with, the user chooses one and then nobody from it.
TEST_F(SheetAndLinkTest, ABrowserClosedWithoutAChoiceLeavesTheIdentityTypeOfWhatIsShown) {
    const auto changeMind = [this](const char* button) {
        for (const char* way : {"cancelButton", "key Escape"}) {
            click(button);
            act("MorvaneBtn, OkBtn");
            EXPECT_TRUE(isShown("treeTextField")) << button;
            act(way);
            EXPECT_FALSE(isShown("treeTextField")) << button;
        }
    };
    const auto both = [] { Shared::value().bothID = true; };
    auto& ann = world.identities->addDomainUser("Ann", "S-1-ann");
    ann.groups = {&world.identities->addDomainGroup("Staff", "S-1-staff")};
    world.server->setTrustee(box, *ann.groups.front(), 0x041);

    open("files", demo::supervisor, both);
    changeMind("selectUserBtn");
    EXPECT_EQ(view<FileSystemRightsViewController>().domainIdentity, "ActiveDirectory");
    take("selectUserBtn", "Users_Title", verlag, {"CN=Vera.OU=Verlag.O=Meridal"});
    EXPECT_EQ(view<FileSystemRightsViewController>().domainIdentity, "Morvane");
    take("selectUserBtn", "Users_Title", meridal, {"Ann"});
    changeMind("selectUserBtn");
    act("grpBtn");
    EXPECT_THAT(rows(), ElementsAre("Staff Box RF"));
    act("closeBtn");
    view<FileSystemRightsViewController>().onReturnSelectedPath({"file:///Volumes/VOL1/Tests"});
    act("applyBtn");
    EXPECT_EQ(rightsOnServer("S-1-ann", "VOL1:\\Tests"), 0x041) << "the ID was sent as one of the tree";

    open("information", demo::supervisor, both);
    take("changeOwnerButton", "Users_Title", meridal, {"Ann"});
    changeMind("changeOwnerButton");
    act("applyButton");
    EXPECT_EQ(value("ownerField"), "Ann");

    open("effective", demo::supervisor, both);
    changeMind("selectUserBtn");
    EXPECT_EQ(view<EffectiveRightsViewController>().domainIdentity, "ActiveDirectory");
    open("rights", demo::supervisor, both);
    changeMind("addBtn");
    EXPECT_EQ(view<RightsTabViewController>().domainIdentity, "ActiveDirectory");
    open("quota", demo::supervisor, both);
    act("addUQButton");
    changeMind("selectTrusteeBtn");
    EXPECT_EQ(
        dynamic_cast<AddUserQuotaViewController&>(*control("selectTrusteeBtn").parentWidget()).domainIdentity,
        "ActiveDirectory");
}

TEST_F(SheetAndLinkTest, AnExceptionIsLoggedAndEndsTheProgramInOrder) {
    for (const bool isKnown : {true, false}) {
        log.take();
        QTimer::singleShot(0, [isKnown] {
            if (isKnown)
                throw std::runtime_error("out of rows");
            throw 7;
        });
        EXPECT_EQ(QApplication::exec(), 1);
        EXPECT_THAT(log.take(), ElementsAre(isKnown ? "Unexpected exception: out of rows"
                                                    : "Unexpected exception of an unknown type"));
    }
    EXPECT_EQ(Application::run([]() -> int { throw std::runtime_error("no home"); }), 1);
    EXPECT_THAT(log.take(), ElementsAre("Unexpected exception: no home"));
}

TEST_F(SheetAndLinkTest, AnAlertSurvivesTheEndOfTheWindowBelowIt) {
    openWindow();
    bool wasOpen = false;
    QTimer::singleShot(0, [&] {
        wasOpen = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr;
        window.reset();
    });
    platform::QtAlerts().runModal("Error_Title", "gone", platform::AlertStyle::critical);
    EXPECT_TRUE(wasOpen);
}

TEST_F(SheetAndLinkTest, AFolderThatCannotBeReadIsLoggedOnceItComesIntoView) {
    const FakeWorld other;
    other.volumes->folders["/Volumes/VOL/locked"].error = "Permission denied";
    EXPECT_FALSE(FileItem("/Volumes/VOL/locked", true).isExpandable());
    EXPECT_THAT(log.take(), ElementsAre("Permission denied"));
}

TEST_F(SheetAndLinkTest, AScreenReaderSaysWhereTheLogIs) {
    open("settings");
    const auto* label = QAccessible::queryAccessibleInterface(&control("LogInfoLabel"));
    EXPECT_EQ(label->text(QAccessible::Name), "/Users/<username>/Library/Logs/tarnix");
}

} // namespace
} // namespace quorvan::test
