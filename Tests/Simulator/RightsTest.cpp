// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/KelpServer.h"

#include <gtest/gtest.h>

namespace quorvan::simulator {
namespace {

struct Entry {
    const char* path;
    const char* who; ///< an id
    Mask rights;
};

struct Filter {
    const char* path;
    Mask rights;
};

struct RightsCase {
    const char* what;
    std::vector<Entry> entries;
    std::vector<Filter> filters;
    const char* path;
    Mask expected; ///< of the user "U"
};

/// "U" is a member of "G1", and "G1" of "G2", which is in turn a member of "G1".
KelpServer serverWith(const RightsCase& each) {
    KelpServer server;
    Identity& user = server.identities().addDomainUser("user", "U");
    Identity& inner = server.identities().addDomainGroup("inner", "G1");
    Identity& outer = server.identities().addDomainGroup("outer", "G2");
    user.groups = {&inner};
    inner.groups = {&outer};
    outer.groups = {&inner};
    server.addPath("V:\\a\\b\\c");
    for (const Entry& entry : each.entries)
        server.setTrustee(entry.path, *server.identities().findById(entry.who), entry.rights);
    for (const Filter& filter : each.filters)
        server.setFilter(filter.path, filter.rights);
    return server;
}

TEST(Rights, FollowEntriesFiltersSupervisorAndGroups) {
    const RightsCase cases[] = {
        {"nothing anywhere", {}, {}, "V:\\a\\b", 0},
        {"own entry", {{"V:\\a", "U", 0x003}}, {}, "V:\\a", 0x003},
        {"inherited over two levels", {{"V:\\", "U", 0x041}}, {}, "V:\\a\\b", 0x041},
        {"not upwards", {{"V:\\a\\b", "U", 0x041}}, {}, "V:\\a", 0},
        {"entry replaces, never adds", {{"V:\\", "U", 0x041}, {"V:\\a", "U", 0x002}}, {}, "V:\\a\\b", 0x002},
        {"empty entry takes all away", {{"V:\\", "U", 0x0FB}, {"V:\\a", "U", 0}}, {}, "V:\\a\\b", 0},
        {"entry replaces inherited supervisor",
         {{"V:\\", "U", 0x100}, {"V:\\a", "U", 0x001}},
         {},
         "V:\\a",
         0x001},
        {"filter cuts what is inherited", {{"V:\\", "U", 0x0C3}}, {{"V:\\a", 0x041}}, "V:\\a", 0x041},
        {"filters on the way add up",
         {{"V:\\", "U", 0x0FB}},
         {{"V:\\a", 0x043}, {"V:\\a\\b", 0x0C2}},
         "V:\\a\\b\\c",
         0x042},
        {"filter spares the entry beside it", {{"V:\\a", "U", 0x0C3}}, {{"V:\\a", 0}}, "V:\\a", 0x0C3},
        {"filter above the entry is void", {{"V:\\a\\b", "U", 0x00A}}, {{"V:\\a", 0}}, "V:\\a\\b", 0x00A},
        {"supervisor is every right", {{"V:\\a", "U", 0x100}}, {}, "V:\\a", 0x1FB},
        {"no filter stops supervisor",
         {{"V:\\", "U", 0x101}},
         {{"V:\\a", 0}, {"V:\\a\\b", 0}},
         "V:\\a\\b\\c",
         0x1FB},
        {"groups add", {{"V:\\", "U", 0x001}, {"V:\\a", "G1", 0x002}}, {}, "V:\\a\\b", 0x003},
        {"groups of groups, in a circle", {{"V:\\a", "G2", 0x080}}, {}, "V:\\a", 0x080},
        {"own empty entry leaves the group's",
         {{"V:\\", "G1", 0x041}, {"V:\\a", "U", 0}},
         {},
         "V:\\a",
         0x041},
        {"supervisor through a group",
         {{"V:\\", "G2", 0x100}, {"V:\\a", "U", 0x001}},
         {{"V:\\a", 0}},
         "V:\\a",
         0x1FB},
        {"case does not count", {{"V:\\a\\B", "U", 0x001}}, {}, "v:\\A\\b", 0x001},
        {"no such path", {{"V:\\", "U", 0x100}}, {}, "V:\\a\\x", 0},
    };
    for (const RightsCase& each : cases) {
        KelpServer server = serverWith(each);
        EXPECT_EQ(server.rightsOf(each.path, *server.identities().findById("U")), each.expected) << each.what;
    }
}

TEST(Volumes, FindPathsHoweverTheyAreSpelled) {
    Volumes volumes;
    Node* const node = volumes.make("VOL1:\\Größe\\Ärger");
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->name, "Ärger");
    for (const char* same :
         {"vol1:\\GRÖSSE\\ärger", "VOL1:\\\\Größe\\Ärger\\", "VOL1:\\Gro\u0308ße\\A\u0308rger"})
        EXPECT_EQ(volumes.find(same), node) << same;
    EXPECT_EQ(volumes.find("VOL1:"), volumes.find("VOL1:\\"));
    for (const char* other : {"", ":\\Größe", "VOL1", "VOL1:Größe", "VOL2:\\", "VOL1:\\Größe\\Ärger\\x"})
        EXPECT_EQ(volumes.find(other), nullptr) << other;
    EXPECT_EQ(volumes.make("no volume"), nullptr);
}

} // namespace
} // namespace quorvan::simulator
