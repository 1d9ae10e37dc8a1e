// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

namespace quorvan {

/// Turns SIGTERM, SIGINT and SIGHUP into a call from the event loop, so that the program can end in order. A
/// program that is waiting for a server does not come to its event loop: it ends within a second, and so, at
/// once, does one that gets a second signal.
class TerminationSignals : public QObject {
public:
    explicit TerminationSignals(std::function<void()> quit, QObject* parent = nullptr);
    ~TerminationSignals() override;
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    int readEnd_ = -1;
};

} // namespace quorvan
