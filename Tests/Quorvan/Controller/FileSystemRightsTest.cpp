// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/FileSystemRightsViewController.h"
#include "Quorvan/Controller/Rights/GroupRightsViewController.h"
#include "Quorvan/Toolkit/FileTreeModel.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Tests/Quorvan/Controller/RightsViewsFixture.h"

#include <QTreeView>

#include <cerrno>
#include <fstream>

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace demo = simulator::demo;

/// The file-system rights page on VOL1:\Tests\Box, and the sheets that it opens.
struct FileSystemRightsTest : RightsViewsFixture {
    FileSystemRightsTest() {
        Storyboard::named("Main").add("NewFileBrowser", [] { return new BrowseFolderViewController; });
        Storyboard::named("Main").add("groupRightsView", [] { return new GroupRightsViewController; });
    }
    FileSystemRightsViewController* openView(const char* user = demo::supervisor) {
        return openPage<FileSystemRightsViewController>(user, "ActiveDirectory");
    }
    /// "add VOL1:\a 0x41" for each change that reached the server.
    Texts changes() const {
        static const QRegularExpression change(
            "<(add|remove)Trustee\\b.*?<userID>(.*?)</userID>.*?<fileName>(.*?)</fileName>");
        Texts found;
        for (const auto& request : world.server->requests())
            for (auto it = change.globalMatch(QString::fromStdString(request.text)); it.hasNext();) {
                const auto match = it.next();
                found.push_back(
                    (match.captured(1) + " " + match.captured(2) + " " + match.captured(3)).toStdString());
            }
        return found;
    }
    static Texts rows(const FileSystemRightsViewController& view) {
        Texts texts;
        for (const auto& row : view.editedfrightsList)
            texts.push_back(row->fpath + " 0x" + QString::number(row->frights, 16).toStdString());
        return texts;
    }
};

TEST_F(FileSystemRightsTest, ASupervisorChoosesChangesAddsAndRemoves) {
    auto* view = openView(demo::accessControl);
    EXPECT_FALSE(view->selectUserBtn->isEnabled()) << "Access Control is not enough";
    EXPECT_TRUE(view->readOnlyLabel->isVisible());
    view = openView();
    for (const QPushButton* button :
         {view->grpBtn, view->addBtn, view->removeBtn, view->applyBtn, view->revertBtn})
        EXPECT_FALSE(button->isEnabled()) << button->objectName().toStdString();
    click(view->selectUserBtn);
    EXPECT_FALSE(browser(view).wish.isMultipleSel);
    view->onReturnSelectedUser({"Zoe"}, {"Zoe"}, "Groups");
    EXPECT_FALSE(view->grpBtn->isEnabled());
    EXPECT_TRUE(view->addBtn->isEnabled() && view->removeBtn->isEnabled());
    view->onReturnSelectedUser({"?", "admin"}, {"?", "admin"}, "Users");
    EXPECT_TRUE(view->grpBtn->isEnabled());
    EXPECT_EQ(view->namefield->text(), "admin");
    EXPECT_THAT(rows(*view), ElementsAre("VOL1:\\Tests\\Box 0x41", "VOL1:\\Tests\\Box\\Low 0x41"));

    clickCell(*view->fsrTable, 1, "W");
    view->onReturnSelectedPath(
        {"file:///Volumes/VOL1/Tests/Box/Low", "file:///Volumes/VOL1/Tests/Box/50%25%20%231%20%C3%BC"});
    EXPECT_THAT(alerts(), IsEmpty()) << "a path that is listed is skipped";
    clickCell(*view->fsrTable, 2, "E"); // goes into the pending addition
    clickCell(*view->fsrTable, 0, "path");
    click(view->removeBtn);
    view->onReturnSelectedPath({"file:///Volumes/VOL1/Tests/Box"});
    EXPECT_THAT(rows(*view), ElementsAre("VOL1:\\Tests\\Box\\Low 0x43", "VOL1:\\Tests\\Box\\50% #1 ü 0x51",
                                         "VOL1:\\Tests\\Box 0x41"));
    world.server->addPath("VOL1:\\Tests\\Box\\50% #1 ü");
    click(view->applyBtn);
    EXPECT_THAT(changes(),
                ElementsAre("add admin VOL1:\\Tests\\Box\\Low", "add admin VOL1:\\Tests\\Box\\50% #1 ü",
                            "remove admin VOL1:\\Tests\\Box", "add admin VOL1:\\Tests\\Box"))
        << "one request for each, in the order of the edits";
    EXPECT_THAT(rows(*view), ElementsAre("VOL1:\\Tests\\Box 0x41", "VOL1:\\Tests\\Box\\50% #1 ü 0x51",
                                         "VOL1:\\Tests\\Box\\Low 0x43"));
    EXPECT_FALSE(view->applyBtn->isEnabled() || view->revertBtn->isEnabled());

    clickCell(*view->fsrTable, 0, "R");
    click(view->revertBtn);
    EXPECT_TRUE(ticked(*view->fsrTable, 0, "R"));
    clickCell(*view->fsrTable, 0, "R");
    view->onReturnSelectedUser({"Zoe"}, {"Zoe"}, "Users");
    EXPECT_THAT(view->trackfrightsList, IsEmpty()) << "another identity drops what is pending";
    QTest::mouseClick(view->fsrTable->horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 8});
    QTest::mouseClick(view->fsrTable->horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 8});
    EXPECT_THAT(rows(*view), ElementsAre("VOL1:\\Tests\\Box\\Low 0xfb", "VOL1:\\Tests\\Box 0x0"));

    world.server->misbehaviour.openError = EIO;
    view->onReturnMorvaneSelectedUser({});
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_THAT(host->titles, ElementsAre("Rights Management"));
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
    std::filesystem::create_directories(volume / "a b%20#ü");
    std::ofstream(volume / "latin-\xFC");
    std::filesystem::create_symlink("nowhere", volume / "dangling");
    auto* view = openView();
    view->onReturnSelectedUser({"admin"}, {"admin"}, "Users");
    click(view->addBtn);
    auto* browser = sheet<BrowseFolderViewController>(view);
    ASSERT_NE(browser, nullptr);
    EXPECT_EQ(browser->pathController->text(), "/Volumes/VOL1");
    EXPECT_FALSE(browser->notMountedLabel->isVisible() || browser->selectBtn->isEnabled());

    QTreeView& tree = *browser->fileBrowser;
    const auto child = [&tree](const QModelIndex& parent, const char* name) {
        for (int row = 0; row < tree.model()->rowCount(parent); ++row)
            if (tree.model()->index(row, 0, parent).data() == QString::fromUtf8(name))
                return tree.model()->index(row, 0, parent);
        return QModelIndex();
    };
    const QModelIndex tests = child(tree.model()->index(0, 0), "Tests");
    tree.setCurrentIndex(tests);
    QTest::keyClick(&tree, Qt::Key_Asterisk);
    EXPECT_FALSE(tree.isExpanded(child(tests, "Box"))) << "one key would open all folders of the volume";
    tree.expand(tests);
    const QModelIndex box = child(tests, "Box");
    tree.expand(box);
    EXPECT_TRUE(child(box, "latin-\xEF\xBF\xBD").isValid());
    EXPECT_FALSE(child(box, "dangling").isValid());
    tree.expand(child(box, "latin-\xEF\xBF\xBD")); // no folder
    std::filesystem::create_directory(volume / "later");
    std::filesystem::remove(volume / "Low");
    EXPECT_FALSE(child(box, "later").isValid());
    tree.expand(child(box, "Low")); // gone by now
    tree.collapse(box);
    tree.expand(box);
    EXPECT_TRUE(child(box, "later").isValid()) << "a folder is listed again whenever it is opened";

    for (const QModelIndex& chosen : {child(box, "a b%20#ü"), box})
        tree.selectionModel()->select(chosen, QItemSelectionModel::Select);
    EXPECT_TRUE(browser->selectBtn->isEnabled());
    tree.clearSelection();
    EXPECT_TRUE(browser->selectBtn->isEnabled()) << "once on, it stays so";
    for (const QModelIndex& chosen : {child(box, "a b%20#ü"), child(box, "latin-\xEF\xBF\xBD"), tests})
        tree.selectionModel()->select(chosen, QItemSelectionModel::Select);
    const bool latinFirst = child(box, "latin-\xEF\xBF\xBD").row() < child(box, "a b%20#ü").row();
    click(browser->selectBtn);
    Texts added;
    for (const auto& change : view->trackfrightsList)
        added.push_back(change.rights->fpath);
    std::string latin = "VOL1:\\Tests\\Box\\latin-\xFC";
    std::string odd = "VOL1:\\Tests\\Box\\a b%20#ü";
    if (latinFirst)
        std::swap(latin, odd);
    EXPECT_THAT(added, ElementsAre("VOL1:\\Tests", odd, latin));
}

TEST_F(FileSystemRightsTest, TheFolderBrowserLooksOnlyIntoFoldersThatCanBeSeen) {
    FakeWorld other;
    auto& folders = other.volumes->folders;
    folders["/Volumes/BIG"].entries.assign(50000, {"d", true});
    folders["/Volumes/LOCKED"].error = "Permission denied";
    BrowseFolderViewController browser;
    browser.volpath = "BIG";
    browser.beginAppearing();
    browser.resize(300, 400);
    browser.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&browser));
    const auto* tree = browser.fileBrowser->model();
    EXPECT_EQ(tree->rowCount(tree->index(0, 0)), 50000);
    EXPECT_LT(other.volumes->listed.size(), 100U);
    EXPECT_FALSE(browser.notMountedLabel->isVisible());

    log.take();
    EXPECT_THAT(FileItem("/Volumes/LOCKED", true).computeChildren(), IsEmpty());
    EXPECT_THAT(log.take(), ElementsAre("Permission denied"));
    BrowseFolderViewController nowhere;
    nowhere.volpath = "GONE";
    nowhere.beginAppearing();
    EXPECT_FALSE(nowhere.notMountedLabel->isHidden());
    EXPECT_EQ(nowhere.fileBrowser->model()->rowCount(), 1) << "the root alone";
}

TEST_F(FileSystemRightsTest, GroupRightsOfEitherDirectoryAppearWithEveryAppearance) {
    auto& staff = world.identities->addDomainGroup("Staff", "S-1-staff");
    auto& nobody = world.identities->addDomainGroup("NoSid", "");
    auto& choir = world.identities->addTreeGroup("Choir", "Verlag", "guid-choir");
    world.identities->addDomainUser("Ann", "S-1-ann").groups = {&staff, &nobody};
    world.identities->addTreeUser("Eve", "Verlag", "guid-eve").groups = {&choir};
    world.server->setTrustee("VOL1:\\Tests\\Box\\Low", staff, 0x0C1);
    world.server->setTrustee("VOL1:\\Tests\\Box", choir, 0x041);

    auto* view = openView();
    view->onReturnSelectedUser({"Ann"}, {"S-1-ann"}, "Users");
    click(view->grpBtn);
    auto* groups = sheet<GroupRightsViewController>(view);
    ASSERT_NE(groups, nullptr);
    EXPECT_THAT(groups->grpIDs, ElementsAre("S-1-staff"));
    EXPECT_THAT(names(*groups->groupRightsTable), ElementsAre("Staff"));
    EXPECT_TRUE(ticked(*groups->groupRightsTable, 0, "M"));
    clickCell(*groups->groupRightsTable, 0, "M");
    EXPECT_TRUE(ticked(*groups->groupRightsTable, 0, "M")) << "for reading";
    groups->viewWillAppear();
    EXPECT_THAT(names(*groups->groupRightsTable), ElementsAre("Staff", "Staff"));
    type(groups->searchField, "zzz");
    EXPECT_THAT(names(*groups->groupRightsTable), IsEmpty());
    type(groups->searchField, "st?ff");
    EXPECT_EQ(names(*groups->groupRightsTable).size(), 2U);
    click(groups->closeBtn);

    view->onReturnIdentifySource("Morvane");
    browser(view).endSheet();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    view->onReturnMorvaneSelectedUser(
        {User(".CN=Eve.OU=Verlag.O=Meridal.T=MERIDAL-TREE.", "inetOrgPerson", "guid-eve")});
    click(view->grpBtn);
    groups = sheet<GroupRightsViewController>(view);
    ASSERT_NE(groups, nullptr);
    EXPECT_THAT(groups->grpIDs, ElementsAre("guid-choir"));
    ASSERT_EQ(groups->grpTrusteeList.size(), 1U);
    EXPECT_THAT(groups->grpTrusteeList[0].groupName, HasSubstr("Choir"));
    groups->grouplist.clear();
    groups->addToDataSource(groups->frightsList);
    EXPECT_EQ(groups->grpTrusteeList.back().groupName, "Unknown");
    click(groups->closeBtn);

    world.server->misbehaviour.code = 7;
    world.server->misbehaviour.onlyWith = "<attributeName>guid<";
    click(view->grpBtn);
    groups = sheet<GroupRightsViewController>(view);
    EXPECT_EQ(groups->grouplist.size(), 1U);
    EXPECT_THAT(groups->grpIDs, IsEmpty()) << "the server's code is no ID";
    click(groups->closeBtn);

    world.server->misbehaviour.openError = EIO;
    click(view->grpBtn);
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Operation_Failed")) << "one for each pipe";
    EXPECT_THAT(host->titles, IsEmpty());
}

} // namespace
} // namespace quorvan::test
