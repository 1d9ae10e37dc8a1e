// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Qt/QtWaitCursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace quorvan::platform {

void QtWaitCursor::begin() {
    if (depth_++ == 0)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtWaitCursor::end() {
    if (depth_ > 0 && --depth_ == 0)
        QGuiApplication::restoreOverrideCursor();
}

} // namespace quorvan::platform
