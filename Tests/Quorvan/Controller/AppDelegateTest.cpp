// SPDX-License-Identifier: GPL-3.0-or-later
// The life cycle takes over standard streams and ends processes, so each run is a process of its own.
#include "Quorvan/AppDelegate.h"
#include "Common/Log.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Shell/MainStoryboard.h"
#include "Quorvan/Controller/Shell/MainWindow.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>

#include <gmock/gmock.h>

#include <csignal>
#include <string>
#include <vector>

namespace quorvan::test {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::EndsWith;
using testing::ExitedWithCode;
using testing::HasSubstr;
using testing::Not;
namespace demo = simulator::demo;

struct LoggingAlerts : platform::Alerts {
    void runModal(const std::string&, const std::string& message, platform::AlertStyle) override {
        Log("alert %@", message);
    }
};

struct AppDelegateTest : testing::Test {
    AppDelegateTest() {
        GTEST_FLAG_SET(death_test_style, "threadsafe");
        // The child starts this test again and has to find its parent's folder.
        if (qEnvironmentVariableIsEmpty("QUORVAN_TEST_LIBRARY"))
            qputenv("QUORVAN_TEST_LIBRARY", folder.filePath("My Library").toUtf8());
        library = qgetenv("QUORVAN_TEST_LIBRARY").toStdString();
    }
    ~AppDelegateTest() override { qunsetenv("QUORVAN_TEST_LIBRARY"); }

    QString logFile() const { return QString::fromStdString(library + "/Logs/tarnix/Quorvan.log"); }

    /// The log's lines without their prefixes.
    std::vector<std::string> logLines() const {
        QFile file(logFile());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        std::vector<std::string> lines;
        for (const QByteArray& line : file.readAll().split('\n'))
            lines.push_back(line.mid(line.startsWith("20") ? line.indexOf("] ") + 2 : 0).toStdString());
        lines.pop_back();
        return lines;
    }

    /// Runs the program in this process until its end; `act` happens once the window is there.
    template <class Action>
    [[noreturn]] void runToTheEnd(const char* user, bool morvaneSupport, Action act) {
        ServerDetails::forget();
        simulator::Embedded world = simulator::Embedded::demo(user);
        platform::Services services = world.services();
        const auto bundle = std::make_shared<FakeBundle>();
        bundle->features->at("MorvaneSupport") = morvaneSupport;
        services.bundle = bundle;
        services.alerts = std::make_shared<LoggingAlerts>();
        const platform::ScopedServices installed(services);
        fillMainStoryboard();
        AppDelegate delegate(library);
        QTimer later;
        QObject::connect(&later, &QTimer::timeout, [&] {
            if (delegate.mainWindow() != nullptr && delegate.mainWindow()->isVisible()) {
                later.stop();
                act(delegate, world);
            }
        });
        later.start(0);
        const int status = delegate.run();
        Log("window %@", delegate.mainWindow()->isVisible() ? "shown" : "not shown");
        Log("mounts left %d", world.network->mountedPaths().size());
        Log("loggedUserType %@", world.sharedDefaults->values(groupSuiteName)["loggedUserType"]);
        std::exit(status);
    }

    QTemporaryDir folder;
    std::string library;
};

TEST_F(AppDelegateTest, AppendsEverythingThatIsWrittenToOneFile) {
    const auto run = [&](const char* line) {
        const AppDelegate delegate(library);
        Log(line);
        std::puts("printed");
        std::exit(0);
    };
    QDir().mkpath(QFileInfo(logFile()).path());
    QFile old(logFile()); // that everybody can read
    EXPECT_TRUE(old.open(QIODevice::Append) && old.setPermissions(QFile::Permissions(0x6644)));
    EXPECT_EXIT(run("first run"), ExitedWithCode(0), "");
    EXPECT_EXIT(run("second run"), ExitedWithCode(0), "");
    const std::string url = "file://" + folder.path().toStdString() + "/My%20Library/Logs/tarnix/Quorvan.log";
    EXPECT_THAT(logLines(), ElementsAre(url, "first run", "printed", url, "second run", "printed"));
    EXPECT_EQ(QFileInfo(logFile()).permissions() & 0x0FFF,
              QFile::ReadUser | QFile::WriteUser); // the class bits without those of the owner
}

TEST_F(AppDelegateTest, KeepsTheStreamsWhereNoLogFileCanBe) {
    const auto run = [](const std::string& libraryDirectory) {
        const AppDelegate delegate(libraryDirectory);
        Log("still here");
        std::exit(0);
    };
    EXPECT_EXIT(run("/dev/null/Library"), ExitedWithCode(0), "still here");
    EXPECT_EXIT(run(library + "/Größe"), ExitedWithCode(0), "still here");
    EXPECT_EQ(unsetenv("HOME"), 0);
    EXPECT_DEATH(AppDelegate::userLibraryDirectory(), "no home");
    EXPECT_EQ(setenv("HOME", "/home/someone", 1), 0);
    EXPECT_EQ(AppDelegate::userLibraryDirectory(), "/home/someone/Library");
}

TEST_F(AppDelegateTest, UnmountsWhenTheWindowIsClosed) {
    EXPECT_EXIT(
        runToTheEnd(demo::supervisor, true,
                    [](AppDelegate& delegate, auto&) {
                        Log("titles %@ %@ %@ %@ %@ %@ %@ %@ %@", delegate.AboutQuorvan->text().toStdString(),
                            delegate.Preferences->text().toStdString(),
                            delegate.Services->text().toStdString(),
                            delegate.HideQuorvan->text().toStdString(),
                            delegate.HideOthers->text().toStdString(), delegate.ShowAll->text().toStdString(),
                            delegate.QuitQuorvan->text().toStdString(), delegate.Help->title().toStdString(),
                            delegate.QuorvanHelp->text().toStdString());
                        delegate.mainWindow()->close();
                    }),
        ExitedWithCode(0), "");
    const auto lines = logLines();
    EXPECT_THAT(lines,
                Contains("titles AboutQuorvan_title Preferences_title Services_title HideQuorvan_title "
                         "HideOthers_title ShowAll_title QuitQuorvan_title Help_title QuorvanHelp_title"));
    const auto closing = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.starts_with("Closing Rights Management ");
    });
    ASSERT_NE(closing, lines.end());
    EXPECT_THAT(std::vector(closing + 1, lines.end()),
                ElementsAre("unmount 192.0.2.10/IPC$'s - /IPC$ : 0", "window not shown", "mounts left 0",
                            "loggedUserType ActiveDirectory"));
}

TEST_F(AppDelegateTest, EndsForAUserWhoIsNotSupported) {
    EXPECT_EXIT(runToTheEnd(demo::supervisorTree, false, [](auto&, auto&) { std::exit(3); }),
                ExitedWithCode(0), "");
    EXPECT_THAT(logLines(),
                AllOf(Contains("alert Err_Logged_User_Morvane"),
                      Contains("unmount 192.0.2.10/IPC$'s - /IPC$ : 0"), Contains("window not shown"),
                      Contains("mounts left 0"), Contains("loggedUserType "),
                      Not(Contains(HasSubstr("Closing Rights Management"))), Not(Contains("pipe closed"))));
}

TEST_F(AppDelegateTest, EndsInOrderOnASignalAndOnQuit) {
    EXPECT_EXIT(runToTheEnd(demo::supervisor, false, [](auto&, auto&) { raise(SIGTERM); }), ExitedWithCode(0),
                "");
    EXPECT_EXIT(runToTheEnd(demo::supervisor, false,
                            [](AppDelegate& delegate, auto&) { delegate.QuitQuorvan->trigger(); }),
                ExitedWithCode(0), "");
    EXPECT_THAT(logLines(), Contains("mounts left 0").Times(2));
    EXPECT_THAT(logLines(), Contains("unmount 192.0.2.10/IPC$'s - /IPC$ : 0").Times(2));
}

} // namespace
} // namespace quorvan::test
