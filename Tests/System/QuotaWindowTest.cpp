// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/ServerDetails.h"
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Quorvan/Controller/MainStoryboard.h"
#include "Quorvan/Controller/MainWindow.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/ListTable.h"
#include "Quorvan/Toolkit/QuotaLimit.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"
#include "Tests/System/RealServer.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace quorvan::test {
namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// The window over real SMB; hand-over, keychain and directory are in memory.
struct QuotaWindow : testing::Test {
    void SetUp() override {
        if (const std::string obstacle = RealServer::obstacle(); !obstacle.empty())
            GTEST_SKIP() << obstacle;
        server = std::make_unique<RealServer>();
        world.host = server->address;
        world.logIn(RealServer::user, RealServer::password);
        world.handOver("/Volumes/VOL1/Projects/Aurora", "VOL1:\\");
        platform::Services services = world.services();
        services.network = std::make_shared<platform::SmbClientFileSystem>(
            [](std::string_view line) { Log("%@", line); }, std::chrono::seconds(5));
        const auto bundle = std::make_shared<FakeBundle>();
        bundle->texts["Managed_Server_Label"] = "on %1";
        services.bundle = bundle;
        services.alerts = alerts;
        installed = std::make_unique<platform::ScopedServices>(services);
        fillMainStoryboard();
        window = std::make_unique<MainWindow>();
        window->load();
        window->present();
    }
    void TearDown() override {
        window.reset();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        ServerDetails::forget();
    }
    template <class Control>
    Control* find(const char* name) const {
        QWidget* sheet = QApplication::activeModalWidget();
        for (auto* control : (sheet != nullptr ? sheet : window.get())->findChildren<Control*>(name))
            if (control->isVisible())
                return control;
        throw std::runtime_error(std::string("there is no ") + name);
    }
    void click(const char* button) const { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }
    ListTable& table() const { return static_cast<ListTable&>(*find<QTableView>("userQuotaTable")); }
    void select(std::initializer_list<int> rows) const {
        table().clearSelection();
        for (const int row : rows)
            QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::ControlModifier,
                              table().visualRect(table().model()->index(row, 0)).center());
    }
    using Limits = std::vector<std::pair<std::string, std::string>>; ///< of users, by name
    Limits shown() const {
        Limits rows;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            rows.emplace_back(
                table().model()->index(row, 0).data().toString().section('\\', -1).toStdString(),
                table().model()->index(row, 1).data().toString().toStdString());
        return rows;
    }
    /// What the server itself says of its users of Active Directory that have a limit.
    Limits onServer() const {
        Limits rows;
        std::istringstream lines(server->kelp.ask("user-quotas\tVOL1"));
        for (std::string id, limit, used, name; std::getline(lines, id, '\t') &&
                                                std::getline(lines, limit, '\t') &&
                                                std::getline(lines, used, '\t') && std::getline(lines, name);)
            if (id.starts_with("S-1-") && limit != DirectoryQuotaConstants::UNLIMITED)
                rows.emplace_back(name, byteCount(std::stoll(limit)).toStdString());
        return rows;
    }

    LogRecorder log;
    std::unique_ptr<RealServer> server;
    simulator::Embedded world = simulator::Embedded::demo();
    std::shared_ptr<RecordingAlerts> alerts = std::make_shared<RecordingAlerts>();
    std::unique_ptr<platform::ScopedServices> installed;
    std::unique_ptr<MainWindow> window;
};

TEST_F(QuotaWindow, ChangesTwoLimitsAndRemovesOne) {
    click("UserQuotaView");
    const Limits before = onServer();
    EXPECT_EQ(before.size(), simulator::demo::usersWithQuota / 2);
    EXPECT_THAT(shown(), ElementsAreArray(before));

    select({1, 3});
    click("editUQButton");
    auto* limit = find<QLineEdit>("quotaLimitTextField");
    limit->selectAll();
    QTest::keyClicks(limit, "7");
    click("okBtn");
    select({4});
    click("removeUQButton");
    EXPECT_EQ(onServer(), before) << "nothing was sent yet";
    click("applyButton");
    EXPECT_THAT(alerts->shown, IsEmpty());
    EXPECT_FALSE(find<QPushButton>("applyButton")->isEnabled());

    Limits after = before;
    for (const std::size_t row : {1, 3})
        after[row].second = "7 GB";
    after.erase(after.begin() + 4);
    EXPECT_EQ(onServer(), after);
    EXPECT_THAT(shown(), ElementsAreArray(after));
    click("closeButton");
    click("UserQuotaView");
    EXPECT_THAT(shown(), ElementsAreArray(after)) << "read anew, by a page of its own";

    EXPECT_THAT(log.lines, Not(Contains(HasSubstr(RealServer::password))));
    DictionaryForMountedPIPE::mountDict().unmountAll();
    EXPECT_EQ(server->sessions("0 0"), "0 0");
}

} // namespace
} // namespace quorvan::test
