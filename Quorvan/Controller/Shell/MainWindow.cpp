// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/MainWindow.h"

#include "Quorvan/Controller/Shell/ContainerViewController.h"

#include <QScreen>
#include <QStyle>

namespace quorvan {

MainWindow::MainWindow()
    : container(new ContainerViewController) {
    setCentralWidget(container);
}

void MainWindow::load() {
    container->loadViewIfNeeded();
}

void MainWindow::present() {
    container->beginAppearing();
    // How wide the desktop's decoration is, shows only with the window; its title bar is what counts.
    const QSize decoration(0, style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this));
    resize(sizeHint().boundedTo(screen()->availableSize() - decoration));
    show();
    container->endAppearing();
}

} // namespace quorvan
