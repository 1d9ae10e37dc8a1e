// SPDX-License-Identifier: GPL-3.0-or-later
// The life cycle takes over standard streams and ends processes, so each run is a process of its own.
#include "Quorvan/AppDelegate.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Shell/MainStoryboard.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

#include <QAction>
#include <QDir>
#include <QMenu>
#include <QTemporaryDir>
#include <QTimer>

#include <csignal>

#include <unistd.h>

namespace quorvan::test {
namespace {

using testing::ExitedWithCode;

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
    Texts logLines() const {
        QFile file(logFile());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        Texts lines;
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
                act(delegate);
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
    const auto run = [this](const char* line) {
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

TEST_F(AppDelegateTest, KeepsALineALineWhateverAServerOrAKilledRunHasLeft) {
    const auto run = [&] {
        const AppDelegate delegate(library);
        Log("Reply: %@", "a\n2026-11-22 forged\r\u2028\u202Ex\ty é");
        std::exit(0);
    };
    QDir().mkpath(QFileInfo(logFile()).path());
    QFile torn(logFile());
    EXPECT_TRUE(torn.open(QIODevice::WriteOnly) && torn.write("torn") == 4);
    torn.close();
    EXPECT_EXIT(run(), ExitedWithCode(0), "");
    const std::string url = "file://" + folder.path().toStdString() + "/My%20Library/Logs/tarnix/Quorvan.log";
    EXPECT_THAT(logLines(),
                ElementsAre("torn", url, "Reply: a\\u{A}2026-11-22 forged\\u{D}\\u{2028}\\u{202E}x\ty é"));
}

TEST_F(AppDelegateTest, KeepsTheStreamsWhereNoLogFileCanBe) {
    const auto run = [](const std::string& libraryDirectory) {
        const AppDelegate delegate(libraryDirectory);
        Log("still here");
        std::exit(0);
    };
    EXPECT_EXIT(run("/dev/null/Library"), ExitedWithCode(0), "still here");
    EXPECT_EXIT(run(library + "/Größe"), ExitedWithCode(0), "still here");
    // A link, which others could have made to any file of the user's.
    const QString other = folder.filePath("other");
    EXPECT_TRUE(QFile(other).open(QIODevice::WriteOnly));
    QDir().mkpath(QFileInfo(logFile()).path());
    EXPECT_TRUE(QFile::link(other, logFile()));
    EXPECT_EXIT(run(library), ExitedWithCode(0), "still here");
    EXPECT_EQ(QFileInfo(other).size(), 0);
    EXPECT_EQ(unsetenv("HOME"), 0);
    EXPECT_DEATH(AppDelegate::userLibraryDirectory(), "no home");
    EXPECT_EQ(setenv("HOME", "/home/someone", 1), 0);
    EXPECT_EQ(AppDelegate::userLibraryDirectory(), "/home/someone/Library");
}

TEST_F(AppDelegateTest, UnmountsWhenTheWindowIsClosed) {
    const auto close = [](AppDelegate& delegate) {
        std::string titles = delegate.Help->title().toStdString();
        for (const QAction* item :
             {delegate.AboutQuorvan, delegate.Preferences, delegate.Services, delegate.HideQuorvan,
              delegate.HideOthers, delegate.ShowAll, delegate.QuitQuorvan, delegate.QuorvanHelp})
            titles += ' ' + item->text().toStdString();
        Log("%@", titles);
        delegate.mainWindow()->close();
    };
    EXPECT_EXIT(runToTheEnd(demo::supervisor, true, close), ExitedWithCode(0), "");
    Texts lines = logLines();
    EXPECT_THAT(lines,
                Contains("Help_title AboutQuorvan_title Preferences_title Services_title HideQuorvan_title "
                         "HideOthers_title ShowAll_title QuitQuorvan_title QuorvanHelp_title"));
    lines.erase(lines.begin(), lines.end() - 5);
    EXPECT_THAT(lines, ElementsAre(testing::StartsWith("Closing Rights Management "),
                                   "unmount 192.0.2.10/IPC$'s - /IPC$ : 0", "window not shown",
                                   "mounts left 0", "loggedUserType ActiveDirectory"));
}

TEST_F(AppDelegateTest, EndsForAUserWhoIsNotSupported) {
    EXPECT_EXIT(runToTheEnd(demo::supervisorTree, false, [](auto&) { std::exit(3); }), ExitedWithCode(0), "");
    Texts lines = logLines();
    EXPECT_THAT(lines,
                testing::AllOf(Contains("alert Err_Logged_User_Morvane"), Not(Contains("pipe closed"))));
    lines.erase(lines.begin(), lines.end() - 4);
    EXPECT_THAT(lines, ElementsAre("unmount 192.0.2.10/IPC$'s - /IPC$ : 0", "window not shown",
                                   "mounts left 0", "loggedUserType "));
}

TEST_F(AppDelegateTest, EndsOnASignalWhileItWaits) {
    for (const int signal : {SIGTERM, SIGHUP})
        EXPECT_EXIT(runToTheEnd(demo::supervisor, false,
                                [signal](auto&) {
                                    raise(signal);
                                    for (;;) // as in a library call that does not return
                                        pause();
                                }),
                    ExitedWithCode(0), "");
    EXPECT_THAT(logLines(), Contains("Ended while waiting for a server").Times(2));
}

TEST_F(AppDelegateTest, EndsInOrderOnASignalAndOnQuit) {
    for (const bool bySignal : {true, false}) {
        const auto end = [&](AppDelegate& delegate) {
            bySignal ? (void)raise(SIGTERM) : delegate.QuitQuorvan->trigger();
        };
        EXPECT_EXIT(runToTheEnd(demo::supervisor, false, end), ExitedWithCode(0), "");
    }
    EXPECT_THAT(logLines(), Contains("mounts left 0").Times(2));
    EXPECT_THAT(logLines(), Contains("unmount 192.0.2.10/IPC$'s - /IPC$ : 0").Times(2));
}

} // namespace
} // namespace quorvan::test
