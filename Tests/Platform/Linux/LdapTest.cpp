// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/LdapDirectory.h"
#include "Platform/Linux/LdapFilter.h"
#include "Tests/Support/LdapMessages.h"
#include "Tests/Support/LdapSetting.h"
#include "Tests/Support/Socket.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>

namespace quorvan::platform {
namespace {

using namespace test::ldap;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using std::string_literals::operator""s;
using Texts = std::vector<std::string>;

const Texts users{"dsRecTypeStandard:Users"};
const Texts both{"dsRecTypeStandard:Users", "dsRecTypeStandard:Groups"};

TEST(LdapFilter, TurnsIdentifiersIntoBytesAndBack) {
    const std::pair<const char*, std::string> pairs[] = {
        {"S-1-1-0", "\1\1\0\0\0\0\0\1\0\0\0\0"s},
        {"S-1-5", "\1\0\0\0\0\0\0\5"s},
        {"S-1-5-32-4294967295", "\1\2\0\0\0\0\0\5\x20\0\0\0\xff\xff\xff\xff"s},
        {"S-255-281474976710655", "\xff\0\xff\xff\xff\xff\xff\xff"s},
    };
    for (const auto& [text, bytes] : pairs) {
        EXPECT_EQ(sidBytes(text), bytes);
        EXPECT_EQ(sidText(bytes), text);
        EXPECT_EQ(sidText(bytes + '\0'), std::nullopt);
        EXPECT_EQ(sidText(std::string_view(bytes).substr(1)), std::nullopt);
    }
    for (const char* text :
         {"", "S", "S-", "S-1", "S-1-", "S-1-5-", "S-1-5-x", "S-1-5-1 ", "S-1-5--1", "S-1-5-+1", "S-256-5",
          "S-1-281474976710656", "S-1-5-4294967296", "T-1-5", "S-1-5-1-2-3-4-5-6-7-8-9-10-11-12-13-14-15-16"})
        EXPECT_EQ(sidBytes(text), std::nullopt) << text;
}

TEST(LdapFilter, KeepsValuesFromMeaningAnything) {
    const std::string name = "dsAttrTypeStandard:RecordName";
    const struct {
        DirectoryQuery query;
        std::optional<std::string> filter;
    } cases[] = {
        {{users, name, DirectoryMatch::any, {}}, "(&(objectCategory=person)(objectClass=user))"},
        {{both, name, DirectoryMatch::equalTo, {std::string("a*(\\)\0é", 8)}},
         "(&(|(&(objectCategory=person)(objectClass=user))(objectClass=group))"
         "(sAMAccountName=a\\2a\\28\\5c\\29\\00\\c3\\a9))"},
        {{users, name, DirectoryMatch::contains, {"x)(cn=*", ""}},
         "(&(&(objectCategory=person)(objectClass=user))"
         "(|(sAMAccountName=*x\\29\\28cn\\3d\\2a*)(sAMAccountName=*)))"},
        {{{"dsRecTypeStandard:Groups"}, "dsAttrTypeStandard:SMBSID", DirectoryMatch::equalTo, {"x", "S-1-5"}},
         "(&(objectClass=group)(objectSid=\\01\\00\\00\\00\\00\\00\\00\\05))"},
        {{users, "dsAttrTypeNative:cn=*)(cn", DirectoryMatch::equalTo, {"x"}}, std::nullopt},
        {{users, "dsAttrTypeStandard:SMBSID", DirectoryMatch::equalTo, {"*"}}, std::nullopt},
        {{users, "dsAttrTypeStandard:SMBSID", DirectoryMatch::contains, {"S-1-5"}}, std::nullopt},
        {{users, name, DirectoryMatch::equalTo, {}}, std::nullopt},
        {{users, name, DirectoryMatch::equalTo, {""}}, std::nullopt},
        {{{"dsRecTypeStandard:Computers"}, name, DirectoryMatch::any, {}}, std::nullopt},
    };
    for (const auto& each : cases)
        EXPECT_EQ(ldapFilter(each.query), each.filter);
    EXPECT_TRUE(isBelow("CN=a,DC=B,DC=c", "dc=b,dc=c"));
    EXPECT_FALSE(isBelow("DC=ab,DC=c", "DC=b,DC=c"));
}

/// A server without manners: answers each request with a text, whatever it asks. Requests count from 1, as a
/// client's message numbers do.
struct RudeServer : test::TestServer {
    explicit RudeServer(const std::function<std::string(int request)>& answer)
        : TestServer([answer](const test::Socket& client) {
            for (int number = 1; !client.receive(4096).empty(); ++number)
                client.send(answer(number));
        }) {}
    std::string address() const { return "127.0.0.1:" + std::to_string(port()); }
};

struct SameItem : Keychain {
    KeychainResult findInternetPassword(const std::string&) override {
        return {0, KeychainItem{account, Secret("s3cret")}};
    }
    std::string account = "u";
};

const DirectoryQuery everyUser{users, "", DirectoryMatch::any, {}};

struct Client {
    explicit Client(const std::string& address = "", const std::string& baseName = "dc=north,dc=example",
                    std::chrono::milliseconds limit = std::chrono::seconds(20))
        : base(LDAP_OPT_DEFBASE, baseName)
        , uri(LDAP_OPT_URI, address)
        , timeLimit(limit) {}
    test::LdapSetting base;
    test::LdapSetting uri;
    std::chrono::milliseconds timeLimit;
    Texts log;
    std::shared_ptr<SameItem> keychain = std::make_shared<SameItem>();
    LdapDirectory directory{keychain, [this](std::string_view line) { log.emplace_back(line); }, timeLimit};
};

TEST(LdapDirectory, IsUnboundWithoutBase) {
    Client client("", "");
    EXPECT_EQ(client.directory.activeDirectoryState(), std::nullopt);
    EXPECT_THAT(client.directory.nodeNames().value(), IsEmpty());
    EXPECT_EQ(client.directory.openNetworkNode(), nullptr);
    EXPECT_EQ(client.directory.openNode("/Active Directory/A"), nullptr);
    client.directory.prefetch({"S-1-5"});
    EXPECT_FALSE(client.directory.managedIdentities(IdentityClass::user).has_value());
    EXPECT_THAT(client.log, IsEmpty());
}

TEST(LdapDirectory, SurvivesRudeServers) {
    const struct {
        const char* scheme;
        Texts answers; ///< "endless" stands for pages without end, "flood" for entries of 72 MB
        const char* line;
    } cases[] = {
        {"ldap", {""}, "does not answer within the time limit"},
        {"ldaps", {""}, "does not answer within the time limit"},
        {"ldaps", {"no TLS at all"}, "beginning of TLS"},
        {"ldap", {std::string("\x30\x84\x7f\xff\xff\xff", 6)}, "has closed the connection"},
        {"ldap", {bound, root, domains, message(4, element(0x65, "\x0a\1\x33\4\0\4\0"s))}, "is busy"},
        {"ldap", {bound, root, domains, "flood"}, "answers with more than can be taken"},
        {"ldap", {bound, done(2)}, "is no Active Directory"},
        {"ldap", {bound, root, domains, "garbage"}, "time limit"},
        {"ldap", {bound, root, domains, "endless"}, "time limit"},
    };
    for (const auto& [scheme, answers, line] : cases) {
        const RudeServer server([&all = answers](int request) {
            const std::string& answer = all[std::min(all.size(), static_cast<std::size_t>(request)) - 1];
            if (answer == "flood") {
                const std::string one = entry(request, {{"sAMAccountName", std::string(60'000, 'x')}});
                std::string text;
                for (int count = 0; count < 1200; ++count)
                    text += one;
                return text;
            }
            return answer == "endless" ? done(request, "more") : answer;
        });
        const bool waits = std::string_view(line).ends_with("time limit");
        Client client(std::string(scheme) + "://" + server.address(), "dc=north,dc=example",
                      waits ? std::chrono::milliseconds(300) : std::chrono::seconds(20));
        if (const auto node = client.directory.openNetworkNode()) {
            EXPECT_EQ(node->query(everyUser), std::nullopt);
        }
        EXPECT_EQ(client.directory.openNetworkNode(), nullptr); // at once, and in silence
        EXPECT_THAT(client.log, ElementsAre(HasSubstr(line))) << answers.back();
        EXPECT_EQ(client.directory.activeDirectoryState().value().at("NodeName"), "/Active Directory/NORTH");
    }
}

TEST(LdapDirectory, SendsARefusedPasswordNowhereElseAndNotAgain) {
    std::atomic<int> first = 0;
    std::atomic<int> second = 0;
    const RudeServer refusing([&first](int id) {
        first += id == 1; // and not the farewell
        return message(id, element(0x61, "\x0a\1\x31\4\0\4\0"s));
    });
    const RudeServer next([&second](int) {
        ++second;
        return bound;
    });
    Client client("ldap://" + refusing.address() + " ldap://" + next.address());
    for (int times = 0; times < 2; ++times)
        EXPECT_EQ(client.directory.openNetworkNode(), nullptr);
    EXPECT_THAT(client.log, ElementsAre(HasSubstr("refuses the keyring's password of u@north.example")));
    EXPECT_EQ(std::pair(first.load(), second.load()), std::pair(1, 0));

    for (const char* account : {"u@south.example", "SOUTH\\u", "cn=u,dc=south"}) { // which name their domain
        Client whole("ldap://" + refusing.address());
        whole.keychain->account = account;
        EXPECT_EQ(whole.directory.openNetworkNode(), nullptr);
        EXPECT_THAT(whole.log, ElementsAre(testing::EndsWith(std::string("password of ") + account)));
    }
}

TEST(LdapDirectory, FollowsNoReferral) {
    std::atomic<int> asked = 0;
    const RudeServer elsewhere([&asked](int) {
        ++asked;
        return bound;
    });
    const std::string address = element(4, "ldap://" + elsewhere.address() + "/DC=a");
    const std::string reference = message(4, element(0x73, address)) + done(4);
    const std::string referral = message(4, element(0x65, "\x0a\1\x0a\4\0\4\0"s + element(0xA3, address)));
    for (const auto& [answer, found] : {std::pair{reference, true}, {referral, false}}) {
        const RudeServer server([&all = answer](int request) {
            return Texts{"", bound, root, domains, all}[static_cast<std::size_t>(request) % 5];
        });
        Client client("ldap://" + server.address(), "dc=a");
        EXPECT_EQ(client.directory.openNetworkNode()->query(everyUser).has_value(), found);
        EXPECT_EQ(asked, 0);
    }
}

TEST(LdapDirectory, ReadsAllValuesOfAnAttributeThatComesInRanges) {
    const RudeServer server([](int request) {
        const Texts answers = {"",
                               bound,
                               root,
                               domains,
                               entry(4, {{"sAMAccountName", "x"}}) + done(4),
                               entry(5, {{"memberOf;range=0-0", "CN=a"}}) + done(5),
                               entry(6, {{"memberOf;range=1-1", "CN=b"}}) + done(6),
                               entry(7, {{"memberOf;range=2-*", "CN=c"}}) + done(7)};
        return request < 8 ? answers[static_cast<std::size_t>(request)] : "";
    });
    Client client("ldap://" + server.address(), "dc=a");
    const auto found = client.directory.openNode("/Active Directory/A")->query(everyUser).value();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_THAT(found[0]->values("dsAttrTypeNative:memberOf").value(), ElementsAre("CN=a", "CN=b", "CN=c"));
    EXPECT_THAT(client.log, IsEmpty());
}

TEST(LdapDirectory, TakesBrokenEntriesAsTheyAre) {
    const RudeServer server([](int request) {
        const Texts answers = {"", bound, root, domains};
        return request <= 3 ? answers[static_cast<std::size_t>(request)]
                            : entry(request, {{"objectSid", "\1\5"}}) + done(request);
    });
    Client client("ldap://" + server.address(), "dc=a");
    const auto found = client.directory.openNode("/Active Directory/A")->query(everyUser);
    ASSERT_EQ(found.value().size(), 1U);
    EXPECT_THAT(found->front()->values("dsAttrTypeStandard:RecordName").value(), IsEmpty());
    EXPECT_THAT(found->front()->values("dsAttrTypeStandard:SMBSID").value(), IsEmpty());
    EXPECT_THAT(client.directory.managedIdentities(IdentityClass::user).value(), IsEmpty());
    EXPECT_THAT(client.log, IsEmpty());
}

} // namespace
} // namespace quorvan::platform
