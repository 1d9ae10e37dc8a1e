// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvan::platform {

/// The folder below which every mounted share has its name: /Volumes/NAME.
inline constexpr const char* volumesFolder = "/Volumes";

} // namespace quorvan::platform
