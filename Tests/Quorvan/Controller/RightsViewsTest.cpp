// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/DirectoryTrusteeViewController.h"
#include "Quorvan/Controller/Rights/EffectiveRightsViewController.h"
#include "Quorvan/Controller/Rights/InheritedRightsViewController.h"
#include "Quorvan/Controller/Rights/ViewTabController.h"
#include "Quorvan/Modal/ParentPaths.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Tests/Quorvan/Controller/RightsViewsFixture.h"

#include <QTabBar>
#include <QTabWidget>

#include <cerrno>

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
namespace demo = simulator::demo;

/// The tabs of the rights window on VOL1:\Tests\Box; trustees stand above and below it, too.
struct RightsViewsTest : RightsViewsFixture {
    template <class View>
    View* openTab(ViewTabController::TabItem item, const char* user = demo::supervisor) {
        tabs = openPage<ViewTabController>(user, "ActiveDirectory");
        tab = static_cast<RightsTabViewController*>(tabs->childControllers().front());
        visit(item);
        return static_cast<View*>(tabs->childControllers()[static_cast<std::size_t>(item)]);
    }
    void visit(int item) {
        QTabBar* bar = tabs->tabView->tabBar();
        QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(item).center());
        QCoreApplication::processEvents(); // the controls of a view that loads under the eyes follow
    }
    /// The rows of a folder tab's table as "admin VOL1:\Tests 0x41".
    static Texts rows(const DirectoryTrusteeViewController::Rows& list) {
        Texts texts;
        for (const auto& [trustee, path] : list)
            texts.push_back(trustee->trusteeName + " " + path + " 0x" +
                            QString::number(trustee->rights, 16).toStdString());
        return texts;
    }
    static QStringList visitedFrom(QWidget* control, int steps) {
        control->setFocus();
        QStringList visited;
        for (int step = 0; step < steps; ++step) {
            visited.append(QApplication::focusWidget()->objectName());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        return visited;
    }
    ViewTabController* tabs = nullptr;
};

TEST_F(RightsViewsTest, EnableWhatTheUsersOwnRightsAllow) {
    for (const auto& [user, edit] :
         {std::pair{demo::supervisor, true}, {demo::accessControl, true}, {demo::readOnly, false}}) {
        SCOPED_TRACE(user);
        const auto* filter =
            openTab<InheritedRightsViewController>(ViewTabController::inheritedTabLabel, user);
        for (const QCheckBox* box : {filter->readIRF, filter->writeIRF, filter->eraseIRF, filter->modifyIRF,
                                     filter->createIRF, filter->fscanIRF, filter->accessIRF})
            EXPECT_EQ(box->isEnabled(), edit);
        EXPECT_FALSE(filter->supervisorIRF->isEnabled());
        EXPECT_FALSE(filter->applyBtn->isEnabled() || filter->revertBtn->isEnabled());
        EXPECT_EQ(filter->readOnlyLabel->isVisible(), !edit);

        auto* effective = openTab<EffectiveRightsViewController>(ViewTabController::effectiveTabLabel, user);
        EXPECT_EQ(effective->selectUserBtn->isEnabled(), edit);
        EXPECT_FALSE(effective->readChk->isEnabled());
        clickCell(*effective->effRightsTable, 1, "W");
        EXPECT_FALSE(ticked(*effective->effRightsTable, 1, "W")) << "the table is for reading";

        auto* folders = openTab<DirectoryTrusteeViewController>(ViewTabController::trusteeDirTabLabel, user);
        for (RightsTable* table : {folders->subdirTable, folders->parentdirTable}) {
            const bool before = ticked(*table, 0, "S");
            clickCell(*table, 0, "S");
            EXPECT_EQ(ticked(*table, 0, "S") != before, user == demo::supervisor);
        }
        EXPECT_EQ(folders->removeBtnSub->isEnabled() && folders->removeBtnParent->isEnabled(), edit);
        EXPECT_EQ(folders->applybtn->isEnabled(), user == demo::supervisor);
        EXPECT_EQ(folders->readOnlyLabel->isVisible(), !edit);
    }
}

TEST_F(RightsViewsTest, InheritedFilterIsEditedSentAndKept) {
    world.server->setFilter(path, 0x1F9);
    auto* view = openTab<InheritedRightsViewController>(ViewTabController::inheritedTabLabel);
    EXPECT_EQ(view->accessIRF->property("identifier"), "accessControlCheckID");
    view->editedIRF |= 0x0004; // a bit that nobody knows
    EXPECT_TRUE(view->readIRF->isChecked());
    EXPECT_FALSE(view->writeIRF->isChecked());
    click(view->readIRF);
    click(view->writeIRF);
    EXPECT_EQ(view->editedIRF, 0x1FE);
    visit(ViewTabController::rightsTabLabel);
    visit(ViewTabController::inheritedTabLabel);
    EXPECT_TRUE(view->applyBtn->isEnabled()) << "the edits outlive a visit to another tab";
    click(view->applyBtn);
    EXPECT_EQ(world.server->filter(path), 0x1FA);
    EXPECT_FALSE(view->applyBtn->isEnabled() || view->revertBtn->isEnabled());

    click(view->readIRF);
    click(view->readIRF);
    EXPECT_TRUE(view->revertBtn->isEnabled()) << "a click never switches it off";
    click(view->readIRF);
    click(view->revertBtn);
    EXPECT_FALSE(view->readIRF->isChecked());

    world.server->misbehaviour.openError = EIO;
    click(view->eraseIRF);
    click(view->applyBtn);
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_TRUE(view->applyBtn->isEnabled());
    click(view->revertBtn);
    EXPECT_FALSE(view->eraseIRF->isChecked()) << "what could not be sent is what Revert returns to";
    EXPECT_EQ(world.server->filter(path), 0x1FA);
}

TEST_F(RightsViewsTest, EffectiveRightsOfTrusteesAndOfOneThatIsChosen) {
    auto* view = openTab<EffectiveRightsViewController>(ViewTabController::effectiveTabLabel);
    EXPECT_THAT(names(*view->effRightsTable),
                ElementsAre("Müller", "admin", "Zoe", "ADMIN", "ingrid.holm", "tomas.beran", "lea.fournier"));
    EXPECT_TRUE(ticked(*view->effRightsTable, 0, "S") && ticked(*view->effRightsTable, 0, "A"));
    EXPECT_FALSE(ticked(*view->effRightsTable, 2, "R"));

    click(view->selectUserBtn);
    EXPECT_EQ(browser(view).objectName(), "ViewBrowseAD");
    EXPECT_FALSE(browser(view).wish.isMultipleSel);
    EXPECT_TRUE(
        view->onReturnSelectedUser({"Müller", "ADMIN", "admin", "?"}, {"Müller", "ADMIN", "admin"}, ""));
    EXPECT_EQ(view->userGroupField->text(), "admin");
    EXPECT_TRUE(view->readChk->isChecked() && view->fsChk->isChecked());
    EXPECT_FALSE(view->writeChk->isChecked() || view->supervisorChk->isChecked());
    world.server->misbehaviour.openError = EIO;
    view->onReturnSelectedUser({"Zoe"}, {"Zoe"}, "");
    EXPECT_EQ(view->userGroupField->text(), "Zoe");
    view->userGroupField->setPath("a <b>name</b>");
    EXPECT_TRUE(view->userGroupField->toolTip().contains("&lt;b&gt;")) << "shown as it is";
    EXPECT_TRUE(view->readChk->isChecked()) << "the rights of the one before";
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_DEATH(view->onReturnMorvaneSelectedUser({}), "no identity");

    world.server->misbehaviour = {};
    type(view->searchField, "adm");
    EXPECT_THAT(names(*view->effRightsTable), ElementsAre("admin", "ADMIN"));
    visit(ViewTabController::rightsTabLabel);
    world.server->setTrustee(path, world.identities->addDomainUser("adminora", "adminora"), 1);
    visit(ViewTabController::effectiveTabLabel);
    EXPECT_EQ(names(*view->effRightsTable).size(), 8U) << "each visit loads anew";
    type(view->searchField, "admi");
    EXPECT_THAT(names(*view->effRightsTable), ElementsAre("admin", "ADMIN"))
        << "the search goes on over the rows it began with";

    world.server->misbehaviour.code = 7;
    visit(ViewTabController::rightsTabLabel);
    alertPort->shown.clear();
    world.server->misbehaviour.onlyWith = "getAllEffectiveRights";
    view = openTab<EffectiveRightsViewController>(ViewTabController::effectiveTabLabel);
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_THAT(host->titles, ElementsAre("Rights Management"));
}

TEST_F(RightsViewsTest, BothIdentitiesComeTogetherAndTheFirstFailsInSilence) {
    Shared::value().bothID = true;
    bundle->features->at("enableSettings") = false;
    auto* view = openTab<EffectiveRightsViewController>(ViewTabController::effectiveTabLabel);
    EXPECT_EQ(names(*view->effRightsTable).size(), 11U);
    EXPECT_EQ(names(*view->effRightsTable)[7], "CN=Vera.OU=Verlag.O=Meridal") << "behind Active Directory";
    click(view->selectUserBtn);
    EXPECT_EQ(browser(view).objectName(), "IdentifySource");
    view->onReturnIdentifySource("Morvane");
    EXPECT_EQ(browser(view).objectName(), "ViewBrowseMorvane");
    view->onReturnMorvaneSelectedUser({User("Vera", "inetorgperson", "guid-vera")});
    EXPECT_TRUE(view->readChk->isChecked() && !view->writeChk->isChecked());

    world.server->misbehaviour.code = 7;
    world.server->misbehaviour.onlyWith = "getAllEffectiveRights><adOnly/>";
    visit(ViewTabController::rightsTabLabel);
    visit(ViewTabController::effectiveTabLabel);
    EXPECT_EQ(names(*view->effRightsTable).size(), 4U) << "those of the tree";
    world.server->misbehaviour.onlyWith = "<rightsRequest><adOnly/>";
    visit(ViewTabController::trusteeDirTabLabel);
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_THAT(host->titles, IsEmpty());
    const auto* folders = static_cast<DirectoryTrusteeViewController*>(tabs->childControllers().back());
    EXPECT_THAT(names(*folders->parentdirTable)[0], "CN=Vera.OU=Verlag.O=Meridal");

    bundle->features->at("addBothTrustees") = false;
    view = openTab<EffectiveRightsViewController>(ViewTabController::effectiveTabLabel);
    EXPECT_FALSE(view->selectUserBtn->isEnabled()) << "even for a supervisor";
}

TEST_F(RightsViewsTest, NameEveryControlAndReachItByTab) {
    const auto* filter = openTab<InheritedRightsViewController>(ViewTabController::inheritedTabLabel);
    click(filter->readIRF);
    EXPECT_EQ(visitedFrom(filter->readIRF, 9),
              QStringList({"readIRF", "writeIRF", "eraseIRF", "createIRF", "modifyIRF", "fscanIRF",
                           "accessIRF", "revertBtn", "applyBtn"}));
    const auto* effective = openTab<EffectiveRightsViewController>(ViewTabController::effectiveTabLabel);
    EXPECT_EQ(visitedFrom(effective->searchField, 3),
              QStringList({"searchField", "effRightsTable", "selectUserBtn"}));
    const auto* folders = openTab<DirectoryTrusteeViewController>(ViewTabController::trusteeDirTabLabel);
    click(folders->removeBtnSub);
    EXPECT_EQ(visitedFrom(folders->searchInSubField, 8),
              QStringList({"searchInSubField", "subdirTable", "removeBtnSub", "searchInParentField",
                           "parentdirTable", "removeBtnParent", "revertbtn", "applybtn"}));
    QTest::keySequence(tabs, QKeySequence::Find);
    const QString first = QApplication::focusWidget()->objectName();
    QTest::keySequence(tabs, QKeySequence::Find);
    EXPECT_NE(first, QApplication::focusWidget()->objectName()) << "the search fields take turns";
    for (const QWidget* control : tabs->findChildren<QWidget*>())
        if (control->focusPolicy() != Qt::NoFocus && !control->objectName().isEmpty() &&
            !control->objectName().startsWith("qt_") && !control->objectName().startsWith("Scroll")) {
            const auto* button = qobject_cast<const QAbstractButton*>(control);
            EXPECT_FALSE((button != nullptr ? button->text() : control->accessibleName()).isEmpty())
                << control->objectName().toStdString();
        }
}

TEST(ParentPaths, EndWithTheRootInBothSpellings) {
    EXPECT_THAT(getParentPaths("VOL1:\\a\\b\\c"),
                ElementsAre("VOL1:\\a\\b\\c", "VOL1:\\a\\b", "VOL1:\\a", "VOL1:\\", "VOL1:"));
    EXPECT_THAT(getParentPaths("VOL1:\\a"), ElementsAre("VOL1:\\a", "VOL1:\\", "VOL1:"));
    EXPECT_THAT(getParentPaths("VOL1:\\"), ElementsAre("VOL1:\\", "VOL1:"));
    EXPECT_THAT(getParentPaths(""), IsEmpty());
    EXPECT_DEATH(getParentPaths("VOL1:"), "no backslash");
    EXPECT_EQ(volumeOfPath("\\VOL1:\\a"), "VOL1:");
    EXPECT_DEATH(volumeOfPath("\\\\"), "no volume");
}

TEST_F(RightsViewsTest, FolderTrusteesOfBothTablesGoOutInTheOrderOfTheEdits) {
    auto* view = openTab<DirectoryTrusteeViewController>(ViewTabController::trusteeDirTabLabel);
    const std::string box = path;
    EXPECT_THAT(rows(view->editedSubtrusteeList),
                ElementsAre("Müller " + box + " 0x1fb", "admin " + box + " 0x41", "Zoe " + box + " 0x0",
                            "ADMIN " + box + " 0xfb", "admin " + box + "\\Low 0x41",
                            "Zoe " + box + "\\Low 0xfb"));
    EXPECT_THAT(rows(view->editedParenttrusteeList),
                ElementsAre("Müller " + box + " 0x1fb", "admin " + box + " 0x41", "Zoe " + box + " 0x0",
                            "ADMIN " + box + " 0xfb", "admin VOL1:\\Tests 0xc1", "ingrid.holm VOL1:\\ 0x100",
                            "tomas.beran VOL1:\\ 0xfb", "lea.fournier VOL1:\\ 0x41"))
        << "nearest first, and nothing from beside the path";

    click(view->removeBtnSub);
    EXPECT_TRUE(view->applybtn->isEnabled() && view->trackTrusteeList.empty());
    clickCell(*view->subdirTable, 4, "W");
    clickCell(*view->parentdirTable, 4, "S");
    clickCell(*view->subdirTable, 4, "R"); // the same row again
    clickCell(*view->subdirTable, 5, "username");
    click(view->removeBtnSub);
    clickCell(*view->parentdirTable, 1, "username");
    click(view->removeBtnParent);
    EXPECT_THAT(rows(view->trackTrusteeList),
                ElementsAre("admin " + box + "\\Low 0x42", "admin VOL1:\\Tests 0x1c1",
                            "Zoe " + box + "\\Low 0xfb", "admin " + box + " 0x41"));
    EXPECT_THAT(changeRequests(), IsEmpty());

    visit(ViewTabController::rightsTabLabel);
    visit(ViewTabController::trusteeDirTabLabel);
    EXPECT_EQ(view->editedSubtrusteeList.size(), 6U) << "the rows are the server's again";
    EXPECT_FALSE(view->applybtn->isEnabled());
    EXPECT_EQ(view->trackTrusteeList.size(), 4U) << "… and what is pending waits for the next Apply";
    clickCell(*view->subdirTable, 2, "R");
    world.server->misbehaviour.openError = EIO;
    click(view->applybtn);
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_EQ(view->trackTrusteeList.size(), 5U);
    world.server->misbehaviour = {};
    click(view->applybtn);
    EXPECT_THAT(changeRequests(), ElementsAre("addTrustee admin; addTrustee admin; removeTrustee Zoe; "
                                              "removeTrustee admin; addTrustee Zoe; "));
    EXPECT_EQ(onServer("admin"), -1);
    EXPECT_EQ(onServer("Zoe"), 0x001);
    EXPECT_EQ(world.server->rightsOf("VOL1:\\Tests", *world.identities->findById("admin")), 0x1FB)
        << "a supervisor now";
    EXPECT_THAT(rows(view->editedSubtrusteeList).back(), "admin " + box + "\\Low 0x42");

    const auto requests = world.server->requestCount();
    clickCell(*view->subdirTable, 0, "R");
    click(view->revertbtn);
    EXPECT_TRUE(ticked(*view->subdirTable, 0, "R") && view->trackTrusteeList.empty());
    EXPECT_EQ(world.server->requestCount(), requests);
}

TEST_F(RightsViewsTest, FolderTrusteesAreSearchedByNameAndPath) {
    auto* view = openTab<DirectoryTrusteeViewController>(ViewTabController::trusteeDirTabLabel);
    type(view->searchInSubField, "low");
    EXPECT_THAT(names(*view->subdirTable), ElementsAre("admin", "Zoe"));
    EXPECT_EQ(names(*view->parentdirTable).size(), 8U) << "each table has its own search";
    clickCell(*view->subdirTable, 0, "W");
    clickCell(*view->subdirTable, 1, "username");
    click(view->removeBtnSub);
    type(view->searchInSubField, "");
    EXPECT_THAT(names(*view->subdirTable), ElementsAre("Müller", "admin", "Zoe", "ADMIN", "admin", "Zoe"));
    EXPECT_TRUE(ticked(*view->subdirTable, 1, "W"))
        << "the first row of the identity follows, on whatever path";
    EXPECT_FALSE(ticked(*view->subdirTable, 4, "W"));
    EXPECT_EQ(view->trackTrusteeList.size(), 2U);
    EXPECT_EQ(view->subtrusteeList[1].trustee->rights, 0x41) << "an edit reached what was loaded";

    QTest::mouseClick(view->subdirTable->horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 8});
    EXPECT_THAT(names(*view->subdirTable), ElementsAre("admin", "ADMIN", "admin", "Müller", "Zoe", "Zoe"));
    EXPECT_THAT(names(*view->parentdirTable)[0], "Müller");

    world.server->misbehaviour.code = 7;
    world.server->misbehaviour.onlyWith = "rightsRequest";
    openTab<DirectoryTrusteeViewController>(ViewTabController::trusteeDirTabLabel);
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Operation_Failed"))
        << "one for each table";
    EXPECT_THAT(host->titles, ElementsAre("Rights Management"));
}

} // namespace
} // namespace quorvan::test
