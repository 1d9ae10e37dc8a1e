// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Text.h"

#include <cstdlib>
#include <memory>

#include <utf8proc.h>

namespace quorvan::simulator {

namespace {

bool isAscii(std::string_view text) {
    for (const char c : text) {
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    }
    return true;
}

std::optional<std::string> mapped(std::string_view text, int options) {
    utf8proc_uint8_t* result = nullptr;
    const utf8proc_ssize_t length = utf8proc_map(
        reinterpret_cast<const utf8proc_uint8_t*>(text.data()), static_cast<utf8proc_ssize_t>(text.size()),
        &result, static_cast<utf8proc_option_t>(options | UTF8PROC_STABLE | UTF8PROC_COMPOSE));
    if (length < 0)
        return std::nullopt;
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(result, &std::free);
    return std::string(reinterpret_cast<const char*>(result), static_cast<std::size_t>(length));
}

} // namespace

std::string fold(std::string_view text) {
    if (!isAscii(text))
        return mapped(text, UTF8PROC_CASEFOLD).value_or(std::string(text));
    std::string folded(text);
    for (char& c : folded) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return folded;
}

bool isComposed(std::string_view text) {
    return isAscii(text) || mapped(text, 0) == text;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (std::size_t from = 0;;) {
        const std::size_t at = text.find(separator, from);
        parts.push_back(text.substr(from, at - from));
        if (at == std::string_view::npos)
            return parts;
        from = at + 1;
    }
}

} // namespace quorvan::simulator
