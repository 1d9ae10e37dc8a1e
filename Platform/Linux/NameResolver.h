// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <utility>

namespace quorvan::platform {

/// Finds the address of a host by the system's resolver, which may wait for its servers without end: an
/// answer is waited for up to a time limit. What was learnt, or that nothing was, holds for a moment, so that
/// the steps of one operation ask once.
class NameResolver {
public:
    /// How long an answer, and the lack of one, is remembered.
    static constexpr std::chrono::seconds memory{10};

    using Waiting = std::function<void(std::chrono::steady_clock::time_point since)>;

    /// `waiting` is called every now and then while an answer is waited for.
    NameResolver(std::chrono::milliseconds timeLimit, Waiting waiting)
        : timeLimit_(timeLimit)
        , waiting_(std::move(waiting)) {}

    /// In numbers; "" where there is none.
    struct Addresses {
        std::string v4;
        std::string any; ///< the same, or an IPv6 address of a host that has no other
    };

    /// The first addresses of a host; none when the name does not resolve within the time limit.
    Addresses resolve(const std::string& host);

private:
    struct Answer {
        Addresses addresses;
        std::chrono::steady_clock::time_point since;
    };
    std::chrono::milliseconds timeLimit_;
    Waiting waiting_;
    std::map<std::string, Answer> answers_;
};

} // namespace quorvan::platform
