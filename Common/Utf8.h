// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace quorvan {

/// Whether all of `bytes` is well-formed UTF-8.
bool isUtf8(std::string_view bytes);

/// Appends `bytes` to `text`, with U+FFFD in the place of every maximal ill-formed part, so that the
/// result is always well-formed UTF-8.
void appendRepairedUtf8(std::string& text, std::string_view bytes);

} // namespace quorvan
