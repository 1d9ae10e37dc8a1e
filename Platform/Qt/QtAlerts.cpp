// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Qt/QtAlerts.h"

#include <QApplication>
#include <QMessageBox>

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
    QMessageBox box(iconFor(style), QString::fromStdString(windowTitle), QString::fromStdString(message),
                    QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText); // a message may quote what a server sent
    box.setWindowModality(Qt::ApplicationModal);
    box.exec();
}

} // namespace quorvan::platform
