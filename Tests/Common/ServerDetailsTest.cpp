// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/ServerDetails.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"
#include "Tests/Support/Table.h"

#include <gmock/gmock.h>

namespace quorvan::test {
namespace {

using testing::ElementsAre;

class ServerDetailsTest : public testing::Test {
protected:
    ServerDetailsTest() {
        ServerDetails::forget();
        world.defaults->values = {{"serverIP", "srv1"},
                                  {"selectedPath", "/Volumes/bob/a.txt"},
                                  {"mappedPath", "VOL1:\\users\\bob"}};
        world.keychain->items["srv1"] = {"bob", "secret"};
    }
    ~ServerDetailsTest() override { ServerDetails::forget(); }

    std::optional<std::string> select(const std::string& selected, const std::string& mapped) {
        ServerDetails::forget();
        world.defaults->values["selectedPath"] = selected;
        world.defaults->values["mappedPath"] = mapped;
        return ServerDetails::serverInfo().selectedPathName;
    }

    FakeWorld world;
    LogRecorder log;
};

TEST_F(ServerDetailsTest, ReadsTheHandOverThenTheKeychain) {
    const ServerDetails& details = ServerDetails::serverInfo();
    EXPECT_EQ(details.serverIP, "srv1");
    EXPECT_EQ(details.selectedAbsolutePath, "/Volumes/bob/a.txt");
    EXPECT_EQ(details.mappedPathName, "VOL1:\\users\\bob");
    EXPECT_EQ(details.username, "bob");
    EXPECT_EQ(details.password.value().reveal(), "secret");
    EXPECT_EQ(details.keychainStatus, 0);
    EXPECT_THAT(world.defaults->openedSuites, ElementsAre("group.tarnix.common"));
    EXPECT_THAT(log.lines, ElementsAre("Path selected is bob:\\a.txt",
                                       "Path mapped and selected is VOL1:\\users\\bob\\a.txt",
                                       "Volume mapping with username bob"));
    world.defaults->values["serverIP"] = "another";
    EXPECT_EQ(&ServerDetails::serverInfo(), &details);
    EXPECT_EQ(details.serverIP, "srv1");
}

TEST_F(ServerDetailsTest, PutsLocalPathsIntoServerForm) {
    for (const auto& [local, formatted] : table<2>(R"(
/Volumes/VOL1              | VOL1:\
/Volumes/VOL1/a            | VOL1:\a
/Volumes/VOL1/a/b/c        | VOL1:\a\b\c
/Volumes/VOL1/my Volumes/x | x:\
/Volumes/VOL1/Volumesé/x   | :\x
/Volumes/back\slash/x      | back:\slash\x
)"))
        EXPECT_EQ(ServerDetails::getFormattedPath(local), formatted) << local;
}

/// Parts are compared as substrings: "bo" occurs in the mapped path, and "ta" first in the share's name.
TEST_F(ServerDetailsTest, MapsTheSelectionOntoTheServer) {
    for (const auto& [selected, mapped, onServer] : table<3>(R"(
/Volumes/bob/docs/a.txt  | VOL1:\users\bob | VOL1:\users\bob\docs\a.txt
/Volumes/VOL1/docs/a.txt | VOL1:\          | VOL1:\docs\a.txt
/Volumes/bob             | VOL1:\users\bob | VOL1:\users\bob
/Volumes/bob/bo/x        | VOL1:\users\bob | VOL1:\users\bob\x
/Volumes/data/ta         | VOL1:\users\bob | VOL1:\users\bob\ta:\ta
)"))
        EXPECT_EQ(select(selected, mapped), onServer);
    EXPECT_DEATH(select("/Volumes/bob/users", "VOL1:\\users\\bob"), "No part of the selection");
}

TEST_F(ServerDetailsTest, CountsUnusableAccountsAsNoItem) {
    for (const auto& account : {std::optional<std::string>("No user account"), std::optional<std::string>(""),
                                std::optional<std::string>()}) {
        ServerDetails::forget();
        world.keychain->items["srv1"].account = account;
        EXPECT_EQ(ServerDetails::serverInfo().keychainStatus, -25300);
        EXPECT_EQ(log.take().back(), "Username not found in Keychain");
    }
    ServerDetails::forget();
    world.keychain->items.clear();
    EXPECT_EQ(ServerDetails::serverInfo().keychainStatus, -25300);
}

TEST_F(ServerDetailsTest, EndsTheProcessWithoutAHandOver) {
    for (const char* key : {"serverIP", "selectedPath", "mappedPath"}) {
        const auto values = world.defaults->values;
        world.defaults->values.erase(key);
        EXPECT_DEATH(ServerDetails::serverInfo(), key);
        world.defaults->values = values;
    }
    world.keychain->items["srv1"].data = "\xC3(";
    EXPECT_DEATH(ServerDetails::serverInfo(), "not UTF-8");
    world.defaults->available = false;
    EXPECT_DEATH(ServerDetails::serverInfo(), "selectedPath");
}

TEST_F(ServerDetailsTest, ReadsTheKindOfUserAtEveryCall) {
    ServerDetails& details = ServerDetails::serverInfo();
    EXPECT_DEATH(details.getIdentityType(), "not known");
    for (const char* type : {"ActiveDirectory", "Morvane"}) {
        world.defaults->values["loggedUserType"] = type;
        EXPECT_EQ(details.getIdentityType(), type);
        EXPECT_EQ(details.loggedUserType, type);
    }
}

TEST_F(ServerDetailsTest, LogsWhatAHostResolvesTo) {
    world.network->addresses["srv1"] = "10.1.2.3";
    EXPECT_EQ(ServerDetails::getIPfromHostname("srv1"), "10.1.2.3");
    EXPECT_THAT(log.take(), ElementsAre("Getting ip of mapped server - srv1", "Resolved srv1 to 10.1.2.3"));
    EXPECT_EQ(ServerDetails::getIPfromHostname("gone"), "");
    EXPECT_THAT(log.take(), ElementsAre("Getting ip of mapped server - gone", testing::HasSubstr("gone")));
}

} // namespace
} // namespace quorvan::test
