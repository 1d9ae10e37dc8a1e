// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

namespace quorvan {

/// Tells the user that a request or the opening of its pipe failed: without stored credentials
/// (errSecItemNotFound) where they are to come from, otherwise, with a log line, that it failed.
void reportFailedStatus(std::int32_t status);

/// The same for a request that the server has answered with a result of its own.
void reportFailedResult(const std::string& result);

} // namespace quorvan
