// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Information/InformationViewController.h"
#include "Quorvan/Toolkit/QuotaLimit.h"
#include "Quorvan/Toolkit/ValueField.h"
#include "Tests/Quorvan/Controller/PropertyFixture.h"

#include <QProgressBar>
#include <QTabWidget>

#include <cerrno>
#include <filesystem>

namespace quorvan::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
namespace demo = simulator::demo;
namespace attribute = simulator::attribute;

/// Paths of the demo data, as they are mounted.
constexpr const char* folder = "VOL1/Projects/Aurora";
constexpr const char* file = "VOL1/Projects/Aurora/Concept.odt";

struct InformationTest : PropertyFixture {
    void openView(const char* local = folder, const char* user = demo::supervisor,
                  const char* userType = "ActiveDirectory") {
        view = openAt<InformationViewController>(local, user, userType);
        view->directoryQuotaTabView->setCurrentWidget(view->directoryQuotaTab);
    }
    std::string limit() const { return view->dirQuotaLimit->text().toStdString(); }
    void applyLimit(const char* text, int unit) {
        click(view->editLimitBtn);
        type(view->dirQuotaLimit, text);
        choose(view->selectUnit, unit);
        click(view->applyButton);
    }
    Texts amounts() { return sent("<quotaAmount>", "<"); }
    simulator::Node& node(const char* path) { return *world.server->volumes().find(path); }

    InformationViewController* view = nullptr;
};

TEST_F(InformationTest, SendsTheAttributesThatAreOnTwice) {
    const char* path = demo::fileOfNobody;
    openView(file);
    EXPECT_EQ(view->directoryQuotaTabView->count(), 1) << "a file has no quota";
    EXPECT_FALSE(view->applyButton->isEnabled());
    click(view->hideChk);
    click(view->archiveChk);
    click(view->applyButton);
    EXPECT_THAT(
        sent("<attributes>", "</attributes>"),
        ElementsAre(
            R"(<hidden enabled="yes"/><archive enabled="yes"/><readOnly enabled="no"/><hidden enabled="yes"/>)"
            R"(<archive enabled="yes"/><immediatePurge enabled="no"/><renameInhibit enabled="no"/>)"
            R"(<deleteInhibit enabled="no"/><compressImmediate enabled="no"/><doNotCompress enabled="no"/>)"));
    EXPECT_EQ(node(path).attributes, attribute::hidden | attribute::archive);
    EXPECT_FALSE(view->applyButton->isEnabled());

    click(view->hideChk);
    click(view->renameInhibitChk);
    click(view->readChk);
    for (const QCheckBox* implied : {view->renameInhibitChk, view->deleteInhibitChk})
        EXPECT_TRUE(implied->isChecked() && !implied->isEnabled());
    EXPECT_THAT(view->editedFileAttributes,
                ElementsAre("archive", "renameInhibit", "readOnly", "deleteInhibit"));
    click(view->applyButton);
    EXPECT_EQ(node(path).attributes,
              attribute::archive | attribute::readOnly | attribute::renameInhibit | attribute::deleteInhibit);
    EXPECT_FALSE(view->deleteInhibitChk->isEnabled()) << "read again, it is still read only";
    click(view->readChk);
    EXPECT_TRUE(view->deleteInhibitChk->isEnabled());
    EXPECT_THAT(view->editedFileAttributes, ElementsAre("archive"));
    click(view->closeButton);
    EXPECT_THAT(host->titles, ElementsAre("Rights Management"));
    EXPECT_THAT(sent("<setFileInfo>", "<"), testing::SizeIs(1)) << "closing drops what was not applied";

    // What the server refuses comes back as it was, with the boxes that it implies.
    openView(file, demo::readOnly);
    EXPECT_FALSE(view->changeOwnerButton->isEnabled());
    EXPECT_TRUE(view->readOnlyLabel->isVisible());
    click(view->readChk);
    click(view->applyButton);
    EXPECT_TRUE(view->readChk->isChecked() && !view->renameInhibitChk->isEnabled());
    EXPECT_THAT(takeAlerts(), IsEmpty());
}

TEST_F(InformationTest, TakesTheOwnerFromEitherDirectory) {
    const auto expectNewOwner = [this](const char* place) {
        const std::string name = view->ownerField->text().toStdString();
        EXPECT_TRUE(view->ownerIcon->isVisible());
        click(view->applyButton);
        const simulator::Identity* owner = world.identities->findById(node(demo::fileOfNobody).owner);
        ASSERT_NE(owner, nullptr) << place;
        EXPECT_THAT(name, testing::HasSubstr(owner->name));
        EXPECT_EQ(view->ownerField->text().toStdString(), owner->name);
        EXPECT_EQ(view->editedOwner.ownerID, "");
    };
    openView(file);
    EXPECT_EQ(view->ownerField->text(), "");
    EXPECT_FALSE(view->ownerIcon->isVisible());
    pickUsers(view->changeOwnerButton, inDomain, {1});
    expectNewOwner(inDomain);
    EXPECT_TRUE(view->onReturnSelectedUser({}, {}, "Users"));
    EXPECT_TRUE(view->onReturnMorvaneSelectedUser({}));
    EXPECT_FALSE(view->applyButton->isEnabled()) << "nobody was picked";
    openView(file, demo::supervisorTree, "Morvane");
    pickUsers(view->changeOwnerButton, inTree, {0});
    expectNewOwner(inTree);

    Shared::value().bothID = true;
    openView(file);
    for (const char* place : {inTree, inDomain}) {
        pickUsers(view->changeOwnerButton, place, {2});
        expectNewOwner(place);
    }
    bundle->features->at("addBothTrustees") = false;
    openView();
    EXPECT_FALSE(view->changeOwnerButton->isEnabled());
    EXPECT_TRUE(view->editLimitBtn->isEnabled());

    Shared::value().bothID = false;
    openView();
    view->domainIdentity = "Guest";
    click(view->changeOwnerButton);
    EXPECT_TRUE(front<QWidget>("treeTextField")->isVisible()) << "for whoever is not of Active Directory";

    bundle->features->at("multiForest") = false;
    openView();
    click(view->changeOwnerButton);
    EXPECT_TRUE(front<QWidget>("userTypeTable")->isVisible()) << "the browser of a single forest";
}

TEST_F(InformationTest, ShowsLimitsOfEveryKind) {
    EXPECT_THAT((std::vector<QString>{byteCount(0), byteCount(1023), byteCount(1536), byteCount(-18874368),
                                      byteCount(std::int64_t{2} << 40), byteCount((1 << 30) - 1),
                                      byteCount(1127428915), byteCount(std::int64_t{8191} << 50)}),
                ElementsAre("0 KB", "1023 B", "1.5 KB", "-18 MB", "2 TB", "1 GB", "1.05 GB", "8191 PB"));
    const struct {
        const char *path, *limit, *used, *available;
        int percent; ///< -1: no bar
    } cases[] = {
        {folder, "20 GB", "13.5 GB", "6.5 GB", 67},
        {"VOL1/Archiv", "User_Quota_Unlimited", "0 KB", "User_Quota_Maximum", -1},
        {"VOL1/Projects", "User_Quota_Not_Set", "0 KB", "User_Quota_Maximum", -1},
        {"VOL1/Public/Briefkasten", "512 MB", "530 MB", "-18 MB", 100},
    };
    for (const auto& each : cases) {
        openView(each.path);
        EXPECT_EQ(limit(), each.limit);
        EXPECT_EQ(view->dirQuotaUsed->text(), each.used);
        EXPECT_EQ(view->dirQuotaAvailable->text(), each.available);
        EXPECT_EQ(view->quotaBar->isVisibleTo(view->directoryQuotaTab), each.percent >= 0);
        EXPECT_EQ(view->quotaBar->value(), each.percent);
        EXPECT_FALSE(view->dontCompressChk->isEnabled()) << "it is a folder";
    }
    std::filesystem::remove_all(*world.volumes->folderOf("VOL1") / "Projects");
    log.take();
    openView();
    EXPECT_THAT(log.take(), Contains("Could not check the filetype for path /Volumes/VOL1/Projects/Aurora - "
                                     "nothing is mounted there"));
    EXPECT_EQ(view->directoryQuotaTabView->count(), 1);
    EXPECT_TRUE(view->dontCompressChk->isEnabled());
}

TEST_F(InformationTest, SendsALimitInBytes) {
    openView();
    click(view->editLimitBtn);
    EXPECT_EQ(limit(), "20");
    EXPECT_EQ(view->selectUnit->currentText(), "GB");
    EXPECT_FALSE(view->dirQuotaLimit->isReadOnly());
    click(view->applyButton);
    EXPECT_THAT(amounts(), ElementsAre("21474836480")) << "an untouched limit is the same again";
    EXPECT_TRUE(view->dirQuotaLimit->isReadOnly() && view->selectUnit->isHidden());

    for (const auto& [text, unit, bytes] : {std::tuple("2", 2, "2199023255552"),
                                            {"5", 0, "5242880"},
                                            {"8191", 3, "9222246136947933184"},
                                            {"+3", 1, "3221225472"}}) {
        applyLimit(text, unit);
        EXPECT_THAT(amounts(), ElementsAre(bytes));
    }
    EXPECT_EQ(limit(), "3 GB");
    applyLimit("-1", 0); // a number, which the server refuses
    EXPECT_THAT(amounts(), ElementsAre("-1048576"));
    EXPECT_EQ(limit(), "3 GB");

    for (const char* text : {"", "1.5", "10 GB", "   ", "0x10", "9223372036854775808"}) {
        applyLimit(text, 1);
        EXPECT_EQ(dismissAlert(), "Invalid_Quota_Limit") << text;
        EXPECT_THAT(log.take(), Contains("Close Modal"));
        EXPECT_THAT(amounts(), IsEmpty());
        EXPECT_EQ(limit(), "3 GB");
        EXPECT_FALSE(view->applyButton->isEnabled() || view->applyDirQuota);
    }

    // Small units cannot be entered; GB counts then, and is what the pop-up shows.
    node(demo::limitedFolder).quota.limit = 512 << 10;
    openView();
    click(view->editLimitBtn);
    EXPECT_EQ(limit(), "512");
    EXPECT_EQ(view->selectUnit->currentIndex(), -1);
    EXPECT_EQ(view->selectUnit->placeholderText(), "GB");

    click(view->removeLimitBtn);
    EXPECT_EQ(limit(), "User_Quota_Not_Set");
    click(view->applyButton);
    EXPECT_THAT(amounts(), ElementsAre("9223372036854775807"));
    EXPECT_EQ(limit(), "User_Quota_Unlimited");
    click(view->editLimitBtn);
    EXPECT_EQ(limit(), "1");
    EXPECT_EQ(view->selectUnit->currentText(), "GB");

    for (const char* text : {"8192", "9223372036854775807"})
        EXPECT_DEATH(
            {
                setLogSink({});
                type(view->dirQuotaLimit, text);
                choose(view->selectUnit, 3);
                click(view->applyButton);
            },
            "too large for its unit");
}

TEST_F(InformationTest, ReportsEveryFailureAndGoesOn) {
    openView();
    click(view->hideChk);
    applyLimit("7", 1);
    node(demo::limitedFolder).attributes = 0;
    click(view->hideChk);
    click(view->editLimitBtn);
    world.server->misbehaviour.openError = EACCES;
    log.take();
    click(view->applyButton);
    EXPECT_THAT(takeAlerts(), testing::AllOf(testing::SizeIs(4), testing::Each("Err_Operation_Failed")));
    EXPECT_THAT(log.take(), Contains("Failed with err - -1"));
    EXPECT_FALSE(view->applyAttrs || view->applyDirQuota || view->applyButton->isEnabled());
    EXPECT_EQ(limit(), "7 GB") << "as it was read last";

    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    ServerDetails::serverInfo().keychainStatus = errSecItemNotFound;
    click(view->hideChk);
    click(view->applyButton);
    EXPECT_THAT(takeAlerts(), ElementsAre("Err_Keychain_Not_Found", "Err_Keychain_Not_Found"));
    EXPECT_THAT(log.take(), Not(Contains("Failed with err - -25300")));
    click(view->editLimitBtn);
    EXPECT_EQ(limit(), "7");
    click(view->removeLimitBtn);
    click(view->applyButton);
    EXPECT_THAT(log.take(), Contains("Failed with err - -25300")) << "the quota says so in the log, too";
    takeAlerts();

    // Nothing could be read at all: four alerts, an empty page, and nothing that ends the program.
    ServerDetails::forget();
    openView();
    EXPECT_EQ(takeAlerts().size(), 4U);
    EXPECT_EQ(limit(), "");
    EXPECT_TRUE(view->selectUnit->isHidden()) << "a unit of nothing";
    EXPECT_FALSE(view->editLimitBtn->isEnabled() || view->hideChk->isEnabled());
    world.server->misbehaviour = {};
    world.server->misbehaviour.code = 20903;
    openView();
    EXPECT_THAT(takeAlerts(), testing::Each("Err_Operation_Failed"));
    EXPECT_EQ(world.network->openDescriptors(), 0U);
}

} // namespace
} // namespace quorvan::test
