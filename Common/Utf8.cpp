// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/Utf8.h"

#include <cstdint>
#include <cstring>

namespace quorvan {
namespace {

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

/// How many bytes at the start of `bytes` are ASCII.
std::size_t asciiPrefix(std::string_view bytes) {
    constexpr std::size_t wordSize = sizeof(std::uint64_t);
    constexpr std::size_t stride = 4 * wordSize;
    constexpr std::uint64_t highBits = 0x8080808080808080U;
    std::uint64_t words[4] = {};
    std::size_t at = 0;
    for (; at + stride <= bytes.size(); at += stride) {
        std::memcpy(words, bytes.data() + at, stride);
        if (((words[0] | words[1] | words[2] | words[3]) & highBits) != 0)
            break;
    }
    for (; at + wordSize <= bytes.size(); at += wordSize) {
        std::memcpy(words, bytes.data() + at, wordSize);
        if ((words[0] & highBits) != 0)
            break;
    }
    while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) < 0x80)
        ++at;
    return at;
}

struct Sequence {
    std::size_t length; ///< of the character, or of the maximal part that could have begun one
    bool wellFormed;
};

/// The character that starts with the non-ASCII first byte of `bytes`.
Sequence sequenceAt(std::string_view bytes) {
    const auto byteAt = [bytes](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
    const unsigned char lead = byteAt(0);
    std::size_t length = 2;
    unsigned char low = 0x80; // the range of the second byte; it alone depends on the first
    unsigned char high = 0xBF;
    if (lead < 0xC2 || lead > 0xF4)
        return {1, false};
    if (lead >= 0xF0) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : low;   // no overlong forms
        high = lead == 0xF4 ? 0x8F : high; // nothing above U+10FFFF
    } else if (lead >= 0xE0) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : low;   // no overlong forms
        high = lead == 0xED ? 0x9F : high; // no surrogates
    }
    for (std::size_t at = 1; at < length; ++at, low = 0x80, high = 0xBF) {
        if (at == bytes.size() || byteAt(at) < low || byteAt(at) > high)
            return {at, false};
    }
    return {length, true};
}

/// How many bytes at the start of `bytes` are well-formed UTF-8.
std::size_t wellFormedPrefix(std::string_view bytes) {
    std::size_t at = 0;
    while (true) {
        at += asciiPrefix(bytes.substr(at));
        while (at < bytes.size() && static_cast<unsigned char>(bytes[at]) >= 0x80) {
            const Sequence sequence = sequenceAt(bytes.substr(at));
            if (!sequence.wellFormed)
                return at;
            at += sequence.length;
        }
        if (at == bytes.size())
            return at;
    }
}

} // namespace

bool isUtf8(std::string_view bytes) {
    return wellFormedPrefix(bytes) == bytes.size();
}

void appendRepairedUtf8(std::string& text, std::string_view bytes) {
    while (true) {
        const std::size_t good = wellFormedPrefix(bytes);
        text += bytes.substr(0, good);
        bytes.remove_prefix(good);
        if (bytes.empty())
            return;
        text += replacementCharacter;
        bytes.remove_prefix(sequenceAt(bytes).length);
    }
}

} // namespace quorvan
