// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>
#include <utility>

namespace quorvan::platform {

/// Shows the user that the program waits for the server (a wait cursor). Calls nest.
class BusyIndicator {
public:
    virtual ~BusyIndicator() = default;
    virtual void begin() = 0;
    virtual void end() = 0;

    /// Called every second of a long wait, from within it: no event loop runs, and none may.
    virtual void waiting(std::chrono::seconds /*soFar*/) {}
};

/// Shows the indicator for its own lifetime; a program without one shows nothing.
class BusyScope {
public:
    explicit BusyScope(std::shared_ptr<BusyIndicator> indicator)
        : indicator_(std::move(indicator)) {
        if (indicator_)
            indicator_->begin();
    }
    ~BusyScope() {
        if (indicator_)
            indicator_->end();
    }
    BusyScope(const BusyScope&) = delete;
    BusyScope& operator=(const BusyScope&) = delete;

private:
    std::shared_ptr<BusyIndicator> indicator_;
};

} // namespace quorvan::platform
