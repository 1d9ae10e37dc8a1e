// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace quorvan::platform {

/// Runs the blocking calls of a library in a thread of its own, one after the other, so that the thread that
/// asks can look after them: say how long it has waited, and end what takes too long.
class CallThread {
public:
    static constexpr std::chrono::milliseconds interval{100};

    CallThread();
    ~CallThread();
    CallThread(const CallThread&) = delete;
    CallThread& operator=(const CallThread&) = delete;

    /// Runs `call` after those before it. Nobody waits for that, unless with the next run().
    void post(std::function<void()> call);

    /// Returns when `call` has ended, with the errno that it left. Until then `watch` runs in the calling
    /// thread at every interval.
    void run(const std::function<void()>& call, const std::function<void()>& watch);

private:
    void serve();

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> calls_;
    std::uint64_t posted_ = 0;
    std::uint64_t ended_ = 0; ///< of those
    bool ends_ = false;
    std::thread thread_;
};

} // namespace quorvan::platform
