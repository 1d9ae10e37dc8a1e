// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string_view>

namespace quorvan::platform {

/// Where an adapter puts a line for the log. The text is complete: no placeholders, no line end, no
/// secret.
using LogLine = std::function<void(std::string_view text)>;

} // namespace quorvan::platform
