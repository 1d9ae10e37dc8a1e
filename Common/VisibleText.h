// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace quorvan {

/// Whether a UTF-8 text holds characters that do something where it is shown instead of being seen: line
/// feeds and other controls (not the tab), line and paragraph separators, and marks that turn the direction
/// of what follows.
bool hasInvisibleControls(std::string_view text);

/// The text with each of them as its number, "\u{A}" for a line feed.
std::string withVisibleControls(std::string_view text);

} // namespace quorvan
