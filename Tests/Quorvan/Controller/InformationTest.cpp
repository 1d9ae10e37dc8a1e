// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Information/InformationViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Toolkit/QuotaLimit.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QLabel>
#include <QTabWidget>

#include <filesystem>

namespace quorvan::test {
namespace {

namespace attribute = simulator::attribute;

struct InformationTest : WindowTest {
    InformationTest() { select("VOL1/Projects/Aurora"); }
    WindowTest& openFile(const char* user = demo::supervisor) {
        select("VOL1/Projects/Aurora/Concept.odt");
        return open("information", user);
    }
    /// Types a limit, chooses its unit and applies it.
    WindowTest& applyLimit(const std::string& text, const std::string& unit) {
        return act("editLimitBtn, type dirQuotaLimit " + text + ", choose selectUnit " + unit +
                   ", applyButton");
    }
    simulator::Node& node(const char* path) { return *world.server->volumes().find(path); }
    bool hasQuota() const { return control<QTabWidget>("directoryQuotaTabView").count() == 2; }
};

TEST_F(InformationTest, SendsTheAttributesThatAreOnTwice) {
    const auto& file = node(demo::fileOfNobody);
    EXPECT_EQ(openFile().state("dontCompressChk applyButton"), "off, grey");
    EXPECT_FALSE(hasQuota()) << "it is a file";
    EXPECT_THAT(
        act("hideChk, archiveChk, applyButton").changes(),
        ElementsAre(
            R"(<hidden enabled="yes"/><archive enabled="yes"/><readOnly enabled="no"/><hidden enabled="yes"/>)"
            R"(<archive enabled="yes"/><immediatePurge enabled="no"/><renameInhibit enabled="no"/>)"
            R"(<deleteInhibit enabled="no"/><compressImmediate enabled="no"/><doNotCompress enabled="no"/>)"));
    EXPECT_EQ(file.attributes, attribute::hidden | attribute::archive);
    EXPECT_EQ(state("hideChk applyButton"), "on, grey");

    const char* boxes = "archiveChk readChk renameInhibitChk deleteInhibitChk";
    EXPECT_EQ(act("hideChk, renameInhibitChk, readChk").state(boxes), "on, on, on grey, on grey");
    act("applyButton");
    EXPECT_EQ(file.attributes,
              attribute::archive | attribute::readOnly | attribute::renameInhibit | attribute::deleteInhibit);
    EXPECT_THAT(changes(),
                ElementsAre(testing::StartsWith(
                    R"(<archive enabled="yes"/><renameInhibit enabled="yes"/><readOnly enabled="yes"/>)"
                    R"(<deleteInhibit enabled="yes"/><readOnly)")))
        << "once each";
    EXPECT_EQ(state(boxes), "on, on, on grey, on grey") << "read again, it is still read only";
    EXPECT_EQ(act("readChk").state(boxes), "on, off, off, off");
    EXPECT_EQ(act("closeButton").title(), "Rights Management");
    EXPECT_THAT(changes(), IsEmpty()) << "closing drops what was not applied";
    // What the server refuses comes back as it was, with the boxes that it implies.
    EXPECT_EQ(openFile(demo::readOnly).act("readChk, applyButton").state(boxes), "on, on, on grey, on grey");
    EXPECT_EQ(value("noticeText"), "Not_Applied_Label");
    EXPECT_THAT(alerts(), IsEmpty());
}

TEST_F(InformationTest, TakesTheOwnerFromEitherDirectory) {
    EXPECT_EQ(openFile().state("ownerField ownerIcon"), ", hidden");
    EXPECT_THAT(value("ownerField", "placeholderText"), testing::StartsWith("gone: "));
    EXPECT_TRUE(view<InformationViewController>().onReturnSelectedUser({}, {}, "Users"));
    EXPECT_TRUE(view<InformationViewController>().onReturnMorvaneSelectedUser({}));
    EXPECT_FALSE(isEnabled("applyButton")) << "nobody was picked";
    for (const auto& [user, place, both] : {std::tuple{demo::supervisor, meridal, false},
                                            {demo::supervisorTree, verlag, false},
                                            {demo::supervisor, meridal, true},
                                            {demo::supervisor, verlag, true}}) {
        const auto& owner = *(place == verlag ? world.identities->findById("guid-vera")
                                              : world.identities->findByName(demo::readOnly).front());
        node(demo::fileOfNobody).owner.clear();
        Shared::value().bothID = both;
        openFile(user);
        take("changeOwnerButton", "Users_Title", place,
             {place == verlag ? "CN=Vera.OU=Verlag.O=Meridal" : demo::readOnly});
        EXPECT_THAT(value("ownerField"), testing::HasSubstr(owner.name));
        EXPECT_EQ(control<QLabel>("ownerIcon").pixmap().toImage(),
                  userIcon(place == verlag ? "Morvane" : "ActiveDirectory")
                      .pixmap(control<QLabel>("ownerIcon").pixmap().size())
                      .toImage());
        EXPECT_THAT(act("applyButton").changes(), ElementsAre(owner.id));
        EXPECT_EQ(node(demo::fileOfNobody).owner, owner.id);
        EXPECT_EQ(state("ownerField applyButton"), owner.name + ", grey");
        EXPECT_EQ(value("noticeText"), "Applied_Label");
        EXPECT_THAT(act("hideChk, applyButton").changes(), SizeIs(1)) << "the owner is not sent again";
    }
    Shared::value().bothID = false;
    openFile();
    view<InformationViewController>().domainIdentity = "Guest";
    EXPECT_TRUE(act("changeOwnerButton").isShown("treeTextField"))
        << "for whoever is not of Active Directory";
    bundle->features->at("multiForest") = false;
    EXPECT_TRUE(openFile().act("changeOwnerButton").isShown("userTypeTable"))
        << "the browser of a single forest";
}

TEST_F(InformationTest, ShowsLimitsOfEveryKind) {
    for (const auto& [bytes, text] : {std::pair{std::int64_t{0}, "0 KB"},
                                      {1023, "1023 B"},
                                      {1536, "1.5 KB"},
                                      {-18874368, "-18 MB"},
                                      {std::int64_t{2} << 40, "2 TB"},
                                      {(1 << 30) - 1, "1 GB"},
                                      {1127428915, "1.05 GB"},
                                      {std::int64_t{8191} << 50, "8191 PB"}})
        EXPECT_EQ(byteCount(bytes), text);
    auto& drop = node("VOL1:\\Public\\Briefkasten").quota;
    const char* dropFolder = "VOL1/Public/Briefkasten";
    const struct {
        const char *path, *shown; ///< limit, used, available
        const char* bar;          ///< "": there is none
        std::int64_t over = 0;    ///< by so much the drop folder is fuller than its limit
    } cases[] = {{"VOL1/Projects/Aurora", "20 GB, 13.5 GB, 6.5 GB", "67 % used"},
                 {"VOL1/Archiv", "User_Quota_Unlimited, 0 KB, User_Quota_Maximum", ""},
                 {"VOL1/Projects", "User_Quota_Not_Set, 0 KB, User_Quota_Maximum", ""},
                 {dropFolder, "512 MB, 530 MB, -18 MB", "Quota_Exceeded_Label", 18 << 20},
                 {dropFolder, "512 MB, 512 MB, 0 KB", "100 % used"},
                 {dropFolder, "512 MB, 512 MB, -1 B", "Quota_Exceeded_Label", 1},
                 {dropFolder, "512 MB, 512 MB, 1 B", "99 % used", -1}};
    for (const auto& each : cases) {
        drop.used = drop.limit + each.over;
        select(each.path);
        EXPECT_EQ(open("information").state("dontCompressChk"), "off grey") << "it is a folder";
        EXPECT_EQ(act("tab 1").state("dirQuotaLimit dirQuotaUsed dirQuotaAvailable"), each.shown);
        EXPECT_EQ(isShown("quotaBar") ? value("quotaBar", "format") : "", each.bar);
        EXPECT_EQ(isShown("overLimitIcon"), *each.bar == 'Q');
        EXPECT_FALSE(act("removeLimitBtn").isShown("quotaBar")) << "there will be no limit to fill";
    }
    select("VOL1/Projects/Aurora");
    std::filesystem::remove_all(*world.volumes->folderOf("VOL1") / "Projects");
    EXPECT_EQ(open("information").state("dontCompressChk"), "off");
    EXPECT_THAT(log.take(), Contains("Could not check the filetype for path /Volumes/VOL1/Projects/Aurora - "
                                     "nothing is mounted there"));
    EXPECT_FALSE(hasQuota());
}

TEST_F(InformationTest, SendsALimitInBytes) {
    const char* entry = "dirQuotaLimit selectUnit applyButton";
    open("limit");
    EXPECT_EQ(act("editLimitBtn").state(entry), "20, GB, ready");
    EXPECT_EQ(value("dirQuotaLimit", "readOnly"), "false");
    EXPECT_THAT(act("applyButton").changes(), ElementsAre("21474836480")) << "an untouched limit is the same";
    EXPECT_EQ(state(entry) + value("dirQuotaLimit", "readOnly"), "20 GB, hidden, greytrue");
    const std::tuple<const char*, const char*, const char*, const char*> limits[] = {
        {"2", "TB", "2199023255552", "2 TB"},
        {"5", "MB", "5242880", "5 MB"},
        {"8191", "PB", "9222246136947933184", "8191 PB"},
        {"+3", "GB", "3221225472", "3 GB"},
        {"-1", "MB", "-1048576", "3 GB"}}; // a number, which the server refuses
    for (const auto& [text, unit, bytes, shown] : limits) {
        EXPECT_EQ(applyLimit(text, unit).value("dirQuotaLimit"), shown);
        EXPECT_THAT(changes(), ElementsAre(bytes));
        EXPECT_EQ(value("noticeText"), *text == '-' ? "Not_Applied_Label" : "Applied_Label");
    }
    for (const char* field : {"dirQuotaLimit", "selectUnit"}) { // Escape takes the edit back
        act(std::string("editLimitBtn, type dirQuotaLimit 9"));
        control(field).setFocus();
        QTest::keyClick(focus(), Qt::Key_Escape);
        EXPECT_EQ(state(entry) + ' ' + focus()->objectName().toStdString(),
                  "3 GB, hidden, grey editLimitBtn");
    }
    for (const char* text : {"", "1.5", "10 GB", "   ", "0x10", "9223372036854775808"}) {
        EXPECT_EQ(applyLimit(text, "GB").dismissAlert(), "Invalid_Quota_Limit") << text;
        EXPECT_THAT(log.take(), Contains("Close Modal"));
        EXPECT_EQ(state(entry), "3 GB, hidden, grey");
        EXPECT_EQ(act("tab 0, archiveChk, applyButton, tab 1").changes().size(), 1U)
            << "the limit is forgotten";
    }

    // Small units cannot be entered; GB counts then, and is what the pop-up shows.
    node(demo::limitedFolder).quota.limit = 512 << 10;
    EXPECT_EQ(open("limit").act("editLimitBtn").state("dirQuotaLimit selectUnit"), "512, ");
    EXPECT_EQ(value("selectUnit", "placeholderText"), "GB");
    EXPECT_EQ(act("removeLimitBtn").state("dirQuotaLimit editLimitBtn"), "User_Quota_Not_Set, ready");
    EXPECT_THAT(act("applyButton").changes(), ElementsAre("9223372036854775807"));
    EXPECT_EQ(value("dirQuotaLimit"), "User_Quota_Unlimited");
    EXPECT_EQ(act("editLimitBtn").state(entry), "1, GB, ready");
    for (const std::string text : {"8192", "9223372036854775807"})
        EXPECT_DEATH( // in a process without the threads that paint
            (setLogSink({}), window->setUpdatesEnabled(false),
             act("type dirQuotaLimit " + text + ", choose selectUnit PB, applyButton")),
            "too large for its unit");
}

TEST_F(InformationTest, ReportsEveryFailureAndGoesOn) {
    open("limit").act("tab 0, hideChk, tab 1");
    EXPECT_EQ(applyLimit("7", "GB").value("dirQuotaLimit"), "7 GB");
    node(demo::limitedFolder).attributes = 0;
    act("tab 0, hideChk, tab 1, editLimitBtn");
    breakPipes();
    log.take();
    EXPECT_THAT(act("applyButton").alerts(), testing::AllOf(SizeIs(4), Each("Err_Operation_Failed")));
    EXPECT_THAT(log.take(), Contains("Failed with err - -1").Times(4));
    EXPECT_EQ(state("dirQuotaLimit applyButton"), "7 GB, grey") << "as it was read last";
    mend();
    losePassword(); // … and nothing of what failed is tried again
    EXPECT_THAT(act("tab 0, hideChk, applyButton").alerts(),
                ElementsAre("Err_Keychain_Not_Found", "Err_Keychain_Not_Found"));
    EXPECT_THAT(log.take(), Not(Contains("Failed with err - -25300")));
    EXPECT_THAT(act("tab 1, editLimitBtn, removeLimitBtn, applyButton").alerts(), SizeIs(2));
    EXPECT_THAT(log.take(), Contains("Failed with err - -25300").Times(2)) << "the quota says so there, too";

    // Nothing could be read at all: an empty page, and nothing that ends the program.
    mend();
    EXPECT_FALSE(open("information", demo::supervisor, [this] { breakPipes(); }).isEnabled("hideChk"));
    EXPECT_EQ(act("tab 1").state("dirQuotaLimit selectUnit editLimitBtn"), ", hidden, grey");
}

} // namespace
} // namespace quorvan::test
