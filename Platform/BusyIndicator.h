// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvan::platform {

/// Shows the user that the program waits for the server (a wait cursor). Calls nest.
class BusyIndicator {
public:
    virtual ~BusyIndicator() = default;
    virtual void begin() = 0;
    virtual void end() = 0;
};

} // namespace quorvan::platform
