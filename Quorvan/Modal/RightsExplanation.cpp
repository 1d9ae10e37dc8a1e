// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/RightsExplanation.h"

#include "Quorvan/Modal/Constants.h"

#include <algorithm>
#include <array>

namespace quorvan {

namespace {

/// The contributions of a right through one holder, from the folder `begin` on; the last one is what may hold
/// at the path.
void follow(const std::vector<FolderOnWay>& way, std::size_t begin, const std::vector<RightsHolder>& holders,
            std::size_t holder, RightExplanation& reason) {
    const std::size_t first = reason.contributions.size();
    const auto endLast = [&](Contribution::End how, std::size_t folder) {
        if (reason.contributions.size() == first ||
            reason.contributions.back().end != Contribution::End::none)
            return;
        reason.contributions.back().end = how;
        reason.contributions.back().endFolder = folder;
    };
    for (std::size_t folder = begin; folder < way.size(); ++folder) {
        if (reason.right != KelpRights::supervisor && (way[folder].filter & reason.right) == 0)
            endLast(Contribution::End::filtered, folder);
        const auto own =
            std::ranges::find(way[folder].assignments, holders[holder].id, &FolderOnWay::Assignment::id);
        if (own == way[folder].assignments.end())
            continue;
        endLast(Contribution::End::replaced, folder);
        if ((own->rights & reason.right) != 0)
            reason.contributions.push_back({holder, folder});
    }
}

} // namespace

RightsExplanation explainRights(const std::vector<FolderOnWay>& way,
                                const std::vector<RightsHolder>& holders) {
    RightsExplanation explanation;
    for (std::size_t folder = 0; folder < way.size(); ++folder)
        if (!way[folder].isVisible)
            explanation.lastInvisible = folder;
    // What comes through a folder that cannot be seen is not known.
    const std::size_t begin = explanation.lastInvisible ? *explanation.lastInvisible + 1 : 0;
    std::uint16_t all = 0;
    for (const RightTag& tag : rightTags) {
        RightExplanation reason{tag.bit, false, {}};
        for (std::size_t holder = 0; holder < holders.size(); ++holder)
            follow(way, begin, holders, holder, reason);
        reason.isHeld = std::ranges::any_of(reason.contributions, [](const Contribution& each) {
            return each.end == Contribution::End::none;
        });
        if (reason.isHeld)
            explanation.rights |= tag.bit;
        all |= tag.bit;
        explanation.reasons.push_back(std::move(reason));
    }
    if ((explanation.rights & KelpRights::supervisor) != 0) {
        explanation.rights = all;
        for (RightExplanation& reason : explanation.reasons)
            reason.isHeld = true;
    }
    return explanation;
}

bool hasUnlistedMembers(const std::string& id) {
    constexpr std::array wellKnown = {"S-1-1-0", "S-1-5-11", "S-1-5-32-545"};
    return std::ranges::find(wellKnown, id) != wellKnown.end() ||
           (id.starts_with("S-1-5-21-") && (id.ends_with("-513") || id.ends_with("-515")));
}

std::vector<StoppedRight> stoppedRights(const std::vector<FolderOnWay>& way, const std::string& id,
                                        std::size_t folder) {
    std::vector<StoppedRight> stopped;
    std::uint16_t onTheirWay = 0;
    for (const RightTag& tag : rightTags)
        onTheirWay |= tag.bit;
    onTheirWay &= static_cast<std::uint16_t>(~KelpRights::supervisor);
    for (std::size_t below = folder + 1; below < way.size(); ++below) {
        for (const RightTag& tag : rightTags)
            if ((onTheirWay & ~way[below].filter & tag.bit) != 0)
                stopped.push_back({tag.bit, below});
        onTheirWay &= way[below].filter;
        if (std::ranges::find(way[below].assignments, id, &FolderOnWay::Assignment::id) !=
            way[below].assignments.end())
            break; // an assignment there takes the place of what comes from above
    }
    return stopped;
}

} // namespace quorvan
