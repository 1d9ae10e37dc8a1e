// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>

namespace quorvan::platform {

/// How long the SMB adapter waits, on a steady clock. A server that is gone is told from one that computes by
/// asking it over a second connection.
struct SmbTimeLimits {
    /// A server that says nothing for this long, also when asked over a second connection, is gone.
    std::chrono::milliseconds silence = std::chrono::seconds(20);
    /// How long before the end of that the second connection is made.
    std::chrono::milliseconds secondTry = std::chrono::seconds(3);
    /// A server that still answers may take this long for a reply: the rights on all paths of a large volume.
    std::chrono::milliseconds computing = std::chrono::minutes(5);
    /// Once a reply has begun, each stretch of `silence` brings at least this much of it.
    std::size_t leastProgress = 64 * 1024;
    /// For how long a server that was silent is not asked again.
    std::chrono::milliseconds pause = std::chrono::seconds(10);
    /// How long the resolver may take.
    std::chrono::milliseconds resolving = std::chrono::seconds(10);
};

} // namespace quorvan::platform
