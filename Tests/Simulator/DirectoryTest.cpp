// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Embedded.h"

#include <gmock/gmock.h>

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

class MemoryDirectoryTest : public testing::Test {
protected:
    MemoryDirectoryTest() {
        Identity& zoe = identities->addDomainUser("Zoë", "S-1-5-21-1");
        zoe.groups = {&identities->addDomainGroup("Zoo Team", "S-1-5-21-2")};
        identities->addTreeUser("Zoë", "Haus", "guid-3");
        identities->add({IdentityKind::activeDirectory, "Åse", "", "user", "CN=Åse,DC=north", "NORTH", {}});
    }

    /// The names found on a node, or "no answer".
    std::vector<std::string> names(const platform::DirectoryQuery& query, const char* node = nullptr) {
        const auto opened = node == nullptr ? directory.openNetworkNode() : directory.openNode(node);
        const auto records = opened->query(query);
        if (!records)
            return {"no answer"};
        std::vector<std::string> found;
        for (const auto& record : *records)
            found.push_back(record->values(recordName).value().at(0));
        return found;
    }

    std::shared_ptr<Identities> identities = std::make_shared<Identities>();
    MemoryDirectory directory{identities};
};

TEST_F(MemoryDirectoryTest, FindsByEveryKindOfMatch) {
    using Names = std::vector<std::string>;
    const std::pair<platform::DirectoryQuery, Names> cases[] = {
        {{both, smbSid, DirectoryMatch::equalTo, {"S-1-5-21-2"}}, {"Zoo Team"}},
        {{users, smbSid, DirectoryMatch::equalTo, {"S-1-5-21-2"}}, {}},
        {{both, smbSid, DirectoryMatch::equalTo, {"guid-3", "S-1-5-21-1"}}, {"Zoë"}},
        {{users, recordName, DirectoryMatch::equalTo, {"ZOË"}}, {"Zoë"}},
        {{both, recordName, DirectoryMatch::contains, {"zo"}}, {"Zoë", "Zoo Team"}},
        {{both, recordName, DirectoryMatch::contains, {"*", "(zo"}}, {}},
        {{both, recordName, DirectoryMatch::contains, {"zo"}, 1}, {"Zoë"}},
        {{groups, recordName, DirectoryMatch::any, {}}, {"Zoo Team"}},
        {{groups,
          "dsAttrTypeNative:distinguishedName",
          DirectoryMatch::equalTo,
          {"cn=zoo team,cn=users,dc=meridal,dc=example"}},
         {"Zoo Team"}},
    };
    for (const auto& [query, found] : cases)
        EXPECT_EQ(names(query), found) << testing::PrintToString(query.values);
}

TEST_F(MemoryDirectoryTest, AnswersAttributes) {
    const auto records =
        directory.openNetworkNode()->query({users, smbSid, DirectoryMatch::equalTo, {"S-1-5-21-1"}});
    const auto valuesOf = [&](const std::string& name) { return records.value().at(0)->values(name); };
    EXPECT_THAT(valuesOf(smbSid).value(), ElementsAre("S-1-5-21-1"));
    EXPECT_THAT(valuesOf("dsAttrTypeStandard:PrimaryNTDomain").value(), ElementsAre("MERIDAL"));
    EXPECT_EQ(valuesOf("dsAttrTypeStandard:RecordType"), users);
    EXPECT_THAT(valuesOf("dsAttrTypeNative:memberOf").value(),
                ElementsAre("CN=Zoo Team,CN=Users,DC=meridal,DC=example"));
    EXPECT_THAT(valuesOf("dsAttrTypeNative:telephoneNumber").value(), IsEmpty());
    directory.state().failValues = true;
    EXPECT_EQ(valuesOf(smbSid), std::nullopt);
}

TEST_F(MemoryDirectoryTest, TellsForestsApart) {
    directory.state().unreachable = {"ISLAND"};
    const platform::DirectoryQuery anyUser = {users, recordName, DirectoryMatch::any, {}};
    EXPECT_EQ(directory.activeDirectoryState().value().at("NodeName"), "/Active Directory/MERIDAL");
    EXPECT_THAT(directory.nodeNames().value(),
                ElementsAre("/Local/Default", "/Active Directory/MERIDAL",
                            "/Active Directory/MERIDAL/All Domains", "/Active Directory/NORTH",
                            "/Active Directory/NORTH/All Domains", "/Active Directory/ISLAND",
                            "/Active Directory/ISLAND/All Domains"));
    EXPECT_THAT(names(anyUser, "/Active Directory/MERIDAL/All Domains"), ElementsAre("Zoë"));
    EXPECT_THAT(names(anyUser, "/Active Directory/NORTH"), ElementsAre("Åse"));
    EXPECT_THAT(names(anyUser, "/Local/Default"), IsEmpty());
    EXPECT_THAT(names(anyUser), ElementsAre("Zoë", "Åse"));
    errno = 0;
    EXPECT_EQ(directory.openNode("/Active Directory/ISLAND/All Domains"), nullptr);
    EXPECT_EQ(errno, EHOSTUNREACH);
    const auto managed = directory.managedIdentities(platform::IdentityClass::group);
    ASSERT_EQ(managed.value().size(), 1U);
    EXPECT_EQ(managed.value()[0].posixName, "Zoo Team");

    directory.state().failQueries = true;
    EXPECT_THAT(names(anyUser), ElementsAre("no answer"));
    directory.state().bound = false;
    EXPECT_EQ(directory.activeDirectoryState(), std::nullopt);
    EXPECT_THAT(directory.nodeNames().value(), ElementsAre("/Local/Default"));
    EXPECT_EQ(directory.openNetworkNode(), nullptr);
    EXPECT_EQ(directory.managedIdentities(platform::IdentityClass::user), std::nullopt);
    directory.state().failNodes = true;
    EXPECT_EQ(directory.nodeNames(), std::nullopt);
    EXPECT_EQ(directory.openNetworkNode(), nullptr);
}

} // namespace
} // namespace quorvan::simulator
