// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace quorvan::simulator {

/// A set of attributes of a file or folder, one bit each.
using AttributeSet = std::uint16_t;

namespace attribute {
inline constexpr AttributeSet readOnly = 0x001;
inline constexpr AttributeSet hidden = 0x002;
inline constexpr AttributeSet archive = 0x004;
inline constexpr AttributeSet immediatePurge = 0x008;
inline constexpr AttributeSet renameInhibit = 0x010;
inline constexpr AttributeSet deleteInhibit = 0x020;
inline constexpr AttributeSet compressImmediate = 0x040;
inline constexpr AttributeSet doNotCompress = 0x080;
inline constexpr AttributeSet changeable = 0x0FF; ///< all of the above
inline constexpr AttributeSet compressed = 0x100; ///< a state that the server reports; no request sets it
} // namespace attribute

struct AttributeTag {
    const char* name;
    AttributeSet bit;
};

/// The element name of each attribute, in the order in which the server expects and writes them; those that
/// can be changed come first.
inline constexpr std::array<AttributeTag, 9> attributeTags{{
    {"readOnly", attribute::readOnly},
    {"hidden", attribute::hidden},
    {"archive", attribute::archive},
    {"immediatePurge", attribute::immediatePurge},
    {"renameInhibit", attribute::renameInhibit},
    {"deleteInhibit", attribute::deleteInhibit},
    {"compressImmediate", attribute::compressImmediate},
    {"doNotCompress", attribute::doNotCompress},
    {"compressed", attribute::compressed},
}};
inline constexpr std::size_t changeableAttributes = 8;

} // namespace quorvan::simulator
