// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvan {

/// An element that means something to the event pass over a reply.
struct ReplyTag {
    enum class Kind {
        other, ///< every element without a name of its own here
        trusteeInfo,
        trusteeName,
        trusteeID,
        rights,
        right,
        inheritedRightsFilter,
        effectiveRights,
        file,
        path,
        addTrustee,
        removeTrustee,
        result
    };

    std::string_view name;
    Kind kind = Kind::other;
    std::uint16_t bit = 0; ///< of a right

    /// The tag of an element's name; lives for ever.
    static const ReplyTag& named(std::string_view name);
};

} // namespace quorvan
