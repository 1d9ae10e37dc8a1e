// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/AppDelegate.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Quorvan/Controller/Shell/HelpPanels.h"
#include "Quorvan/Controller/Shell/MainWindow.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/TerminationSignals.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvan {
namespace {

/// Makes sure that there is a log file that can be written, and that nobody else can read it.
bool prepareLogFile(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        std::filesystem::create_directories(file.parent_path(), error);
    if (error) {
        std::printf("%s\n", error.message().c_str());
        return false;
    }
    const int descriptor = ::open(file.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        std::printf("%s\n", std::strerror(errno));
        return false;
    }
    ::fchmod(descriptor, S_IRUSR | S_IWUSR); // left by a version or a copy that was less careful
    ::close(descriptor);
    return true;
}

bool isAscii(const std::string& text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<signed char>(byte) > 0; });
}

void sendStandardStreamsInto(const std::string& file) {
    if (!prepareLogFile(file) || !isAscii(file))
        return;
    for (FILE* stream : {stderr, stdin, stdout})
        if (std::freopen(file.c_str(), "a+", stream) == nullptr)
            return;
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // lines keep their order among the log's own
}

} // namespace

AppDelegate* AppDelegate::running_ = nullptr;

AppDelegate::AppDelegate(const std::string& libraryDirectory) {
    const std::string file = logFile(libraryDirectory);
    sendStandardStreamsInto(file);
    Log("%@", QUrl::fromLocalFile(QString::fromStdString(file)).toEncoded().toStdString());
    running_ = this;
    buildMenuItems();
}

AppDelegate::~AppDelegate() {
    running_ = nullptr;
}

std::string AppDelegate::userLibraryDirectory() {
    const char* home = std::getenv("HOME");
    require(home != nullptr && *home == '/', "The user has no home directory");
    return std::string(home) + "/Library";
}

std::string AppDelegate::logFile(const std::string& libraryDirectory) {
    return libraryDirectory + "/Logs/tarnix/Quorvan.log";
}

void AppDelegate::buildMenuItems() {
    for (QAction** item : {&AboutQuorvan, &Preferences, &Services, &HideQuorvan, &HideOthers, &ShowAll,
                           &QuitQuorvan, &QuorvanHelp})
        *item = new QAction(this);
    helpMenu_ = std::make_unique<QMenu>();
    Help = helpMenu_.get();
    AboutQuorvan->setMenuRole(QAction::AboutRole);
    QuitQuorvan->setMenuRole(QAction::QuitRole);
    QuitQuorvan->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    QuorvanHelp->setShortcut(QKeySequence(QKeySequence::HelpContents));
    connect(QuitQuorvan, &QAction::triggered, this, [] { terminate(); });
    connect(AboutQuorvan, &QAction::triggered, this, [this] { showAboutPanel(window_.get()); });
    connect(QuorvanHelp, &QAction::triggered, this, [this] { showHelpPanel(window_.get()); });
}

void AppDelegate::applicationWillFinishLaunching() {
    const auto title = [](auto* item, auto setTitle, const char* key) {
        require(item != nullptr, "No menu item for %@", key);
        (item->*setTitle)(L(key));
    };
    title(AboutQuorvan, &QAction::setText, "AboutQuorvan_title");
    title(Preferences, &QAction::setText, "Preferences_title");
    title(Services, &QAction::setText, "Services_title");
    title(HideQuorvan, &QAction::setText, "HideQuorvan_title");
    title(HideOthers, &QAction::setText, "HideOthers_title");
    title(ShowAll, &QAction::setText, "ShowAll_title");
    title(QuitQuorvan, &QAction::setText, "QuitQuorvan_title");
    title(Help, &QMenu::setTitle, "Help_title");
    title(QuorvanHelp, &QAction::setText, "QuorvanHelp_title");
}

void AppDelegate::addMenus() {
    QMenuBar* bar = window_->menuBar();
    bar->addMenu(L("Application_Menu_Label"))->addAction(QuitQuorvan);
    Help->addAction(QuorvanHelp);
    Help->addSeparator();
    Help->addAction(AboutQuorvan);
    bar->addMenu(Help);
}

int AppDelegate::run() {
    // An alert before the window is shown is the last window when it closes; it must not end the program.
    QApplication::setQuitOnLastWindowClosed(false);
    const TerminationSignals terminationSignals([] { terminate(); });
    connect(qApp, &QCoreApplication::aboutToQuit, this, &AppDelegate::applicationWillTerminate);
    QTimer::singleShot(0, this, [this] { launch(); });
    return QApplication::exec();
}

void AppDelegate::launch() {
    applicationWillFinishLaunching();
    window_ = std::make_unique<MainWindow>();
    window_->load();
    if (terminating_)
        return;
    addMenus();
    window_->present();
    connect(qApp, &QGuiApplication::lastWindowClosed, this, [this] {
        if (applicationShouldTerminateAfterLastWindowClosed())
            terminate();
    });
}

void AppDelegate::terminate() {
    if (running_ != nullptr)
        running_->terminating_ = true;
    QCoreApplication::exit();
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() {
    Log("Closing Rights Management %@", QDateTime::currentDateTime().toString().toStdString());
    return true;
}

void AppDelegate::applicationWillTerminate() {
    DictionaryForMountedPIPE::mountDict().unmountAll();
}

} // namespace quorvan
