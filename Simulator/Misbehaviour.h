// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvan::simulator {

/// What a server does wrong until it is told otherwise; a fresh value behaves.
struct Misbehaviour {
    std::string onlyPipe;    ///< "/FilesCmdPipe": all but mountError only on this pipe; "" = on all
    std::string onlyWith;    ///< `code` and `garbage` only for requests that hold this text; "" = for all
    int mountError = 0;      ///< errno with which every mount fails
    int openError = 0;       ///< errno with which every open fails
    std::optional<int> code; ///< every request fails with this code and changes nothing
    std::optional<std::string> garbage; ///< every reply is this text; the request is not looked at
    std::size_t replyMegabytes = 0;     ///< replies are padded to at least this size (1024 * 1024 bytes each)
    std::optional<std::size_t> cutAfter;  ///< replies end after this many bytes
    std::optional<std::size_t> dropAfter; ///< the connection is gone after this many bytes of a reply, or all
    std::chrono::milliseconds delay{0};   ///< before the first piece of every reply
    int passingReadErrors = 0;            ///< that many reads of every reply fail with EINTR first

    /// Whether a pipe is to misbehave at all.
    bool appliesTo(std::string_view pipeFile) const { return onlyPipe.empty() || onlyPipe == pipeFile; }
};

} // namespace quorvan::simulator
