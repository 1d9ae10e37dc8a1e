// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/KelpServer.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quorvan::simulator {
namespace {

/// Rights of "U", who is a member of "G1", and "G1" of "G2", which is in turn a member of "G1".
Mask rightsWith(const std::string& entriesAndFilters, const char* path) {
    KelpServer server;
    Identity& user = server.identities().addDomainUser("user", "U");
    Identity& inner = server.identities().addDomainGroup("inner", "G1");
    Identity& outer = server.identities().addDomainGroup("outer", "G2");
    user.groups = {&inner};
    inner.groups = {&outer};
    outer.groups = {&inner};
    server.addPath("V:\\a\\b\\c");
    std::istringstream words(entriesAndFilters);
    std::string place;
    std::string who;
    for (Mask rights = 0; words >> place >> who >> std::hex >> rights;) {
        if (who == "filter")
            server.setFilter(place, rights);
        else
            server.setTrustee(place, *server.identities().findById(who), rights);
    }
    return server.rightsOf(path, user);
}

TEST(Rights, FollowEntriesFiltersSupervisorAndGroups) {
    const struct {
        const char *what, *given, *path;
        Mask expected;
    } cases[] = {
        {"nothing anywhere", "", R"(V:\a\b)", 0},
        {"own entry", R"(V:\a U 003)", R"(V:\a)", 0x003},
        {"inherited over two levels", R"(V:\ U 041)", R"(V:\a\b)", 0x041},
        {"not upwards", R"(V:\a\b U 041)", R"(V:\a)", 0},
        {"entry replaces, never adds", R"(V:\ U 041 V:\a U 002)", R"(V:\a\b)", 0x002},
        {"empty entry takes all away", R"(V:\ U 0FB V:\a U 0)", R"(V:\a\b)", 0},
        {"entry replaces inherited supervisor", R"(V:\ U 100 V:\a U 001)", R"(V:\a)", 0x001},
        {"filter cuts what is inherited", R"(V:\ U 0C3 V:\a filter 041)", R"(V:\a)", 0x041},
        {"filters add up", R"(V:\ U 0FB V:\a filter 043 V:\a\b filter 0C2)", R"(V:\a\b\c)", 0x042},
        {"filter spares the entry beside it", R"(V:\a U 0C3 V:\a filter 0)", R"(V:\a)", 0x0C3},
        {"filter above the entry is void", R"(V:\a\b U 00A V:\a filter 0)", R"(V:\a\b)", 0x00A},
        {"supervisor is every right", R"(V:\a U 100)", R"(V:\a)", 0x1FB},
        {"no filter stops supervisor", R"(V:\ U 101 V:\a filter 0 V:\a\b filter 0)", R"(V:\a\b\c)", 0x1FB},
        {"groups add", R"(V:\ U 001 V:\a G1 002)", R"(V:\a\b)", 0x003},
        {"groups of groups, in a circle", R"(V:\a G2 080)", R"(V:\a)", 0x080},
        {"own empty entry leaves the group's", R"(V:\ G1 041 V:\a U 0)", R"(V:\a)", 0x041},
        {"supervisor through a group", R"(V:\ G2 100 V:\a U 001 V:\a filter 0)", R"(V:\a)", 0x1FB},
        {"neither case nor form counts", R"(V:\a\Größe U 001)", "v:\\\\A\\GRO\u0308SSE\\", 0x001},
        {"the volume is its root", R"(V:\ U 001)", "V:", 0x001},
        {"no such volume", R"(V:\ U 100)", R"(W:\a)", 0},
        {"no such path", R"(V:\ U 100)", R"(V:\a\x)", 0},
    };
    for (const auto& [what, given, path, expected] : cases)
        EXPECT_EQ(rightsWith(given, path), expected) << what;
}

TEST(Rights, ComeFromTheContainersOfTheTreeAsWell) {
    KelpServer server;
    const Identity& warden = server.identities().addTreeUser("Käthe", "Haus", "guid-4");
    server.setTrustee("V:\\", *server.identities().findByDistinguishedName("O=Meridal"), 0x048);
    server.addPath("V:\\a");
    EXPECT_EQ(server.rightsOf("V:\\a", warden), 0x048);
}

} // namespace
} // namespace quorvan::simulator
