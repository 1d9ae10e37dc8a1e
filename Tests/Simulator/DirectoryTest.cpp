// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Embedded.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace quorvan::simulator {
namespace {

using platform::DirectoryMatch;

const std::string recordName = "dsAttrTypeStandard:RecordName";
const std::string distinguishedName = "dsAttrTypeNative:distinguishedName";
const std::string smbSid = "dsAttrTypeStandard:SMBSID";
const std::vector<std::string> users{"dsRecTypeStandard:Users"};
const std::vector<std::string> both{"dsRecTypeStandard:Users", "dsRecTypeStandard:Groups"};

/// What the views leave open: they look names and members up in the demo's directory.
TEST(MemoryDirectory, FindsByEveryKindOfMatchAndNode) {
    const auto identities = std::make_shared<Identities>();
    identities->addDomainUser("Zoë", "S-1-5-21-1");
    identities->addDomainGroup("Zoo Team", "S-1-5-21-2");
    identities->addTreeUser("Zoë", "Haus", "guid-3");
    identities->add({IdentityKind::activeDirectory, "Åse", "", "user", "CN=Åse,DC=north", "NORTH", {}});
    MemoryDirectory directory(identities);
    directory.state().unreachable = {"ISLAND"};
    const struct {
        platform::DirectoryQuery query;
        std::vector<std::string> found;
        const char* node = "";
    } cases[] = {
        {{both, smbSid, DirectoryMatch::equalTo, {"S-1-5-21-2"}}, {"Zoo Team"}},
        {{users, smbSid, DirectoryMatch::equalTo, {"S-1-5-21-2"}}, {}},
        {{both, smbSid, DirectoryMatch::equalTo, {"guid-3", "S-1-5-21-1"}}, {"Zoë"}},
        {{users, recordName, DirectoryMatch::equalTo, {"ZOË"}}, {"Zoë"}},
        {{both, recordName, DirectoryMatch::contains, {"zo"}}, {"Zoë", "Zoo Team"}},
        {{both, recordName, DirectoryMatch::contains, {"*", "(zo"}}, {}},
        {{both, recordName, DirectoryMatch::contains, {"zo"}, 1}, {"Zoë"}},
        {{both, distinguishedName, DirectoryMatch::equalTo, {"cn=zoo team,cn=users,dc=meridal,dc=example"}},
         {"Zoo Team"}},
        {{users, recordName, DirectoryMatch::any, {}}, {"Zoë", "Åse"}},
        {{users, recordName, DirectoryMatch::any, {}}, {"Zoë"}, "/Active Directory/MERIDAL/All Domains"},
        {{users, recordName, DirectoryMatch::any, {}}, {"Åse"}, "/Active Directory/NORTH"},
        {{users, recordName, DirectoryMatch::any, {}}, {}, "/Local/Default"},
    };
    for (const auto& [query, found, node] : cases) {
        const auto opened = *node == '\0' ? directory.openNetworkNode() : directory.openNode(node);
        const auto records = opened->query(query);
        std::vector<std::string> names;
        for (const auto& record : records.value())
            names.push_back(record->values(recordName).value().at(0));
        EXPECT_EQ(names, found) << testing::PrintToString(query.values) << node;
    }
    EXPECT_THAT(directory.nodeNames().value(),
                testing::ElementsAre("/Local/Default", "/Active Directory/MERIDAL",
                                     "/Active Directory/MERIDAL/All Domains", "/Active Directory/NORTH",
                                     "/Active Directory/NORTH/All Domains", "/Active Directory/ISLAND",
                                     "/Active Directory/ISLAND/All Domains"));
    errno = 0;
    EXPECT_EQ(directory.openNode("/Active Directory/ISLAND/All Domains"), nullptr);
    EXPECT_EQ(errno, EHOSTUNREACH);
    directory.state().failNodes = true;
    EXPECT_EQ(directory.nodeNames(), std::nullopt);
    EXPECT_EQ(directory.openNetworkNode(), nullptr);
}

} // namespace
} // namespace quorvan::simulator
