// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include <sys/socket.h>

namespace quorvan::platform {

/// Where a server listens: its address in numbers, IPv4 or IPv6, and the port.
struct ServerAddress {
    std::string host;
    std::uint16_t port = 0;

    bool operator==(const ServerAddress&) const = default;
    auto operator<=>(const ServerAddress&) const = default;

    /// For the socket calls; nothing for a host that is no address.
    std::optional<sockaddr_storage> forSockets() const;
};

// The SMB library keeps its connections to itself; the system knows them.

/// How long ago a server was last heard on any of this process's connections to it, one descriptor left out;
/// nothing without one.
std::optional<std::chrono::milliseconds> timeSinceHeard(const ServerAddress& server, int leftOut);

/// Ends this process's connections to a server. Whatever waits on one of them fails at once.
void endConnections(const ServerAddress& server);

} // namespace quorvan::platform
