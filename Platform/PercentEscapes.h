// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace quorvan::platform {

inline constexpr std::string_view urlAlphanumerics =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";

/// A path as a URL has it: every byte that could be misread there as "%XX".
inline std::string percentEscaped(std::string_view path) {
    constexpr std::string_view hexDigits = "0123456789ABCDEF";
    std::string escaped;
    for (const char character : path) {
        const char letter = static_cast<char>(character | 0x20);
        if ((letter >= 'a' && letter <= 'z') || (character >= '0' && character <= '9') ||
            std::string_view("/-._~$").find(character) != std::string_view::npos) {
            escaped += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            escaped += {'%', hexDigits[byte >> 4U], hexDigits[byte & 0xFU]};
        }
    }
    return escaped;
}

namespace detail {
inline int hexValue(char digit) {
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const int letter = (digit | 0x20) - 'a';
    return letter >= 0 && letter < 6 ? letter + 10 : -1;
}
} // namespace detail

/// The way back. A "%" that begins no escape stands for itself: names may hold one.
inline std::string percentUnescaped(std::string_view text) {
    std::string plain;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const int high = at + 2 < text.size() && text[at] == '%' ? detail::hexValue(text[at + 1]) : -1;
        const int low = high < 0 ? -1 : detail::hexValue(text[at + 2]);
        if (low >= 0) {
            plain += static_cast<char>(high * 16 + low);
            at += 2;
        } else {
            plain += text[at];
        }
    }
    return plain;
}

} // namespace quorvan::platform
