// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for every page and sheet: what the user's rights open, what happens when the server fails, and
// that all of it can be used without mouse and screen.
#include "Platform/Qt/QtBundle.h"
#include "Quorvan/Controller/Rights/FileSystemRightsViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Toolkit/NoticeLine.h"
#include "Quorvan/Toolkit/PendingChanges.h"
#include "Tests/Quorvan/Controller/WindowTest.h"
#include "Tests/Support/Table.h"

#include <QAccessible>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QMenuBar>
#include <QTabWidget>
#include <QTemporaryDir>

namespace quorvan::test {
namespace {

using testing::StartsWith;

/// The texts that the user reads.
struct RealTexts : FakeBundle {
    explicit RealTexts(const QLocale& locale = QLocale(QLocale::English))
        : table(QString(), locale) {}
    std::string localizedString(const std::string& key) override { return table.localizedString(key); }
    platform::QtBundle table;
};

struct PagesTest : WindowTest {
    /// The server refuses all requests with this in them.
    void refuse(const char* request) {
        world.server->misbehaviour.code = 7;
        world.server->misbehaviour.onlyWith = request;
    }
    /// From now on the program shows the texts that the user reads.
    void speak(const QLocale& locale = QLocale(QLocale::English)) {
        bundle = std::make_shared<RealTexts>(locale);
        platform::Services services = platform::services();
        services.bundle = bundle;
        spoken_.emplace(services);
    }

private:
    std::optional<platform::ScopedServices> spoken_;
};

TEST_F(PagesTest, OfferWhatTheUsersOwnRightsAllow) {
    // What a supervisor reaches, and what another loses or gets: one with Access Control, one who may only
    // read, and a supervisor where both directories are on show but not to choose from.
    const auto cases = test::table<5>(R"(
rights      | rightsTable addBtn removeBtn closeBtn tabs searchField | | addBtn removeBtn read-only | addBtn
inherited   | readIRF writeIRF eraseIRF createIRF modifyIRF fscanIRF accessIRF closeBtn tabs | | readIRF writeIRF eraseIRF createIRF modifyIRF fscanIRF accessIRF read-only |
effective   | searchField effRightsTable selectUserBtn closeBtn tabs | | selectUserBtn | selectUserBtn
folders     | searchInSubField subdirTable removeBtnSub searchInParentField parentdirTable removeBtnParent stoppedBtn closeBtn tabs | | removeBtnSub removeBtnParent read-only |
files       | selectUserBtn fsrTable cancelBtn | selectUserBtn read-only | selectUserBtn read-only | selectUserBtn
quota       | userQuotaTable addUQButton editUQButton removeUQButton closeButton overLimitBtn searchField | addUQButton editUQButton removeUQButton read-only | addUQButton editUQButton removeUQButton read-only | addUQButton editUQButton
information | tabs readChk hideChk archiveChk purgeImmediateChk renameInhibitChk deleteInhibitChk immediateCompressChk closeButton changeOwnerButton | changeOwnerButton read-only | changeOwnerButton read-only | changeOwnerButton
settings    | ListBoth CloseBtn | | ListBoth read-only |
)");
    const auto changed = [](const std::string& controls, const std::string& by) {
        QStringList names = QString::fromStdString(controls).split(' ');
        for (const QString& name : QString::fromStdString(by).split(' ', Qt::SkipEmptyParts))
            if (names.removeAll(name) == 0)
                names.append(name);
        return names.join(' ').toStdString();
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each[0]);
        const char* page = each[0].c_str();
        bundle->features->at("addBothTrustees") = true;
        for (const auto& [user, change] : {std::pair{demo::supervisor, ""},
                                           {demo::accessControl, each[2].c_str()},
                                           {demo::readOnly, each[3].c_str()},
                                           {demo::supervisorTree, ""},
                                           {demo::readOnlyTree, each[3].c_str()}})
            EXPECT_EQ(open(page, user).reached(), changed(each[1], change)) << user;
        bundle->features->at("addBothTrustees") = false;
        open(page, demo::supervisor, [] { Shared::value().bothID = true; });
        EXPECT_EQ(reached(), changed(each[1], each[4]));
        Shared::value().bothID = false;
        EXPECT_THAT(alerts(), IsEmpty());
    }
}

TEST_F(PagesTest, TakeTicksAndSelectionAsTheUsersOwnRightsAllow) {
    const struct {
        const char *page, *table, *supervisor, *accessControl, *readOnly;
    } cases[] = {{"rights", "rightsTable", ">admin SRWF", ">admin RWF", "admin RF"},
                 {"effective", "effRightsTable", ">admin RF", ">admin RF", ">admin RF"},
                 {"folders", "subdirTable", ">admin Box SRWF", ">admin Box RWF", "admin Box RF"},
                 {"folders", "parentdirTable", ">admin Box SRWF", ">admin Box RWF", "admin Box RF"}};
    for (const auto& each : cases)
        for (const auto& [user, expected] : {std::pair{demo::supervisor, each.supervisor},
                                             {demo::accessControl, each.accessControl},
                                             {demo::readOnly, each.readOnly}}) {
            open(each.page, user)
                .act(std::string("pick:") + each.table + " 1, tick:" + each.table + " 1W 1S");
            EXPECT_EQ(rows(each.table)[1], expected) << each.page;
        }
}

/// Each failure is one alert and one line in the log, and a page whose list cannot be read leads back.
TEST_F(PagesTest, ReportEveryFailureToLoadAndLeadBack) {
    enum Failure { noPipe, noPassword, refused };
    const struct {
        const char *page, *title;
        std::array<const char*, 3> alerts; ///< of each failure: f for what failed, k for a missing password
        std::array<const char*, 3> ofBoth; ///< … with both directories on show
    } cases[] = {
        {"rights", "Rights Management", {"ff", "kf", "f"}, {"fff", "kkf", "ff"}},
        {"inherited", "Trustee_Rights_Title", {"", "", ""}, {"", "", ""}},
        {"effective", "Rights Management", {"fff", "kkf", "ff"}, {"fff", "kkf", "ff"}},
        {"folders", "Rights Management", {"fff", "kfk", "ff"}, {"fff", "kfk", "ff"}},
        {"files", "File_System_Rights_Title", {"f", "k", "f"}, {"f", "k", "f"}},
        {"quota", "User_Quota_Title", {"ff", "kk", "f"}, {"ff", "kk", "f"}},
        {"information", "Information_Title", {"ffff", "kkkk", "ffff"}, {"ffff", "kkkk", "ffff"}},
        {"settings", "Rights Management", {"ff", "kf", "f"}, {"ff", "kf", "f"}},
    };
    const std::map<std::string, char> letters{{"Err_Operation_Failed", 'f'}, {"Err_Keychain_Not_Found", 'k'}};
    for (const auto& each : cases)
        for (const bool both : {false, true})
            for (const Failure failure : {noPipe, noPassword, refused}) {
                SCOPED_TRACE(std::string(each.page) + " " + std::to_string(failure));
                open(each.page, demo::supervisor, [&] {
                    Shared::value().bothID = both;
                    if (failure == noPipe)
                        breakPipes();
                    else if (failure == noPassword)
                        losePassword();
                    else
                        world.server->misbehaviour.code = 7;
                    log.take();
                });
                EXPECT_EQ(title(), each.title);
                std::string reported;
                for (const std::string& message : alerts())
                    reported += letters.at(message);
                EXPECT_EQ(reported, (both ? each.ofBoth : each.alerts)[failure]);
                const char* code[] = {"-1", "-25300", "1"};
                // The directory quota leaves a line without credentials, too.
                const bool isQuota = failure == noPassword && each.page == std::string_view("information");
                const auto lines = std::ranges::count(reported, 'f') + (isQuota ? 1 : 0);
                EXPECT_THAT(log.take(), Contains(std::string("Failed with err - ") + code[failure])
                                            .Times(static_cast<std::size_t>(lines)));
                EXPECT_EQ(world.network->openDescriptors(), 0U);
                mend();
            }
}

/// Wherever a reply is cut off: nothing of it counts, what was to be changed stays pending, and the user
/// reads what is in doubt.
TEST_F(PagesTest, TakeALostConnectionForAFailure) {
    const struct {
        const char *page, *list, *change, *apply, *revert, *titleAfterLoading;
    } cases[] = {
        {"rights", "rightsTable", "tick 0W", "applyBtn", "revertBtn", "Rights Management"},
        {"inherited", "", "readIRF", "applyBtn", "revertBtn", nullptr},
        {"effective", "effRightsTable", "", "", "", "Rights Management"},
        {"folders", "subdirTable", "tick:subdirTable 0W", "applybtn", "revertbtn", "Rights Management"},
        {"files", "fsrTable", "tick 0W", "applyBtn", "revertBtn", nullptr},
        {"quota", "userQuotaTable", "pick 0, removeUQButton", "applyButton", "revert", "User_Quota_Title"},
        {"information", "", "hideChk", "applyButton", "", "Information_Title"},
        {"limit", "", "editLimitBtn, type dirQuotaLimit 3", "applyButton", "", nullptr},
        {"settings", "", "", "", "", "Rights Management"},
    };
    const auto lose = [this](std::size_t after) {
        changes(), alerts(), log.take();
        world.server->misbehaviour.dropAfter = after;
    };
    const auto notice = [this] { return isShown("noticeText") ? value("noticeText") : std::string(); };
    for (const auto& each : cases)
        for (const std::size_t after : {std::size_t{0}, std::size_t{90}, std::size_t{1} << 30U}) {
            SCOPED_TRACE(std::string(each.page) + " " + std::to_string(after));
            if (each.titleAfterLoading != nullptr) {
                open(each.page, demo::supervisor, [&] { lose(after); });
                EXPECT_EQ(title(), each.titleAfterLoading);
                EXPECT_THAT(alerts(), AllOf(Not(IsEmpty()), Each("Err_Operation_Failed")));
                EXPECT_THAT(log.take(), Contains("Failed with err - 104"));
                EXPECT_EQ(notice(), "Connection_Lost_Label Connection_Lost_Reading_Label");
                if (*each.list != '\0' && isShown(each.list)) {
                    EXPECT_THAT(rows(each.list), IsEmpty());
                }
                mend();
            }
            if (*each.change == '\0')
                continue;
            open(each.page);
            if (each.page == std::string_view("files"))
                take("selectUserBtn", "Users_Title", meridal, {"admin"});
            EXPECT_EQ(notice(), "") << "of the page before";
            const Texts saved = *each.list == '\0' ? Texts() : rows(each.list);
            act(each.change);
            lose(after);
            click(each.apply);
            EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
            EXPECT_THAT(log.take(), Contains("Failed with err - 104"));
            EXPECT_EQ(notice(), "Connection_Lost_Label Connection_Lost_Changes_Label");
            EXPECT_EQ(state(each.apply), "ready");
            const Texts once = changes();
            EXPECT_THAT(once, SizeIs(each.page == std::string_view("inherited") ? 0 : 1)); // no named change
            mend();
            if (*each.revert != '\0' &&
                after == 0) { // the server has made the change that it never confirmed
                click(each.revert);
                EXPECT_EQ(state(each.apply), "grey");
            } else {
                click(each.apply);
                EXPECT_EQ(changes(), once) << "what was pending goes out again";
                EXPECT_EQ(state(each.apply), "grey");
            }
            EXPECT_THAT(alerts(), IsEmpty());
        }
}

/// Every table can be copied and exported, and what comes from a server stays a text in a spreadsheet.
/// Where the status of a list says nothing, or that of a half of it, the list says that it is not whole.
TEST_F(PagesTest, NeverShowPartOfAListAsTheWhole) {
    const struct {
        const char *page, *table, *only;
        bool both;
    } cases[] = {{"rights", "rightsTable", "<getFileInfo", false},
                 {"effective", "effRightsTable", "getAllEffectiveRights", false},
                 {"effective", "effRightsTable", "getAllEffectiveRights><adOnly/>", true},
                 {"folders", "subdirTable", "<rightsRequest", false},
                 {"folders", "parentdirTable", "<rightsRequest><adOnly/>", true},
                 {"files", "fsrTable", "<rightsRequest", false},
                 {"quota", "userQuotaTable", "<browse", false},
                 {"quota", "userQuotaTable", "<browse", true}};
    for (const auto& [page, table, only, both] : cases)
        for (const bool isRefused : {true, false}) {
            SCOPED_TRACE(std::string(page) + ' ' + only + (isRefused ? " refused" : " garbled"));
            const auto spoil = [&, request = only, forBoth = both] {
                Shared::value().bothID = forBoth;
                if (isRefused)
                    world.server->misbehaviour.code = 7;
                else
                    world.server->misbehaviour.garbage = "<kelp";
                world.server->misbehaviour.onlyWith = request;
            };
            mend();
            open(page, demo::supervisor, spoil);
            if (page == std::string_view("files"))
                take("selectUserBtn", "Users_Title", meridal, {"admin"});
            if (!alerts().empty()) { // that says it, and leads back
                EXPECT_EQ(title(), "Rights Management");
                continue;
            }
            EXPECT_EQ(isShown("noticeText") ? value("noticeText") : "",
                      isRefused ? "List_Partly_Refused_Label" : "List_Partly_Unreadable_Label");
            if (!both) {
                EXPECT_EQ(control<ListTable>(table).emptyText().toStdString(),
                          isRefused ? "List_Refused_Label" : "List_Unreadable_Label");
            }
        }
}

TEST_F(PagesTest, HandOnWhatTheTablesShow) {
    world.server->setTrustee(box, world.identities->addDomainUser("=1+1,\"x\"", "formula"), 1);
    open("rights").act("pick 1");
    auto& list = control<ListTable>("rightsTable");
    list.setFocus();
    QTest::keyClick(focus(), Qt::Key_C, Qt::ControlModifier);
    const char* header =
        "Col_UserGrp_Name\tSupervisor_Label\tRead_Label\tWrite_Label\tErase_Label\tCreate_Label\t"
        "Modify_Label\tFile_Scan_Label\tAccess_Control_Label\n";
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
              std::string(header) + "admin\t\tx\t\t\t\t\tx\t\n");
    act("pick");
    const QTemporaryDir folder;
    const QString file = folder.filePath("rights.csv");
    list.exportRows(file);
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    EXPECT_TRUE(text.startsWith("\xEF\xBB\xBF"
                                "Col_UserGrp_Name,Supervisor_Label,"))
        << text.toStdString();
    EXPECT_TRUE(text.contains("\r\n\"'=1+1,\"\"x\"\"\",,x,,,,,,\r\n")) << text.toStdString();
    EXPECT_EQ(value("noticeText"), "Exported_Label");
    list.exportRows(folder.filePath("no/such.csv"));
    EXPECT_EQ(value("noticeText"), "Not_Exported_Label");

    act("pick 1");
    list.setFocus();
    QTest::keyClick(focus(), Qt::Key_Delete);
    EXPECT_EQ(state("applyBtn"), "ready");
    QTest::keyClick(focus(), Qt::Key_F5);
    EXPECT_EQ(value("noticeText"), "No_Reload_Label");
    EXPECT_EQ(state("applyBtn"), "ready") << "what waits is still there";
    act("revertBtn");
    world.server->setTrustee(box, world.identities->addDomainUser("late", "late"), 1);
    list.setFocus();
    const std::size_t before = rows().size();
    QTest::keyClick(focus(), Qt::Key_F5);
    EXPECT_EQ(rows().size(), before + 1);
    QTest::keyClick(focus(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(title(), "Rights Management");

    // Every page that shows what the server has reads it anew, and shows all of it.
    for (const char* page : {"rights", "inherited", "effective", "folders", "quota", "information"}) {
        SCOPED_TRACE(page);
        open(page);
        const bool hasSearch = isShown("searchField");
        if (hasSearch)
            act("type searchField nobody");
        const std::size_t before = world.server->requests().size();
        QTest::keyClick(focus(), Qt::Key_F5);
        EXPECT_GT(world.server->requests().size(), before);
        if (hasSearch) {
            EXPECT_EQ(state("searchField"), "");
        }
        EXPECT_THAT(alerts(), IsEmpty());
    }
}

/// What is grey says why, in its tip and so to a screen reader.
TEST_F(PagesTest, SayWhyAControlIsGrey) {
    const auto check = [this](const std::string& where) {
        for (const auto* each : front().findChildren<QWidget*>())
            if (each->isVisible() && !each->isEnabled() && each->parentWidget()->isEnabled()) {
                EXPECT_THAT(each->toolTip().toStdString(),
                            testing::AnyOf(StartsWith("Why_"), "Choose_Needs_Rights_Label",
                                           "Inherited_Supervisor_Tip_Label"))
                    << where << ' ' << each->objectName().toStdString();
            }
    };
    for (const auto& [page, sheet] : {std::pair{"rights", "addBtn"},
                                      {"inherited", ""},
                                      {"effective", "selectUserBtn"},
                                      {"folders", ""},
                                      {"files", "selectUserBtn"},
                                      {"quota", "addUQButton"},
                                      {"information", "changeOwnerButton"},
                                      {"limit", "editLimitBtn"},
                                      {"settings", ""}}) {
        for (const char* user : {demo::accessControl, demo::readOnly, demo::supervisor}) {
            open(page, user);
            check(std::string(page) + ' ' + user);
        }
        if (*sheet != '\0')
            act(sheet);
        check(std::string(page) + ' ' + sheet);
    }
    EXPECT_EQ(open("files").value("addBtn", "toolTip"), "Why_Nobody_Chosen_Label");
    EXPECT_EQ(open("files", demo::readOnly).value("addBtn", "toolTip"), "Why_Needs_Supervisor_Label");
    EXPECT_EQ(open("rights").act("removeBtn").value("applyBtn", "toolTip"), "Apply_Tip_Label");
}

/// The keyboard, the selection and the place in the list belong to who is in the row, not to its number: in
/// every list of a page, whichever way its rows come about.
TEST_F(PagesTest, KeepTheKeyboardWithTheIdentity) {
    const auto& admin = *world.identities->findById("admin");
    auto& ann = world.identities->addDomainUser("Ann", "S-1-ann");
    Texts everybody;
    for (int i = 10; i < 70; ++i) {
        const std::string number = std::to_string(i);
        const auto& user = world.identities->addDomainUser("user" + number, "user" + number);
        everybody.push_back(user.name);
        ann.groups.push_back(&world.identities->addDomainGroup("group" + number, "S-1-" + number));
        world.server->setTrustee(std::string(box) + "\\Low" + number, *ann.groups.back(), 0x041);
        for (const char* path : {"VOL1:\\Tests", box})
            world.server->setTrustee(path, user, 0x041);
        world.server->setTrustee(std::string(box) + "\\Low" + number, admin, 0x041);
        world.server->volumes().userQuotas("VOL1")->of(user).limit = 1 << 30;
    }
    const Texts boxes = {"tick @E, REVERT", "tick @E, APPLY", "key F5"};
    const Texts limit = {"EDIT, REVERT", "EDIT, APPLY", "key F5"};
    const Texts newLimit = {"type quotaLimitTextField 3"};
    const auto rightsOf = [this](const char* name) { take("selectUserBtn", "Users_Title", meridal, {name}); };
    const auto rightsOfAdmin = [&] { rightsOf("admin"); };
    const auto groupsOfAnn = [&] { rightsOf("Ann"), click("grpBtn"); };
    const auto limitForEverybody = [&] {
        click("addUQButton");
        take("selectTrusteeBtn", "Users_Title", meridal, everybody);
    };
    const auto usersOfDomain = [this] { browse("addBtn", "Users_Title", meridal); };
    const auto usersOfOneForest = [this] {
        bundle->features->at("multiForest") = false;
        open("rights").act("addBtn");
    };
    const struct {
        const char *page, *table, *search, *revert, *apply, *remove;
        Texts ways;
        const char* added = nullptr;
        std::function<void()> prepare = [] {};
    } cases[] = {
        {"rights", "rightsTable", "searchField", "revertBtn", "applyBtn", "removeBtn", boxes, "lea.fournier"},
        {"effective", "effRightsTable", "searchField", "", "", nullptr, {"key F5"}},
        {"folders", "subdirTable", "searchInSubField", "revertbtn", "applybtn", "removeBtnSub", boxes},
        {"folders", "parentdirTable", "searchInParentField", "revertbtn", "applybtn", "removeBtnParent",
         boxes},
        {"files", "fsrTable", nullptr, "revertBtn", "applyBtn", "removeBtn", boxes, "Tests", rightsOfAdmin},
        {"files", "groupRightsTable", "searchField", "", "", nullptr, {"key F5"}, nullptr, groupsOfAnn},
        {"quota", "userQuotaTable", "searchField", "revert", "applyButton", "removeUQButton", limit,
         "lea.fournier"},
        {"quota", "userList", nullptr, "", "", "takeOffBtn", newLimit, nullptr, limitForEverybody},
        {"rights", "userListTable", "searchField", "", "", nullptr, {}, nullptr, usersOfDomain},
        {"rights", "userListTable", nullptr, "", "", nullptr, {}, nullptr, usersOfOneForest},
    };
    for (const auto& each : cases) {
        open(each.page);
        each.prepare();
        auto& list = control<ListTable>(each.table);
        const auto name = [&list](int row) { return list.model()->index(row, 0).data().toString(); };
        const auto isInView = [&list](const QModelIndex& cell) {
            return list.viewport()->rect().contains(list.visualRect(cell).center());
        };
        const auto go = [&](const std::string& script) {
            QString way = QString::fromStdString(script);
            way.replace("tick @", QString("tick:%1 %2").arg(each.table).arg(list.currentIndex().row()));
            way.replace("EDIT", "editUQButton, type quotaLimitTextField 5, okBtn");
            act(way.replace("REVERT", each.revert).replace("APPLY", each.apply).toStdString());
        };
        const std::string header = std::string("header:") + each.table;
        const std::string row = std::to_string(list.model()->rowCount() / 2);
        act(std::string("pick:") + each.table + ' ' + row);
        const QString who = name(list.currentIndex().row());
        Texts ways = {header, header};
        if (each.search != nullptr)
            for (const std::string& text : {' ' + who.right(4).toStdString(), std::string()})
                ways.push_back(std::string("type ") + each.search + text);
        ways.insert(ways.end(), each.ways.begin(), each.ways.end());
        for (const std::string& way : ways) {
            SCOPED_TRACE(std::string(each.page) + ' ' + each.table + ": " + way);
            if (way.starts_with("key"))
                list.setFocus();
            go(way);
            ASSERT_TRUE(list.currentIndex().isValid());
            EXPECT_EQ(name(list.currentIndex().row()), who);
            EXPECT_THAT(list.selectedRowIndexes(), ElementsAre(list.currentIndex().row()));
            EXPECT_TRUE(isInView(list.currentIndex()));
        }
        SCOPED_TRACE(std::string(each.page) + ' ' + each.table);
        if (each.remove != nullptr && !each.ways.empty()) {
            // Who is gone is not followed by the next one.
            act(each.remove);
            EXPECT_FALSE(list.currentIndex().isValid());
            EXPECT_THAT(list.selectedRowIndexes(), IsEmpty());
        }
        if (each.added != nullptr) {
            list.scrollToTop();
            if (each.page == std::string_view("files")) {
                view<FileSystemRightsViewController>().onReturnSelectedPath({"file:///Volumes/VOL1/Tests"});
            } else if (each.page == std::string_view("quota")) {
                click("addUQButton");
                take("selectTrusteeBtn", "Users_Title", meridal, {each.added});
                act("type quotaLimitTextField 2, okBtn");
            } else {
                take("addBtn", "Users_Title", meridal, {each.added});
            }
            const int row = list.currentIndex().row();
            EXPECT_THAT(name(row).toStdString(), testing::EndsWith(each.added));
            EXPECT_FALSE(list.sortDescriptor());
            EXPECT_THAT(list.selectedRowIndexes(), ElementsAre(row));
            EXPECT_TRUE(isInView(list.currentIndex()));
            act(each.revert);
        }
        // Nothing is chosen: the first step down leads to the first row, from the search to the first hit.
        list.clearSelection();
        list.setCurrentIndex({});
        if (each.search != nullptr)
            control(each.search).setFocus();
        else
            list.setFocus();
        QTest::keyClick(focus(), Qt::Key_Down);
        EXPECT_EQ(focus(), &list);
        EXPECT_THAT(list.selectedRowIndexes(), ElementsAre(0));
        for (const auto& [key, row] :
             {std::pair{Qt::Key_End, list.model()->rowCount() - 1}, {Qt::Key_Home, 0}}) {
            QTest::keyClick(focus(), key);
            EXPECT_EQ(list.currentIndex().row(), row);
        }
        alerts();
        if (front().isModal())
            QTest::keyClick(&front(), Qt::Key_Escape);
    }
}

/// What waits for Apply is counted and listed in words, hidden or not, and what the server has made of it is
/// said.
TEST_F(PagesTest, SayWhatWaitsAndWhatCameOfIt) {
    speak();
    const auto waiting = [this] {
        Texts changes;
        if (isShown("pendingLine"))
            for (const QString& text : control<PendingLine>("pendingLine").texts())
                changes.push_back(text.toStdString());
        return changes;
    };
    open("rights");
    EXPECT_THAT(waiting(), IsEmpty());
    act("tick 1W, pick 2, removeBtn");
    take("addBtn", "Users", meridal, {"lea.fournier"});
    EXPECT_THAT(waiting(), ElementsAre("admin: Read, Write, File Scan", "Zoe will be removed",
                                       "lea.fournier: Read, File Scan"));
    EXPECT_EQ(value("pendingLine"), "3 changes wait for Apply");
    auto& list = control<ListTable>("rightsTable");
    const auto spoken = [&](int row) {
        return list.model()->index(row, 0).data(Qt::AccessibleTextRole).toString().toStdString();
    };
    EXPECT_EQ(spoken(0), "");
    EXPECT_EQ(spoken(1), "admin, changed, waits for Apply");
    EXPECT_EQ(spoken(list.model()->rowCount() - 1), "lea.fournier, new, waits for Apply");
    act("type searchField fournier");
    EXPECT_EQ(waiting().front(), "admin: Read, Write, File Scan, not shown in the list");
    act("type searchField, tab 2, tab 0"); // the buttons are grey now, and the changes still there
    EXPECT_THAT(waiting(), SizeIs(3));
    act("tick 0C, tick 0C");
    const std::size_t sent = waiting().size();
    refuse("<addTrustee");
    act("applyBtn");
    EXPECT_THAT(waiting(), IsEmpty());
    EXPECT_THAT(value("noticeText"), StartsWith("The server did not take 3 of " + std::to_string(sent)));
    EXPECT_THAT(value("noticeText"), testing::HasSubstr("lea.fournier"));
    mend();
    act("tick 1W, applyBtn");
    EXPECT_THAT(value("noticeText"), StartsWith("Applied "));

    open("inherited").act("readIRF");
    EXPECT_THAT(waiting(), SizeIs(1));
    act("applyBtn");
    EXPECT_THAT(waiting(), IsEmpty());
    EXPECT_THAT(value("noticeText"), StartsWith("Applied "));

    open("folders").act("tick:subdirTable 1W");
    EXPECT_THAT(waiting(), ElementsAre(StartsWith("admin VOL1:\\Tests\\Box: ")));
    refuse("<addTrustee");
    act("applybtn");
    EXPECT_THAT(value("noticeText"),
                StartsWith("The server did not take 1 of 1 change: admin VOL1:\\Tests\\Box"));
    mend();

    open("files");
    take("selectUserBtn", "Users", meridal, {"admin"});
    act("tick 0W, pick 1, removeBtn");
    EXPECT_THAT(waiting(),
                ElementsAre("VOL1:\\Tests\\Box: Read, File Scan", testing::EndsWith(" will be removed")));
    refuse("<removeTrustee");
    act("applyBtn");
    EXPECT_THAT(value("noticeText"),
                StartsWith("The server did not take 1 of 2 changes: VOL1:\\Tests\\Box\\Low"));
    mend();

    // What lies elsewhere, be it a neighbour of this name, and what was sent before the list got lost.
    view<FileSystemRightsViewController>().onReturnSelectedPath({"file:///Volumes/VOL1/Tests/Box2"});
    EXPECT_THAT(value("noticeText"), StartsWith("Not below"));
    act("applyBtn");
    EXPECT_THAT(value("noticeText"), StartsWith("Sent; what came of it is not in this list: VOL1:"));
    act("tick 0W");
    breakPipes();
    act("applyBtn");
    EXPECT_THAT(value("noticeText"), testing::HasSubstr("could not be read: VOL1:\\Tests\\Box: "));
    mend();

    // What came of one Apply is not there after the next, and not while something else waits.
    open("inherited").act("readIRF, applyBtn");
    EXPECT_TRUE(isShown("noticeText"));
    act("readIRF");
    EXPECT_FALSE(isShown("noticeText"));
    NoticeLine::tell(NoticeLine::Kind::problem, "The server did not take 1 of 1 change");
    breakPipes();
    act("applyBtn");
    EXPECT_FALSE(isShown("noticeText"));
    EXPECT_THAT(waiting(), SizeIs(1)) << "the filter that was not sent";
    mend();

    open("rights").act("type searchField zoe, tab 1, tab 0");
    EXPECT_EQ(value("searchField"), "") << "the list is read anew, and whole";

    open("information").act("hideChk, readChk");
    EXPECT_THAT(waiting(),
                ElementsAre("Read Only: on", "Hidden: on", "Rename Inhibit: on", "Delete Inhibit: on"));
    act("readChk");
    refuse("<setFileInfo");
    act("applyButton");
    EXPECT_EQ(value("noticeText"), "The server did not take 1 of 1 change: Hidden");
    mend();
    act("hideChk, hideChk");
    EXPECT_THAT(waiting(), ElementsAre("Attributes: as before"));
    select("VOL1/Projects/Aurora");
    open("limit").act("editLimitBtn, type dirQuotaLimit 3");
    EXPECT_THAT(waiting(), ElementsAre("Limit of the directory: 3 GB"));
}

TEST_F(PagesTest, EndTheProgramWithoutAFeature) {
    const struct {
        const char* page;
        std::initializer_list<const char*> features;
    } cases[] = {{"", {"enableSettings", "MorvaneSupport"}}, // the menu
                 {"rights", {"bothIdentities", "multiForest", "addBothTrustees", "enableSettings"}},
                 {"effective", {"multiForest", "addBothTrustees"}},
                 {"files", {"multiForest", "addBothTrustees", "newFileBrowser"}},
                 {"quota", {"addBothTrustees"}},
                 {"information", {"multiForest", "addBothTrustees"}}};
    for (const auto& [page, features] : cases)
        for (const char* key : features) {
            const auto openWith = [&, where = page](const std::function<void()>& fault) {
                if (*where == '\0')
                    return fault(), openWindow();
                open(where, demo::supervisor, fault);
            };
            EXPECT_DEATH(openWith([&] { bundle->features->erase(key); }), key);
            EXPECT_DEATH(openWith([&] { bundle->features->at(key).reset(); }), "is not a Boolean");
        }
    bundle->features.reset();
    EXPECT_DEATH(openWindow(), "feature.plist is missing");
}

/// Whatever the installation offers: menus, tabs, captions of fields and buttons, grey ones too.
struct PagesInALanguage : PagesTest, testing::WithParamInterface<QString> {};

TEST_P(PagesInALanguage, GiveNoMnemonicTwiceAndCutNoText) {
    speak(QLocale(GetParam()));
    const char* const flags[] = {"enableSettings", "bothIdentities", "addBothTrustees", "multiForest",
                                 "newFileBrowser"};
    for (unsigned mask = 0; mask < 1U << std::size(flags); mask += GetParam() == "en" ? 1 : 31) // none, all
        for (const char* page : {"", "rights", "inherited", "effective", "folders", "files", "quota",
                                 "information", "settings"}) {
            for (std::size_t flag = 0; flag < std::size(flags); ++flag)
                bundle->features->at(flags[flag]) = (mask & 1U << flag) != 0;
            if (*page == '\0' || (*page == 's' && (mask & 1U) == 0))
                openWindow();
            else
                open(page);
            QStringList titles;
            for (const QAction* menu : window->menuBar()->actions())
                titles.append(menu->text());
            for (const auto* each : window->findChildren<QWidget*>()) {
                if (!each->isVisible())
                    continue;
                const auto* label = qobject_cast<const QLabel*>(each);
                if (each->inherits("QAbstractButton") || (label != nullptr && label->buddy() != nullptr))
                    titles.append(each->property("text").toString());
                if (const auto* tabs = qobject_cast<const QTabWidget*>(each))
                    for (int tab = 0; tab < tabs->count(); ++tab)
                        titles.append(tabs->tabText(tab));
                const bool isText = label != nullptr ? !label->wordWrap() : each->inherits("QAbstractButton");
                const int needed = each->inherits("QTabBar") ? each->sizeHint().width()
                                   : isText                  ? each->minimumSizeHint().width()
                                                             : 0;
                EXPECT_GE(each->width(), needed) << page << ": " << each->objectName().toStdString();
            }
            QStringList letters;
            for (QString title : titles)
                if (title.remove(QLatin1String("&&")).contains('&'))
                    letters.append(title.section('&', 1).left(1).toLower());
            EXPECT_EQ(letters.removeDuplicates(), 0)
                << page << ' ' << mask << ": " << titles.join(", ").toStdString();
        }
}

INSTANTIATE_TEST_SUITE_P(Every, PagesInALanguage, testing::ValuesIn(platform::QtBundle::languages()));

TEST_F(PagesTest, NameEveryControlAndReachItByTab) {
    speak();
    const auto expectNamed = [this](const std::string& expected) {
        SCOPED_TRACE(expected);
        EXPECT_EQ(reached(), expected);
        QString mnemonics;
        for (QWidget* each : front().findChildren<QWidget*>()) {
            if (!each->isVisible() || !each->isEnabled() || (each->focusPolicy() & Qt::TabFocus) == 0)
                continue;
            const QString text = each->property("text").toString();
            const QString letter = text.section('&', 1).left(1).toLower();
            const QString name = QAccessible::queryAccessibleInterface(each)->text(QAccessible::Name);
            const bool saysMore = !each->toolTip().isEmpty() || !each->accessibleDescription().isEmpty();
            const bool isButton = each->inherits("QAbstractButton");
            EXPECT_FALSE(name.isEmpty() || (isButton && letter.isEmpty() && !saysMore))
                << each->objectName().toStdString();
            EXPECT_FALSE(isButton && !letter.isEmpty() && mnemonics.contains(letter)) << text.toStdString();
            mnemonics += isButton ? letter : QString();
        }
    };
    // The script switches more controls on, or leads to a sheet.
    const auto places = test::table<3>(R"(
inherited   | readIRF | readIRF writeIRF eraseIRF createIRF modifyIRF fscanIRF accessIRF pendingLine revertBtn applyBtn closeBtn tabs
effective   | key Ctrl+F | searchField effRightsTable selectUserBtn closeBtn tabs
folders     | removeBtnSub | removeBtnSub searchInParentField parentdirTable removeBtnParent stoppedBtn revertbtn applybtn closeBtn tabs searchInSubField subdirTable
files       | removeBtn | removeBtn cancelBtn revertBtn applyBtn selectUserBtn grpBtn fsrTable addBtn
files       | addBtn | fileBrowser cancelBtn
files       | grpBtn | groupRightsTable closeBtn searchField
quota       | removeUQButton | removeUQButton closeButton revert applyButton overLimitBtn searchField userQuotaTable addUQButton editUQButton
quota       | addUQButton | selectTrusteeBtn quotaLimitTextField selectUnit cancelBtn okBtn userList
information | hideChk | hideChk archiveChk purgeImmediateChk renameInhibitChk deleteInhibitChk immediateCompressChk closeButton pendingLine applyButton changeOwnerButton tabs readChk
limit       | editLimitBtn | dirQuotaLimit selectUnit removeLimitBtn closeButton pendingLine applyButton changeOwnerButton tabs
settings    | key Tab | CloseBtn ListBoth
settings    | CloseBtn | TrusteeRightsView FileSystemRightsView UserQuotaView DirectoryQuotaView SettingView SalvagePurgeView
settings    | CloseBtn, purgeSegue | deletedFileButton moreInfoButton closeButton
settings    | CloseBtn, salvageSegue, moreInfoButton | cancelButton
rights      | removeBtn | removeBtn revertBtn applyBtn closeBtn tabs searchField rightsTable addBtn
rights      | addBtn | userTypePopUp domainPopUp userListTable cancelButton
)");
    select("VOL1/Projects/Aurora");
    for (const auto& place : places) {
        open(place[0].c_str());
        if (place[0] == "files")
            take("selectUserBtn", "Users", meridal, {"admin"});
        act(place[1]);
        expectNamed(place[2]);
    }
    open("rights", demo::supervisorTree).act("addBtn");
    expectNamed("userTypePopUp treeTextField searchField userListTable cancelButton");
    bundle->features->at("multiForest") = false;
    open("rights").act("addBtn");
    expectNamed("searchField userListTable cancelButton userTypeTable");
    Shared::value().bothID = true;
    open("rights").act("addBtn");
    expectNamed("ADBtn OkBtn CancelBtn");
}

} // namespace
} // namespace quorvan::test
