// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Quota/UserQuotaViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

namespace quorvan::test {
namespace {

constexpr std::int64_t gigabyte = std::int64_t{1} << 30;

/// A volume with users of the tree, "User 0", "User 1", …, each with 1 GB, and three of Active Directory.
struct UserQuotaTest : WindowTest {
    UserQuotaTest() {
        select("VOL2/Any");
        world.server->addPath("VOL2:\\Any");
        for (const char* user : {demo::supervisor, demo::supervisorTree})
            world.server->setTrustee("VOL2:\\", *world.server->findAccount(user)->identity,
                                     simulator::right::supervisor);
        for (const char* name : {"Smith", "jürgen", "Jan"})
            addQuota(world.identities->addDomainUser(name, std::string("S-1-5-21-") + name));
    }
    void addQuota(const simulator::Identity& user) {
        world.server->volumes().userQuotas("VOL2")->of(user).limit = gigabyte;
    }
    simulator::Identity& addTreeUser(const std::string& name, const std::string& id) {
        auto& user = world.identities->addTreeUser(name, "Verlag", id);
        addQuota(user);
        return user;
    }
    void openWith(int treeUsers) {
        for (int i = 0; i < treeUsers; ++i)
            addTreeUser("User " + std::to_string(i), "guid-" + std::to_string(i));
        open("quota", demo::supervisorTree);
    }
    /// The names of the rows up to the first dot or behind a backslash, with their limits: "Smith 1 GB".
    Texts limits() const {
        Texts found;
        const auto* model = control<ListTable>("userQuotaTable").model();
        for (int row = 0; row < model->rowCount(); ++row) {
            const QString name =
                model->index(row, 0).data().toString().section(QRegularExpression("[\\\\=]"), 1, 1);
            found.push_back(
                (name.section('.', 0, 0) + ' ' + model->index(row, 1).data().toString()).toStdString());
        }
        return found;
    }
    void edit(const std::string& rows, const std::string& limit) {
        act("pick " + rows + ", editUQButton, type quotaLimitTextField " + limit + ", okBtn");
        EXPECT_EQ(title(), "User_Quota_Title");
    }
    bool changed() const { return changesEnabled("applyButton", "revert"); }
    std::int64_t onServer(const std::string& id) const {
        const auto quotas = world.server->volumes().userQuotas("VOL2")->entries();
        const auto found = std::ranges::find(quotas, id, [](const auto& quota) { return quota.user->id; });
        return found == quotas.end() ? -1 : found->limit;
    }
};

TEST_F(UserQuotaTest, ListsSearchesAndSorts) {
    for (const char* user : {"User 0", "User 1"})
        addTreeUser(user, user);
    open("quota");
    EXPECT_THAT(rows(), ElementsAre("MERIDAL\\Smith 1 GB 0 KB 1 GB", "MERIDAL\\jürgen 1 GB 0 KB 1 GB",
                                    "MERIDAL\\Jan 1 GB 0 KB 1 GB"));
    const struct {
        const char* step;
        Texts shown;
    } steps[] = {{"type searchField SMI", {"Smith 1 GB"}},
                 {"type searchField *j*n", {"jürgen 1 GB", "Jan 1 GB"}},
                 {"header", {"Jan 1 GB", "jürgen 1 GB"}},
                 {"type searchField q", {}},
                 {"key Escape", {"Smith 1 GB", "jürgen 1 GB", "Jan 1 GB"}},
                 {"pick 1, header", {"Jan 1 GB", "jürgen 1 GB", "Smith 1 GB"}}};
    for (const auto& [step, shown] : steps) {
        act(step);
        EXPECT_EQ(limits(), shown) << step;
        EXPECT_TRUE(!shown.empty() || emptyText() == "nothing like q");
    }
    EXPECT_EQ(rows()[1].front(), '>') << "the selection follows the order";
    act("removeUQButton");
    EXPECT_THAT(limits(), ElementsAre("Jan 1 GB", "Smith 1 GB"));

    Shared::value().bothID = true;
    open("quota");
    EXPECT_THAT(limits(), ElementsAre("Smith 1 GB", "jürgen 1 GB", "Jan 1 GB", "User 0 1 GB", "User 1 1 GB"));
    act("pick 0 3, removeUQButton, applyButton");
    EXPECT_THAT(changes(), ElementsAre("S-1-5-21-Smith 9223372036854775807; User 0 9223372036854775807"));
}

TEST_F(UserQuotaTest, AddsEditsAndRemovesInOneGo) {
    openWith(4);
    edit("1 2", "5");
    EXPECT_THAT(limits(), ElementsAre("User 1 5 GB", "User 2 5 GB", "User 0 1 GB", "User 3 1 GB"));
    EXPECT_TRUE(changed());
    control("userQuotaTable").setFocus();
    act("pick 3 2, key Del");
    EXPECT_THAT(limits(), ElementsAre("User 1 5 GB", "User 2 5 GB"));

    // Added: one who was just removed, one who is listed, and one more; the first is picked twice.
    act("addUQButton");
    const std::string pavel = world.server->findAccount(demo::accessControlTree)->identity->id;
    view<AddUserQuotaViewController>().onReturnMorvaneSelectedUser(
        {User("zero", "user", "guid-0"), User("one", "user", "guid-1"), User("Pavel", "user", pavel),
         User("again", "user", "guid-0")});
    EXPECT_THAT(alerts(), ElementsAre("Err_Msg_Duplicate_Trustee"));
    EXPECT_THAT(log.take(), Contains("Trustee is already present"));
    EXPECT_THAT(rows("userList"), ElementsAre("zero", "one", "Pavel"));
    act("choose selectUnit TB, type quotaLimitTextField 2, okBtn");
    EXPECT_THAT(rows(), ElementsAre("zero 2 TB 0 KB 2 TB", "CN=User 1.OU=Verlag.O=Meridal 2 TB 0 KB 2 TB",
                                    "Pavel 2 TB 0 KB 2 TB", "CN=User 2.OU=Verlag.O=Meridal 5 GB 0 KB 5 GB"));
    act("applyButton");
    EXPECT_THAT(changes(), ElementsAre("guid-0 9223372036854775807; guid-3 9223372036854775807; guid-1 "
                                       "2199023255552; guid-2 5368709120; guid-0 2199023255552; " +
                                       pavel + " 2199023255552"));
    EXPECT_EQ(onServer("guid-0"), gigabyte << 11);
    EXPECT_FALSE(changed());
    EXPECT_EQ(world.network->openDescriptors(), 0U);

    edit("0", "7");
    act("pick 0, removeUQButton, revert");
    EXPECT_FALSE(changed());
    EXPECT_THAT(rows(), SizeIs(4));
    EXPECT_THAT(view<UserQuotaViewController>().usersToRemove, IsEmpty());
    act("closeButton");
    EXPECT_EQ(title(), "Rights Management");
    EXPECT_THAT(changes(), IsEmpty());
}

TEST_F(UserQuotaTest, MarksTheRowsOfTheWholeListWhileASearchIsOn) {
    openWith(4);
    act("type searchField User 3");
    edit("0", "5"); // the dialog gets User 3, but it is User 0 that is marked
    EXPECT_EQ(value("searchField"), "") << "all rows are shown again";
    EXPECT_EQ(limits().front(), "User 3 5 GB");
    act("applyButton");
    EXPECT_THAT(changes(), ElementsAre("guid-0 1073741824"));
}

TEST_F(UserQuotaTest, LivesWithUsersWhoShareAnId) {
    addTreeUser("User 0", "guid-0");
    addTreeUser("Twin", "guid-twin").id = "guid-0";
    addTreeUser("Other", "guid-2");
    openWith(0);
    edit("2", "5");
    EXPECT_THAT(limits(), ElementsAre("Other 5 GB", "User 0 1 GB", "Twin 1 GB"));
    act("revert");
    edit("0 1", "6"); // both stand for the first, and the second is still listed
    EXPECT_THAT(limits(), ElementsAre("User 0 6 GB", "User 0 6 GB", "Twin 6 GB", "Other 1 GB"));
    edit("3", "7"); // the row has no number in the whole list, so nobody is marked
    act("applyButton");
    EXPECT_THAT(changes(), ElementsAre("guid-0 6442450944; guid-0 6442450944"));

    act("pick 0, removeUQButton");
    EXPECT_THAT(limits(), ElementsAre("Other 1 GB"));
    act("type searchField *, type searchField ");
    EXPECT_THAT(limits(), ElementsAre("Twin 1 GB", "Other 1 GB")) << "only the one that was chosen is gone";
    act("applyButton");
    EXPECT_THAT(changes(), ElementsAre("guid-0 9223372036854775807"));
}

TEST_F(UserQuotaTest, KeepsTheDialogOpenForWhatIsNoLimit) {
    openWith(1);
    act("pick 0, editUQButton");
    for (const std::string text : {"", "1.5", "10 GB", " ", "9223372036854775808"}) {
        act("type quotaLimitTextField " + text + ", okBtn");
        EXPECT_EQ(dismissAlert(), "Invalid_Quota_Limit") << text;
        EXPECT_EQ(title(), "Edit_User_Quota_Title");
    }
    act("choose selectUnit PB");
    for (const std::string text : {"8192", "9223372036854775807"})
        EXPECT_DEATH((setLogSink({}), act("type quotaLimitTextField " + text + ", okBtn")),
                     "too large for its unit");
    act("type quotaLimitTextField 8191, okBtn");
    EXPECT_THAT(limits(), ElementsAre("User 0 8191 PB"));
    edit("0", "-1"); // a number, which the server refuses
    act("applyButton");
    EXPECT_THAT(changes(), ElementsAre("guid-0 -1073741824"));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));

    act("addUQButton");
    EXPECT_EQ(title(), "Add_User_Quota_Title");
    act("type quotaLimitTextField 1, okBtn");
    EXPECT_FALSE(changed()) << "nobody was chosen";
    act("addUQButton, cancelBtn");
    EXPECT_EQ(title(), "User_Quota_Title");
}

TEST_F(UserQuotaTest, TakesUsersFromTheSheetsOfEitherDirectory) {
    Shared::value().bothID = true;
    open("quota");
    act("addUQButton");
    take("selectTrusteeBtn", "Users_Title", verlag, {"CN=Vera.OU=Verlag.O=Meridal"});
    take("selectTrusteeBtn", "Users_Title", meridal, {demo::readOnly, demo::accessControl});
    EXPECT_THAT(rows("userList"), SizeIs(3));
    act("type quotaLimitTextField 9, okBtn, applyButton");
    EXPECT_THAT(alerts(), IsEmpty());
    for (const char* user : {demo::readOnly, demo::accessControl})
        EXPECT_EQ(onServer(world.server->findAccount(user)->identity->id), 9 * gigabyte);
    EXPECT_EQ(onServer("guid-vera"), 9 * gigabyte);
    Shared::value().bothID = false;
    bundle->features->at("multiForest") = false;
    open("quota");
    act("addUQButton, selectTrusteeBtn");
    EXPECT_TRUE(isShown("userTypeTable")) << "the browser of a single forest";
}

TEST_F(UserQuotaTest, SendsThreeHundredAtATime) {
    using Sizes = std::vector<std::ptrdiff_t>;
    const auto sizes = [this] {
        Sizes found;
        for (const std::string& request : changes())
            found.push_back(std::ranges::count(request, ';') + 1);
        return found;
    };
    openWith(601);
    const auto requests = requestsTo("/Manage_KELP/user.cmd");
    act("removeUQButton, applyButton"); // nobody
    EXPECT_EQ(requestsTo("/Manage_KELP/user.cmd"), requests + 2) << "an empty change, and the list";
    auto& table = control<ListTable>("userQuotaTable");
    for (const int count : {1, 300, 301}) {
        table.selectionModel()->select({table.model()->index(0, 0), table.model()->index(count - 1, 3)},
                                       QItemSelectionModel::ClearAndSelect);
        act("editUQButton, type quotaLimitTextField 3, okBtn, applyButton");
        EXPECT_EQ(sizes(), count == 1 ? Sizes{1} : count == 300 ? Sizes{300} : Sizes({300, 1}));
    }

    // The second request holds a user whom the server no longer knows.
    table.selectAll();
    act("editUQButton, type quotaLimitTextField 4, okBtn");
    view<UserQuotaViewController>().usersEdited[450]->SID = "guid-gone";
    act("applyButton");
    EXPECT_EQ(sizes(), Sizes({300, 300, 1}));
    EXPECT_THAT(log.take(), Contains("Failed with err - 20904"));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_EQ(limits()[450], "User 450 4 GB") << "what was edited stays on show";
    EXPECT_FALSE(changed());
    EXPECT_EQ(onServer("guid-600"), 4 * gigabyte) << "the rest was sent all the same";
}

TEST_F(UserQuotaTest, ReportsWhatFails) {
    openWith(1);
    edit("0", "5");
    world.server->misbehaviour.onlyPipe = "/Manage_KELP/user.cmd";
    breakPipes();
    act("applyButton");
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Operation_Failed"));
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(emptyText(), "User_Quotas_Unknown_Label");
    mend();
    losePassword();
    act("revert");
    EXPECT_THAT(alerts(), ElementsAre("Err_Keychain_Not_Found"));
    EXPECT_FALSE(changed());
}

} // namespace
} // namespace quorvan::test
