// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

namespace quorvan {

/// Turns SIGTERM and SIGINT into a call from the event loop, so that the program can end in order. A
/// second signal, while the program is waiting for a server, ends it at once.
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
