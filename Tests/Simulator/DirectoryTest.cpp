// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoData.h"
#include "Simulator/MemoryDirectory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
        const auto records = directory.openNetworkNode()->query(query);
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
