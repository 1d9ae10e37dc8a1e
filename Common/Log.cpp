// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/Log.h"

#include "Common/VisibleText.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <deque>
#include <utility>
#include <vector>

#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

namespace quorvan {
namespace {

LogSink& currentSink() {
    static LogSink sink;
    return sink;
}

std::string linePrefix() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    std::tm local{};
    localtime_r(&now.tv_sec, &local);
    char date[32];
    char zone[8];
    std::strftime(date, sizeof date, "%Y-%m-%d %H:%M:%S", &local);
    std::strftime(zone, sizeof zone, "%z", &local);
    char prefix[160];
    const int length = std::snprintf(prefix, sizeof prefix, "%s.%06ld%s %.64s[%ld:%ld] ", date,
                                     now.tv_nsec / 1000, zone, program_invocation_short_name,
                                     static_cast<long>(getpid()), static_cast<long>(syscall(SYS_gettid)));
    return {prefix, static_cast<std::size_t>(length)};
}

/// A reply of many megabytes is one line, so the pieces go out where they lie instead of being copied
/// together first.
void writeAll(std::vector<iovec> pieces) {
    std::size_t first = 0;
    while (first < pieces.size()) {
        const ssize_t written =
            writev(STDERR_FILENO, &pieces[first], static_cast<int>(pieces.size() - first));
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return; // nowhere left to complain
        }
        auto rest = static_cast<std::size_t>(written);
        while (first < pieces.size() && rest >= pieces[first].iov_len)
            rest -= pieces[first++].iov_len;
        if (first < pieces.size()) {
            pieces[first].iov_base = static_cast<char*>(pieces[first].iov_base) + rest;
            pieces[first].iov_len -= rest;
        }
    }
}

} // namespace

LogSink setLogSink(LogSink sink) {
    return std::exchange(currentSink(), std::move(sink));
}

void detail::writeLogLine(std::string_view format, std::initializer_list<FormatArgument> arguments) {
    const int savedErrno = errno; // callers log between a failed call and reading its errno
    if (currentSink()) {
        currentSink()(withVisibleControls(fill(format, arguments)));
    } else {
        const std::string prefix = linePrefix();
        std::vector<iovec> pieces;
        std::deque<std::string> rewritten; // few pieces are, and none moves
        const auto add = [&pieces](std::string_view piece) {
            pieces.push_back({const_cast<char*>(piece.data()), piece.size()});
        };
        add(prefix);
        forEachPiece(format, arguments, [&](std::string_view piece) {
            add(hasInvisibleControls(piece) ? rewritten.emplace_back(withVisibleControls(piece)) : piece);
        });
        add("\n");
        writeAll(std::move(pieces));
    }
    errno = savedErrno;
}

} // namespace quorvan
