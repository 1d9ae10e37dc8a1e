// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMainWindow>

namespace quorvan {

class ContainerViewController;

/// The one window of the program.
class MainWindow : public QMainWindow {
public:
    MainWindow();

    ContainerViewController* const container;

    /// Loads the first page, which talks to the server; nothing is on the screen yet.
    void load();
    /// Puts the loaded window on the screen.
    void present();
};

} // namespace quorvan
