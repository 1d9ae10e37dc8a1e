// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/FileSystemRightsViewController.h"
#include "Quorvan/Controller/Rights/GroupRightsViewController.h"
#include "Quorvan/Toolkit/FileTreeModel.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QLabel>
#include <QTreeView>

#include <filesystem>
#include <fstream>
#include <ranges>

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
    EXPECT_THAT(rows(), ElementsAre("Box", "Box\\Low RWECMFA"));
    EXPECT_TRUE(isEnabled("grpBtn") && isEnabled("addBtn") && isEnabled("removeBtn"));
    view<Page>().onReturnSelectedUser({"Zoe"}, {"Zoe"}, "Groups");
    EXPECT_FALSE(isEnabled("grpBtn")) << "groups are in no groups";
    view<Page>().onReturnSelectedUser({"?", "admin"}, {"?", "admin"}, "Users");
    EXPECT_EQ(value("namefield"), "admin");
    EXPECT_THAT(rows(), ElementsAre("Box RF", "Box\\Low RF"));
    EXPECT_FALSE(changesEnabled());

    act("tick 1W");
    addPaths({"Tests/Box/Low", "Tests/Box/50%25%20%231%20%C3%BC"}); // one that is listed is skipped
    act("tick 2E");                                                 // goes into the pending addition
    act("pick 0, removeBtn");
    addPaths({"Tests/Box"});
    EXPECT_THAT(rows(), ElementsAre("Box\\Low RWF", "Box\\50% #1 ü REF", "Box RF"));
    world.server->addPath("VOL1:\\Tests\\Box\\50% #1 ü");
    act("pick 1, applyBtn");
    EXPECT_THAT(changes(), ElementsAre("add admin Box\\Low", "add admin Box\\50% #1 ü", "remove admin Box",
                                       "add admin Box"));
    EXPECT_THAT(rows(), ElementsAre("Box RF", "Box\\50% #1 ü REF", "Box\\Low RWF"));
    EXPECT_FALSE(changesEnabled());
    EXPECT_THAT(alerts(), IsEmpty());

    addPaths({"Current Project"}); // a link
    EXPECT_EQ(act("applyBtn").changes().front(), "add admin VOL1:\\Current Project");
    EXPECT_EQ(view<Page>().selectedPath, box) << "where a change leads, the selection does not follow";
    EXPECT_THAT(rows(), SizeIs(3));

    EXPECT_EQ(act("tick 0R, revertBtn").rows()[0], "Box RF");
    EXPECT_FALSE(changesEnabled());
    act("removeBtn, applyBtn"); // nothing is selected, and nothing pending
    EXPECT_FALSE(changesEnabled());
    act("tick 0R");
    take("selectUserBtn", "Users_Title", meridal, {"Zoe"}); // drops what is pending
    EXPECT_THAT(act("header, header").rows(), ElementsAre("Box\\Low RWECMFA", "Box"));
    addPaths({"Tests"});
    EXPECT_THAT(act("applyBtn").changes(), ElementsAre("add Zoe VOL1:\\Tests"));

    breakPipes();
    view<Page>().onReturnMorvaneSelectedUser({});
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Operation_Failed"));
    EXPECT_EQ(title(), "Rights Management");
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
    std::ofstream(volume / "latin-\xFC");
    std::filesystem::create_symlink("nowhere", volume / "dangling");
    openFor("admin");
    EXPECT_EQ(act("addBtn").value("pathController"), "/Volumes/VOL1");
    EXPECT_FALSE(isShown("notMountedLabel") || isEnabled("selectBtn"));

    auto& tree = control<QTreeView>("fileBrowser");
    const auto child = [&tree](const QModelIndex& parent, const std::string& name) {
        const auto found = tree.model()->match(tree.model()->index(0, 0, parent), Qt::DisplayRole,
                                               QString::fromStdString(name), 1, Qt::MatchExactly);
        return found.isEmpty() ? QModelIndex() : found.front();
    };
    const auto choose = [&tree](const std::vector<QModelIndex>& chosen) {
        for (const QModelIndex& each : chosen)
            tree.selectionModel()->select(each, QItemSelectionModel::Select);
    };
    const QModelIndex tests = child(tree.model()->index(0, 0), "Tests");
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

    choose({child(box, "a b%20#ü"), box});
    tree.clearSelection();
    EXPECT_TRUE(isEnabled("selectBtn")) << "once on, it stays so";
    choose({child(box, "a b%20#ü"), child(box, odd), tests});
    Texts expected = {"VOL1:\\Tests", "VOL1:\\Tests\\Box\\a b%20#ü", "VOL1:\\Tests\\Box\\latin-\xFC"};
    if (child(box, odd).row() < child(box, "a b%20#ü").row())
        std::swap(expected[1], expected[2]);
    act("selectBtn");
    Texts added;
    for (const auto& row : view<Page>().editedfrightsList | std::views::drop(2))
        added.push_back(row->fpath);
    EXPECT_EQ(added, expected);
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
    act("grpBtn");
    EXPECT_THAT(view<GroupRightsViewController>().grpIDs, ElementsAre("S-1-staff"));
    act("tick 0W"); // is for reading
    EXPECT_THAT(rows(), ElementsAre(">Staff Box\\Low RMF"));
    view<GroupRightsViewController>().viewWillAppear();
    EXPECT_THAT(rows(), ElementsAre("Staff Box\\Low RMF", "Staff Box\\Low RMF"));
    EXPECT_THAT(act("type searchField zzz").rows(), IsEmpty());
    EXPECT_THAT(act("type searchField st?ff").rows(), SizeIs(2));

    open("files", demo::supervisorTree);
    take("selectUserBtn", "Users_Title", verlag, {"CN=Eve.OU=Verlag.O=Meridal"});
    EXPECT_THAT(act("grpBtn").rows(), ElementsAre(".CN=Choir.OU=Verlag.O=Meridal.MERIDAL-TREE. Box RF"));
    auto& groups = view<GroupRightsViewController>();
    EXPECT_THAT(groups.grpIDs, ElementsAre("guid-choir"));
    groups.grouplist.clear();
    groups.addToDataSource(groups.frightsList);
    EXPECT_EQ(groups.grpTrusteeList.back().groupName, "Unknown");
    act("closeBtn");

    world.server->misbehaviour.code = 7;
    world.server->misbehaviour.onlyWith = "<attributeName>guid<";
    act("grpBtn");
    EXPECT_THAT(view<GroupRightsViewController>().grouplist, SizeIs(1));
    EXPECT_THAT(view<GroupRightsViewController>().grpIDs, IsEmpty()) << "the server's code is no ID";
    act("closeBtn");
    breakPipes();
    act("grpBtn");
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Operation_Failed")) << "one for each pipe";
    EXPECT_EQ(title(), "Group_Rights_Title");
}

} // namespace
} // namespace quorvan::test
