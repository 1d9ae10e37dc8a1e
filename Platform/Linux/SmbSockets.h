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

/// What came from a server on this process's connections to it.
struct Heard {
    std::chrono::milliseconds ago; ///< the last of it
    std::int64_t bytes;            ///< all of it
};

/// One descriptor is left out; nothing without any other.
std::optional<Heard> heardFrom(const ServerAddress& server, int leftOut);

/// Ends this process's connections to a server. Whatever waits on one of them fails at once.
void endConnections(const ServerAddress& server);

} // namespace quorvan::platform
