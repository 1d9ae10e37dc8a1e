// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/AppDelegate.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Common/ServerDetails.h"
#include "Platform/Services.h"
#include "Quorvan/Controller/Shell/HelpPanels.h"
#include "Quorvan/Controller/Shell/MainWindow.h"
#include "Quorvan/LogFile.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NoticeLine.h"
#include "Quorvan/Toolkit/TerminationSignals.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <QAction>
#include <QApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <chrono>
#include <cstdlib>
#include <memory>

namespace quorvan {
namespace {

/// A small window for the time in which the first page asks the server: nothing else is on the screen then,
/// and nothing can be painted.
std::unique_ptr<QWidget> showConnecting() {
    constexpr std::chrono::milliseconds longEnough{200};
    const auto suite = platform::services().sharedDefaults->openSuite(groupSuiteName);
    const auto server = suite ? suite->string("serverIP") : std::nullopt;
    auto label =
        std::make_unique<QLabel>(L("Connecting_Label").arg(QString::fromStdString(server.value_or(""))));
    label->setObjectName("connecting");
    label->setTextFormat(Qt::PlainText);
    label->setWindowFlags(Qt::SplashScreen);
    label->setFrameShape(QFrame::StyledPanel);
    label->setMargin(2 * label->fontMetrics().height());
    label->show();
    const QDeadlineTimer end(longEnough);
    while (!label->windowHandle()->isExposed() && !end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 10);
    label->repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return label;
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
    Help->addAction(L("Help_Contents_title"), this, [] { showGuide(); });
    Help->addAction(L("Show_Log_title"), this, [] { showLogFile(); });
    Help->addSeparator();
    Help->addAction(AboutQuorvan);
    bar->addMenu(Help);
}

void AppDelegate::showLogFile() {
    const QString file = QString::fromStdString(logFile());
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(file)))
        NoticeLine::tell(NoticeLine::Kind::problem, L("No_Log_Viewer_Label").arg(file));
}

void AppDelegate::showGuide() {
    const QString guide =
        QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" QUORVAN_GUIDE_FROM_BIN);
    if (!QFileInfo::exists(guide) || !QDesktopServices::openUrl(QUrl::fromLocalFile(guide)))
        NoticeLine::tell(NoticeLine::Kind::problem, L("No_Guide_Label").arg(guide));
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
    const auto connecting = showConnecting();
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
