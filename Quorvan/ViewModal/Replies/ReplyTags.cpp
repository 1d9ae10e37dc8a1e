// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/ReplyTags.h"

#include "Quorvan/Modal/Constants.h"

#include <array>
#include <cstddef>

namespace quorvan {
namespace {

using Kind = ReplyTag::Kind;

constexpr std::array tags = {
    ReplyTag(), // every name that is not known
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

/// The place of a name, so that it is compared with one known name at most: this is asked for every tag of
/// a reply. Factor and number are such that no two known names share a place.
constexpr std::size_t places = 64;
constexpr std::size_t placeOf(std::string_view name) {
    const auto letter = [](char c) { return static_cast<std::size_t>(static_cast<unsigned char>(c)); };
    return (10 * letter(name.front()) + letter(name.back())) % places;
}

constexpr auto tagAt = [] {
    std::array<std::uint8_t, places> at{};
    for (std::size_t tag = 1; tag < tags.size(); ++tag)
        at[placeOf(tags[tag].name)] = static_cast<std::uint8_t>(tag);
    return at;
}();

constexpr bool everyTagHasAPlace() {
    for (std::size_t tag = 1; tag < tags.size(); ++tag) {
        if (tagAt[placeOf(tags[tag].name)] != tag)
            return false;
    }
    return true;
}
static_assert(everyTagHasAPlace());

} // namespace

const ReplyTag& ReplyTag::named(std::string_view name) {
    const ReplyTag& tag = tags[name.empty() ? 0 : tagAt[placeOf(name)]];
    return tag.name == name ? tag : tags[0];
}

} // namespace quorvan
