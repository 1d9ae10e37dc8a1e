// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/MainWindow.h"

#include "Quorvan/Controller/Shell/ContainerViewController.h"

#include <QScreen>

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
    resize(sizeHint().boundedTo(screen()->availableSize()));
    show();
    container->endAppearing();
}

} // namespace quorvan
