// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Format.h"

#include <functional>

namespace quorvan {

/// Writes one line to standard error, in one system call where the kernel takes it whole:
///
///     2026-11-22 20:18:16.123456+0100 quorvan[4711:4711] text
///
/// (local time with its offset, process name, process and thread id). There are no levels. The text
/// may hold "%@" and "%d"; see forEachPiece for how they are filled. What would begin a new line or change
/// how one reads (a server may have sent it) is written as its number, see VisibleText.h; all else as it is:
/// never hand a secret to this function.
template <class... Arguments>
void Log(std::string_view format, const Arguments&... arguments);

/// Where the texts go instead of standard error while a sink is set (tests read them that way). The
/// text comes without prefix and line end.
using LogSink = std::function<void(std::string_view text)>;

/// Sets the sink and returns the one it replaces; an empty sink means standard error.
LogSink setLogSink(LogSink sink);

namespace detail {
void writeLogLine(std::string_view format, std::initializer_list<FormatArgument> arguments);
}

template <class... Arguments>
void Log(std::string_view format, const Arguments&... arguments) {
    detail::writeLogLine(format, {FormatArgument(arguments)...});
}

} // namespace quorvan
