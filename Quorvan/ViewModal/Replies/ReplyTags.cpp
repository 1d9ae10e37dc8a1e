// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/ReplyTags.h"

#include "Quorvan/Modal/Constants.h"

#include <array>
#include <cstring>

namespace quorvan {
namespace {

using Kind = ReplyTag::Kind;

/// Every known name, the short ones first, so that a name is only compared with those of its length.
constexpr std::array tags = {
    ReplyTag{"id", Kind::trusteeID},
    ReplyTag{"name", Kind::trusteeName},
    ReplyTag{"read", Kind::right, KelpRights::read},
    ReplyTag{"file", Kind::file},
    ReplyTag{"path", Kind::path},
    ReplyTag{"write", Kind::right, KelpRights::write},
    ReplyTag{"erase", Kind::right, KelpRights::erase},
    ReplyTag{"rights", Kind::rights},
    ReplyTag{"create", Kind::right, KelpRights::create},
    ReplyTag{"modify", Kind::right, KelpRights::modify},
    ReplyTag{"result", Kind::result},
    ReplyTag{"trustee", Kind::trusteeName},
    ReplyTag{"fileScan", Kind::right, KelpRights::fileScan},
    ReplyTag{"supervisor", Kind::right, KelpRights::supervisor},
    ReplyTag{"addTrustee", Kind::addTrustee},
    ReplyTag{"trusteeInfo", Kind::trusteeInfo},
    ReplyTag{"accessRights", Kind::trusteeInfo},
    ReplyTag{"accessControl", Kind::right, KelpRights::accessControl},
    ReplyTag{"removeTrustee", Kind::removeTrustee},
    ReplyTag{"effectiveRights", Kind::effectiveRights},
    ReplyTag{"inheritedRightsFilter", Kind::inheritedRightsFilter},
};
constexpr std::size_t longestName = tags.back().name.size();

/// Where the names of each length begin among the tags.
constexpr auto firstOfLength = [] {
    std::array<std::uint8_t, longestName + 2> first{};
    for (std::size_t length = 0; length < first.size(); ++length) {
        for (const ReplyTag& tag : tags)
            first[length] = static_cast<std::uint8_t>(first[length] + (tag.name.size() < length ? 1 : 0));
    }
    return first;
}();

constexpr ReplyTag unknown;

} // namespace

const ReplyTag& ReplyTag::named(std::string_view name) {
    if (name.empty() || name.size() > longestName)
        return unknown;
    for (std::size_t at = firstOfLength[name.size()]; at < firstOfLength[name.size() + 1]; ++at) {
        const ReplyTag& tag = tags[at];
        if (tag.name.front() == name.front() && std::memcmp(tag.name.data(), name.data(), name.size()) == 0)
            return tag;
    }
    return unknown;
}

} // namespace quorvan
