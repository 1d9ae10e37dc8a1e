// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Information/InformationViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Toolkit/QuotaLimit.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QCheckBox>
#include <QTabWidget>

#include <filesystem>

namespace quorvan::test {
namespace {

namespace attribute = simulator::attribute;

struct InformationTest : WindowTest {
    InformationTest() { select("VOL1/Projects/Aurora"); }
    void openFile(const char* user = demo::supervisor) {
        select("VOL1/Projects/Aurora/Concept.odt");
        open("information", user);
    }
    void openLimit() {
        open("limit");
        page = &view<InformationViewController>();
    }
    /// Types a limit, chooses its unit and applies it.
    std::string applyLimit(const std::string& text, const std::string& unit) {
        act("editLimitBtn, type dirQuotaLimit " + text + ", choose selectUnit " + unit + ", applyButton");
        return value("dirQuotaLimit");
    }
    simulator::Node& node(const char* path) { return *world.server->volumes().find(path); }

    InformationViewController* page = nullptr;
};

TEST_F(InformationTest, SendsTheAttributesThatAreOnTwice) {
    const auto& file = node(demo::fileOfNobody);
    openFile();
    EXPECT_EQ(control<QTabWidget>("directoryQuotaTabView").count(), 1) << "a file has no quota";
    EXPECT_TRUE(isEnabled("dontCompressChk")) << "for folders alone it makes no sense";
    EXPECT_FALSE(isEnabled("applyButton"));
    act("hideChk, archiveChk, applyButton");
    EXPECT_THAT(
        changes(),
        ElementsAre(
            R"(<hidden enabled="yes"/><archive enabled="yes"/><readOnly enabled="no"/><hidden enabled="yes"/>)"
            R"(<archive enabled="yes"/><immediatePurge enabled="no"/><renameInhibit enabled="no"/>)"
            R"(<deleteInhibit enabled="no"/><compressImmediate enabled="no"/><doNotCompress enabled="no"/>)"));
    EXPECT_EQ(file.attributes, attribute::hidden | attribute::archive);
    EXPECT_FALSE(isEnabled("applyButton"));

    act("hideChk, renameInhibitChk, readChk");
    for (const char* implied : {"renameInhibitChk", "deleteInhibitChk"})
        EXPECT_TRUE(value(implied, "checked") == "true" && !isEnabled(implied));
    act("applyButton");
    EXPECT_EQ(file.attributes,
              attribute::archive | attribute::readOnly | attribute::renameInhibit | attribute::deleteInhibit);
    EXPECT_TRUE(changes()[0].starts_with(
        R"(<archive enabled="yes"/><renameInhibit enabled="yes"/><readOnly enabled="yes"/><deleteInhibit enabled="yes"/><readOnly)"))
        << "once each";
    EXPECT_FALSE(isEnabled("deleteInhibitChk")) << "read again, it is still read only";
    act("readChk");
    EXPECT_TRUE(isEnabled("deleteInhibitChk") && value("renameInhibitChk", "checked") == "false");
    act("closeButton");
    EXPECT_EQ(title(), "Rights Management");
    EXPECT_THAT(changes(), IsEmpty()) << "closing drops what was not applied";

    // What the server refuses comes back as it was, with the boxes that it implies.
    openFile(demo::readOnly);
    act("readChk, applyButton");
    EXPECT_TRUE(value("readChk", "checked") == "true" && !isEnabled("renameInhibitChk"));
    EXPECT_THAT(alerts(), IsEmpty());
}

TEST_F(InformationTest, TakesTheOwnerFromEitherDirectory) {
    openFile();
    EXPECT_EQ(value("ownerField"), "");
    EXPECT_THAT(value("ownerField", "placeholderText"), testing::StartsWith("gone: "));
    EXPECT_FALSE(isShown("ownerIcon"));
    EXPECT_TRUE(view<InformationViewController>().onReturnSelectedUser({}, {}, "Users"));
    EXPECT_TRUE(view<InformationViewController>().onReturnMorvaneSelectedUser({}));
    EXPECT_FALSE(isEnabled("applyButton")) << "nobody was picked";
    const std::string vera = "CN=Vera.OU=Verlag.O=Meridal";
    const struct {
        const char *user, *place;
        std::string name;
        bool both;
    } cases[] = {{demo::supervisor, meridal, demo::accessControl, false},
                 {demo::supervisorTree, verlag, vera, false},
                 {demo::supervisor, meridal, demo::readOnly, true},
                 {demo::supervisor, verlag, vera, true}};
    for (const auto& [user, place, name, both] : cases) {
        const auto& owner = *(name == vera ? world.identities->findById("guid-vera")
                                           : world.identities->findByName(name).front());
        Shared::value().bothID = both;
        openFile(user);
        take("changeOwnerButton", "Users_Title", place, {name});
        EXPECT_THAT(value("ownerField"), testing::HasSubstr(owner.name));
        EXPECT_TRUE(isShown("ownerIcon"));
        act("applyButton");
        EXPECT_THAT(changes(), ElementsAre(owner.id));
        EXPECT_EQ(node(demo::fileOfNobody).owner, owner.id);
        EXPECT_EQ(value("ownerField"), owner.name);
        EXPECT_FALSE(isEnabled("applyButton"));
    }
    Shared::value().bothID = false;
    openFile();
    view<InformationViewController>().domainIdentity = "Guest";
    act("changeOwnerButton");
    EXPECT_TRUE(isShown("treeTextField")) << "for whoever is not of Active Directory";
    bundle->features->at("multiForest") = false;
    openFile();
    act("changeOwnerButton");
    EXPECT_TRUE(isShown("userTypeTable")) << "the browser of a single forest";
}

TEST_F(InformationTest, ShowsLimitsOfEveryKind) {
    EXPECT_THAT((std::vector<QString>{byteCount(0), byteCount(1023), byteCount(1536), byteCount(-18874368),
                                      byteCount(std::int64_t{2} << 40), byteCount((1 << 30) - 1),
                                      byteCount(1127428915), byteCount(std::int64_t{8191} << 50)}),
                ElementsAre("0 KB", "1023 B", "1.5 KB", "-18 MB", "2 TB", "1 GB", "1.05 GB", "8191 PB"));
    auto& drop = node("VOL1:\\Public\\Briefkasten").quota;
    const struct {
        const char *path, *limit, *used, *available, *bar; ///< "": no bar
        std::int64_t over = 0; ///< by so much the drop folder is fuller than its limit
    } cases[] = {
        {"VOL1/Projects/Aurora", "20 GB", "13.5 GB", "6.5 GB", "67 % used"},
        {"VOL1/Archiv", "User_Quota_Unlimited", "0 KB", "User_Quota_Maximum", ""},
        {"VOL1/Projects", "User_Quota_Not_Set", "0 KB", "User_Quota_Maximum", ""},
        {"VOL1/Public/Briefkasten", "512 MB", "530 MB", "-18 MB", "Quota_Exceeded_Label", 18 << 20},
        {"VOL1/Public/Briefkasten", "512 MB", "512 MB", "0 KB", "100 % used"},
        {"VOL1/Public/Briefkasten", "512 MB", "512 MB", "-1 B", "Quota_Exceeded_Label", 1},
        {"VOL1/Public/Briefkasten", "512 MB", "512 MB", "1 B", "99 % used", -1},
    };
    for (const auto& each : cases) {
        drop.used = drop.limit + each.over;
        select(each.path);
        openLimit();
        EXPECT_EQ(value("dirQuotaLimit") + value("dirQuotaUsed") + value("dirQuotaAvailable"),
                  std::string(each.limit) + each.used + each.available);
        EXPECT_EQ(isShown("quotaBar") ? value("quotaBar", "format") : "", each.bar);
        EXPECT_FALSE(page->dontCompressChk->isEnabled()) << "it is a folder";
    }
    select("VOL1/Projects/Aurora");
    std::filesystem::remove_all(*world.volumes->folderOf("VOL1") / "Projects");
    open("information");
    EXPECT_THAT(log.take(), Contains("Could not check the filetype for path /Volumes/VOL1/Projects/Aurora - "
                                     "nothing is mounted there"));
    EXPECT_EQ(control<QTabWidget>("directoryQuotaTabView").count(), 1);
    EXPECT_TRUE(isEnabled("dontCompressChk"));
}

TEST_F(InformationTest, SendsALimitInBytes) {
    openLimit();
    act("editLimitBtn");
    EXPECT_EQ(value("dirQuotaLimit") + value("selectUnit", "currentText"), "20GB");
    EXPECT_EQ(value("dirQuotaLimit", "readOnly"), "false");
    act("applyButton");
    EXPECT_THAT(changes(), ElementsAre("21474836480")) << "an untouched limit is the same again";
    EXPECT_EQ(value("dirQuotaLimit", "readOnly"), "true");
    EXPECT_FALSE(isShown("selectUnit"));
    const struct {
        const char *text, *unit, *bytes, *shown;
    } limits[] = {{"2", "TB", "2199023255552", "2 TB"},
                  {"5", "MB", "5242880", "5 MB"},
                  {"8191", "PB", "9222246136947933184", "8191 PB"},
                  {"+3", "GB", "3221225472", "3 GB"},
                  {"-1", "MB", "-1048576", "3 GB"}}; // a number, which the server refuses
    for (const auto& each : limits) {
        EXPECT_EQ(applyLimit(each.text, each.unit), each.shown);
        EXPECT_THAT(changes(), ElementsAre(each.bytes));
    }
    for (const char* text : {"", "1.5", "10 GB", "   ", "0x10", "9223372036854775808"}) {
        act("editLimitBtn, type dirQuotaLimit " + std::string(text) + ", choose selectUnit GB, applyButton");
        EXPECT_EQ(dismissAlert(), "Invalid_Quota_Limit") << text;
        EXPECT_THAT(log.take(), Contains("Close Modal"));
        EXPECT_THAT(changes(), IsEmpty());
        EXPECT_EQ(value("dirQuotaLimit"), "3 GB");
        EXPECT_FALSE(isEnabled("applyButton") || page->applyDirQuota);
    }

    // Small units cannot be entered; GB counts then, and is what the pop-up shows.
    node(demo::limitedFolder).quota.limit = 512 << 10;
    openLimit();
    act("editLimitBtn");
    EXPECT_EQ(value("dirQuotaLimit") + value("selectUnit", "currentText") +
                  value("selectUnit", "placeholderText"),
              "512GB");
    act("removeLimitBtn");
    EXPECT_EQ(value("dirQuotaLimit"), "User_Quota_Not_Set");
    EXPECT_TRUE(isEnabled("editLimitBtn"));
    act("applyButton");
    EXPECT_THAT(changes(), ElementsAre("9223372036854775807"));
    EXPECT_EQ(value("dirQuotaLimit"), "User_Quota_Unlimited");
    act("editLimitBtn");
    EXPECT_EQ(value("dirQuotaLimit") + value("selectUnit", "currentText"), "1GB");
    for (const char* text : {"8192", "9223372036854775807"})
        EXPECT_DEATH((setLogSink({}),
                      act("type dirQuotaLimit " + std::string(text) + ", choose selectUnit PB, applyButton")),
                     "too large for its unit");
}

TEST_F(InformationTest, ReportsEveryFailureAndGoesOn) {
    openLimit();
    act("tab 0, hideChk, tab 1");
    EXPECT_EQ(applyLimit("7", "GB"), "7 GB");
    node(demo::limitedFolder).attributes = 0;
    act("tab 0, hideChk, tab 1, editLimitBtn");
    breakPipes();
    log.take();
    act("applyButton");
    EXPECT_THAT(alerts(), testing::AllOf(SizeIs(4), Each("Err_Operation_Failed")));
    EXPECT_THAT(log.take(), Contains("Failed with err - -1"));
    EXPECT_FALSE(page->applyAttrs || page->applyDirQuota || isEnabled("applyButton"));
    EXPECT_EQ(value("dirQuotaLimit"), "7 GB") << "as it was read last";

    mend();
    losePassword();
    act("tab 0, hideChk, applyButton");
    EXPECT_THAT(alerts(), ElementsAre("Err_Keychain_Not_Found", "Err_Keychain_Not_Found"));
    EXPECT_THAT(log.take(), Not(Contains("Failed with err - -25300")));
    act("tab 1, editLimitBtn, removeLimitBtn, applyButton");
    EXPECT_THAT(alerts(), SizeIs(2));
    EXPECT_THAT(log.take(), Contains("Failed with err - -25300").Times(2))
        << "the quota says so in the log, too";

    // Nothing could be read at all: an empty page, and nothing that ends the program.
    mend();
    open("information", demo::supervisor, [this] { breakPipes(); });
    EXPECT_FALSE(isEnabled("hideChk"));
    act("tab 1");
    EXPECT_EQ(value("dirQuotaLimit"), "");
    EXPECT_FALSE(isShown("selectUnit") || isEnabled("editLimitBtn"));
    EXPECT_EQ(world.network->openDescriptors(), 0U);
}

} // namespace
} // namespace quorvan::test
