// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/ServerDetails.h"
#include "Platform/Linux/LdapDirectory.h"
#include "Platform/Linux/MountCredentials.h"
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Quorvan/ViewModal/RightsWay.h"
#include "Quorvan/ViewModal/ScopedPipe.h"
#include "Quorvan/ViewModal/UsersViewModal.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/Fakes.h"
#include "Tests/System/ActiveDirectoryServer.h"
#include "Tests/System/Smbd.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <climits>
#include <fstream>
#include <set>

#include <unistd.h>

namespace quorvan::test {
namespace {

using namespace platform;
using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAre;
using testing::UnorderedElementsAreArray;
using Texts = std::vector<std::string>;

const std::string recordName = "dsAttrTypeStandard:RecordName";
const std::string smbSid = "dsAttrTypeStandard:SMBSID";
const Texts users{"dsRecTypeStandard:Users"};
const Texts groups{"dsRecTypeStandard:Groups"};
const Texts both{"dsRecTypeStandard:Users", "dsRecTypeStandard:Groups"};
const std::string domainNode = "/Active Directory/QUORVAN/All Domains";
const std::string odd = "Zoë (q*x\\y)";

struct OneItem : Keychain {
    std::string server, account = DomainController::administrator, data = DomainController::password;
    KeychainResult findInternetPassword(const std::string& wanted) override {
        if (wanted != server)
            return {errSecItemNotFound, std::nullopt};
        return {0, KeychainItem{account, Secret(data)}};
    }
};

/// A client of the domain controller that all tests share.
class ActiveDirectory : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (DomainController::obstacle().empty())
            controller = std::make_unique<DomainController>();
    }
    static void TearDownTestSuite() { controller.reset(); }
    void SetUp() override {
        if (!controller)
            GTEST_SKIP() << DomainController::obstacle();
        keychain->server = controller->address;
    }

    std::unique_ptr<LdapDirectory> client(std::chrono::milliseconds timeLimit = std::chrono::seconds(20)) {
        return std::make_unique<LdapDirectory>(
            keychain, [this](std::string_view line) { log.emplace_back(line); }, timeLimit);
    }
    static Texts namesOf(const std::optional<DirectoryRecords>& records) {
        Texts names;
        for (const auto& record : records.value())
            names.push_back(record->values(recordName).value().at(0));
        return names;
    }
    static std::shared_ptr<DirectoryRecord> one(DirectoryNode& node, const Texts& types,
                                                const std::string& attribute, const std::string& value) {
        const auto found = node.query({types, attribute, DirectoryMatch::equalTo, {value}});
        return found && found->size() == 1 ? found->front() : nullptr;
    }

    static inline std::unique_ptr<DomainController> controller;
    std::shared_ptr<OneItem> keychain = std::make_shared<OneItem>();
    Texts log;
};

TEST_F(ActiveDirectory, ListsMoreThanOnePageOfUsersAndGroupsButNoComputers) {
    const auto directory = client();
    EXPECT_EQ(directory->activeDirectoryState().value().at("NodeName"), "/Active Directory/QUORVAN");
    EXPECT_THAT(directory->nodeNames().value(), ElementsAre("/Active Directory/QUORVAN", domainNode));
    EXPECT_EQ(directory->openNode("/Active Directory/OTHER"), nullptr);
    EXPECT_EQ(errno, EHOSTUNREACH);
    const auto node = directory->openNode(domainNode);
    const Texts names = namesOf(node->query({users, recordName, DirectoryMatch::any, {}}));
    EXPECT_GT(names.size(), 2500U); // Administrator, Guest and so on are there as well
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
    EXPECT_THAT(names,
                AllOf(Contains("user0000"), Contains("user2499"), Contains(odd), Not(Contains("DC1$"))));
    const auto all = node->query({groups, recordName, DirectoryMatch::any, {}});
    EXPECT_THAT(namesOf(all),
                AllOf(Contains("group199"), Contains("Domain Users"), Not(Contains("user0000"))));
    for (const auto& group : *all)
        EXPECT_THAT(group->values(smbSid).value(), ElementsAre(testing::StartsWith("S-1-5-")));
    EXPECT_EQ(node->query({both, recordName, DirectoryMatch::any, {}, 1234}).value().size(), 1234U);
    const auto managed = directory->managedIdentities(IdentityClass::group);
    EXPECT_EQ(managed.value().size(), all->size());
    EXPECT_EQ(directory->managedIdentities(IdentityClass::user).value().size(), names.size());
    EXPECT_THAT(log, ElementsAre("The directory server of ldap.conf does not hold /Active Directory/OTHER"));
}

TEST_F(ActiveDirectory, NeverInterpretsWhatItSearchesFor) {
    const struct {
        Texts types;
        std::string attribute;
        DirectoryMatch match;
        Texts values, found;
    } cases[] = {
        {users, recordName, DirectoryMatch::equalTo, {odd}, {odd}},
        {both, recordName, DirectoryMatch::contains, {"ZOË ("}, {odd}},
        {both, recordName, DirectoryMatch::contains, {"*"}, {odd}},
        {both, recordName, DirectoryMatch::contains, {"\\"}, {odd}},
        {both,
         recordName,
         DirectoryMatch::contains,
         {"ser001", "P199"},
         {"user0010", "user0011", "user0012", "user0013", "user0014", "user0015", "user0016", "user0017",
          "user0018", "user0019", "group199"}},
        {both,
         recordName,
         DirectoryMatch::equalTo,
         {"user0000)(|(objectClass=*", "*)(sAMAccountName=*", "\\2a", "user*", "*)", ""},
         {}},
        {both, "dsAttrTypeNative:cn=*)(cn", DirectoryMatch::equalTo, {"user0000"}, {}},
        {both, smbSid, DirectoryMatch::equalTo, {"*", "S-1-5-21", ""}, {}},
    };
    const auto node = client()->openNode(domainNode);
    for (const auto& [types, attribute, match, values, found] : cases)
        EXPECT_THAT(namesOf(node->query({types, attribute, match, values})), UnorderedElementsAreArray(found))
            << testing::PrintToString(values);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ActiveDirectory, KnowsAccountsByIdentifierAndTheirGroups) {
    const auto directory = client();
    const auto network = directory->openNetworkNode();
    const auto user = one(*network, users, recordName, "user0007");
    ASSERT_NE(user, nullptr);
    const std::string sid = user->values(smbSid).value().at(0);
    directory->prefetch({sid, "no identifier", "S-1-5-21-1-2-3-4"});
    for (const auto& node : {network, directory->openNode(domainNode)}) {
        const auto same = one(*node, both, smbSid, sid);
        ASSERT_NE(same, nullptr);
        EXPECT_THAT(same->values(recordName).value(), ElementsAre("user0007"));
        EXPECT_THAT(same->values("dsAttrTypeStandard:RecordType").value(),
                    ElementsAre("dsRecTypeStandard:Users"));
        EXPECT_THAT(same->values("dsAttrTypeStandard:PrimaryNTDomain").value(), ElementsAre("QUORVAN"));
        EXPECT_EQ(one(*node, groups, smbSid, sid), nullptr);
    }
    const Texts memberOf = user->values("dsAttrTypeNative:memberOf").value();
    EXPECT_THAT(memberOf, UnorderedElementsAre("CN=group000,CN=Users,DC=quorvan,DC=test",
                                               "CN=group001,CN=Users,DC=quorvan,DC=test"));
    const auto group = one(*network, groups, "dsAttrTypeNative:distinguishedName", memberOf[0]);
    ASSERT_NE(group, nullptr);
    EXPECT_THAT(group->values("dsAttrTypeStandard:RecordType").value(),
                ElementsAre("dsRecTypeStandard:Groups"));
    EXPECT_THAT(group->values("dsAttrTypeNative:no=such").value(), IsEmpty());
    const auto oddUser = one(*network, users, "dsAttrTypeNative:cn", odd);
    ASSERT_NE(oddUser, nullptr);
    EXPECT_THAT(oddUser->values("dsAttrTypeNative:displayName").value(), IsEmpty());
    EXPECT_THAT(oddUser->values("dsAttrTypeNative:name").value(), ElementsAre(odd));
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ActiveDirectory, ExplainsRightsThroughGroupsOfGroupsOverSmb) {
    const char* address = "127.0.0.79";
    if (run({"/usr/bin/python3", "-c", "import impacket.smbserver"}) != 0 || !Socket().bind(address, 445))
        GTEST_SKIP() << "needs python3-impacket and port 445";
    ChildProcess kelp({KELP_SERVER});
    const std::string port = kelp.readLine().substr(sizeof "port");
    const char* secret = "pl3nty-0f-s3crets";
    ChildProcess front(
        {"/usr/bin/python3", SMB_FRONT, "--address", address, "--password", secret, "--kelp-port", port});
    ASSERT_EQ(front.readLine(), "ready");
    const FakeWorld world;
    world.defaults->values = {
        {"serverIP", address}, {"selectedPath", "/Volumes/VOL1/Projects/Aurora"}, {"mappedPath", "VOL1:\\"}};
    world.keychain->items[address] = {"ingrid.holm", secret};
    Services services = platform::services();
    services.network = std::make_shared<SmbClientFileSystem>([](std::string_view) {});
    services.directory = client();
    const ScopedServices installed(services);
    ServerDetails::forget();

    const auto network = services.directory->openNetworkNode();
    const auto idOf = [&](const Texts& types, const std::string& name) {
        return one(*network, types, recordName, name)->values(smbSid).value().at(0);
    };
    const std::string user = idOf(users, "user0007");
    const std::string inner = idOf(groups, "group000");
    const std::string outer = idOf(groups, "group002");
    const std::string path = "VOL1:\\Projects\\Aurora";
    const Socket model;
    ASSERT_TRUE(model.connect("127.0.0.1", std::stoi(port)));
    for (const std::string& command :
         {"add-identity\t" + outer + "\tgroup002\t", "add-identity\t" + inner + "\tgroup000\t" + outer,
          "add-identity\t" + user + "\tuser0007\t" + inner, "set-trustee\tVOL1:\\Projects\t" + outer + "\t10",
          "set-trustee\t" + path + "\t" + inner + "\t16", "set-filter\t" + path + "\t253"}) {
        model.send(command + "\n");
        ASSERT_EQ(model.receive(5), "ok 0\n") << command;
    }
    XMLReadWriteController controller;
    ScopedPipe pipe(controller, address, pipes::files);
    ASSERT_TRUE(pipe.isOpen());
    const auto way = readRightsWay(controller, path, "ActiveDirectory");
    Rights served;
    controller.getEffectiveRightsforUserOnPath(path, user, served, "ActiveDirectory");
    const auto holders = holdersOfActiveDirectory({user, "user0007"});
    Texts names;
    for (const RightsHolder& holder : holders)
        names.push_back(holder.name);
    EXPECT_THAT(names, UnorderedElementsAre("user0007", "group000", "group001", "group002"));
    EXPECT_EQ(explainRights(way, holders).rights, served.uright);
    EXPECT_EQ(served.uright, 0x018) << "Create by the one, Erase by the other; the filter stops Write";
}

TEST_F(ActiveDirectory, SaysWhyItIsNotLetIn) {
    const std::string ldaps = controller->uri("ldaps");
    const struct {
        std::string uri, authority, account, password;
        int error;
        std::string line;
    } cases[] = {
        {ldaps, "ca.pem", "administrator", "wrong-secret", EACCES,
         "refuses the keyring's password of administrator@quorvan.test"},
        {ldaps, "ca.pem", "QUORVAN\\administrator", DomainController::password, 0, ""},
        {ldaps, "ca.pem", "administrator", "", EACCES, "neither a valid ticket nor a keyring item"},
        {ldaps, "other.pem", "administrator", "s3cret", EKEYREJECTED, "a certificate that is not trusted"},
        {controller->uri("ldap"), "other.pem", "administrator", "s3cret", EKEYREJECTED,
         "a certificate that is not trusted"},
        {controller->uri("ldap"), "ca.pem", "administrator", DomainController::password, 0, ""},
        {ldaps + ":88", "ca.pem", "administrator", "s3cret", ECONNRESET, "breaks off the beginning of TLS"},
        {ldaps + ":1", "ca.pem", "administrator", "s3cret", EHOSTUNREACH, "cannot be reached"},
    };
    for (const auto& each : cases) {
        const LdapSetting uri(LDAP_OPT_URI, each.uri);
        const LdapSetting authority(LDAP_OPT_X_TLS_CACERTFILE, controller->file(each.authority.c_str()));
        keychain->account = each.account;
        keychain->data = each.password;
        log.clear();
        const auto directory = client(std::chrono::seconds(5));
        errno = 0;
        EXPECT_EQ(directory->openNode(domainNode) != nullptr, each.error == 0) << each.line;
        EXPECT_EQ(directory->openNetworkNode() != nullptr, each.error == 0);
        EXPECT_EQ(directory->activeDirectoryState().value().at("NodeName"), "/Active Directory/QUORVAN");
        EXPECT_EQ(directory->nodeNames().has_value(), each.error == 0);
        if (each.error == 0) {
            EXPECT_THAT(log, IsEmpty());
        } else {
            EXPECT_EQ(errno, each.error);
            EXPECT_THAT(
                log, ElementsAre(AllOf(HasSubstr(each.uri), HasSubstr(each.line), Not(HasSubstr("cret")))));
        }
    }
}

TEST_F(ActiveDirectory, LetsTheTicketInWithoutPassword) {
    const std::string tickets = controller->file("administrator");
    ASSERT_EQ(run({"kinit", "-c", tickets, std::string(DomainController::administrator) + "@QUORVAN.TEST"},
                  DomainController::password),
              0);
    ::setenv("KRB5CCNAME", tickets.c_str(), 1);
    keychain->server = "";
    const LdapSetting uri(LDAP_OPT_URI, controller->uri("ldap"));
    const auto node = client()->openNode(domainNode);
    ASSERT_NE(node, nullptr);
    EXPECT_EQ(node->query({users, recordName, DirectoryMatch::any, {}, 1001}).value().size(), 1001U);
    EXPECT_THAT(log, IsEmpty());

    // And to a file server of the domain, which knows no password of hers.
    char host[HOST_NAME_MAX + 1] = "";
    ::gethostname(host, sizeof(host));
    SmbClientFileSystem files([](std::string_view) {});
    if (!Smbd::isInstalled() || files.resolve(host) != "127.0.0.1")
        GTEST_SKIP() << "there is no smbd, or this machine's name is not that of 127.0.0.1";
    std::ofstream(controller->file("names")) << "root = administrator QUORVAN\\administrator\n";
    const Smbd smbd("realm = QUORVAN.TEST\nworkgroup = QUORVAN\nkerberos method = dedicated keytab\n"
                    "dedicated keytab file = FILE:" +
                    controller->file("cifs.keytab") + "\nusername map = " + controller->file("names"));
    std::ofstream(controller->file("mounts"))
        << "1 1 0:1 / /mnt rw - cifs //" << host << "/vol1 rw,sec=krb5,username=x\n"
        << "2 1 0:1 / /srv rw - cifs //other/vol1 rw,sec=ntlmssp,username=x\n";
    keychain->server = "none";
    MountCredentials mounts(keychain, "/dev/null", {controller->file("mounts"), controller->file("none")});
    EXPECT_EQ(mounts.findInternetPassword("other").status, -25300);
    const auto item = mounts.findInternetPassword(host).item;
    ASSERT_TRUE(item);
    EXPECT_EQ(item->account, "administrator@QUORVAN.TEST");
    ASSERT_TRUE(item->data->empty());
    EXPECT_EQ(mount(files, smbd.url(host), "", item->account->c_str()).error, 0) << smbd.log();

    ::setenv("KRB5CCNAME", controller->file("tickets").c_str(), 1);
    EXPECT_EQ(mounts.findInternetPassword(host).status, -25300) << "without a ticket";
    files.forgetRefusals();
    EXPECT_EQ(mount(files, smbd.url(host), "", item->account->c_str()).error, EACCES);
}

TEST_F(ActiveDirectory, OpensDroppedConnectionsAnew) {
    Relay relay(controller->address, 636);
    const LdapSetting uri(LDAP_OPT_URI, relay.uri);
    const auto directory = client();
    const auto node = directory->openNode(domainNode);
    ASSERT_NE(node, nullptr);
    const auto user = one(*node, users, recordName, "user0001");
    for (const char* value : {"user0002", "user0003"}) {
        relay.drop();
        EXPECT_NE(one(*node, users, recordName, value), nullptr);
    }
    relay.drop();
    EXPECT_EQ(user->values("dsAttrTypeNative:memberOf").value().size(), 2U);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ActiveDirectory, EndsFetchWhenTheServerStopsInItsMiddle) {
    const DirectoryQuery everybody{users, recordName, DirectoryMatch::any, {}};
    Relay relay(controller->address, 636);
    const LdapSetting uri(LDAP_OPT_URI, relay.uri);
    const auto directory = client(std::chrono::seconds(20));
    const auto node = directory->openNode(domainNode);
    ASSERT_NE(node, nullptr);
    std::size_t before = relay.received;
    ASSERT_TRUE(node->query(everybody));
    std::size_t size = relay.received - before;
    relay.atLimit = [&] {
        relay.refuse();
        controller->server.reset();
    };
    relay.limit = relay.received + size / 2;
    EXPECT_EQ(node->query(everybody), std::nullopt);
    EXPECT_EQ(node->query(everybody), std::nullopt);
    EXPECT_EQ(directory->openNode(domainNode), nullptr);
    EXPECT_THAT(log, ElementsAre(HasSubstr("cannot be reached")));
    controller->start();
}

TEST_F(ActiveDirectory, ResolvesManyIdentifiersAtOnce) {
    Texts sids;
    const auto records =
        client()->openNetworkNode()->query({users, recordName, DirectoryMatch::any, {}, 250});
    for (const auto& record : records.value())
        sids.push_back(record->values(smbSid).value().at(0));
    Relay relay(controller->address, 636);
    const LdapSetting uri(LDAP_OPT_URI, relay.uri);
    const auto directory = client();
    const auto node = directory->openNetworkNode();
    directory->prefetch(sids);
    const std::size_t received = relay.received;
    for (const std::string& sid : sids)
        EXPECT_NE(one(*node, both, smbSid, sid), nullptr);
    EXPECT_EQ(relay.received, received) << "what was fetched is not asked for again";
    EXPECT_THAT(log, IsEmpty());
}

/// The look-ups that the views make, as the program's own functions make them.
TEST_F(ActiveDirectory, TellsTheProgramWhoAnIdentityIs) {
    const FakeWorld world;
    Services changed = services();
    changed.directory = client();
    const ScopedServices installed(changed);
    const DirectoryLookup lookup;
    const std::string sid = lookup.getSidforObject(odd, "Users", recordName);
    EXPECT_THAT(sid, testing::StartsWith("S-1-5-21-"));
    EXPECT_EQ(lookup.lookupAttrValueFromID(sid, recordName), odd);
    EXPECT_EQ(lookup.lookupAttrValueFromID(sid, kODAttributeTypePrimaryNTDomain), "QUORVAN");
    Trustees trustee("", sid, 0, "", "", "ActiveDirectory");
    lookup.setTrusteeTypeforTrustee(trustee);
    EXPECT_EQ(trustee.trusteeType, "Users");
    EXPECT_EQ(lookup.getSidforObject(odd, "Groups", recordName), "");
    EXPECT_THAT(log, IsEmpty());
}

} // namespace
} // namespace quorvan::test
