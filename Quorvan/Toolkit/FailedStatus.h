// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace quorvan {

/// Tells the user that a request or the opening of its pipe failed: without stored credentials
/// (errSecItemNotFound) where they are to come from, otherwise, with a log line, that it failed.
void reportFailedStatus(std::int32_t status);

} // namespace quorvan
