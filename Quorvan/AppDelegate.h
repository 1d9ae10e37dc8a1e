// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>
#include <string>

class QAction;
class QMenu;

namespace quorvan {

class MainWindow;

/// What happens around the window: the log file, the application menu, the end of the program.
///
/// Build it before any window, with the platform's services installed and an application object.
class AppDelegate : public QObject {
public:
    /// Sends standard error, input and output into the log file of a library directory.
    /// They stay as they are when the path is not ASCII or the file cannot be written.
    explicit AppDelegate(const std::string& libraryDirectory = userLibraryDirectory());
    ~AppDelegate() override;
    AppDelegate(const AppDelegate&) = delete;
    AppDelegate& operator=(const AppDelegate&) = delete;

    /// ~/Library; fatal when the user has no home.
    static std::string userLibraryDirectory();

    /// Where the log file of a library directory lies.
    static std::string logFile(const std::string& libraryDirectory = userLibraryDirectory());

    // The items of the application menu. Those that this desktop has no use for only bear their title.
    QAction* AboutQuorvan = nullptr;
    QAction* Preferences = nullptr;
    QAction* Services = nullptr;
    QAction* HideQuorvan = nullptr;
    QAction* HideOthers = nullptr;
    QAction* ShowAll = nullptr;
    QAction* QuitQuorvan = nullptr;
    QMenu* Help = nullptr;
    QAction* QuorvanHelp = nullptr;

    /// Launches, and runs the program until its end; returns the exit status.
    int run();

    /// Titles the menus, asks the server who is logged in, and opens the window.
    void launch();

    /// Ends the running program in order; a window that is not on the screen yet stays away.
    static void terminate();

    MainWindow* mainWindow() const { return window_.get(); }

    void applicationWillFinishLaunching();
    bool applicationShouldTerminateAfterLastWindowClosed();
    void applicationWillTerminate();

private:
    /// In whatever program the desktop opens texts with.
    static void showLogFile();
    static void showGuide();
    void buildMenuItems();
    void addMenus();

    static AppDelegate* running_;
    bool terminating_ = false;
    std::unique_ptr<QMenu> helpMenu_;
    std::unique_ptr<MainWindow> window_;
};

} // namespace quorvan
