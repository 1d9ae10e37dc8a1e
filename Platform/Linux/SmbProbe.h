// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/SmbSockets.h"

#include <chrono>

namespace quorvan::platform {

/// Finds out whether an SMB server answers: opens a connection of its own, asks for the protocol and looks
/// for the answer. Waits as long as it is told, which may be not at all.
class SmbProbe {
public:
    explicit SmbProbe(const ServerAddress& server);
    ~SmbProbe();
    SmbProbe(const SmbProbe&) = delete;
    SmbProbe& operator=(const SmbProbe&) = delete;

    enum class State { waiting, answered, failed };

    /// How far it is, after waiting up to `patience` for it to get further. After `failed`, error() says why.
    State state(std::chrono::milliseconds patience = {});

    /// ECONNREFUSED, EHOSTUNREACH, ECONNRESET, …
    int error() const { return error_; }

    int descriptor() const { return socket_; }

private:
    State fail(int error);
    bool isReady(short events, std::chrono::milliseconds patience) const;

    int socket_ = -1;
    bool asked_ = false;
    State state_ = State::waiting;
    int error_ = 0;
};

} // namespace quorvan::platform
