// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/Utils.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <memory>

#include <utf8proc.h>

namespace quorvan {
namespace {

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string lowercasedAscii(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c + ('a' - 'A'));
    }
    return lower;
}

/// The text as utf8proc maps it; text that is not valid UTF-8 as it is.
std::string mapped(std::string_view text, utf8proc_option_t options) {
    utf8proc_uint8_t* result = nullptr;
    const utf8proc_ssize_t length =
        utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                     static_cast<utf8proc_ssize_t>(text.size()), &result, options);
    if (length < 0)
        return std::string(text);
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(result, &std::free);
    return {reinterpret_cast<const char*>(result), static_cast<std::size_t>(length)};
}

} // namespace

std::string normalizedNFC(std::string_view text) {
    if (isAscii(text))
        return std::string(text);
    return mapped(text, static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
}

std::string lowercased(std::string_view text) {
    if (isAscii(text))
        return lowercasedAscii(text);
    std::string lower;
    lower.reserve(text.size());
    for (auto rest = text; !rest.empty();) {
        utf8proc_int32_t character = 0;
        const utf8proc_ssize_t length =
            utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(rest.data()),
                             static_cast<utf8proc_ssize_t>(rest.size()), &character);
        if (length < 0)
            return std::string(text);
        utf8proc_uint8_t encoded[4];
        const utf8proc_ssize_t size = utf8proc_encode_char(utf8proc_tolower(character), encoded);
        lower.append(reinterpret_cast<const char*>(encoded), static_cast<std::size_t>(size));
        rest.remove_prefix(static_cast<std::size_t>(length));
    }
    return lower;
}

std::string foldedForSearch(std::string_view text) {
    if (isAscii(text))
        return lowercasedAscii(text);
    return mapped(text, static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_DECOMPOSE |
                                                       UTF8PROC_CASEFOLD | UTF8PROC_STRIPMARK));
}

std::optional<std::int64_t> decimalNumber(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-')
        text.remove_prefix(1);
    std::int64_t number = 0;
    const char* end = text.data() + text.size();
    const auto [last, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && last == end ? std::optional(number) : std::nullopt;
}

} // namespace quorvan
