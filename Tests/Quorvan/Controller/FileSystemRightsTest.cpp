// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/FileSystemRightsViewController.h"
#include "Quorvan/Controller/Rights/GroupRightsViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Toolkit/FileTreeModel.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QLabel>
#include <QTreeView>

#include <filesystem>
#include <fstream>
#include <span>

namespace quorvan::test {
namespace {

struct FileSystemRightsTest : WindowTest {
    using Page = FileSystemRightsViewController;

    void openFor(const char* name) {
        open("files");
        take("selectUserBtn", "Users_Title", meridal, {name});
    }
    void addPaths(const Texts& paths) {
        Texts addresses;
        for (const std::string& path : paths)
            addresses.push_back("file:///Volumes/VOL1/" + path);
        view<Page>().onReturnSelectedPath(addresses);
    }
};

TEST_F(FileSystemRightsTest, SendsOneRequestForEachChangeInTheOrderOfTheEdits) {
    openFor("Zoe");
    play("| rows Box, Box\\Low RWECMFA | grpBtn ready | addBtn ready | removeBtn ready");
    view<Page>().onReturnSelectedUser({"Zoe"}, {"Zoe"}, "Groups"); // which are in no groups
    EXPECT_FALSE(isEnabled("grpBtn"));
    view<Page>().onReturnSelectedUser({"?", "admin"}, {"?", "admin"}, "Users");
    play("| namefield admin | rows Box RF, Box\\Low RF | applyBtn grey | revertBtn grey");

    world.server->addPath("VOL1:\\Tests\\Box\\50% #1 ü");
    act("tick 1W");
    addPaths({"Tests/Box/Low", "Tests/Box/50%25%20%231%20%C3%BC"}); // one that is listed is skipped
    act("tick 2E, pick 0, removeBtn");                              // the tick goes into the pending addition
    addPaths({"Tests/Box"});
    play(R"(
                            | rows Box\Low RWF, Box\50% #1 ü REF, >Box RF | applyBtn ready | revertBtn ready
        pick 1, applyBtn    | sent add admin Box\Low / add admin Box\50% #1 ü / remove admin Box / add admin Box
                            | rows Box RF, >Box\50% #1 ü REF, Box\Low RWF | applyBtn grey | revertBtn grey | alerts
    )");
    addPaths({"Current Project"}); // a link
    EXPECT_EQ(act("applyBtn").changes().front(), "add admin VOL1:\\Current Project");
    EXPECT_EQ(view<Page>().selectedPath, box) << "where a change leads, the selection does not follow";
    play(R"(
                            | count 3
        tick 0R, revertBtn  | row 0 Box RF | applyBtn grey
        pick, removeBtn, applyBtn | sent | applyBtn grey            // nothing is selected, and nothing pending
        tick 0R
    )");
    take("selectUserBtn", "Users_Title", meridal, {"Zoe"}); // drops what is pending
    play("header, header | rows Box\\Low RWECMFA, Box");
    addPaths({"Tests"});
    play("applyBtn | sent add Zoe VOL1:\\Tests");
    breakPipes();
    view<Page>().onReturnMorvaneSelectedUser({});
    play("| alerts Err_Operation_Failed, Err_Operation_Failed | title Rights Management");
}

TEST_F(FileSystemRightsTest, TurnsLocalAddressesIntoServerPaths) {
    for (const auto& [address, path] : {std::pair{"file:///Volumes/VOL1/dir/sub/", "VOL1:\\dir\\sub\\"},
                                        {"file:///Volumes/VOL1/", "VOL1:\\"},
                                        {"file:///Volumes/VOL1", "VOL1\\"},
                                        {"", ""}})
        EXPECT_EQ(FileSystemRightsViewController::formatPath(address), path);
}

TEST_F(FileSystemRightsTest, TheFolderBrowserHandsOnWhatIsSelectedInTheOrderOfTheRows) {
    const auto volume = *world.volumes->folderOf("VOL1") / "Tests" / "Box";
    const std::string odd = "latin-\xEF\xBF\xBD";
    std::filesystem::create_directories(volume / "a b%20#ü");
    const std::ofstream empty(volume / "latin-\xFC");
    std::filesystem::create_symlink("nowhere", volume / "dangling");
    openFor("admin");
    play("addBtn | pathController /Volumes/VOL1 | notMountedLabel hidden | selectBtn grey");
    auto& tree = control<QTreeView>("fileBrowser");
    const auto child = [&tree](const QModelIndex& parent, const std::string& name) {
        const auto found = tree.model()->match(tree.model()->index(0, 0, parent), Qt::DisplayRole,
                                               QString::fromStdString(name), 1, Qt::MatchExactly);
        return found.isEmpty() ? QModelIndex() : found.front();
    };
    const QModelIndex volumeItem = tree.model()->index(0, 0);
    EXPECT_EQ(tree.currentIndex(), child(child(volumeItem, "Tests"), "Box")) << "it opens where the user is";
    tree.collapse(volumeItem);
    tree.expand(volumeItem);
    const QModelIndex tests = child(volumeItem, "Tests");
    tree.setCurrentIndex(tests);
    QTest::keyClick(&tree, Qt::Key_Asterisk);
    EXPECT_FALSE(tree.isExpanded(child(tests, "Box"))) << "one key would open all folders of the volume";
    tree.expand(tests);
    const QModelIndex box = child(tests, "Box");
    tree.expand(box);
    EXPECT_FALSE(child(box, "dangling").isValid());
    tree.expand(child(box, odd)); // no folder
    std::filesystem::create_directory(volume / "later");
    std::filesystem::remove(volume / "Low");
    EXPECT_FALSE(child(box, "later").isValid());
    tree.expand(child(box, "Low")); // gone by now
    tree.collapse(box);
    tree.expand(box);
    EXPECT_TRUE(child(box, "later").isValid()) << "a folder is listed again whenever it is opened";
    tree.setCurrentIndex(box);
    tree.clearSelection();
    EXPECT_TRUE(isEnabled("selectBtn")) << "once on, it stays so";
    for (const QModelIndex& chosen : {box, child(box, "a b%20#ü"), child(box, odd), tests})
        tree.selectionModel()->select(chosen, QItemSelectionModel::Select);
    tree.selectionModel()->select(box, QItemSelectionModel::Deselect);
    Texts expected = {"VOL1:\\Tests", "VOL1:\\Tests\\Box\\a b%20#ü", "VOL1:\\Tests\\Box\\latin-\xFC"};
    if (child(box, odd).row() < child(box, "a b%20#ü").row())
        std::swap(expected[1], expected[2]);
    act("selectBtn");
    Texts added;
    for (const auto& row : std::span(view<Page>().editedfrightsList).subspan(2))
        added.push_back(row->fpath);
    EXPECT_EQ(added, expected);
    EXPECT_EQ(value("noticeText"), "Path_Outside_Label") << "one of them is above the managed path";
}

TEST_F(FileSystemRightsTest, TheFolderBrowserLooksOnlyIntoFoldersThatCanBeSeen) {
    const FakeWorld other;
    auto& folders = other.volumes->folders;
    folders["/Volumes/BIG"].entries.assign(50000, {"d", true});
    folders["/Volumes/LOCKED"].error = "Permission denied";
    BrowseFolderViewController browser;
    BrowseFolderViewController nowhere;
    browser.volpath = "BIG";
    nowhere.volpath = "GONE";
    for (auto* each : {&browser, &nowhere}) {
        each->beginAppearing();
        each->resize(300, 400);
        each->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(each));
    }
    const auto* tree = browser.fileBrowser->model();
    EXPECT_EQ(tree->rowCount(tree->index(0, 0)), 50000);
    EXPECT_LT(other.volumes->listed.size(), 100U);
    EXPECT_EQ(nowhere.fileBrowser->model()->rowCount(), 1) << "the root alone";
    EXPECT_FALSE(browser.notMountedLabel->isVisible());
    EXPECT_TRUE(nowhere.notMountedLabel->isVisible());
    log.take();
    EXPECT_THAT(FileItem("/Volumes/LOCKED", true).computeChildren(), IsEmpty());
    EXPECT_THAT(log.take(), ElementsAre("Permission denied"));
}

TEST_F(FileSystemRightsTest, GroupRightsOfEitherDirectoryAppearWithEveryAppearance) {
    auto& staff = world.identities->addDomainGroup("Staff", "S-1-staff");
    auto& silent = world.identities->addDomainGroup("NoSid", "");
    auto& choir = world.identities->addTreeGroup("Choir", "Verlag", "guid-choir");
    world.identities->addDomainUser("Ann", "S-1-ann").groups = {&staff, &silent};
    world.identities->addTreeUser("Eve", "Verlag", "guid-eve").groups = {&choir};
    world.server->setTrustee("VOL1:\\Tests\\Box\\Low", staff, 0x0C1);
    world.server->setTrustee(box, choir, 0x041);

    openFor("Ann");
    play("grpBtn, tick 0W | rows >Staff Box\\Low RMF"); // is for reading
    EXPECT_THAT(view<GroupRightsViewController>().grpIDs, ElementsAre("S-1-staff"));
    view<GroupRightsViewController>().viewWillAppear();
    play("| rows >Staff Box\\Low RMF, Staff Box\\Low RMF");
    play("type searchField zzz | empty nothing like zzz");
    play("type searchField st?ff | count 2");
    play("key F5 | rows Staff Box\\Low RMF | searchField");
    play("key Alt+Left | title File_System_Rights_Title");

    Shared::value().bothID = true;
    open("files");
    take("selectUserBtn", "Users_Title", verlag, {"CN=Eve.OU=Verlag.O=Meridal"});
    play("grpBtn | rows .CN=Choir.OU=Verlag.O=Meridal.MERIDAL-TREE. Box RF");
    auto& groups = view<GroupRightsViewController>();
    EXPECT_THAT(groups.grpIDs, ElementsAre("guid-choir"));
    groups.grouplist.clear();
    groups.addToDataSource(groups.frightsList);
    EXPECT_EQ(groups.grpTrusteeList.back().groupName, "Unknown");

    world.server->misbehaviour.code = 7;
    world.server->misbehaviour.onlyWith = "<attributeName>guid<";
    act("closeBtn, grpBtn");
    EXPECT_THAT(view<GroupRightsViewController>().grouplist, SizeIs(1));
    EXPECT_THAT(view<GroupRightsViewController>().grpIDs, IsEmpty()) << "the server's code is no ID";
    play("closeBtn, break pipes, grpBtn | alerts Err_Operation_Failed, Err_Operation_Failed | title "
         "Group_Rights_Title");
}

} // namespace
} // namespace quorvan::test
