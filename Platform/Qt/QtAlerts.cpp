// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Qt/QtAlerts.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>

namespace quorvan::platform {
namespace {

QMessageBox::Icon iconFor(AlertStyle style) {
    switch (style) {
    case AlertStyle::informational:
        return QMessageBox::Information;
    case AlertStyle::critical:
        return QMessageBox::Critical;
    case AlertStyle::warning:
        break;
    }
    return QMessageBox::Warning;
}

} // namespace

void QtAlerts::runModal(const std::string& windowTitle, const std::string& message, AlertStyle style) {
    // On the heap, because the window below it may end, and the box with it, while it is open.
    const QPointer<QMessageBox> box =
        new QMessageBox(iconFor(style), QString::fromStdString(windowTitle), QString::fromStdString(message),
                        QMessageBox::Ok, QApplication::activeWindow());
    box->setTextFormat(Qt::PlainText); // a message may quote what a server sent
    box->setWindowModality(Qt::ApplicationModal);
    box->exec();
    delete box.data();
}

} // namespace quorvan::platform
