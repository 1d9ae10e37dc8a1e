// SPDX-License-Identifier: GPL-3.0-or-later
// The browsers over the trustee rights tab, used with mouse and keyboard.
#include "Quorvan/Controller/Identities/BrowseMorvaneUserListViewController.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QListWidget>

namespace quorvan::test {
namespace {

const std::string vera = "CN=Vera.OU=Verlag.O=Meridal";
const std::string redaktion = "CN=Redaktion.OU=Verlag.O=Meridal";

struct IdentityBrowsersTest : WindowTest {
    RightsTabViewController& tab() { return view<RightsTabViewController>(); }
    void openAndAdd(const char* user = demo::supervisor) { open("rights", user).act("addBtn"); }
};

TEST_F(IdentityBrowsersTest, ListsOneCategoryOfTheTreeBelowABase) {
    openAndAdd(demo::supervisorTree);
    EXPECT_EQ(value("userTypePopUp", "count") + value("userTypePopUp", "currentIndex"), "3-1");
    EXPECT_FALSE(isEnabled("btnFetch") || isEnabled("selectButton"));
    const auto requests = world.server->requestCount();
    act("type treeTextField .OU=Verlag.O=Meridal., key Return");
    EXPECT_EQ(world.server->requestCount(), requests) << "without a category there is nothing to ask for";
    EXPECT_TRUE(isEnabled("btnFetch"));
    act("choose userTypePopUp Users_Title, type treeTextField .OU=Verlag.O=Meridal., key Return");
    const Texts users = rows();
    EXPECT_THAT(users, testing::AllOf(Contains(vera), Not(Contains(redaktion))));
    EXPECT_FALSE(isEnabled("btnFetch"));
    act("key Return, pick 0, type searchField MARCHAND");
    EXPECT_THAT(rows(), ElementsAre("CN=Étienne Marchand.OU=Verlag.O=Meridal"));
    act("pick 0, type searchField MARCHAND, key Return");
    EXPECT_EQ(title(), "Browse_Morvane_Title") << "Return in a field closed the sheet";
    EXPECT_EQ(act("key Escape").rows(), users);

    EXPECT_EQ(act("type searchField a, choose userTypePopUp Groups_Title").value("searchField"), "");
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_THAT(act("btnFetch").rows(), Contains(redaktion));
    EXPECT_TRUE(control("userListTable").hasFocus()) << "Fetch went grey under the keyboard";
    act("type searchField redak"); // of the groups, not of the users that were searched before
    EXPECT_THAT(rows(), ElementsAre(redaktion));
    act("type treeTextField .OU=Leitung.O=Meridal., type searchField red");
    EXPECT_THAT(rows(), IsEmpty()) << "they are not below the new base";
    EXPECT_EQ(act("btnFetch, type searchField ").emptyText(), "no groups below .OU=Leitung.O=Meridal.");
    EXPECT_EQ(act("cancelButton, addBtn").value("treeTextField"), ".OU=Leitung.O=Meridal.");
    act("choose userTypePopUp Containers_Title, type treeTextField .OU=Nowhere.O=Meridal., key Return");
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed")) << "there is no such base";
    breakPipes();
    log.take();
    act("type treeTextField .O=Meridal., key Return");
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Operation_Failed"))
        << "a pipe that does not open is reported twice";
    EXPECT_THAT(log.take(), testing::IsSupersetOf({"Failed with err - -1", "Failed with kelp err - "}));
    EXPECT_TRUE(isEnabled("btnFetch"));
}

TEST_F(IdentityBrowsersTest, AddsTreeUsersAndSaysOnceWhoIsThereAlready) {
    world.identities->addTreeUser("Twin", "Verlag", "guid-one");
    world.identities->addTreeUser("Twin again", "Verlag", "guid-two").id = "guid-one";
    open("rights", demo::supervisorTree);
    browse("addBtn", "Users_Title", verlag);
    const Texts users = rows();
    act("key Ctrl+A, selectButton");
    EXPECT_EQ(title(), "Browse_Morvane_Title") << "a refused answer leaves the sheet open";
    EXPECT_THAT(alerts(), ElementsAre("Err_Msg_Duplicate_Trustee")) << "one message for all of them";
    EXPECT_THAT(log.take(), Contains("Trustee is already present"));
    EXPECT_THAT(act("selectButton, cancelButton").alerts(), SizeIs(1));
    EXPECT_EQ(rows().size(), users.size() - 1) << "Vera is a trustee, and the twins are one";
    EXPECT_TRUE(changesEnabled());
    EXPECT_EQ(trusteeIconName(tab().editedTrusteeList.back()->trusteeType), std::string("user_Morvane"));
    EXPECT_EQ(act("applyBtn").rightsOnServer("guid-one"), 0x41);
    EXPECT_EQ(rows().size(), users.size() - 1);
}

TEST_F(IdentityBrowsersTest, ListsADomainOfActiveDirectoryAndAsksItAnewToSearch) {
    openAndAdd();
    EXPECT_EQ(value("domainPopUp", "count") + value("domainPopUp", "currentIndex") +
                  value("userTypePopUp", "currentIndex"),
              "3-1-1");
    EXPECT_FALSE(isEnabled("btnFetch"));
    act(std::string("choose domainPopUp ") + nordhavn + ", btnFetch");
    EXPECT_THAT(rows(), IsEmpty()) << "no category was picked";
    EXPECT_FALSE(isEnabled("btnFetch") || isEnabled("searchField"));
    act("choose userTypePopUp Groups_Title, btnFetch");
    const Texts groups = rows();
    EXPECT_THAT(groups, testing::AllOf(SizeIs(demo::secondForestGroups), Contains(demo::groupWithoutSid)));
    auto& directory = world.directory->state();
    const auto queries = directory.queries;
    EXPECT_EQ(act("type searchField gJEST").rows(), groups) << "it is not asked for each letter";
    EXPECT_THAT(act("key Return").rows(), ElementsAre(demo::groupWithoutSid));
    EXPECT_EQ(directory.queries, queries + 1);
    act("type searchField fyr");
    EXPECT_TRUE(QTest::qWaitFor([this] { return rows().front() == "Fyrvæsen"; }));
    EXPECT_EQ(act("key Escape").rows(), groups);

    directory.failQueries = true;
    EXPECT_THAT(act("type searchField x, key Return").rows(), IsEmpty());
    EXPECT_THAT(alerts(), ElementsAre("Warning_Title: Err_AD_Connect"));
    EXPECT_EQ(act("choose domainPopUp /Active Directory/FJERNØY").value("searchField"), "");
    EXPECT_EQ(act("btnFetch").emptyText(), "/Active Directory/FJERNØY is silent");
    EXPECT_THAT(alerts(), IsEmpty()) << "a listing that fails is only logged";
    EXPECT_THAT(log.take(), Contains("Error in Open Directory Session - 113"));
}

TEST_F(IdentityBrowsersTest, AddsAccountsOfActiveDirectoryWithTheirTypes) {
    open("rights");
    const auto& prefetched = world.directory->state().prefetched;
    browse("addBtn", "Groups_Title", nordhavn);
    act("pick 2 0");
    const std::size_t hints = prefetched.size();
    act("selectButton");
    EXPECT_EQ(prefetched.size(), hints + 2) << "both in one go";
    EXPECT_EQ(rows()[4] + rows()[5], "Havnevakt RFTollklarering RF");
    EXPECT_EQ(tab().editedTrusteeList.back()->trusteeType, "Groups");
    EXPECT_FALSE(tab().onReturnSelectedUser({"a", "b"}, {"S-1-5-1", "S-1-5-1"}, "Users"));
    EXPECT_THAT(alerts(), Contains("Err_Msg_Duplicate_Trustee"));
    EXPECT_THAT(rows(), SizeIs(7)) << "the same identity twice in one choice";

    // A directory that has gone silent is reported once, and the accounts are added without type.
    world.directory->state().failQueries = true;
    EXPECT_TRUE(tab().onReturnSelectedUser({"a", "b", "c"}, {"S-1-5-2", "S-1-5-3"}, "Users"));
    EXPECT_THAT(alerts(), ElementsAre("Warning_Title: Err_AD_Connect"));
    EXPECT_EQ(rows().back(), "b RF");
    EXPECT_TRUE(tab().onReturnSelectedUser({}, {"S-1-5-4"}, ""));
}

TEST_F(IdentityBrowsersTest, AnswersTheViewThatAskedAsLongAsItExists) {
    open("rights");
    openIdentityBrowser(tab(), tab(), "neither", {});
    EXPECT_EQ(title(), "Trustee_Rights_Title");
    const auto fetchUsers = [this](ViewController& view) {
        openIdentityBrowser(view, tab(), "ActiveDirectory", {"Users", false});
        EXPECT_EQ(value("userTypePopUp", "count"), "1");
        act(std::string("choose userTypePopUp Users_Title, choose domainPopUp ") + nordhavn + ", btnFetch");
    };
    fetchUsers(tab());
    act("pick 1 0");
    QTest::mouseDClick(control<ListTable>("").viewport(), Qt::LeftButton, {}, {20, 8});
    EXPECT_EQ(rows()[4], "åse.ågren RF");
    EXPECT_EQ(tab().editedTrusteeList.back()->trusteeID, "S-1-5-21-310277445-4071925506-88213697-5000");

    auto passing = std::make_unique<ViewController>(window.get());
    fetchUsers(*passing);
    QTest::mouseDClick(control<ListTable>("").viewport(), Qt::LeftButton, {}, {20, 2000});
    EXPECT_EQ(title(), "Browse_AD_Title") << "nothing was selected";
    act("pick 1");
    passing.reset();
    EXPECT_EQ(act("selectButton").title(), "Trustee_Rights_Title");
    EXPECT_THAT(rows(), SizeIs(5)) << "there is no view to answer to";
}

TEST_F(IdentityBrowsersTest, AsksForTheDirectoryWhereBothAreShown) {
    Shared::value().bothID = true;
    openAndAdd();
    EXPECT_EQ(value("ADBtn", "checked"), "true");
    EXPECT_EQ(act("MorvaneBtn").value("ADBtn", "checked"), "false");
    act("CancelBtn");
    EXPECT_EQ(tab().domainIdentity, "ActiveDirectory");
    act("addBtn, key Up, key Return");
    EXPECT_EQ(tab().domainIdentity, "Morvane");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &front(); }));
    EXPECT_TRUE(control("userTypePopUp").hasFocus()) << "the browser went with the sheet that opened it";
    act("choose userTypePopUp Users_Title, type treeTextField .OU=Verlag.O=Meridal., btnFetch, pick 0, "
        "selectButton");
    EXPECT_EQ(title(), "Trustee_Rights_Title");
    EXPECT_THAT(rows(), SizeIs(6));
    EXPECT_EQ(tab().editedTrusteeList.back()->domainType, "Morvane");
    openAndAdd(demo::supervisorTree);
    EXPECT_EQ(value("MorvaneBtn", "checked"), "true");
}

TEST_F(IdentityBrowsersTest, PicksFromTheSingleForestByName) {
    bundle->features->at("multiForest") = false;
    openAndAdd();
    EXPECT_EQ(control<QListWidget>("userTypeTable").count(), 2);
    EXPECT_EQ(rows("userListTable").front(), demo::supervisor);
    EXPECT_THAT(act("type searchField t, key Return").rows("userListTable"), Contains(demo::accessControl));
    act("pick:userListTable 0");
    control("userTypeTable").setFocus();
    act("key Down");
    EXPECT_THAT(rows("userListTable"), Contains("Ticketing")) << "the search goes on in the groups";
    EXPECT_FALSE(isEnabled("selectButton"));
    act("type searchField ");
    EXPECT_EQ(rows("userListTable").front(), "Festival Team") << "the groups come back, not the users";
    EXPECT_EQ(act("pick:userListTable 0, selectButton").rows()[4], "Festival Team RF");
    EXPECT_EQ(tab().editedTrusteeList.back()->trusteeID,
              world.identities->findByName("Festival Team").front()->id);

    act("addBtn");
    world.directory->state().bound = false;
    EXPECT_THAT(act("type searchField x, key Return").rows("userListTable"), IsEmpty());
    EXPECT_THAT(log.take(), Contains("Could not find a Active Directory on the server"));
    EXPECT_THAT(alerts(), IsEmpty());
}

} // namespace
} // namespace quorvan::test
