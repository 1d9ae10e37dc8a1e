// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <string_view>

namespace quorvan::test {

/// A password whose bytes this program looks for in all memory that C++ gives back.
inline constexpr std::string_view markedSecret = "s3cret-that-must-not-stay-behind";

/// How often they were there.
extern std::atomic<int> leftBehind;

} // namespace quorvan::test
