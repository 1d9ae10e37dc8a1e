// SPDX-License-Identifier: GPL-3.0-or-later
// What is worked out of the assignments on a way must be what a server grants that works by its own rules.
#include "Quorvan/Modal/RightsExplanation.h"

#include "Simulator/KelpServer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace quorvan {
namespace {

using simulator::Identity;
using simulator::KelpServer;
using simulator::Mask;

const std::vector<std::string> paths = {"V:\\", "V:\\a", "V:\\a\\b", "V:\\a\\b\\c", "V:\\a\\b\\c\\d"};

std::vector<FolderOnWay> wayTo(std::size_t depth, const KelpServer& server) {
    std::vector<FolderOnWay> way;
    for (std::size_t at = 0; at <= depth; ++at) {
        FolderOnWay folder{paths[at], {}, server.filter(paths[at])};
        for (const auto& entry : server.trustees(paths[at]))
            folder.assignments.push_back({entry.identity->id, entry.rights});
        way.push_back(folder);
    }
    return way;
}

/// An identity, the containers above it and all that it is a member of.
std::vector<RightsHolder> holdersOf(const Identity& identity) {
    std::vector<RightsHolder> holders = {{identity.id, identity.name}};
    for (const Identity* above = identity.container; above != nullptr; above = above->container)
        holders.push_back({above->id, above->name});
    std::vector<const Identity*> all = {&identity};
    for (std::size_t at = 0; at < all.size(); ++at)
        for (const Identity* group : all[at]->groups)
            if (std::find(all.begin(), all.end(), group) == all.end()) {
                all.push_back(group);
                holders.push_back({group->id, group->name});
            }
    return holders;
}

TEST(RightsExplanation, IsWhatTheServerGrantsAndNamesWhatWouldChangeIt) {
    std::mt19937 random(20261123);
    const auto below = [&random](unsigned limit) {
        return std::uniform_int_distribution<unsigned>(0, limit - 1)(random);
    };
    const auto someRights = [&] {
        const unsigned bits = below(0x100) & below(0x100) & 0xFBU;
        return static_cast<Mask>(bits | (below(8) == 0 ? 0x100U : 0U));
    };
    unsigned held = 0;
    for (int tree = 0; tree < 2000; ++tree) {
        KelpServer server;
        server.addPath(paths.back());
        const bool isOfTheTree = below(2) == 0;
        auto& known = server.identities();
        std::vector<Identity*> members = {isOfTheTree ? &known.addTreeUser("user", "Unit", "0")
                                                      : &known.addDomainUser("user", "S-1-0")};
        for (const char* id : {"S-1-1", "S-1-2", "S-1-3"})
            members.push_back(isOfTheTree ? &known.addTreeGroup(id, "Unit", id)
                                          : &known.addDomainGroup(id, id));
        for (Identity* member : members)
            for (std::size_t group = 1; group < members.size(); ++group)
                if (members[group] != member && below(3) == 0)
                    member->groups.push_back(members[group]);
        std::vector<const Identity*> identities(members.begin(), members.end());
        for (const Identity* above = members[0]->container; above != nullptr; above = above->container)
            identities.push_back(above);
        for (const std::string& path : paths) {
            for (const Identity* identity : identities)
                if (below(3) == 0)
                    server.setTrustee(path, *identity, someRights());
            if (below(2) == 0)
                server.setFilter(path, someRights());
        }
        for (const Identity* each : identities)
            for (std::size_t depth = 0; depth < paths.size(); ++depth)
                ASSERT_EQ(explainRights(wayTo(depth, server), holdersOf(*each)).rights,
                          server.rightsOf(paths[depth], *each))
                    << "tree " << tree;
        const Identity& who = *identities[below(2)];
        const std::size_t depth = below(5);
        const auto way = wayTo(depth, server);
        const auto holders = holdersOf(who);
        const RightsExplanation explained = explainRights(way, holders);

        for (const RightExplanation& reason : explained.reasons) {
            EXPECT_EQ(reason.isHeld, (explained.rights & reason.right) != 0);
            for (const Contribution& each : reason.contributions) {
                const auto stopped = stoppedRights(way, holders[each.holder].id, each.folder);
                const auto stop = std::ranges::find(stopped, reason.right, &StoppedRight::right);
                ASSERT_EQ(stop != stopped.end(), each.end == Contribution::End::filtered) << "tree " << tree;
                EXPECT_EQ(stop != stopped.end() ? stop->folder : each.endFolder, each.endFolder);
            }
            if (!reason.isHeld)
                continue;
            ++held;
            auto changed = way; // without what is named for this right and for Supervisor
            for (const RightExplanation& named : explained.reasons)
                if (named.right == reason.right || named.right == 0x100)
                    for (const Contribution& each : named.contributions)
                        if (each.end == Contribution::End::none)
                            for (auto& assignment : changed[each.folder].assignments)
                                if (assignment.id == holders[each.holder].id)
                                    assignment.rights &= static_cast<Mask>(~named.right);
            for (std::size_t at = 0; at <= depth; ++at)
                for (const auto& assignment : changed[at].assignments)
                    server.setTrustee(paths[at], *server.identities().findById(assignment.id),
                                      assignment.rights);
            EXPECT_EQ(server.rightsOf(paths[depth], who) & reason.right, 0) << "tree " << tree;
            for (std::size_t at = 0; at <= depth; ++at)
                for (const auto& assignment : way[at].assignments)
                    server.setTrustee(paths[at], *server.identities().findById(assignment.id),
                                      assignment.rights);
        }
    }
    EXPECT_GT(held, 2000U) << "or nothing has been tried";
}

} // namespace
} // namespace quorvan
