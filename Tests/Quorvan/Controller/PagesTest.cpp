// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for every page and sheet: what the user's rights open, what happens when the server fails, and
// that all of it can be used without mouse and screen.
#include "Platform/Qt/QtBundle.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QAccessible>

namespace quorvan::test {
namespace {

using PagesTest = WindowTest;

TEST_F(PagesTest, OfferWhatTheUsersOwnRightsAllow) {
    const std::string filter =
        "readIRF writeIRF eraseIRF createIRF modifyIRF fscanIRF accessIRF closeBtn tabs";
    const std::string folders =
        "searchInSubField subdirTable removeBtnSub searchInParentField parentdirTable "
        "removeBtnParent closeBtn tabs";
    const std::string attributes = "tabs readChk hideChk archiveChk purgeImmediateChk renameInhibitChk "
                                   "deleteInhibitChk immediateCompressChk closeButton";
    const struct {
        const char* page;
        std::string supervisor, accessControl, readOnly;
        std::string
            withoutAdding; ///< a supervisor, where both directories are on show but not to choose from
    } cases[] = {
        {"rights", "rightsTable addBtn removeBtn closeBtn tabs searchField",
         "rightsTable addBtn removeBtn closeBtn tabs searchField",
         "rightsTable closeBtn tabs searchField read-only",
         "rightsTable removeBtn closeBtn tabs searchField"},
        {"inherited", filter, filter, "closeBtn tabs read-only", filter},
        {"effective", "searchField effRightsTable selectUserBtn closeBtn tabs",
         "searchField effRightsTable selectUserBtn closeBtn tabs", "searchField effRightsTable closeBtn tabs",
         "searchField effRightsTable closeBtn tabs"},
        {"folders", folders, folders,
         "searchInSubField subdirTable searchInParentField parentdirTable closeBtn tabs read-only", folders},
        {"files", "selectUserBtn fsrTable cancelBtn", "fsrTable cancelBtn read-only",
         "fsrTable cancelBtn read-only", "fsrTable cancelBtn"},
        {"quota", "userQuotaTable addUQButton editUQButton removeUQButton closeButton searchField",
         "userQuotaTable closeButton searchField read-only",
         "userQuotaTable closeButton searchField read-only",
         "userQuotaTable removeUQButton closeButton searchField"},
        {"information", attributes + " changeOwnerButton", attributes + " read-only",
         attributes + " read-only", attributes},
        {"settings", "ListBoth CloseBtn", "ListBoth CloseBtn", "CloseBtn read-only", "ListBoth CloseBtn"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.page);
        bundle->features->at("addBothTrustees") = true;
        for (const auto& [user, expected] : {std::pair{demo::supervisor, each.supervisor},
                                             {demo::accessControl, each.accessControl},
                                             {demo::readOnly, each.readOnly},
                                             {demo::supervisorTree, each.supervisor},
                                             {demo::readOnlyTree, each.readOnly}}) {
            open(each.page, user);
            EXPECT_EQ(reached(), expected) << user;
        }
        bundle->features->at("addBothTrustees") = false;
        open(each.page, demo::supervisor, [] { Shared::value().bothID = true; });
        EXPECT_EQ(reached(), each.withoutAdding);
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
            open(each.page, user);
            act(std::string("pick:") + each.table + " 1, tick:" + each.table + " 1W 1S");
            EXPECT_EQ(rows(each.table)[1], expected) << each.page;
        }
}

/// Each failure is one alert and one line in the log, and a page whose list cannot be read leads back.
TEST_F(PagesTest, ReportEveryFailureToLoadAndLeadBack) {
    enum Failure { noPipe, noPassword, refused };
    const struct {
        const char *page, *title;
        const char* alerts[3]; ///< for each failure: f for one that failed, k for a missing password
        const char* ofBoth[3]; ///< … with both directories on show
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
                    reported += message == "Err_Operation_Failed"     ? 'f'
                                : message == "Err_Keychain_Not_Found" ? 'k'
                                                                      : '?';
                EXPECT_EQ(reported, (both ? each.ofBoth : each.alerts)[failure]);
                const char* line[] = {"Failed with err - -1", "Failed with err - -25300",
                                      "Failed with err - 1"};
                // The directory quota leaves a line without credentials, too.
                const bool isQuota = failure == noPassword && each.page == std::string_view("information");
                const auto lines = std::ranges::count(reported, 'f') + (isQuota ? 1 : 0);
                EXPECT_THAT(log.take(), Contains(line[failure]).Times(static_cast<int>(lines)));
                EXPECT_EQ(world.network->openDescriptors(), 0U);
                mend();
            }
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
                if (*where != '\0')
                    return open(where, demo::supervisor, fault);
                fault();
                openWindow();
            };
            EXPECT_DEATH(openWith([&] { bundle->features->erase(key); }), key);
            EXPECT_DEATH(openWith([&] { bundle->features->at(key).reset(); }), "is not a Boolean");
        }
    bundle->features.reset();
    EXPECT_DEATH(openWindow(), "feature.plist is missing");
}

/// The texts that the user reads.
struct RealTexts : FakeBundle {
    std::string localizedString(const std::string& key) override { return table.localizedString(key); }
    platform::QtBundle table{QString()};
};

TEST_F(PagesTest, NameEveryControlAndReachItByTab) {
    platform::Services services = platform::services();
    const auto texts = std::make_shared<RealTexts>();
    services.bundle = texts;
    const platform::ScopedServices real(services);
    const struct {
        const char* page;
        std::initializer_list<const char*> clicks; ///< that lead to a sheet, or switch more controls on
        const char* reached;
        const char* user = demo::supervisor;
        std::function<void()> setting = [] {};
    } places[] = {
        {"",
         {},
         "TrusteeRightsView FileSystemRightsView UserQuotaView DirectoryQuotaView SettingView SalvageView "
         "PurgeView"},
        {"", {"PurgeView"}, "deletedFileButton moreInfoButton closeButton"},
        {"", {"SalvageView", "moreInfoButton"}, "cancelButton"},
        {"rights",
         {"removeBtn"},
         "removeBtn revertBtn applyBtn closeBtn tabs searchField rightsTable addBtn"},
        {"inherited",
         {"readIRF"},
         "readIRF writeIRF eraseIRF createIRF modifyIRF fscanIRF accessIRF revertBtn applyBtn closeBtn tabs"},
        {"effective", {}, "searchField effRightsTable selectUserBtn closeBtn tabs"},
        {"folders",
         {"removeBtnSub"},
         "removeBtnSub searchInParentField parentdirTable removeBtnParent revertbtn applybtn closeBtn tabs "
         "searchInSubField subdirTable"},
        {"files",
         {"removeBtn"},
         "removeBtn cancelBtn revertBtn applyBtn selectUserBtn grpBtn fsrTable addBtn"},
        {"files", {"addBtn"}, "fileBrowser cancelBtn"},
        {"files", {"grpBtn"}, "groupRightsTable closeBtn searchField"},
        {"quota",
         {"removeUQButton"},
         "removeUQButton closeButton revert applyButton searchField userQuotaTable addUQButton editUQButton"},
        {"quota",
         {"addUQButton"},
         "selectTrusteeBtn quotaLimitTextField selectUnit cancelBtn okBtn userList"},
        {"information",
         {"hideChk"},
         "hideChk archiveChk purgeImmediateChk renameInhibitChk deleteInhibitChk immediateCompressChk "
         "closeButton applyButton changeOwnerButton tabs readChk"},
        {"limit",
         {"editLimitBtn"},
         "dirQuotaLimit selectUnit removeLimitBtn closeButton applyButton changeOwnerButton tabs",
         demo::supervisor,
         [&] { select("VOL1/Projects/Aurora"); }},
        {"settings", {}, "ListBoth CloseBtn"},
        {"rights", {"addBtn"}, "userTypePopUp domainPopUp userListTable cancelButton"},
        {"rights",
         {"addBtn"},
         "userTypePopUp treeTextField searchField userListTable cancelButton",
         demo::supervisorTree},
        {"rights",
         {"addBtn"},
         "ADBtn OkBtn CancelBtn",
         demo::supervisor,
         [] { Shared::value().bothID = true; }},
        {"rights",
         {"addBtn"},
         "searchField userListTable cancelButton userTypeTable",
         demo::supervisor,
         [&] { texts->features->at("multiForest") = false; }},
    };
    for (const auto& place : places) {
        SCOPED_TRACE(place.reached);
        Shared::value().bothID = false;
        place.setting();
        *place.page == '\0' ? openWindow() : open(place.page, place.user);
        if (place.page == std::string_view("files"))
            take("selectUserBtn", "Users", meridal, {"admin"});
        for (const char* control : place.clicks)
            click(control);
        EXPECT_EQ(reached(), place.reached);
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
    }
}

} // namespace
} // namespace quorvan::test
