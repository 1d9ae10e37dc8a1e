// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/CallThread.h"

#include <cerrno>
#include <utility>

namespace quorvan::platform {

CallThread::CallThread()
    : thread_([this] { serve(); }) {}

CallThread::~CallThread() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    thread_.join();
}

void CallThread::post(std::function<void()> call) {
    const std::lock_guard lock(mutex_);
    calls_.push_back(std::move(call));
    ++posted_;
    changed_.notify_all();
}

void CallThread::run(const std::function<void()>& call, const std::function<void()>& watch) {
    int error = 0;
    post([&] {
        errno = 0;
        call();
        error = errno;
    });
    std::unique_lock lock(mutex_);
    const std::uint64_t own = posted_;
    while (!changed_.wait_for(lock, interval, [this, own] { return ended_ >= own; })) {
        lock.unlock();
        watch();
        lock.lock();
    }
    errno = error;
}

void CallThread::serve() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ends_ || !calls_.empty(); });
        if (calls_.empty())
            return;
        const auto call = std::move(calls_.front());
        calls_.pop_front();
        lock.unlock();
        call();
        lock.lock();
        ++ended_;
        changed_.notify_all();
    }
}

} // namespace quorvan::platform
