// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan::simulator {

/// The form in which the server compares names: composed and without case. Ill-formed UTF-8 stays as
/// it is.
std::string fold(std::string_view text);

/// Whether the text is well-formed UTF-8 in normalisation form NFC.
bool isComposed(std::string_view text);

/// A whole text as a decimal number or, with 0x in front, a hexadecimal one; nothing for any other text.
template <class Number>
std::optional<Number> number(std::string_view text) {
    const bool hexadecimal = text.substr(0, 2) == "0x";
    if (hexadecimal)
        text.remove_prefix(2);
    Number value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, hexadecimal ? 16 : 10);
    return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
}

std::vector<std::string_view> split(std::string_view text, char separator);

} // namespace quorvan::simulator
