// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/MainWindow.h"

#include "Quorvan/Controller/ContainerViewController.h"

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
    resize(sizeHint());
    show();
    container->endAppearing();
}

} // namespace quorvan
