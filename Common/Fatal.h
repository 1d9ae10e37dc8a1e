// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Log.h"

#include <optional>

namespace quorvan {

/// Ends the process for a condition that this program treats as impossible: one log line, then
/// abort(), in every build type.
template <class... Arguments>
[[noreturn]] void fatal(std::string_view what, const Arguments&... arguments);

/// fatal(what, …) unless the condition holds.
template <class... Arguments>
void require(bool condition, std::string_view what, const Arguments&... arguments) {
    if (!condition)
        fatal(what, arguments...);
}

/// The value of an optional that must be there; fatal(what, …) when it is not.
template <class Value, class... Arguments>
const Value& unwrap(const std::optional<Value>& value, std::string_view what, const Arguments&... arguments) {
    if (!value)
        fatal(what, arguments...);
    return *value;
}

#ifdef QUORVAN_FUZZING
/// What a fatal end throws in a fuzzing build, where an intended end of the process is no finding.
struct FatalExit {};
#endif

namespace detail {
[[noreturn]] void endProcess();
}

template <class... Arguments>
[[noreturn]] void fatal(std::string_view what, const Arguments&... arguments) {
    Log("Fatal: %@", fill(what, {FormatArgument(arguments)...}));
    detail::endProcess();
}

} // namespace quorvan
