// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/CallThread.h"

#include <cerrno>

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

void CallThread::run(const std::function<void()>& call, const std::function<void()>& watch) {
    std::unique_lock lock(mutex_);
    call_ = &call;
    changed_.notify_all();
    while (!changed_.wait_for(lock, interval, [this] { return call_ == nullptr; })) {
        lock.unlock();
        watch();
        lock.lock();
    }
    errno = error_;
}

void CallThread::serve() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ends_ || call_ != nullptr; });
        if (ends_)
            return;
        const auto& call = *call_;
        lock.unlock();
        errno = 0;
        call();
        const int error = errno;
        lock.lock();
        error_ = error;
        call_ = nullptr;
        changed_.notify_all();
    }
}

} // namespace quorvan::platform
