// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Quota/UserQuotaViewController.h"
#include "Tests/Quorvan/Controller/PropertyFixture.h"

#include <QElapsedTimer>

#include <cerrno>

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
namespace demo = simulator::demo;

/// A volume with users of the tree, "User 0", "User 1", …, each with 1 GB, and three of Active Directory.
struct UserQuotaTest : PropertyFixture {
    UserQuotaTest() {
        bundle->texts["No_Match_Label"] = "nothing like %1";
        world.server->addPath("VOL2:\\Any");
        for (const char* user : {demo::supervisor, demo::supervisorTree})
            world.server->setTrustee("VOL2:\\", account(user), simulator::right::supervisor);
        for (const char* name : {"Smith", "jürgen", "Jan"})
            addQuota(world.identities->addDomainUser(name, std::string("S-1-5-21-") + name));
    }
    const simulator::Identity& account(const char* user) const {
        return *world.server->findAccount(user)->identity;
    }
    void addQuota(const simulator::Identity& user) {
        world.server->volumes().userQuotas("VOL2")->of(user).limit = gigabyte;
    }
    void addTreeUsers(int count) {
        for (int i = 0; i < count; ++i)
            addQuota(world.identities->addTreeUser("User " + std::to_string(i), "Verlag",
                                                   "guid-" + std::to_string(i)));
    }
    void openView(const char* user = demo::supervisorTree, const char* userType = "Morvane") {
        view = openAt<UserQuotaViewController>("VOL2/Any", user, userType);
        table = view->userQuotaTable;
    }
    void openViewOfDirectory() { openView(demo::supervisor, "ActiveDirectory"); }
    QModelIndex cell(int row, int column) const { return table->model()->index(row, column); }
    void select(std::initializer_list<int> rows) {
        table->clearSelection();
        for (const int row : rows)
            QTest::mouseClick(table->viewport(), Qt::LeftButton, Qt::ControlModifier,
                              table->visualRect(cell(row, 0)).center());
    }
    /// The rows as "Smith 1 GB", for DOMAIN\Smith and for CN=Smith.OU=Verlag.O=Meridal.
    Texts rows() const {
        Texts found;
        for (const std::string& name : names(*table)) {
            const std::size_t begin = name.find_first_of("\\=") + 1;
            found.push_back(name.substr(begin, name.find('.') - begin) + " " +
                            cell(static_cast<int>(found.size()), 1).data().toString().toStdString());
        }
        return found;
    }
    void clickHeader() {
        QTest::mouseClick(table->horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 8});
    }
    void enterLimit(const char* limit) {
        type(front<QLineEdit>("quotaLimitTextField"), limit);
        click(front<QPushButton>("okBtn"));
    }
    void edit(std::initializer_list<int> rows, const char* limit) {
        select(rows);
        click(view->editUQButton);
        enterLimit(limit);
        EXPECT_FALSE(sheetIsOpen());
    }
    bool changesEnabled() const {
        EXPECT_EQ(view->applyButton->isEnabled(), view->revert->isEnabled());
        return view->applyButton->isEnabled();
    }
    /// The changes of each request as "guid-1=1073741824 ".
    Texts changes() {
        static const QRegularExpression change("<id>(.*?)</id><quota>(.*?)</quota></set>");
        Texts found;
        for (const std::string& request : sent("<userQuota>", "</userQuota>")) {
            if (request.starts_with("<browse"))
                continue;
            found.emplace_back();
            for (auto it = change.globalMatch(QString::fromStdString(request)); it.hasNext();) {
                const auto match = it.next();
                found.back() += (match.captured(1) + '=' + match.captured(2) + ' ').toStdString();
            }
        }
        return found;
    }
    std::int64_t onServer(const std::string& id) const {
        for (const auto& quota : world.server->volumes().userQuotas("VOL2")->entries())
            if (quota.user->id == id)
                return quota.limit;
        return -1;
    }

    static constexpr std::int64_t gigabyte = std::int64_t{1} << 30;
    UserQuotaViewController* view = nullptr;
    ListTable* table = nullptr;
};

TEST_F(UserQuotaTest, ListsSearchesAndSorts) {
    addTreeUsers(2);
    openViewOfDirectory();
    EXPECT_THAT(rows(), ElementsAre("Smith 1 GB", "jürgen 1 GB", "Jan 1 GB"));
    EXPECT_EQ(cell(0, 2).data(), "0 KB");
    EXPECT_EQ(cell(0, 3).data(), "1 GB");
    QTest::keyClicks(view->searchField, "SMI");
    EXPECT_THAT(rows(), ElementsAre("Smith 1 GB"));
    type(view->searchField, "*j*n");
    EXPECT_THAT(rows(), ElementsAre("jürgen 1 GB", "Jan 1 GB"));
    clickHeader();
    EXPECT_THAT(rows(), ElementsAre("Jan 1 GB", "jürgen 1 GB"));
    type(view->searchField, "q");
    EXPECT_EQ(table->emptyText(), "nothing like q");
    QTest::keyClick(view->searchField, Qt::Key_Escape);
    EXPECT_THAT(rows(), ElementsAre("Smith 1 GB", "jürgen 1 GB", "Jan 1 GB"));

    Shared::value().bothID = true;
    openViewOfDirectory();
    EXPECT_THAT(rows(), ElementsAre("Smith 1 GB", "jürgen 1 GB", "Jan 1 GB", "User 0 1 GB", "User 1 1 GB"));
    EXPECT_TRUE(view->addUQButton->isEnabled());
    select({0, 3});
    click(view->removeUQButton);
    click(view->applyButton);
    EXPECT_THAT(changes(), ElementsAre("S-1-5-21-Smith=9223372036854775807 guid-0=9223372036854775807 "));

    bundle->features->at("addBothTrustees") = false;
    openViewOfDirectory();
    EXPECT_FALSE(view->addUQButton->isEnabled() || view->editUQButton->isEnabled());
    EXPECT_TRUE(view->removeUQButton->isEnabled());

    Shared::value().bothID = false;
    openView(demo::accessControlTree);
    EXPECT_FALSE(view->addUQButton->isEnabled() || view->removeUQButton->isEnabled());
    EXPECT_TRUE(view->readOnlyLabel->isVisible());
}

TEST_F(UserQuotaTest, AddsEditsAndRemovesInOneGo) {
    addTreeUsers(4);
    openView();
    edit({1, 2}, "5");
    EXPECT_THAT(rows(), ElementsAre("User 1 5 GB", "User 2 5 GB", "User 0 1 GB", "User 3 1 GB"));
    EXPECT_TRUE(changesEnabled());
    select({3, 2});
    QTest::keyClick(table, Qt::Key_Delete);
    EXPECT_THAT(rows(), ElementsAre("User 1 5 GB", "User 2 5 GB"));

    // Added: one who was just removed, one who is listed, and one more; the first is picked twice.
    click(view->addUQButton);
    EXPECT_THAT(names(*front<QTableView>("userList")), IsEmpty());
    auto& dialog = dynamic_cast<AddUserQuotaViewController&>(*front<QWidget>("userList")->parentWidget());
    const std::string pavel = account(demo::accessControlTree).id;
    dialog.onReturnMorvaneSelectedUser({User("zero", "user", "guid-0"), User("one", "user", "guid-1"),
                                        User("Pavel", "user", pavel), User("again", "user", "guid-0")});
    EXPECT_THAT(takeAlerts(), ElementsAre("Err_Msg_Duplicate_Trustee"));
    EXPECT_THAT(log.take(), testing::Contains("Trustee is already present"));
    EXPECT_THAT(names(*front<QTableView>("userList")), ElementsAre("zero", "one", "Pavel"));
    choose(front<QComboBox>("selectUnit"), 2);
    enterLimit("2");
    EXPECT_THAT(rows(), ElementsAre("zero 2 TB", "User 1 2 TB", "Pavel 2 TB", "User 2 5 GB"));

    click(view->applyButton);
    EXPECT_THAT(changes(), ElementsAre("guid-0=9223372036854775807 guid-3=9223372036854775807 "
                                       "guid-1=2199023255552 guid-2=5368709120 guid-0=2199023255552 " +
                                       pavel + "=2199023255552 "));
    EXPECT_EQ(onServer("guid-0"), gigabyte << 11);
    EXPECT_FALSE(changesEnabled());
    EXPECT_EQ(world.network->openDescriptors(), 0U);

    edit({0}, "7");
    select({0});
    click(view->removeUQButton);
    click(view->revert);
    EXPECT_FALSE(changesEnabled());
    EXPECT_THAT(rows(), SizeIs(4));
    EXPECT_THAT(view->usersToRemove, IsEmpty());
    EXPECT_THAT(changes(), IsEmpty());
    click(view->closeButton);
    EXPECT_THAT(host->titles, ElementsAre("Rights Management"));
}

TEST_F(UserQuotaTest, MarksTheRowsOfTheWholeListWhileASearchIsOn) {
    addTreeUsers(4);
    openView();
    QTest::keyClicks(view->searchField, "User 3");
    edit({0}, "5"); // the dialog gets User 3, but it is User 0 that is marked
    EXPECT_EQ(view->searchField->text(), "") << "all rows are shown again";
    EXPECT_EQ(rows().front(), "User 3 5 GB");
    click(view->applyButton);
    EXPECT_THAT(changes(), ElementsAre("guid-0=1073741824 "));
}

TEST_F(UserQuotaTest, LivesWithUsersWhoShareAnId) {
    addTreeUsers(1);
    simulator::Identity& twin = world.identities->addTreeUser("Twin", "Verlag", "guid-twin");
    twin.id = "guid-0";
    addQuota(twin);
    addQuota(world.identities->addTreeUser("Other", "Verlag", "guid-2"));
    openView();
    edit({2}, "5");
    EXPECT_THAT(rows(), ElementsAre("Other 5 GB", "User 0 1 GB", "Twin 1 GB"));
    click(view->revert);

    edit({0, 1}, "6"); // both stand for the first, and the second is still listed
    EXPECT_THAT(rows(), ElementsAre("User 0 6 GB", "User 0 6 GB", "Twin 6 GB", "Other 1 GB"));
    edit({3}, "7"); // the row has no number in the whole list, so nobody is marked
    click(view->applyButton);
    EXPECT_THAT(changes(), ElementsAre("guid-0=6442450944 guid-0=6442450944 "));
}

TEST_F(UserQuotaTest, KeepsTheDialogOpenForWhatIsNoLimit) {
    addTreeUsers(1);
    openView();
    select({0});
    click(view->editUQButton);
    for (const char* text : {"", "1.5", "10 GB", " ", "9223372036854775808"}) {
        enterLimit(text);
        EXPECT_EQ(dismissAlert(), "Invalid_Quota_Limit") << text;
        EXPECT_EQ(view->users[0]->quotaLimit, gigabyte);
    }
    for (const char* text : {"8192", "9223372036854775807"})
        EXPECT_DEATH(
            {
                setLogSink({});
                choose(front<QComboBox>("selectUnit"), 3);
                enterLimit(text);
            },
            "too large for its unit");
    choose(front<QComboBox>("selectUnit"), 3);
    enterLimit("8191");
    EXPECT_FALSE(sheetIsOpen());
    EXPECT_EQ(view->users[0]->quotaLimit, std::int64_t{8191} << 50);
    edit({0}, "-1"); // a number, which the server refuses
    click(view->applyButton);
    EXPECT_THAT(changes(), ElementsAre("guid-0=-1073741824 "));
    EXPECT_THAT(takeAlerts(), ElementsAre("Err_Operation_Failed"));

    click(view->addUQButton);
    enterLimit("1");
    EXPECT_FALSE(sheetIsOpen() || changesEnabled()) << "nobody was chosen";
    click(view->addUQButton);
    click(front<QPushButton>("cancelBtn"));
    EXPECT_FALSE(sheetIsOpen());
}

TEST_F(UserQuotaTest, TakesUsersFromTheSheetsOfEitherDirectory) {
    Shared::value().bothID = true;
    openViewOfDirectory();
    click(view->addUQButton);
    for (const char* place : {inTree, inDomain})
        pickUsers(front<QPushButton>("selectTrusteeBtn"), place, {0, 1});
    EXPECT_THAT(names(*front<QTableView>("userList")), SizeIs(4));
    enterLimit("9");
    const UserQuotaList added(view->usersEdited.end() - 4, view->usersEdited.end());
    click(view->applyButton);
    EXPECT_THAT(takeAlerts(), IsEmpty());
    for (const auto& user : added)
        EXPECT_EQ(onServer(*user->SID), 9 * gigabyte);
    Shared::value().bothID = false;
    bundle->features->at("multiForest") = false;
    openViewOfDirectory();
    click(view->addUQButton);
    click(front<QPushButton>("selectTrusteeBtn"));
    EXPECT_TRUE(front<QWidget>("userTypeTable")->isVisible()) << "the browser of a single forest";
}

TEST_F(UserQuotaTest, SendsThreeHundredAtATime) {
    addTreeUsers(601);
    using Sizes = std::vector<std::ptrdiff_t>;
    const auto sizes = [this] {
        Sizes found;
        for (const std::string& request : changes())
            found.push_back(std::count(request.begin(), request.end(), '='));
        return found;
    };
    openView();
    click(view->removeUQButton); // nobody
    EXPECT_TRUE(changesEnabled());
    click(view->applyButton);
    EXPECT_THAT(sizes(), ElementsAre(0));
    for (const int count : {1, 300, 301}) {
        QItemSelection rows(cell(0, 0), cell(count - 1, 3));
        table->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
        click(view->editUQButton);
        enterLimit("3");
        click(view->applyButton);
        EXPECT_EQ(sizes(), count == 1 ? Sizes{1} : Sizes({300, count - 300}));
    }

    // The second request holds a user whom the server no longer knows.
    table->selectAll();
    click(view->editUQButton);
    enterLimit("4");
    view->usersEdited[450]->SID = "guid-gone";
    click(view->applyButton);
    EXPECT_THAT(sizes(), ElementsAre(300, 300, 1));
    EXPECT_THAT(log.take(), testing::Contains("Failed with err - 20904"));
    EXPECT_THAT(takeAlerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_EQ(rows()[450], "User 450 4 GB") << "what was edited stays on show";
    EXPECT_FALSE(changesEnabled());
    EXPECT_EQ(onServer("guid-600"), 4 * gigabyte) << "the rest was sent all the same";
}

TEST_F(UserQuotaTest, ReportsWhatFails) {
    openViewOfDirectory();
    edit({0}, "5");
    world.server->misbehaviour.onlyPipe = "/Manage_KELP/user.cmd";
    world.server->misbehaviour.openError = EACCES;
    click(view->applyButton);
    EXPECT_THAT(takeAlerts(), ElementsAre("Err_Operation_Failed", "Err_Operation_Failed"));
    EXPECT_THAT(rows(), IsEmpty());
    EXPECT_EQ(table->emptyText(), "User_Quotas_Unknown_Label");
    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    ServerDetails::serverInfo().keychainStatus = errSecItemNotFound;
    click(view->revert);
    EXPECT_THAT(takeAlerts(), ElementsAre("Err_Keychain_Not_Found"));
    EXPECT_FALSE(changesEnabled());
}

TEST_F(UserQuotaTest, HoldsAHundredThousandUsers) {
    constexpr int count = 100000;
    addTreeUsers(count);
    QElapsedTimer clock;
    clock.start();
    openView();
    const qint64 loading = clock.restart();
    clickHeader();
    QTest::keyClicks(view->searchField, "9");
    QTest::keyClick(view->searchField, Qt::Key_Escape);
    QItemSelection tenth;
    for (int row = 0; row < count; row += 10)
        tenth.select(cell(row, 0), cell(row, 3));
    table->selectionModel()->select(tenth, QItemSelectionModel::Select);
    clickHeader(); // the selection follows the order
    click(view->removeUQButton);
    EXPECT_EQ(view->usersEdited.size(), count / 10 * 9);
    EXPECT_EQ(view->usersDisplay.size(), count / 10 * 9);
    table->selectAll();
    click(view->editUQButton);
    enterLimit("5");
    EXPECT_EQ(view->usersEdited.back()->action, "MODIFY");
    EXPECT_LT(clock.elapsed(), 6 * loading) << "something looks for each user among all others";
}

} // namespace
} // namespace quorvan::test
