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
            world.server->setTrustee("VOL2:\\", account(user), simulator::right::supervisor);
        for (const std::string name : {"Smith", "jürgen", "Jan"})
            addQuota(world.identities->addDomainUser(name, "S-1-5-21-" + name));
    }
    const simulator::Identity& account(const char* user) const {
        return *world.server->findAccount(user)->identity;
    }
    void addQuota(const simulator::Identity& user) {
        world.server->volumes().userQuotas("VOL2")->of(user).limit = gigabyte;
    }
    void openWith(int treeUsers) {
        for (int i = 0; i < treeUsers; ++i)
            addQuota(world.identities->addTreeUser("User " + std::to_string(i), "Verlag",
                                                   "guid-" + std::to_string(i)));
        open("quota", demo::supervisorTree);
    }
    /// The rows as "Smith 1 GB, User 0 1 GB".
    std::string limits() const {
        static const QRegularExpression rest(R"(MERIDAL\\|CN=|\.OU=Verlag\.O=Meridal|( \S+ .?B){2}$)");
        QStringList found;
        for (const std::string& row : rows("userQuotaTable"))
            found.append(QString::fromStdString(row).remove(rest));
        return found.join(", ").toStdString();
    }
    std::string limitsAfter(const std::string& script) {
        act(script);
        return limits();
    }
    std::string limitsEdited(const std::string& rows, const std::string& limit) {
        return limitsAfter("pick " + rows + ", editUQButton, type quotaLimitTextField " + limit + ", okBtn");
    }
    std::int64_t onServer(const std::string& id) const {
        const auto quotas = world.server->volumes().userQuotas("VOL2")->entries();
        return std::ranges::find(quotas, id, [](const auto& quota) { return quota.user->id; })->limit;
    }
    const std::string none = " 9223372036854775807"; // amount of who has no limit
};

TEST_F(UserQuotaTest, ListsSearchesAndSorts) {
    openWith(2);
    open("quota");
    EXPECT_THAT(rows(), Each(testing::EndsWith(" 1 GB 0 KB 1 GB")));
    const std::pair<const char*, const char*> steps[] = {
        {"key Tab", "Smith 1 GB, jürgen 1 GB, Jan 1 GB"},
        {"type searchField SMI", "Smith 1 GB"},
        {"type searchField *j*n", "jürgen 1 GB, Jan 1 GB"},
        {"header", "Jan 1 GB, jürgen 1 GB"},
        {"type searchField q", ""},
        {"key Escape", "Smith 1 GB, jürgen 1 GB, Jan 1 GB"},
        {"pick 1, header", "Jan 1 GB, >jürgen 1 GB, Smith 1 GB"},
        {"removeUQButton", "Jan 1 GB, Smith 1 GB"}};
    for (const auto& [step, shown] : steps) {
        EXPECT_EQ(limitsAfter(step), shown) << step;
        EXPECT_TRUE(*shown != '\0' || emptyText() == "nothing like q");
    }
    Shared::value().bothID = true;
    open("quota");
    EXPECT_EQ(limits(), "Smith 1 GB, jürgen 1 GB, Jan 1 GB, User 0 1 GB, User 1 1 GB");
    EXPECT_THAT(act("pick 0 3, removeUQButton, applyButton").changes(),
                ElementsAre("S-1-5-21-Smith" + none + "; guid-0" + none));
}

TEST_F(UserQuotaTest, AddsEditsAndRemovesInOneGo) {
    openWith(4);
    EXPECT_EQ(limitsEdited("1 2", "5"), "User 1 5 GB, User 2 5 GB, User 0 1 GB, User 3 1 GB");
    EXPECT_EQ(state("applyButton revert"), "ready, ready");
    control("userQuotaTable").setFocus();
    EXPECT_EQ(limitsAfter("pick 3 2, key Del"), "User 1 5 GB, User 2 5 GB");

    // Added: one who was just removed, one who is listed, and one more; the first is picked twice.
    act("addUQButton");
    const std::string pavel = account(demo::accessControlTree).id;
    view<AddUserQuotaViewController>().onReturnMorvaneSelectedUser(
        {User("zero", "user", "guid-0"), User("one", "user", "guid-1"), User("Pavel", "user", pavel),
         User("again", "user", "guid-0")});
    EXPECT_THAT(alerts(), ElementsAre("Err_Msg_Duplicate_Trustee"));
    EXPECT_THAT(log.take(), Contains("Trustee is already present"));
    EXPECT_THAT(rows("userList"), ElementsAre("zero", "one", "Pavel"));
    EXPECT_EQ(limitsAfter("choose selectUnit TB, type quotaLimitTextField 2, okBtn"),
              "zero 2 TB, User 1 2 TB, Pavel 2 TB, User 2 5 GB");
    EXPECT_EQ(rows()[2], "Pavel 2 TB 0 KB 2 TB");
    EXPECT_THAT(act("applyButton").changes(),
                ElementsAre("guid-0" + none + "; guid-3" + none +
                            "; guid-1 2199023255552; guid-2 5368709120; guid-0 2199023255552; " + pavel +
                            " 2199023255552"));
    EXPECT_EQ(onServer("guid-0"), gigabyte << 11);
    EXPECT_EQ(state("applyButton revert"), "grey, grey");
    EXPECT_EQ(world.network->openDescriptors(), 0U);

    limitsEdited("0", "7");
    EXPECT_THAT(act("pick 0, removeUQButton, revert").rows(), SizeIs(4));
    EXPECT_EQ(state("applyButton revert"), "grey, grey");
    EXPECT_EQ(view<UserQuotaViewController>().usersToRemove.size(), 0U);
    EXPECT_EQ(act("closeButton").title(), "Rights Management");
}

TEST_F(UserQuotaTest, MarksTheRowsOfTheWholeListWhileASearchIsOn) {
    openWith(4);
    act("type searchField User 3"); // the dialog gets User 3, but it is User 0 that is marked
    EXPECT_EQ(limitsEdited("0", "5"), "User 3 5 GB, User 0 1 GB, User 1 1 GB, User 2 1 GB");
    EXPECT_EQ(value("searchField"), "");
    EXPECT_THAT(act("applyButton").changes(), ElementsAre("guid-0 1073741824"));
}

TEST_F(UserQuotaTest, LivesWithUsersWhoShareAnId) {
    for (const char* user : {"First", "Twin", "Other"})
        addQuota(world.identities->addTreeUser(user, "Verlag", user));
    const_cast<simulator::Identity*>(world.identities->findById("Twin"))->id = "First";
    openWith(0);
    EXPECT_EQ(limitsEdited("2", "5"), "Other 5 GB, First 1 GB, Twin 1 GB");
    act("revert"); // both stand for the first, and the second is still listed
    EXPECT_EQ(limitsEdited("0 1", "6"), "First 6 GB, First 6 GB, Twin 6 GB, Other 1 GB");
    limitsEdited("3", "7"); // the row has no number in the whole list, so nobody is marked
    EXPECT_THAT(act("applyButton").changes(), ElementsAre("First 6442450944; First 6442450944"));
    EXPECT_EQ(limitsAfter("pick 0, removeUQButton"), "Other 1 GB");
    EXPECT_EQ(limitsAfter("type searchField *, type searchField "), "Twin 1 GB, Other 1 GB")
        << "only the one that was chosen is gone";
    EXPECT_THAT(act("applyButton").changes(), ElementsAre("First" + none));
}

TEST_F(UserQuotaTest, KeepsTheDialogOpenForWhatIsNoLimit) {
    openWith(1);
    act("pick 0, editUQButton");
    for (const std::string text : {"", "1.5", "10 GB", " ", "9223372036854775808"}) {
        EXPECT_EQ(act("type quotaLimitTextField " + text + ", okBtn").dismissAlert(), "Invalid_Quota_Limit");
        EXPECT_EQ(title(), "Edit_User_Quota_Title") << text;
    }
    act("choose selectUnit PB");
    for (const std::string text : {"8192", "9223372036854775807"})
        EXPECT_DEATH((setLogSink({}), act("type quotaLimitTextField " + text + ", okBtn")),
                     "too large for its unit");
    EXPECT_EQ(limitsAfter("type quotaLimitTextField 8191, okBtn"), "User 0 8191 PB");
    limitsEdited("0", "-1"); // a number, which the server refuses
    EXPECT_THAT(act("applyButton").changes(), ElementsAre("guid-0 -1073741824"));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));

    EXPECT_EQ(act("addUQButton").title(), "Add_User_Quota_Title");
    EXPECT_EQ(act("type quotaLimitTextField 1, okBtn").state("applyButton"), "grey") << "nobody was chosen";
    EXPECT_EQ(act("addUQButton, cancelBtn").title(), "User_Quota_Title");
}

TEST_F(UserQuotaTest, TakesUsersFromTheSheetsOfEitherDirectory) {
    Shared::value().bothID = true;
    open("quota").act("addUQButton");
    take("selectTrusteeBtn", "Users_Title", verlag, {"CN=Vera.OU=Verlag.O=Meridal"});
    take("selectTrusteeBtn", "Users_Title", meridal, {demo::readOnly, demo::accessControl});
    EXPECT_THAT(rows("userList"), SizeIs(3));
    EXPECT_THAT(act("type quotaLimitTextField 9, okBtn, applyButton").alerts(), IsEmpty());
    for (const std::string& id :
         {std::string("guid-vera"), account(demo::readOnly).id, account(demo::accessControl).id})
        EXPECT_EQ(onServer(id), 9 * gigabyte);
    Shared::value().bothID = false;
    bundle->features->at("multiForest") = false; // has a browser of its own
    EXPECT_TRUE(open("quota").act("addUQButton, selectTrusteeBtn").isShown("userTypeTable"));
}

TEST_F(UserQuotaTest, SendsThreeHundredAtATime) {
    using Sizes = std::vector<std::ptrdiff_t>;
    const auto sizesAfter = [this](const char* script) {
        Sizes found;
        for (const std::string& request : act(script).changes())
            found.push_back(std::ranges::count(request, ';') + 1);
        return found;
    };
    openWith(601);
    const auto requests = requestsTo("/Manage_KELP/user.cmd");
    act("removeUQButton, applyButton"); // nobody
    EXPECT_EQ(requestsTo("/Manage_KELP/user.cmd"), requests + 2) << "an empty change, and the list";
    auto& table = control<ListTable>("userQuotaTable");
    for (const auto& [count, sizes] : {std::pair{1, Sizes{1}}, {300, {300}}, {301, {300, 1}}}) {
        table.selectionModel()->select({table.model()->index(0, 0), table.model()->index(count - 1, 3)},
                                       QItemSelectionModel::ClearAndSelect);
        EXPECT_EQ(sizesAfter("editUQButton, type quotaLimitTextField 3, okBtn, applyButton"), sizes);
    }

    // The second request holds a user whom the server no longer knows.
    table.selectAll();
    act("editUQButton, type quotaLimitTextField 4, okBtn");
    view<UserQuotaViewController>().usersEdited[450]->SID = "guid-gone";
    EXPECT_EQ(sizesAfter("applyButton"), Sizes({300, 300, 1}));
    EXPECT_THAT(log.take(), Contains("Failed with err - 20904"));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_THAT(rows()[450], testing::StartsWith("CN=User 450.OU=Verlag.O=Meridal 4 GB"))
        << "what was edited stays";
    EXPECT_EQ(state("applyButton revert"), "grey, grey");
    EXPECT_EQ(onServer("guid-600"), 4 * gigabyte) << "the rest was sent all the same";
}

TEST_F(UserQuotaTest, ReportsWhatFails) {
    openWith(1);
    limitsEdited("0", "5");
    world.server->misbehaviour.onlyPipe = "/Manage_KELP/user.cmd";
    breakPipes();
    EXPECT_THAT(act("applyButton").alerts(), ElementsAre("Err_Operation_Failed", "Err_Operation_Failed"));
    EXPECT_EQ(limits(), "");
    EXPECT_EQ(emptyText(), "User_Quotas_Unknown_Label");
    mend();
    losePassword();
    EXPECT_THAT(act("revert").alerts(), ElementsAre("Err_Keychain_Not_Found"));
    EXPECT_EQ(state("applyButton revert"), "grey, grey");
}

} // namespace
} // namespace quorvan::test
