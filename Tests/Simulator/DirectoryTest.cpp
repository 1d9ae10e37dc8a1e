// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Embedded.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>

namespace quorvan::simulator {
namespace {

using platform::DirectoryMatch;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string recordName = "dsAttrTypeStandard:RecordName";
const std::string smbSid = "dsAttrTypeStandard:SMBSID";
const std::vector<std::string> users{"dsRecTypeStandard:Users"};
const std::vector<std::string> groups{"dsRecTypeStandard:Groups"};
const std::vector<std::string> both{"dsRecTypeStandard:Users", "dsRecTypeStandard:Groups"};

struct SmallDirectory {
    std::shared_ptr<Identities> identities = std::make_shared<Identities>();
    MemoryDirectory directory{identities};

    SmallDirectory() {
        Identity& zoe = identities->addDomainUser("Zoë", "S-1-5-21-1");
        Identity& team = identities->addDomainGroup("Zoo Team", "S-1-5-21-2");
        zoe.groups = {&team};
        identities->addTreeUser("Zoë", "Haus", "guid-3");
    }

    /// The names found, or "no answer".
    std::vector<std::string> names(const platform::DirectoryQuery& query) {
        return names(directory.openNetworkNode(), query);
    }
    static std::vector<std::string> names(const std::shared_ptr<platform::DirectoryNode>& node,
                                          const platform::DirectoryQuery& query) {
        const auto records = node->query(query);
        if (!records)
            return {"no answer"};
        std::vector<std::string> found;
        for (const auto& record : *records)
            found.push_back(record->values(recordName).value().at(0));
        return found;
    }
};

TEST(MemoryDirectory, FindsByEveryKindOfMatch) {
    SmallDirectory small;
    EXPECT_THAT(small.names({both, smbSid, DirectoryMatch::equalTo, {"S-1-5-21-2"}}),
                ElementsAre("Zoo Team"));
    EXPECT_THAT(small.names({users, smbSid, DirectoryMatch::equalTo, {"S-1-5-21-2"}}), IsEmpty());
    EXPECT_THAT(small.names({both, smbSid, DirectoryMatch::equalTo, {"guid-3", "S-1-5-21-1"}}),
                ElementsAre("Zoë"));
    EXPECT_THAT(small.names({users, recordName, DirectoryMatch::equalTo, {"ZOË"}}), ElementsAre("Zoë"));
    EXPECT_THAT(small.names({both, recordName, DirectoryMatch::contains, {"zo"}}),
                ElementsAre("Zoë", "Zoo Team"));
    EXPECT_THAT(small.names({both, recordName, DirectoryMatch::contains, {"*", "(zo"}}), IsEmpty());
    EXPECT_THAT(small.names({both, recordName, DirectoryMatch::contains, {"zo"}, 1}), ElementsAre("Zoë"));
    EXPECT_THAT(small.names({groups, recordName, DirectoryMatch::any, {}}), ElementsAre("Zoo Team"));
    EXPECT_THAT(small.names({groups,
                             "dsAttrTypeNative:distinguishedName",
                             DirectoryMatch::equalTo,
                             {"cn=zoo team,cn=users,dc=meridal,dc=example"}}),
                ElementsAre("Zoo Team"));
}

TEST(MemoryDirectory, AnswersAttributes) {
    SmallDirectory small;
    const auto records = small.directory.openNode("/Active Directory/MERIDAL/All Domains")
                             ->query({users, smbSid, DirectoryMatch::equalTo, {"S-1-5-21-1"}});
    ASSERT_EQ(records.value().size(), 1U);
    platform::DirectoryRecord& record = *records.value()[0];
    EXPECT_THAT(record.values(smbSid).value(), ElementsAre("S-1-5-21-1"));
    EXPECT_THAT(record.values("dsAttrTypeStandard:PrimaryNTDomain").value(), ElementsAre("MERIDAL"));
    EXPECT_THAT(record.values("dsAttrTypeStandard:RecordType").value(),
                ElementsAre("dsRecTypeStandard:Users"));
    EXPECT_THAT(record.values("dsAttrTypeNative:memberOf").value(),
                ElementsAre("CN=Zoo Team,CN=Users,DC=meridal,DC=example"));
    EXPECT_THAT(record.values("dsAttrTypeNative:telephoneNumber").value(), IsEmpty());
    small.directory.state().failValues = true;
    EXPECT_EQ(record.values(smbSid), std::nullopt);
}

TEST(MemoryDirectory, CanBeUnboundOrOutOfOrder) {
    SmallDirectory small;
    MemoryDirectory& directory = small.directory;
    EXPECT_EQ(directory.activeDirectoryState().value().at("NodeName"), "/Active Directory/MERIDAL");
    EXPECT_EQ(directory.openNode("/Active Directory/OTHER"), nullptr);
    directory.state().failQueries = true;
    EXPECT_THAT(small.names({both, recordName, DirectoryMatch::any, {}}), ElementsAre("no answer"));
    directory.state().failNodes = true;
    EXPECT_EQ(directory.openNetworkNode(), nullptr);
    directory.state() = {};
    directory.state().bound = false;
    EXPECT_EQ(directory.activeDirectoryState(), std::nullopt);
    EXPECT_EQ(directory.openNetworkNode(), nullptr);
    directory.prefetch({"S-1", "S-2"});
    EXPECT_THAT(directory.state().prefetched, ElementsAre("S-1", "S-2"));
    EXPECT_THAT(directory.state().openedNodes, ElementsAre("network"));
}

TEST(MemoryDirectory, TellsForestsApart) {
    SmallDirectory small;
    MemoryDirectory& directory = small.directory;
    directory.state().unreachable = {"ISLAND"};
    small.identities->add({IdentityKind::activeDirectory, "Åse", "", "user", "CN=Åse,DC=north", "NORTH", {}});
    EXPECT_THAT(directory.nodeNames().value(),
                ElementsAre("/Local/Default", "/Active Directory/MERIDAL",
                            "/Active Directory/MERIDAL/All Domains", "/Active Directory/NORTH",
                            "/Active Directory/NORTH/All Domains", "/Active Directory/ISLAND",
                            "/Active Directory/ISLAND/All Domains"));
    const auto usersIn = [&](const char* node) {
        return small.names(directory.openNode(node), {users, recordName, DirectoryMatch::any, {}});
    };
    EXPECT_THAT(usersIn("/Active Directory/MERIDAL/All Domains"), ElementsAre("Zoë"));
    EXPECT_THAT(usersIn("/Active Directory/NORTH/All Domains"), ElementsAre("Åse"));
    EXPECT_THAT(usersIn("/Local/Default"), IsEmpty());
    EXPECT_THAT(small.names({users, recordName, DirectoryMatch::any, {}}), ElementsAre("Zoë", "Åse"));
    errno = 0;
    EXPECT_EQ(directory.openNode("/Active Directory/ISLAND/All Domains"), nullptr);
    EXPECT_EQ(errno, EHOSTUNREACH);
    const auto records =
        directory.openNetworkNode()->query({users, recordName, DirectoryMatch::equalTo, {"åse"}});
    EXPECT_THAT(records.value().at(0)->values(smbSid).value(), IsEmpty());

    const auto managed = directory.managedIdentities(platform::IdentityClass::group);
    ASSERT_EQ(managed.value().size(), 1U);
    EXPECT_EQ(managed.value()[0].posixName, "Zoo Team");
    EXPECT_EQ(directory.managedIdentities(platform::IdentityClass::user).value().size(), 1U);
    directory.state().bound = false;
    EXPECT_THAT(directory.nodeNames().value(), ElementsAre("/Local/Default"));
    EXPECT_EQ(directory.managedIdentities(platform::IdentityClass::user), std::nullopt);
    directory.state().failNodes = true;
    EXPECT_EQ(directory.nodeNames(), std::nullopt);
}

TEST(MemoryDirectory, OffersThreeHundredUsersAndSixtyGroupsInTheDemo) {
    const Embedded world = Embedded::demo();
    const auto node = world.directory->openNetworkNode();
    EXPECT_EQ(node->query({users, recordName, DirectoryMatch::any, {}}).value().size(), 300U);
    const auto all = node->query({groups, recordName, DirectoryMatch::any, {}}).value();
    EXPECT_EQ(all.size(), 60U);
    EXPECT_EQ(std::count_if(all.begin(), all.end(),
                            [](const auto& record) { return record->values(smbSid).value().empty(); }),
              1);
    EXPECT_EQ(world.directory->openNode("/Active Directory/FJERNØY"), nullptr);
}

TEST(MemoryDirectory, LooksHundredThousandIdentitiesUpOneByOne) {
    KelpServer server;
    addManyTrustees(server, "VOL1:\\Many", 100000);
    MemoryDirectory directory(server.sharedIdentities());
    const auto node = directory.openNetworkNode();
    std::size_t found = 0;
    for (const TrusteeEntry& entry : server.trustees("VOL1:\\Many"))
        found += node->query({both, smbSid, DirectoryMatch::equalTo, {entry.identity->id}}).value().size();
    EXPECT_EQ(found, 100000U);
    EXPECT_EQ(directory.state().queries, 100000U);
    EXPECT_EQ(node->query({both, recordName, DirectoryMatch::contains, {"QUENTIN"}, 7}).value().size(), 7U);
}

} // namespace
} // namespace quorvan::simulator
