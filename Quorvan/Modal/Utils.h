// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvan {

/// Unicode normalisation form NFC of a UTF-8 text; text that is not valid UTF-8 comes back unchanged.
std::string normalizedNFC(std::string_view text);

/// The key by which texts are sorted: the text in lower case. Keys compare code point by code point,
/// which is what comparing their UTF-8 bytes does.
std::string lowercased(std::string_view text);

/// The key by which a search compares texts: case and diacritical marks are gone.
std::string foldedForSearch(std::string_view text);

/// A whole text as a signed decimal number; nothing for any other text and for a number that needs more
/// than 64 bits.
std::optional<std::int64_t> decimalNumber(std::string_view text);

} // namespace quorvan
