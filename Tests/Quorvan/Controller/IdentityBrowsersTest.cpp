// SPDX-License-Identifier: GPL-3.0-or-later
// The browsers over the trustee rights tab, used with mouse and keyboard.
#include "Quorvan/Controller/Identities/IdentityBrowsers.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

namespace quorvan::test {
namespace {

struct IdentityBrowsersTest : WindowTest {
    RightsTabViewController& tab() { return view<RightsTabViewController>(); }
    const Trustees& last() { return *tab().editedTrusteeList.back(); }
};

TEST_F(IdentityBrowsersTest, ListsOneCategoryOfTheTreeBelowABase) {
    open("rights", demo::supervisorTree).act("addBtn");
    EXPECT_EQ(value("userTypePopUp", "count") + value("userTypePopUp", "currentIndex"), "3-1");
    const auto requests = requestsTo("/Manage_KELP/TRELL.cmd");
    play("| btnFetch grey | selectButton grey");
    play("type treeTextField .OU=Verlag.O=Meridal., key Return | btnFetch ready");
    EXPECT_EQ(requestsTo("/Manage_KELP/TRELL.cmd"), requests) << "there is no category to ask for";
    play("choose userTypePopUp Users_Title, type treeTextField .OU=Verlag.O=Meridal., key Return | btnFetch "
         "grey");
    const Texts users = rows();
    EXPECT_THAT(users, testing::AllOf(Contains("CN=Vera.OU=Verlag.O=Meridal"),
                                      Not(Contains("CN=Redaktion.OU=Verlag.O=Meridal"))));
    play(R"(
        key Return, pick 0, type searchField MARCHAND | rows CN=Étienne Marchand.OU=Verlag.O=Meridal
        pick 0, type searchField MARCHAND, key Return | title Browse_Morvane_Title // Return in a field leaves it open
    )");
    EXPECT_EQ(act("key Escape, pick").rows(), users);
    // A search is one in what the controls ask for, and their change empties the list.
    play(R"(
        type searchField a, choose userTypePopUp Groups_Title | searchField  | count 0
        btnFetch                 | row 0 CN=Redaktion.OU=Verlag.O=Meridal | focus userListTable
        type searchField redak   | rows CN=Redaktion.OU=Verlag.O=Meridal
        type treeTextField .OU=Verlag.O=Meridal., type searchField redak, btnFetch | rows CN=Redaktion.OU=Verlag.O=Meridal
        type treeTextField .OU=Leitung.O=Meridal., type searchField red | count 0
        btnFetch, type searchField  | empty no groups below .OU=Leitung.O=Meridal.
        cancelButton, addBtn     | treeTextField .OU=Leitung.O=Meridal.
        choose userTypePopUp Containers_Title, type treeTextField .OU=Nowhere.O=Meridal., key Return | alerts Err_Operation_Failed // no such base
        break pipes, type treeTextField .O=Meridal., key Return | alerts Err_Operation_Failed, Err_Operation_Failed // is reported twice
                                 | logged Failed with err - -1 | logged Failed with kelp err - | btnFetch ready
    )");
}

TEST_F(IdentityBrowsersTest, AddsTreeUsersAndSaysOnceWhoIsThereAlready) {
    world.identities->addTreeUser("Twin", "Verlag", "guid-one");
    world.identities->addTreeUser("Twin again", "Verlag", "guid-two").id = "guid-one";
    open("rights", demo::supervisorTree);
    browse("addBtn", "Users_Title", verlag);
    const std::size_t users = rows().size();
    play(R"(
        key Ctrl+A, selectButton | title Browse_Morvane_Title | alerts Err_Msg_Duplicate_Trustee
                                 | logged Trustee is already present   // a refused answer leaves the sheet open
        selectButton, cancelButton | alerts Err_Msg_Duplicate_Trustee | applyBtn ready
    )");
    EXPECT_EQ(rows().size(), users - 1) << "Vera is a trustee, and the twins are one";
    EXPECT_STREQ(trusteeIconName(last().trusteeType.str()), "user_Morvane");
    EXPECT_EQ(act("applyBtn").rightsOnServer("guid-one"), 0x41);
    EXPECT_EQ(rows().size(), users - 1);
}

TEST_F(IdentityBrowsersTest, ListsADomainOfActiveDirectoryAndAsksItAnewToSearch) {
    open("rights").act("addBtn");
    EXPECT_EQ(value("domainPopUp", "count") + value("domainPopUp", "currentIndex"), "3-1");
    play(R"(
                             | userTypePopUp  | btnFetch grey
        choose domainPopUp /Active Directory/NORDHAVN, btnFetch | count 0 | btnFetch grey | searchField grey // no category
        choose userTypePopUp Groups_Title, btnFetch
    )");
    const Texts groups = rows();
    EXPECT_THAT(groups, testing::AllOf(SizeIs(demo::secondForestGroups), Contains(demo::groupWithoutSid)));
    auto& directory = world.directory->state();
    const auto queries = directory.queries;
    EXPECT_EQ(act("type searchField gJEST").rows(), groups) << "it is not asked for each letter";
    play("key Return | rows Gjester");
    EXPECT_EQ(directory.queries, queries + 1);
    act("type searchField fyr");
    EXPECT_TRUE(QTest::qWaitFor([this] { return rows().front() == "Fyrvæsen"; }));
    EXPECT_EQ(act("key Escape").rows(), groups);
    directory.failQueries = true;
    play(R"(
        type searchField x, key Return | count 0 | alerts Warning_Title: Err_AD_Connect
        choose domainPopUp /Active Directory/FJERNØY | searchField 
        btnFetch | empty /Active Directory/FJERNØY is silent | alerts | logged Error in Open Directory Session - 113
    )");
}

TEST_F(IdentityBrowsersTest, AddsAccountsOfActiveDirectoryWithTheirTypes) {
    open("rights");
    const auto& prefetched = world.directory->state().prefetched;
    browse("addBtn", "Groups_Title", nordhavn);
    act("pick 2 0");
    const std::size_t hints = prefetched.size();
    play("selectButton | row 4 >Havnevakt RF | row 5 >Tollklarering RF");
    EXPECT_EQ(prefetched.size(), hints + 2) << "both in one go";
    EXPECT_EQ(last().trusteeType, "Groups");
    EXPECT_FALSE(tab().onReturnSelectedUser({"a", "b"}, {"S-1-5-1", "S-1-5-1"}, "Users"));
    EXPECT_THAT(alerts(), Contains("Err_Msg_Duplicate_Trustee"));
    EXPECT_THAT(rows(), SizeIs(7)) << "the same identity twice in one choice";

    // A directory that has gone silent is reported once, and the accounts are added without type.
    world.directory->state().failQueries = true;
    EXPECT_TRUE(tab().onReturnSelectedUser({"a", "b", "c"}, {"S-1-5-2", "S-1-5-3"}, "Users"));
    play("| alerts Warning_Title: Err_AD_Connect | count 9 | row 8 >b RF");
    EXPECT_TRUE(tab().onReturnSelectedUser({}, {"S-1-5-4"}, ""));
}

TEST_F(IdentityBrowsersTest, AnswersTheViewThatAskedAsLongAsItExists) {
    open("rights");
    openIdentityBrowser(tab(), tab(), "neither", {});
    EXPECT_EQ(title(), "Trustee_Rights_Title");
    const auto fetchUsersAndDoubleClick = [this](ViewController& view, const char* script, QPoint place) {
        openIdentityBrowser(view, tab(), "ActiveDirectory", {"Users", false});
        EXPECT_EQ(value("userTypePopUp", "count"), "1");
        act("choose userTypePopUp Users_Title, choose domainPopUp /Active Directory/NORDHAVN, btnFetch");
        act(script);
        QTest::mouseDClick(control<ListTable>("userListTable").viewport(), Qt::LeftButton, {}, place);
    };
    fetchUsersAndDoubleClick(tab(), "pick 1 0", {20, 8});
    play("| title Trustee_Rights_Title | row 4 >åse.ågren RF");
    EXPECT_EQ(last().trusteeID, "S-1-5-21-310277445-4071925506-88213697-5000");
    auto passing = std::make_unique<ViewController>(window.get());
    fetchUsersAndDoubleClick(*passing, "key Home", {20, 2000});
    play("| title Browse_AD_Title // nothing is selected");
    act("pick 1");
    passing.reset();
    play("selectButton | title Trustee_Rights_Title | count 5 // there is no view to answer to");
}

TEST_F(IdentityBrowsersTest, AsksForTheDirectoryWhereBothAreShown) {
    Shared::value().bothID = true;
    play(R"(
        open rights, addBtn  | ADBtn on
        MorvaneBtn           | ADBtn off
        CancelBtn            | title Trustee_Rights_Title
    )");
    EXPECT_EQ(tab().domainIdentity, "ActiveDirectory");
    act("addBtn, key Up, key Return");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &front(); }));
    EXPECT_EQ(tab().domainIdentity, "Morvane");
    play(R"(
                             | focus userTypePopUp // the browser outlives the sheet that opened it
        choose userTypePopUp Users_Title, type treeTextField .OU=Verlag.O=Meridal., btnFetch, pick 0, selectButton | title Trustee_Rights_Title | count 6
    )");
    EXPECT_EQ(last().domainType, "Morvane");
    EXPECT_EQ(open("rights", demo::supervisorTree).act("addBtn").state("MorvaneBtn"), "on");
}

TEST_F(IdentityBrowsersTest, PicksFromTheSingleForestByName) {
    bundle->features->at("multiForest") = false;
    // A search goes on in the other category, and what comes back is of that one.
    play(R"(
        open rights, addBtn  | row:userListTable 0 ingrid.holm
        type searchField t, key Return | row:userListTable 0 tomas.beran
        pick:userListTable 0 | selectButton ready
    )");
    control("userTypeTable").setFocus();
    play(R"(
        key Down             | row:userListTable 0 Festival Team | selectButton grey
        type searchField     | row:userListTable 0 Festival Team
        pick:userListTable 0, selectButton | row 4 >Festival Team RF
    )");
    EXPECT_EQ(last().trusteeID, world.identities->findByName("Festival Team").front()->id);
    act("addBtn");
    world.directory->state().bound = false;
    play("type searchField x, key Return | count:userListTable 0 | alerts");
    EXPECT_THAT(log.take(), Contains("Could not find a Active Directory on the server"));
    EXPECT_EQ(open("rights").act("addBtn").control<ListTable>("userListTable").emptyText(),
              "Active Directory is silent");
}

} // namespace
} // namespace quorvan::test
