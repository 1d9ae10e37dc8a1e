// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/EffectiveRightsViewController.h"
#include "Quorvan/Controller/Rights/WhyViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QFile>
#include <QTemporaryDir>

namespace quorvan::test {
namespace {

struct WhyTest : WindowTest {
    WhyTest() {
        bundle->texts = {{"Why_Granted_Self_Label", "to %1 on %2"},
                         {"Why_Granted_Group_Label", "to group %1 on %2"},
                         {"Why_Filtered_Label", "; stopped on %1"},
                         {"Why_Replaced_Label", "; replaced on %1"},
                         {"Why_Served_More_Label", "unexplained: %1"},
                         {"Why_Served_Less_Label", "not granted: %1"},
                         {"Why_Invisible_Label", "%1 is not visible"},
                         {"Why_Everyone_Label", "%3 has %2 on %1"},
                         {"Why_Window_Title", "Why: %1 on %2"},
                         {"Why_Take_Label", "take %1 from %2 on %3"},
                         {"Why_Take_Also_Label", "and %1 from %2 on %3"},
                         {"Why_Let_Through_Label", "let %1 through %2"},
                         {"Why_Give_Label", "give %1 to %2 on %3"},
                         {"Why_On_Server_Label", "%1 at %2"},
                         {"Why_Named_title", "Why %1?"},
                         {"Right_Stopped_Label", "%1 stopped by %2"}};
        auto& outer = world.identities->addDomainGroup("Outer", "S-1-outer");
        auto& inner = world.identities->addDomainGroup("Inner", "S-1-inner");
        ann = &world.identities->addDomainUser("Ann", "S-1-ann");
        inner.groups = {&outer};
        ann->groups = {&inner};
        world.server->setTrustee("VOL1:\\Tests", outer, 0x002);
        world.server->setTrustee("VOL1:\\Tests", *ann, 0x010);
        world.server->setTrustee("VOL1:\\", *ann, 0x008);
        world.server->setFilter(box, 0x0EB); // stops Erase
        world.server->setTrustee(
            "VOL1:\\Tests", world.identities->addDomainGroup("Domain Users", "S-1-5-21-7-8-9-513"), 0x001);
    }
    WhyTest& openWhy() {
        open("effective").take("selectUserBtn", "Users_Title", meridal, {"Ann"});
        act("whyBtn");
        return *this;
    }
    simulator::Identity* ann = nullptr;
};

TEST_F(WhyTest, NamesWhereEachRightComesFromAndWhatStopsIt) {
    EXPECT_EQ(open("effective").state("whyBtn"), "grey");
    openWhy();
    EXPECT_EQ(title(), "Why: Ann on VOL1:\\Tests\\Box");
    EXPECT_FALSE(isShown("differenceLabel")) << value("differenceLabel");
    EXPECT_THAT(
        rows("reasonTable"),
        testing::IsSupersetOf({"Write_Label Why_Yes_Label to group Outer on VOL1:\\Tests",
                               "Erase_Label Why_No_Label to Ann on VOL1:\\Tests; stopped on Box",
                               "Create_Label Why_No_Label to Ann on VOL1:\\; replaced on VOL1:\\Tests",
                               "Modify_Label Why_No_Label Why_Nowhere_Label"}));
    EXPECT_EQ(value("noteLabel"), "Domain Users has Read_Label on VOL1:\\Tests");
    EXPECT_FALSE(isEnabled("goToBtn"));
    // By keyboard: the first reasons, then the one of Erase, whose folder is marked for eye and ear.
    const auto& reasons = control<ListTable>("reasonTable");
    EXPECT_EQ(focus(), &reasons);
    const auto way = [&] {
        const auto& table = control<ListTable>("wayTable");
        Texts folders;
        for (int row = 0; row < table.model()->rowCount(); ++row) {
            const QModelIndex cell = table.model()->index(row, 0);
            folders.push_back(cell.data().toString().left(1).toStdString() +
                              cell.data(Qt::AccessibleTextRole).toString().toStdString());
        }
        return folders;
    };
    while (rows("reasonTable")[static_cast<std::size_t>(std::max(reasons.currentIndex().row(), 0))].find(
               ">Erase") != 0)
        QTest::keyClick(focus(), Qt::Key_Down);
    EXPECT_THAT(way(),
                ElementsAre("V", "▷VOL1:\\Tests, Why_On_Way_Label", "▶VOL1:\\Tests\\Box, Why_Decides_Label"));
    EXPECT_EQ(value("changeLabel"), "let Erase_Label through VOL1:\\Tests\\Box");
    EXPECT_FALSE(isShown("goToBtn2"));
    act("copyBtn");
    const std::string text = QGuiApplication::clipboard()->text().toStdString();
    EXPECT_THAT(text, testing::HasSubstr("Why: Ann on VOL1:\\Tests\\Box\nWhy_Served_Label Write_Label\n"));
    EXPECT_THAT(
        text, testing::HasSubstr("Write_Label \u2013 Why_Yes_Label \u2013 to group Outer on VOL1:\\Tests\n"));

    EXPECT_THAT(text, testing::EndsWith("\nWhy_Change_Label\nlet Erase_Label through VOL1:\\Tests\\Box\n"));
    const QTemporaryDir folder;
    view<WhyViewController>().exportText(folder.filePath("why.txt"));
    QFile file(folder.filePath("why.txt"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly) && file.readAll().toStdString() == text);

    // It leads to the assignment, in the table of the folders above.
    act("goToBtn");
    EXPECT_EQ(title(), "Trustee_Rights_Title");
    EXPECT_THAT(rows("parentdirTable"), Contains(testing::StartsWith(">Ann VOL1:\\Tests")));
    EXPECT_EQ(focus()->objectName(), "parentdirTable");
}

TEST_F(WhyTest, SaysWhatCannotBeExplainedOrSeen) {
    world.server->misbehaviour.onlyWith = "VOL1:\\Tests</fileName>";
    world.server->misbehaviour.code = 20900;
    openWhy();
    EXPECT_EQ(value("differenceLabel"), "unexplained: Write_Label");
    EXPECT_EQ(value("noteLabel"), "VOL1:\\Tests is not visible");
    EXPECT_THAT(rows("wayTable"),
                testing::IsSupersetOf({"VOL1:\\ Why_Not_Visible_Label Why_Not_Visible_Label",
                                       "VOL1:\\Tests Why_Not_Visible_Label Why_Not_Visible_Label"}));
    EXPECT_THAT(alerts(), IsEmpty());
    act("closeBtn");
    breakPipes();
    act("whyBtn");
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_THAT(rows("reasonTable"), IsEmpty());
    EXPECT_EQ(control<ListTable>("reasonTable").emptyText(), "Why_Unknown_Label");
}

TEST_F(WhyTest, AsksForEachFolderOnceAndFollowsLinks) {
    open("effective");
    const auto ask = [this](const std::string& path) {
        const std::size_t before = world.server->requests().size();
        auto& page = view<EffectiveRightsViewController>();
        explainRights(page, page, {{"S-1-ann", "Ann"}, path});
        return world.server->requests().size() - before;
    };
    std::string deep = box;
    for (int depth = 3; depth < 10; ++depth)
        deep += "\\f" + std::to_string(depth);
    world.server->addPath(deep);
    EXPECT_EQ(ask(deep), 11U) << "ten folders, and what the server itself says";
    EXPECT_EQ(rows("wayTable").size(), 10U);
    act("closeBtn");
    const std::string target = std::string(demo::linkTarget) + "Partners";
    world.secondServer->setTrustee(target, *ann, 0x002);
    ask(demo::link);
    EXPECT_THAT(rows("reasonTable"),
                Contains("Write_Label Why_Yes_Label to Ann on " + target + " at files2"));
    EXPECT_FALSE(isShown("differenceLabel"));
}

TEST_F(WhyTest, MarksWhatAFilterStopsUntilTheRowsAreReadAnew) {
    open("folders");
    const auto marks = [this] {
        const auto& table = control<RightsTable>("parentdirTable");
        Texts stopped;
        for (int row = 0; row < table.model()->rowCount(); ++row)
            for (int column = 2; column < table.model()->columnCount(); ++column) {
                const QModelIndex cell = table.model()->index(row, column);
                if (cell.data(RightsTableModel::stoppedRole).toBool())
                    stopped.push_back(table.model()->index(row, 0).data().toString().toStdString() + ": " +
                                      cell.data(Qt::AccessibleTextRole).toString().toStdString());
            }
        return stopped;
    };
    EXPECT_THAT(marks(), IsEmpty()) << "nothing is asked before a person asks";
    act("stoppedBtn");
    EXPECT_THAT(marks(), Contains("Ann: Right_Ticked_Label stopped by VOL1:\\Tests\\Box"));
    EXPECT_EQ(value("noticeText"), "Stopped_Count_Label");
    act("tick:subdirTable 0W, applybtn");
    EXPECT_THAT(marks(), IsEmpty());
    world.server->misbehaviour.onlyWith = "VOL1:\\Tests</fileName>";
    world.server->misbehaviour.code = 20900;
    act("stoppedBtn");
    EXPECT_EQ(value("noticeText"), "Stopped_Unread_Label");
    EXPECT_THAT(marks(), testing::Not(IsEmpty()));
}

TEST_F(WhyTest, LeadsFromOtherPagesToTheAssignmentUnlessChangesWait) {
    const auto why = [this](const char* table) {
        control<ListTable>(table).showRows(0);
        auto* action = control<ListTable>(table).findChild<QAction*>("whyAction");
        EXPECT_TRUE(action->isEnabled());
        const std::string text = action->text().toStdString();
        action->trigger();
        control<ListTable>("reasonTable").showRows(0);
        return text;
    };
    world.server->setTrustee(box, *ann, 0x103);
    world.server->setTrustee(box, *world.identities->findById("S-1-inner"), 0x100);
    open("files").take("selectUserBtn", "Users_Title", meridal, {"Ann"});
    EXPECT_EQ(why("fsrTable"), "Why Ann?");
    EXPECT_EQ(state("goToBtn"), "ready");
    EXPECT_EQ(value("changeLabel2"), "and Supervisor_Label from Inner on VOL1:\\Tests\\Box");
    act("closeBtn, tick 0E");
    why("fsrTable");
    EXPECT_EQ(state("goToBtn"), "grey") << "the page would lose what waits";
    act("closeBtn, revertBtn, grpBtn");
    EXPECT_EQ(why("groupRightsTable"), "Why Inner?");
    act("goToBtn");
    EXPECT_EQ(title(), "Trustee_Rights_Title");
    EXPECT_EQ(focus()->objectName(), "parentdirTable");
    EXPECT_THAT(rows("parentdirTable"), Contains(testing::StartsWith(">Inner")));
    EXPECT_EQ(why("subdirTable").substr(0, 4), "Why ");
    EXPECT_TRUE(isShown("reasonTable"));
}

TEST_F(WhyTest, OpensFromTheMenuOfATableForEitherDirectory) {
    auto& choir = world.identities->addTreeGroup("Choir", "Verlag", "guid-choir");
    auto& eve = world.identities->addTreeUser("Eve", "Verlag", "guid-eve");
    eve.groups = {&choir};
    world.server->setTrustee("VOL1:\\Tests", choir, 0x002);
    world.server->setTrustee("VOL1:\\", *eve.container, 0x001);
    world.server->setTrustee(box, eve, 0x080);
    world.server->setFilter(box, 0x1FB);
    open("rights", demo::supervisorTree);
    auto& table = control<ListTable>("rightsTable");
    auto* why = table.findChild<QAction*>("whyAction");
    EXPECT_FALSE(why->isEnabled()) << "nobody is selected";
    for (std::size_t row = 0; row < rows().size(); ++row)
        if (rows()[row].find("CN=Eve") == 0)
            table.showRows(static_cast<int>(row));
    ASSERT_TRUE(why->isEnabled());
    why->trigger();
    EXPECT_FALSE(isShown("differenceLabel")) << value("differenceLabel");
    EXPECT_THAT(
        rows("reasonTable"),
        testing::IsSupersetOf(std::vector<testing::Matcher<std::string>>{
            testing::AllOf(testing::HasSubstr("Read_Label Why_Yes_Label to group"), testing::EndsWith("\\")),
            testing::AllOf(testing::HasSubstr("Write_Label Why_Yes_Label to group"),
                           testing::HasSubstr("Choir")),
            testing::HasSubstr("Modify_Label Why_Yes_Label to CN=Eve.OU=Verlag.O=Meridal on Box")}));
}

} // namespace
} // namespace quorvan::test
