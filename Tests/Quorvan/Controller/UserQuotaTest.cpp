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
    void edit(const std::string& rows, const std::string& limit) {
        act("pick " + rows + ", editUQButton, type quotaLimitTextField " + limit + ", okBtn");
    }
    std::int64_t onServer(const std::string& id) const {
        const auto quotas = world.server->volumes().userQuotas("VOL2")->entries();
        return std::ranges::find(quotas, id, [](const auto& quota) { return quota.user->id; })->limit;
    }
};

TEST_F(UserQuotaTest, ListsSearchesAndSorts) {
    openWith(2);
    play(R"(
        open quota                | rows MERIDAL\Smith 1 GB 0 KB 1 GB, MERIDAL\jürgen 1 GB 0 KB 1 GB, MERIDAL\Jan 1 GB 0 KB 1 GB
        type searchField SMI      | rows MERIDAL\Smith 1 GB 0 KB 1 GB
        type searchField *j*n     | rows MERIDAL\jürgen 1 GB 0 KB 1 GB, MERIDAL\Jan 1 GB 0 KB 1 GB
        header                    | rows MERIDAL\Jan 1 GB 0 KB 1 GB, MERIDAL\jürgen 1 GB 0 KB 1 GB
        type searchField q        | empty nothing like q
        key Escape                | row 0 MERIDAL\Smith 1 GB 0 KB 1 GB | count 3
        pick 1, header            | rows MERIDAL\Jan 1 GB 0 KB 1 GB, >MERIDAL\jürgen 1 GB 0 KB 1 GB, MERIDAL\Smith 1 GB 0 KB 1 GB
        removeUQButton            | rows MERIDAL\Jan 1 GB 0 KB 1 GB, MERIDAL\Smith 1 GB 0 KB 1 GB
    )");
    Shared::value().bothID = true;
    play(R"(
        open quota                | count 5 | row 3 CN=User 0.OU=Verlag.O=Meridal 1 GB 0 KB 1 GB
        pick 0 3, removeUQButton, applyButton | sent S-1-5-21-Smith 9223372036854775807; guid-0 9223372036854775807
    )");
}

TEST_F(UserQuotaTest, AddsEditsAndRemovesInOneGo) {
    openWith(5);
    edit("1 2", "5");
    control("userQuotaTable").setFocus();
    play(R"(
        | applyButton ready | revert ready | row 0 >CN=User 1.OU=Verlag.O=Meridal 5 GB 0 KB 5 GB | row 2 CN=User 0.OU=Verlag.O=Meridal 1 GB 0 KB 1 GB
        pick 3 2, key Del | count 3
        addUQButton
    )");
    // Two who are listed, one who was just removed, and one more; the third is picked twice.
    const std::string pavel = account(demo::accessControlTree).id;
    std::vector<User> chosen;
    for (const std::string& id :
         {std::string("guid-1"), std::string("guid-4"), std::string("guid-0"), pavel, std::string("guid-0")})
        chosen.emplace_back(id == pavel ? "Pavel" : id, "user", id);
    view<AddUserQuotaViewController>().onReturnMorvaneSelectedUser(chosen);
    play(R"(
        | alerts Err_Msg_Duplicate_Trustee | logged Trustee is already present | rows:userList guid-1, guid-4, guid-0, Pavel
        choose selectUnit TB, type quotaLimitTextField 2, okBtn | rows >CN=User 1.OU=Verlag.O=Meridal 2 TB 0 KB 2 TB, >CN=User 4.OU=Verlag.O=Meridal 2 TB 0 KB 2 TB, >guid-0 2 TB 0 KB 2 TB, >Pavel 2 TB 0 KB 2 TB, CN=User 2.OU=Verlag.O=Meridal 5 GB 0 KB 5 GB
    )");
    EXPECT_THAT(act("applyButton").changes(),
                ElementsAre("guid-0 9223372036854775807; guid-3 9223372036854775807; guid-1 2199023255552; "
                            "guid-2 5368709120; guid-4 2199023255552; guid-0 2199023255552; " +
                            pavel + " 2199023255552"));
    EXPECT_EQ(onServer("guid-0"), gigabyte << 11);
    EXPECT_EQ(value("noticeText"), "Applied_Label") << "what was removed and added again, too";
    EXPECT_EQ(world.network->openDescriptors(), 0U);
    play("| applyButton grey | revert grey | count 5");
    edit("0", "7");
    play("pick 0, removeUQButton, revert | count 5 | applyButton grey | revert grey");
    EXPECT_THAT(view<UserQuotaViewController>().usersToRemove, IsEmpty());
    play("closeButton | title Rights Management | sent");
}

TEST_F(UserQuotaTest, MarksTheRowsOfTheWholeListWhileASearchIsOn) {
    openWith(4);
    act("type searchField User 3"); // the dialog gets User 3, but it is User 0 that is marked
    edit("0", "5");
    play("| count 4 | row 0 >CN=User 3.OU=Verlag.O=Meridal 5 GB 0 KB 5 GB | searchField ");
    play("applyButton | sent guid-0 1073741824");
}

TEST_F(UserQuotaTest, LivesWithUsersWhoShareAnId) {
    for (const char* user : {"First", "Twin", "Other"}) {
        auto& identity = world.identities->addTreeUser(user, "Verlag", user);
        identity.id = user == std::string("Twin") ? "First" : user;
        addQuota(identity);
    }
    openWith(0);
    edit("2", "5");
    play(R"(
                                 | count 3 | row 0 >CN=Other.OU=Verlag.O=Meridal 5 GB 0 KB 5 GB
        pick 1 2, removeUQButton, type searchField *, type searchField | rows CN=Other.OU=Verlag.O=Meridal 5 GB 0 KB 5 GB
        revert
    )");
    edit("0 1", "6"); // both stand for the first, and the second is still listed
    play("| count 4 | row 1 >CN=First.OU=Verlag.O=Meridal 6 GB 0 KB 6 GB | row 2 CN=Twin.OU=Verlag.O=Meridal "
         "6 GB 0 KB 6 GB");
    edit("3", "7"); // the row has no number in the whole list, so none is marked
    play(R"(
        applyButton              | sent First 6442450944; First 6442450944 | count 3
        pick 0, removeUQButton   | rows CN=Other.OU=Verlag.O=Meridal 1 GB 0 KB 1 GB
        type searchField *, type searchField | rows CN=Twin.OU=Verlag.O=Meridal 1 GB 0 KB 1 GB, CN=Other.OU=Verlag.O=Meridal 1 GB 0 KB 1 GB // only the one that was chosen is gone
        applyButton              | sent First 9223372036854775807
    )");
}

TEST_F(UserQuotaTest, EditsFromWhatIsAndLeadsToWhoIsOver) {
    for (const std::string number : {"0", "1", "2"}) {
        const auto& user = world.identities->addTreeUser("User " + number, "Verlag", "guid-" + number);
        auto& quota = world.server->volumes().userQuotas("VOL2")->of(user);
        quota.limit = number == "1" ? gigabyte : gigabyte / 2;
        quota.used = number == "1" ? 0 : gigabyte;
    }
    open("quota", demo::supervisorTree);
    EXPECT_TRUE(isShown("overLimitBtn"));
    click("overLimitBtn");
    click("overLimitBtn");
    EXPECT_EQ(rows()[2], ">CN=User 2.OU=Verlag.O=Meridal 512 MB 1 GB -512 MB");
    EXPECT_EQ(control<ListTable>("userQuotaTable").model()->index(2, 2).data(Qt::AccessibleTextRole),
              "Over_Limit_Row_Label");
    play(R"(
        pick 0 2, editUQButton | quotaLimitTextField 512 | selectUnit MB | currentLimits
        okBtn, pick 0 2, editUQButton | quotaLimitTextField  | selectUnit GB | currentLimits Current_Limits_Label
    )");
    EXPECT_EQ(act("okBtn").dismissAlert(), "Invalid_Quota_Limit") << "a mere Return changes nobody";
    play(R"(
        pick 0, takeOffBtn | count 1 | takeOffBtn ready | quotaLimitTextField 1 | selectUnit GB | currentLimits
        type quotaLimitTextField 7, okBtn | pendingLine ready // names those that are marked, not who was meant
        applyButton        | sent guid-0 536870912; guid-2 536870912 | pendingLine hidden
    )");
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
    play("type quotaLimitTextField 8191, okBtn | row 0 >CN=User 0.OU=Verlag.O=Meridal 8191 PB 0 KB 8191 PB");
    edit("0", "-1"); // a number, which the server refuses
    play(R"(
        applyButton              | sent guid-0 -1125899906842624 | alerts Err_Operation_Failed
        addUQButton              | title Add_User_Quota_Title
        type quotaLimitTextField 1, okBtn | title User_Quota_Title | applyButton grey // no user was chosen
        addUQButton, cancelBtn   | title User_Quota_Title
    )");
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
    play(R"(
        | logged Failed with err - 20904 | alerts Err_Operation_Failed | applyButton grey | revert grey
        | row 450 >CN=User 450.OU=Verlag.O=Meridal 4 GB 0 KB 4 GB    // what was edited stays on show
    )");
    EXPECT_EQ(onServer("guid-600"), 4 * gigabyte) << "the rest was sent all the same";
}

TEST_F(UserQuotaTest, ReportsWhatFails) {
    openWith(1);
    edit("0", "5");
    world.server->misbehaviour.onlyPipe = "/Manage_KELP/user.cmd";
    play(R"(
        break pipes, applyButton    | alerts Err_Operation_Failed, Err_Operation_Failed | empty User_Quotas_Unknown_Label
        mend, lose password, revert | alerts Err_Keychain_Not_Found | applyButton grey | revert grey
    )");
}

} // namespace
} // namespace quorvan::test
