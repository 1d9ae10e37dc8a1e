// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/LdapDirectory.h"
#include "Tests/System/ActiveDirectoryServer.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace quorvan::test {

using namespace platform;
using Texts = std::vector<std::string>;

inline const std::string recordName = "dsAttrTypeStandard:RecordName";
inline const std::string smbSid = "dsAttrTypeStandard:SMBSID";
inline const Texts users{"dsRecTypeStandard:Users"};
inline const Texts groups{"dsRecTypeStandard:Groups"};
inline const Texts both{"dsRecTypeStandard:Users", "dsRecTypeStandard:Groups"};
inline const std::string domainNode = "/Active Directory/QUORVAN/All Domains";
inline const std::string odd = "Zoë (q*x\\y)";

struct OneItem : Keychain {
    std::string server, account = DomainController::administrator, data = DomainController::password;
    KeychainResult findInternetPassword(const std::string& wanted) override {
        if (wanted != server)
            return {-25300, std::nullopt};
        return {0, KeychainItem{account, data}};
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
    Texts find(const DirectoryQuery& query) {
        const auto node = client()->openNode(domainNode);
        return node ? namesOf(node->query(query)) : Texts{"no node"};
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

} // namespace quorvan::test
