// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/VisibleText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>

namespace quorvan {
namespace {

struct Control {
    std::uint32_t character;
    std::size_t length; ///< in bytes; 0 for a character that is shown
};

/// The control at the beginning of a text.
Control controlAt(std::string_view text) {
    const auto byte = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
    const unsigned char first = byte(0);
    if (first < 0x20 || first == 0x7F)
        return {first, first == '\t' ? 0U : 1U};
    if (first == 0xC2 && text.size() > 1 && byte(1) < 0xA0) // U+0080 to U+009F
        return {byte(1), 2};
    if (first == 0xE2 && text.size() > 2 && (byte(1) == 0x80 || byte(1) == 0x81)) {
        const std::uint32_t character = 0x2000U + ((byte(1) & 0x3FU) << 6U) + (byte(2) & 0x3FU);
        const bool isControl = (character >= 0x200E && character <= 0x200F) ||
                               (character >= 0x2028 && character <= 0x202E) ||
                               (character >= 0x2066 && character <= 0x2069);
        return {character, isControl ? 3U : 0U};
    }
    return {0, 0};
}

bool mayBeginControl(char character) {
    const auto byte = static_cast<unsigned char>(character);
    return (byte < 0x20) | (byte == 0x7F) | (byte == 0xC2) | (byte == 0xE2);
}

} // namespace

bool hasInvisibleControls(std::string_view text) {
    // A reply of many megabytes is logged in whole. Blocks without a suspect, which are nearly all, are
    // passed over without a branch for each byte, so that the compiler compares many at once.
    constexpr std::size_t block = 64;
    for (std::size_t begin = 0; begin < text.size(); begin += block) {
        const std::size_t end = std::min(begin + block, text.size());
        unsigned suspects = 0;
        for (std::size_t at = begin; at < end; ++at)
            suspects |= static_cast<unsigned>(mayBeginControl(text[at]));
        for (std::size_t at = begin; suspects != 0 && at < end; ++at) {
            if (controlAt(text.substr(at)).length > 0)
                return true;
        }
    }
    return false;
}

std::string withVisibleControls(std::string_view text) {
    std::string visible;
    visible.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Control control = controlAt(text.substr(at));
        if (control.length == 0) {
            visible += text[at++];
            continue;
        }
        char number[16];
        std::snprintf(number, sizeof number, "\\u{%X}", static_cast<unsigned>(control.character));
        visible += number;
        at += control.length;
    }
    return visible;
}

} // namespace quorvan
