// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any text as what a directory answers: one value a line, of the attribute that its first letter names. A
// line
// "/…" is the name of a node, "." begins the next record, "!x" makes attribute x unreadable, "?" ends an
// answer before it is complete.
#include "Quorvan/ViewModal/BrowseLdapViewModal.h"
#include "Quorvan/ViewModal/OldBrowseLdapViewModal.h"
#include "Quorvan/ViewModal/RightsWay.h"
#include "Quorvan/ViewModal/UsersViewModal.h"
#include "Tests/Fuzz/Harness.h"

#include <sstream>

using namespace quorvan;

namespace {

constexpr std::size_t mostRecords = 50; ///< of one answer, which each question gets anew

const std::map<char, std::string> attributes{
    {'n', kODAttributeTypeRecordName},      {'s', kODAttributeTypeSMBSID},
    {'d', kODAttributeTypePrimaryNTDomain}, {'t', kODAttributeTypeRecordType},
    {'m', platform::nativeMemberOf},
};

struct ScriptedDirectory : test::FakeDirectory {
    std::optional<platform::DirectoryRecords> answer;
    std::vector<std::string> nodes;

    struct Node : platform::DirectoryNode {
        explicit Node(ScriptedDirectory& owner)
            : directory(owner) {}
        std::optional<platform::DirectoryRecords> query(const platform::DirectoryQuery&) override {
            return directory.answer;
        }
        ScriptedDirectory& directory;
    };
    std::shared_ptr<platform::DirectoryNode> openNode(const std::string& name) override {
        return name == "nowhere" ? nullptr : std::make_shared<Node>(*this);
    }
    std::shared_ptr<platform::DirectoryNode> openNetworkNode() override {
        return openNode(nodes.empty() ? "" : nodes[0]);
    }
    std::optional<std::vector<std::string>> nodeNames() override {
        return nodes.empty() ? std::nullopt : std::optional(nodes);
    }
    std::optional<std::vector<platform::ManagedIdentity>>
    managedIdentities(platform::IdentityClass identityClass) override {
        return std::vector<platform::ManagedIdentity>(
            static_cast<std::size_t>(identityClass),
            {nodes.empty() ? std::nullopt : std::optional(nodes.front())});
    }

    void play(const std::string& script) {
        nodes.clear();
        answer.emplace();
        std::istringstream lines(script);
        std::shared_ptr<test::FakeRecord> record;
        for (std::string line; std::getline(lines, line);) {
            if (line == "?")
                return answer.reset();
            const auto attribute = attributes.find(line[line.starts_with('!') ? 1 : 0]);
            if (line.starts_with('/')) {
                nodes.push_back(line);
            } else if (!record || line == ".") {
                if (answer->size() == mostRecords)
                    return;
                record =
                    std::make_shared<test::FakeRecord>(std::map<std::string, std::vector<std::string>>());
                for (const auto& [letter, name] : attributes)
                    record->attributes[name];
                answer->push_back(record);
            } else if (attribute != attributes.end() && line.starts_with('!')) {
                record->attributes.erase(attribute->second);
            } else if (attribute != attributes.end()) {
                record->attributes[attribute->second].push_back(line.substr(1));
            }
        }
    }
};

void browse(const std::string& category) {
    BrowseLdapViewModal browser(category);
    for (const std::string& domain : BrowseLdapViewModal::getAvaialbleDomains())
        browser.selectedDomain = domain;
    const std::size_t listed = browser.getUserListforType(category).size();
    test::expect(listed <= mostRecords && (listed == 0 || !browser.listingFailed));
    test::survive([&] { test::expect(browser.searchAD("x", category).size() <= mostRecords); });
    test::survive([&] { browser.getGroupMembership("S-1-1-0"); });
    OldBrowseLdapViewModal old(category);
    OldBrowseLdapViewModal::searchAD("x", category);
    old.ldapUserList();
    old.ldapGroupList();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static test::FuzzWorld world;
    static const auto directory = std::make_shared<ScriptedDirectory>();
    platform::Services services = platform::services();
    services.directory = directory;
    const platform::ScopedServices installed(services);
    directory->play(std::string(test::textOf(data, size)));
    world.world.alerts->shown.clear();

    const DirectoryLookup lookup;
    DirectoryLookup::prefetch({"S-1-1-0"});
    const std::string name = lookup.lookupAttrValueFromID("S-1-1-0", kODAttributeTypeRecordName);
    test::expect(!name.empty() && name.find(':') == std::string::npos);
    lookup.getSidforObject("x", "Users", kODAttributeTypeRecordName);
    Trustees trustee;
    trustee.trusteeID = "S-1-1-0";
    test::survive([&] { lookup.setTrusteeTypeforTrustee(trustee); });
    test::expect(world.world.alerts->shown.size() <= 1); // for a whole list
    for (const char* category : {"Users", "Groups"})
        test::survive([&] { browse(category); });
    test::expect(holdersOfActiveDirectory({"S-1-1-0", "everyone"}).size() <= 1000);
    return 0;
}
