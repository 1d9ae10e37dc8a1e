// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/BrowseLdapViewModal.h"
#include "Quorvan/ViewModal/UsersViewModal.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"

#include <gmock/gmock.h>

namespace quorvan::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The look-ups that no sheet performs, in the simulated directory.
struct BrowseLdap : testing::Test {
    simulator::Embedded world = simulator::Embedded::demo();
    FakeWorld fakes;
    simulator::MemoryDirectory::State& directory = world.directory->state();
    platform::ScopedServices installed{[this] {
        platform::Services services = platform::services();
        services.directory = world.directory;
        return services;
    }()};
    LogRecorder log;
    const simulator::Identity& member = *world.identities->findByName("jürgen.weißmann").front();
};

TEST_F(BrowseLdap, FindsGroupsAndSidsOfNamedObjects) {
    EXPECT_THAT(BrowseLdapViewModal::getGroupMembership(member.id),
                Contains("CN=Stage & Lighting,CN=Users,DC=meridal,DC=example"));
    EXPECT_THAT(BrowseLdapViewModal::getGroupMembership("S-1-5-21-0"), IsEmpty());
    const auto sidOf = [](const std::string& name, const char* type) {
        return BrowseLdapViewModal::getSidforObject(name, type, kODAttributeTypeRecordName);
    };
    EXPECT_EQ(sidOf(member.name, "Users"), member.id);
    EXPECT_EQ(sidOf(member.name, "Groups"), "");
    EXPECT_EQ(BrowseLdapViewModal::getSidforObject(member.groups.front()->distinguishedName, "Groups",
                                                   "dsAttrTypeNative:distinguishedName"),
              member.groups.front()->id);

    directory.failValues = true;
    EXPECT_THAT(BrowseLdapViewModal::getGroupMembership(member.id), IsEmpty());
    EXPECT_EQ(sidOf(member.name, "Users"), "");
    EXPECT_THAT(log.take(), ElementsAre("Error in Open Directory Session"));
    EXPECT_THAT(fakes.alerts->shown, IsEmpty());
    directory.failNodes = true;
    EXPECT_THAT(BrowseLdapViewModal::getGroupMembership(member.id), IsEmpty());
    EXPECT_THAT(fakes.alerts->shown, SizeIs(1));
    directory = {};
    directory.failQueries = true;
    EXPECT_DEATH(BrowseLdapViewModal::getGroupMembership(member.id), "does not say which groups");
}

} // namespace
} // namespace quorvan::test
