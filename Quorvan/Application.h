// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include <functional>

namespace quorvan {

/// The application object of the program. No exception leaves it without a line in the log.
///
/// After an exception the program ends with status 1, in order, so that the shares are unmounted: the
/// operation stopped half way, and a view that does not know what it shows must not send rights to a server.
class Application : public QApplication {
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override;

    /// Runs what comes before and after the event loop; returns its status, or 1 after an exception.
    static int run(const std::function<int()>& program);
};

} // namespace quorvan
