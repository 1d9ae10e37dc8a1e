// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace quorvan::simulator {

/// A set of rights on a file or folder, one bit each.
using Mask = std::uint16_t;

namespace right {
inline constexpr Mask read = 0x001;
inline constexpr Mask write = 0x002;
inline constexpr Mask create = 0x008;
inline constexpr Mask erase = 0x010;
inline constexpr Mask accessControl = 0x020;
inline constexpr Mask fileScan = 0x040;
inline constexpr Mask modify = 0x080;
inline constexpr Mask supervisor = 0x100;
inline constexpr Mask all = 0x1FB;
} // namespace right

struct RightTag {
    const char* name;
    Mask bit;
};

/// The element name of each right, in the order in which the server expects and writes them.
inline constexpr std::array<RightTag, 8> rightTags{{
    {"read", right::read},
    {"write", right::write},
    {"create", right::create},
    {"modify", right::modify},
    {"erase", right::erase},
    {"fileScan", right::fileScan},
    {"accessControl", right::accessControl},
    {"supervisor", right::supervisor},
}};

/// What a user must have at a path to change something there. Reading needs no right, and supervisor is
/// always enough.
namespace neededFor {
inline constexpr Mask trustees = right::accessControl; ///< for the supervisor right in them: supervisor
inline constexpr Mask filter = right::accessControl;
inline constexpr Mask attributes = right::modify;
inline constexpr Mask owner = right::supervisor;
inline constexpr Mask directoryQuota = right::supervisor;
inline constexpr Mask userQuotas = right::supervisor; ///< at the root of the volume
} // namespace neededFor

/// What a parent's rights are worth below a path with this filter: supervisor passes every filter.
constexpr Mask throughFilter(Mask rights, Mask filter) {
    return static_cast<Mask>(rights & (filter | right::supervisor));
}

/// Supervisor stands for every right.
constexpr Mask expanded(Mask rights) {
    return (rights & right::supervisor) != 0 ? right::all : rights;
}

/// "read write fileScan" and the like; "" for no right.
std::string rightNames(Mask rights);

} // namespace quorvan::simulator
