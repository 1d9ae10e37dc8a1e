// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes as what a directory server sends once the user is logged in; "NEXT" stands before what answers
// the next question. Where the bytes end, the connection does.
#include "Platform/Linux/LdapDirectory.h"
#include "Tests/Fuzz/Harness.h"
#include "Tests/Support/LdapMessages.h"
#include "Tests/Support/LdapSetting.h"
#include "Tests/Support/Socket.h"

#include <atomic>
#include <memory>

using namespace quorvan;
using namespace quorvan::platform;

namespace {

using Answers = std::vector<std::string>; ///< to the questions, in their order
std::atomic<std::shared_ptr<const Answers>> answers;

void serve(const test::Socket& client) {
    const auto own = answers.load();
    for (const std::string& answer : *own)
        if (client.receive(1U << 16U).empty() || !client.send(answer))
            return;
}

Answers answersIn(std::string_view text) {
    constexpr std::string_view next = "NEXT";
    Answers all{test::ldap::bound, test::ldap::root, test::ldap::domains};
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find(next, begin), text.size());
        all.emplace_back(text.substr(begin, end - begin));
        begin = end + next.size();
    }
    return all;
}

struct SameItem : Keychain {
    KeychainResult findInternetPassword(const std::string&) override {
        return {0, KeychainItem{"u", Secret("s3cret")}};
    }
};

void ask(DirectoryServices& directory) {
    const auto node = directory.openNetworkNode();
    const auto found = node ? node->query({{kODRecordTypeUsers}, "", DirectoryMatch::any, {}}) : std::nullopt;
    for (const auto& record : found.value_or(DirectoryRecords()))
        for (const char* attribute : {kODAttributeTypeRecordName, kODAttributeTypeSMBSID,
                                      kODAttributeTypePrimaryNTDomain, nativeMemberOf})
            record->values(attribute);
    directory.prefetch({"S-1-1-0"});
    directory.nodeNames();
    directory.managedIdentities(IdentityClass::user);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::TestServer server(serve);
    static const test::LdapSetting base(LDAP_OPT_DEFBASE, "dc=a");
    static const test::LdapSetting uri(LDAP_OPT_URI, "ldap://127.0.0.1:" + std::to_string(server.port()));
    answers = std::make_shared<const Answers>(answersIn(test::textOf(data, size)));
    int lines = 0;
    LdapDirectory directory(
        std::make_shared<SameItem>(), [&lines](std::string_view) { ++lines; }, std::chrono::milliseconds(30));
    ask(directory);
    test::expect(lines <= 2);
    return 0;
}
