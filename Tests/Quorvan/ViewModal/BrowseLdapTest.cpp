// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/BrowseLdapViewModal.h"
#include "Quorvan/ViewModal/OldBrowseLdapViewModal.h"
#include "Quorvan/ViewModal/UsersViewModal.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace quorvan::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The look-ups that no sheet performs, and failures, in the simulated directory.
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

TEST_F(BrowseLdap, SurvivesADirectoryThatFails) {
    BrowseLdapViewModal browser("Users");
    OldBrowseLdapViewModal old("");
    browser.selectedDomain = "/Active Directory/NORDHAVN";
    directory.failValues = true;
    EXPECT_THAT(browser.searchAD("e", "Users"), IsEmpty());
    EXPECT_THAT(browser.getUserListforType("Users"), IsEmpty());
    EXPECT_TRUE(browser.listingFailed);
    EXPECT_THAT(OldBrowseLdapViewModal::searchAD("e", "Users"), IsEmpty());
    EXPECT_THAT(fakes.alerts->shown, SizeIs(1)) << "only the search of the first is reported";
    directory.failNodes = true;
    directory.failQueries = true;
    EXPECT_THAT(BrowseLdapViewModal::getAvaialbleDomains(), IsEmpty());
    EXPECT_THAT(log.take(), Contains("Error in Open Directory Session " + std::to_string(EIO)));
    EXPECT_THAT(old.ldapGroupList(), IsEmpty());
    directory = {};
    EXPECT_THAT(browser.getUserListforType("Users"), SizeIs(simulator::demo::secondForestUsers))
        << "an empty list is asked for anew";
    EXPECT_THAT(old.ldapGroupList(), IsEmpty()) << "this one is asked for once";
    EXPECT_EQ(fakes.busy->running, 0);
    EXPECT_GT(fakes.busy->begun, 5);
}

} // namespace
} // namespace quorvan::test
