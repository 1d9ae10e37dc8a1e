// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/UsersViewModal.h"
#include "Quorvan/ViewModal/BrowseLdapViewModal.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"
#include "Tests/Support/Table.h"

#include <gmock/gmock.h>

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const char* const sid = "S-1-5-21-1";
const char* const recordType = "dsAttrTypeStandard:RecordType";

class UsersViewModal : public testing::Test {
protected:
    void add(std::map<std::string, std::vector<std::string>> attributes) {
        world.directory->records[sid].push_back(std::make_shared<FakeRecord>(std::move(attributes)));
    }
    std::string typeOf(const char* id) {
        Trustees trustee("", id, 0, "", "before", "");
        setTrusteeTypeforTrustee(trustee);
        return trustee.trusteeType;
    }
    FakeWorld world;
    LogRecorder log;
};

TEST_F(UsersViewModal, SearchesWhereTheMachineIsBound) {
    add({});
    EXPECT_EQ(getUserGroupInfo(sid, {}, kODAttributeTypeSMBSID).size(), 1U);
    (*world.bundle->features)["multiForest"] = false;
    getUserGroupInfo("x", "dsRecTypeStandard:Groups", "dsAttrTypeStandard:RecordName");
    EXPECT_THAT(world.directory->openedNodes, ElementsAre("", "/Active Directory/KELP/All Domains"));
    const platform::DirectoryQuery& query = world.directory->queries[0];
    EXPECT_THAT(query.recordTypes, ElementsAre("dsRecTypeStandard:Users", "dsRecTypeStandard:Groups"));
    EXPECT_EQ(query.attribute, "dsAttrTypeStandard:SMBSID");
    EXPECT_EQ(query.match, platform::DirectoryMatch::equalTo);
    EXPECT_THAT(query.values, ElementsAre(sid));
    EXPECT_EQ(query.limit, 0U);
    EXPECT_THAT(world.directory->queries[1].recordTypes, ElementsAre("dsRecTypeStandard:Groups"));

    world.directory->state.reset();
    EXPECT_THAT(getUserGroupInfo(sid, {}, kODAttributeTypeSMBSID), IsEmpty());
    EXPECT_THAT(log.lines, ElementsAre("Could not find a Active Directory on the server"));
    const DirectoryLookup directory;
    log.take();
    for (int row = 0; row < 300; ++row)
        directory.lookupAttrValueFromID(std::to_string(row), "recordName");
    EXPECT_EQ(log.lines.size(), 101U);
    EXPECT_EQ(log.lines.back(),
              "Could not find a Active Directory on the server … and so on for the rest of this list");
    EXPECT_THAT(world.alerts->shown, IsEmpty());
    world.bundle->features->clear();
    EXPECT_DEATH(getUserGroupInfo(sid, {}, kODAttributeTypeSMBSID), "multiForest");
}

TEST_F(UsersViewModal, WarnsOfADirectoryThatDoesNotAnswer) {
    world.directory->answers = false;
    EXPECT_EQ(typeOf(sid), "before");
    EXPECT_EQ(lookupAttrValueFromID(sid, "a"), "Unknown");
    EXPECT_THAT(log.lines, ElementsAre("Error in Open Directory Session", "Error in Open Directory Session"));
    const RecordingAlerts::Alert alert{"Warning_Title", "Err_AD_Connect", platform::AlertStyle::warning};
    EXPECT_THAT(world.alerts->shown, ElementsAre(alert, alert));
    const DirectoryLookup list;
    for (const char* id : {"S-1", "S-2", "S-3"})
        list.lookupAttrValueFromID(id, "a");
    EXPECT_EQ(log.lines.size(), 5U);
    EXPECT_EQ(world.alerts->shown.size(), 3U) << "of a whole list the user reads once";
}

/// Records by the values of one attribute, the records apart by commas; "-" is one that cannot be read.
TEST_F(UsersViewModal, ReadsTheLastRecord) {
    for (const auto& [attribute, values, result, failures] : table<4>(R"(
a    |                                                  | Unknown |
a    | one:two                                          | one     |
a    | one,last                                         | last    |
a    | one,:x                                           | Unknown |
a    | one,again,-,never                                | again   | Error in Opening Session
type |                                                  | before  |
type | dsRecTypeStandard:Users                          | Users   |
type | dsRecTypeStandard:Users,dsRecTypeStandard:Groups:x | Groups |
type | dsRecTypeStandard:Groups,-,dsRecTypeStandard:Users | Groups | Error in Open Directory Session
type | Users                                            | fatal   |
)")) {
        const std::string name = attribute == "a" ? "a" : recordType;
        world.directory->records[sid].clear();
        std::istringstream stream(values);
        for (std::string value; std::getline(stream, value, ',');)
            value == "-" ? add({}) : add({{name, {value, "three"}}});
        if (result == "fatal")
            EXPECT_DEATH(typeOf(sid), "no second part");
        else
            EXPECT_EQ(name == "a" ? lookupAttrValueFromID(sid, "a") : typeOf(sid), result) << values;
        EXPECT_EQ(joined(log.take()), failures);
    }
    EXPECT_EQ(world.alerts->shown.size(), 1U) << "for a type that cannot be read";
}

TEST_F(UsersViewModal, FindsGroupsAndSidsOfNamedObjects) {
    const char* const memberOf = "dsAttrTypeNative:memberOf";
    const auto sidOf = [](const char* type) {
        return BrowseLdapViewModal::getSidforObject(sid, type, "dsAttrTypeNative:distinguishedName");
    };
    EXPECT_EQ(sidOf("Users"), "");
    add({{kODAttributeTypeSMBSID, {"S-1", "S-2"}}, {memberOf, {"CN=a", "CN=b"}}});
    add({{kODAttributeTypeSMBSID, {"S-3"}}});
    EXPECT_EQ(sidOf("Groups"), "S-3");
    EXPECT_EQ(world.directory->queries.back().attribute, "dsAttrTypeNative:distinguishedName");
    EXPECT_THAT(world.directory->queries.back().recordTypes, ElementsAre("dsRecTypeStandard:Groups"));
    EXPECT_THAT(BrowseLdapViewModal("All").getGroupMembership(sid), ElementsAre("CN=a", "CN=b"));
    EXPECT_EQ(world.directory->queries.back().attribute, "dsAttrTypeStandard:SMBSID");
    EXPECT_THAT(log.lines, IsEmpty());
    add({});
    EXPECT_EQ(sidOf("Users"), "S-3");
    EXPECT_THAT(log.lines, ElementsAre("Error in Open Directory Session"));
    EXPECT_THAT(world.alerts->shown, IsEmpty());
    world.directory->answers = false;
    EXPECT_DEATH(BrowseLdapViewModal("All").getGroupMembership(sid), "does not say which groups");
}

} // namespace
} // namespace quorvan::test
