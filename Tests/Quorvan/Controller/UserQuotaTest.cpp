// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/UserQuotaViewController.h"
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
    UserQuotaTest()
        : PropertyFixture(simulator::Embedded()) {
        bundle->texts["No_Match_Label"] = "nothing like %1";
        simulator::addDemoAccounts(*world.server);
        for (const char* name : {"Smith", "jürgen", "Jan"})
            addQuota(world.identities->addDomainUser(name, std::string("S-1-5-21-") + name));
    }
    void addQuota(const simulator::Identity& user) {
        world.server->volumes().userQuotas("VOL1")->of(user).limit = gigabyte;
    }
    void addTreeUsers(int count) {
        for (int i = 0; i < count; ++i)
            addQuota(world.identities->addTreeUser("User " + std::to_string(i), "Verlag",
                                                   "guid-" + std::to_string(i)));
    }
    void openView(const char* user = demo::supervisorTree, const char* userType = "Morvane") {
        view = open<UserQuotaViewController>("VOL1:\\", user, userType);
        seen = world.server->requests().size();
    }
    void openViewOfDirectory(const char* user = demo::supervisor) { openView(user, "ActiveDirectory"); }
    void select(std::initializer_list<int> rows) {
        view->userQuotaTable->clearSelection();
        for (const int row : rows)
            QTest::mouseClick(view->userQuotaTable->viewport(), Qt::LeftButton, Qt::ControlModifier,
                              view->userQuotaTable->visualRect(cell(row, 0)).center());
    }
    QModelIndex cell(int row, int column) const { return view->userQuotaTable->model()->index(row, column); }
    /// "Smith" for DOMAIN\Smith and for CN=Smith.OU=Verlag.O=Meridal.
    static std::string shortName(const QString& name) {
        return name.section('\\', -1).section('=', 0, 0) == "CN"
                   ? name.section('=', 1, 1).section('.', 0, 0).toStdString()
                   : name.section('\\', -1).toStdString();
    }
    /// The rows as "Smith 1 GB".
    std::vector<std::string> shown() const {
        std::vector<std::string> rows;
        for (int row = 0; row < view->userQuotaTable->model()->rowCount(); ++row)
            rows.push_back(shortName(cell(row, 0).data().toString()) + " " +
                           cell(row, 1).data().toString().toStdString());
        return rows;
    }
    AddUserQuotaViewController& dialog() const {
        AddUserQuotaViewController* found = nullptr;
        for (QWidget* each : view->window()->findChildren<QWidget*>())
            if (auto* sheet = dynamic_cast<AddUserQuotaViewController*>(each))
                found = sheet;
        EXPECT_NE(found, nullptr);
        return *found;
    }
    bool dialogIsOpen() const {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return QApplication::activeModalWidget() != nullptr;
    }
    void enterLimit(const char* limit) {
        type(dialog().quotaLimitTextField, limit);
        click(dialog().okBtn);
    }
    void edit(std::initializer_list<int> rows, const char* limit) {
        select(rows);
        click(view->editUQButton);
        enterLimit(limit);
        EXPECT_FALSE(dialogIsOpen());
    }
    bool changesEnabled() const {
        EXPECT_EQ(view->applyButton->isEnabled(), view->revert->isEnabled());
        return view->applyButton->isEnabled();
    }
    /// The changes of each request as "guid-1=1073741824 ".
    std::vector<std::string> changes() {
        static const QRegularExpression change("<id>(.*?)</id><quota>(.*?)</quota></set>");
        std::vector<std::string> found;
        for (const std::string& request : sent("<userQuota>", "</userQuota>")) {
            if (request.starts_with("<browse"))
                continue;
            std::string line;
            for (auto it = change.globalMatch(QString::fromStdString(request)); it.hasNext();) {
                const auto match = it.next();
                line += (match.captured(1) + '=' + match.captured(2) + ' ').toStdString();
            }
            found.push_back(line);
        }
        return found;
    }
    std::int64_t onServer(const std::string& id) const {
        for (const auto& quota : world.server->volumes().userQuotas("VOL1")->entries())
            if (quota.user->id == id)
                return quota.limit;
        return -1;
    }

    static constexpr std::int64_t gigabyte = std::int64_t{1} << 30;
    UserQuotaViewController* view = nullptr;
};

TEST_F(UserQuotaTest, ListsSearchesAndSorts) {
    addTreeUsers(2);
    openViewOfDirectory();
    EXPECT_THAT(shown(), ElementsAre("Smith 1 GB", "jürgen 1 GB", "Jan 1 GB"));
    EXPECT_EQ(cell(0, 2).data(), "0 KB");
    EXPECT_EQ(cell(0, 3).data(), "1 GB");
    QTest::keyClicks(view->searchField, "SMI");
    EXPECT_THAT(shown(), ElementsAre("Smith 1 GB"));
    type(view->searchField, "*j*n");
    EXPECT_THAT(shown(), ElementsAre("jürgen 1 GB", "Jan 1 GB"));
    QTest::mouseClick(view->userQuotaTable->horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 8});
    EXPECT_THAT(shown(), ElementsAre("Jan 1 GB", "jürgen 1 GB"));
    type(view->searchField, "q");
    EXPECT_EQ(view->userQuotaTable->emptyText(), "nothing like q");
    QTest::keyClick(view->searchField, Qt::Key_Escape);
    EXPECT_THAT(shown(), ElementsAre("Smith 1 GB", "jürgen 1 GB", "Jan 1 GB"));

    Shared::value().bothID = true;
    openViewOfDirectory();
    EXPECT_THAT(shown(), ElementsAre("Smith 1 GB", "jürgen 1 GB", "Jan 1 GB", "User 0 1 GB", "User 1 1 GB"));
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
    EXPECT_THAT(shown(), ElementsAre("User 1 5 GB", "User 2 5 GB", "User 0 1 GB", "User 3 1 GB"));
    EXPECT_TRUE(changesEnabled());
    select({3, 2});
    QTest::keyClick(view->userQuotaTable, Qt::Key_Delete);
    EXPECT_THAT(shown(), ElementsAre("User 1 5 GB", "User 2 5 GB"));

    // Added: one who was just removed, one who is listed, and one more, who is picked twice.
    click(view->addUQButton);
    EXPECT_THAT(dialog().users, IsEmpty());
    click(dialog().selectTrusteeBtn);
    EXPECT_EQ(browser(view).objectName(), "ViewBrowseMorvane");
    browser(view).delegate->onReturnMorvaneSelectedUser(
        {User("zero", "user", "guid-0"), User("one", "user", "guid-1"),
         User("Pavel", "user", world.server->findAccount(demo::accessControlTree)->identity->id),
         User("zero again", "user", "guid-0")});
    closeBrowser(view);
    EXPECT_THAT(alerts(), ElementsAre("Err_Msg_Duplicate_Trustee"));
    EXPECT_THAT(log.take(), testing::Contains("Trustee is already present"));
    EXPECT_THAT(dialog().users, SizeIs(3));
    choose(dialog().selectUnit, 2);
    enterLimit("2");
    EXPECT_THAT(shown(), ElementsAre("zero 2 TB", "User 1 2 TB", "Pavel 2 TB", "User 2 5 GB"));

    click(view->applyButton);
    const std::string pavel = world.server->findAccount(demo::accessControlTree)->identity->id;
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
    EXPECT_THAT(shown(), SizeIs(4));
    EXPECT_THAT(view->usersToRemove, IsEmpty());
    EXPECT_THAT(changes(), IsEmpty());
}

TEST_F(UserQuotaTest, MarksTheRowsOfTheWholeListWhileASearchIsOn) {
    addTreeUsers(4);
    openView();
    QTest::keyClicks(view->searchField, "User 3");
    edit({0}, "5"); // the dialog gets User 3, but it is User 0 that is marked
    EXPECT_EQ(view->searchField->text(), "") << "all rows are shown again";
    EXPECT_EQ(shown().front(), "User 3 5 GB");
    click(view->applyButton);
    EXPECT_THAT(changes(), ElementsAre("guid-0=1073741824 "));
}

TEST_F(UserQuotaTest, KeepsTheDialogOpenForWhatIsNoLimit) {
    addTreeUsers(1);
    openView();
    select({0});
    click(view->editUQButton);
    for (const char* text : {"", "1.5", "10 GB", " ", "9223372036854775808"}) {
        enterLimit(text);
        EXPECT_EQ(dismissSheet(&dialog()), "Invalid_Quota_Limit") << text;
        EXPECT_TRUE(dialogIsOpen());
        EXPECT_EQ(view->users[0]->quotaLimit, gigabyte);
    }
    for (const char* text : {"8192", "9223372036854775807"})
        EXPECT_DEATH(
            {
                setLogSink({});
                choose(dialog().selectUnit, 3);
                enterLimit(text);
            },
            "too large for its unit");
    choose(dialog().selectUnit, 3);
    enterLimit("8191");
    EXPECT_FALSE(dialogIsOpen());
    EXPECT_EQ(view->users[0]->quotaLimit, std::int64_t{8191} << 50);
    edit({0}, "-1"); // a number, which the server refuses
    click(view->applyButton);
    EXPECT_THAT(changes(), ElementsAre("guid-0=-1073741824 "));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));

    click(view->addUQButton);
    enterLimit("1");
    EXPECT_FALSE(dialogIsOpen()) << "nobody was chosen";
    EXPECT_FALSE(changesEnabled());
    click(view->addUQButton);
    click(dialog().cancelBtn);
    EXPECT_FALSE(dialogIsOpen());
    click(view->closeButton);
    EXPECT_THAT(host->titles, ElementsAre("Rights Management"));
}

TEST_F(UserQuotaTest, PicksFromEitherDirectory) {
    addTreeUsers(1);
    Shared::value().bothID = true;
    openViewOfDirectory();
    click(view->addUQButton);
    click(dialog().selectTrusteeBtn);
    EXPECT_EQ(browser(view).objectName(), "IdentifySource");
    browser(view).delegate->onReturnIdentifySource("Morvane");
    EXPECT_EQ(browser(view).objectName(), "ViewBrowseMorvane");
    closeBrowser(view);
    closeBrowser(view);
    EXPECT_EQ(dialog().domainIdentity, "Morvane");
    click(dialog().cancelBtn);
    Shared::value().bothID = false;
    bundle->features->at("multiForest") = false;
    openViewOfDirectory();
    click(view->addUQButton);
    click(dialog().selectTrusteeBtn);
    EXPECT_EQ(browser(view).objectName(), "oldViewBrowseAD");
}

TEST_F(UserQuotaTest, TakesUsersFromTheSheetsOfEitherDirectory) {
    fillMainStoryboard();
    Shared::value().bothID = true;
    openViewOfDirectory();
    click(view->addUQButton);
    for (const auto& [choice, place] :
         {std::pair("MorvaneBtn", ".OU=Verlag.O=Meridal."), {"ADBtn", "/Active Directory/MERIDAL"}}) {
        click(dialog().selectTrusteeBtn);
        click(front<QRadioButton>(choice));
        click(front<QPushButton>("OkBtn"));
        pickUsers(place, {0, 1});
    }
    ASSERT_THAT(dialog().users, SizeIs(4));
    const std::string tree = *dialog().users[0]->SID;
    const std::string domain = *dialog().users[3]->SID;
    enterLimit("9");
    click(view->applyButton);
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_EQ(onServer(tree), 9 * gigabyte);
    EXPECT_EQ(onServer(domain), 9 * gigabyte);
}

TEST_F(UserQuotaTest, SendsThreeHundredAtATime) {
    addTreeUsers(601);
    const auto sizes = [this] {
        std::vector<std::ptrdiff_t> found;
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
        view->userQuotaTable->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
        click(view->editUQButton);
        enterLimit("3");
        click(view->applyButton);
        EXPECT_THAT(sizes(), count == 1 ? ElementsAre(1)
                             : count == 300
                                 ? ElementsAre(300, 0)
                                 : testing::Matcher<std::vector<std::ptrdiff_t>>(ElementsAre(300, 1)));
    }

    // The second request holds a user whom the server no longer knows.
    view->userQuotaTable->selectAll();
    click(view->editUQButton);
    enterLimit("4");
    view->usersEdited[450]->SID = "guid-gone";
    click(view->applyButton);
    EXPECT_THAT(sizes(), ElementsAre(300, 300, 1));
    EXPECT_THAT(log.take(), testing::Contains("Failed with err - 20904"));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_EQ(shown()[450], "User 450 4 GB") << "what was edited stays on show";
    EXPECT_FALSE(changesEnabled());
    EXPECT_EQ(onServer("guid-600"), 4 * gigabyte) << "the rest was sent all the same";
}

TEST_F(UserQuotaTest, ReportsWhatFails) {
    openViewOfDirectory();
    edit({0}, "5");
    world.server->misbehaviour.onlyPipe = "/Manage_KELP/user.cmd";
    world.server->misbehaviour.openError = EACCES;
    click(view->applyButton);
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Operation_Failed"));
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_EQ(view->userQuotaTable->emptyText(), "User_Quotas_Unknown_Label");
    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    ServerDetails::serverInfo().keychainStatus = errSecItemNotFound;
    click(view->revert);
    EXPECT_THAT(alerts(), ElementsAre("Err_Keychain_Not_Found"));
    EXPECT_FALSE(changesEnabled());

    openViewOfDirectory();
    alerts();
    view->users.push_back(std::make_shared<UserQuotaData>());
    view->users.back()->quotaUsed.reset();
    view->usersDisplay = view->users;
    view->userQuotaTable->reloadData();
    EXPECT_DEATH(
        {
            setLogSink({});
            view->userQuotaTable->grab();
        },
        "no used space");
}

TEST_F(UserQuotaTest, HoldsAHundredThousandUsers) {
    constexpr int count = 100000;
    addTreeUsers(count);
    QElapsedTimer clock;
    clock.start();
    openView();
    QTest::mouseClick(view->userQuotaTable->horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 8});
    QTest::keyClicks(view->searchField, "9");
    QTest::keyClick(view->searchField, Qt::Key_Escape);
    QItemSelection tenth;
    for (int row = 0; row < count; row += 10)
        tenth.select(cell(row, 0), cell(row, 3));
    view->userQuotaTable->selectionModel()->select(tenth, QItemSelectionModel::Select);
    click(view->removeUQButton);
    EXPECT_THAT(view->usersEdited, SizeIs(count / 10 * 9));
    EXPECT_THAT(view->usersDisplay, SizeIs(count / 10 * 9));
    view->userQuotaTable->selectAll();
    click(view->editUQButton);
    enterLimit("5");
    EXPECT_EQ(view->usersEdited.back()->action, "MODIFY");
    EXPECT_LT(clock.elapsed(), 15000) << "something looks for each user among all others";
}

} // namespace
} // namespace quorvan::test
