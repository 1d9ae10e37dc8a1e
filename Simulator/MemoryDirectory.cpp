// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/MemoryDirectory.h"

#include "Simulator/Text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace quorvan::simulator {

namespace {

using State = MemoryDirectory::State;
using Values = std::vector<std::string>;

const std::string recordName = platform::kODAttributeTypeRecordName;
const std::string sid = platform::kODAttributeTypeSMBSID;
const std::string distinguishedName = platform::nativeDistinguishedName;
constexpr const char* users = platform::kODRecordTypeUsers;
constexpr const char* groups = platform::kODRecordTypeGroups;

Values memberOf(const Identity& identity) {
    Values names;
    for (const Identity* group : identity.groups)
        names.push_back(group->distinguishedName);
    return names;
}

Values valuesOf(const Identity& identity, const std::string& attribute) {
    using Getter = Values (*)(const Identity&);
    static const std::map<std::string, Getter> getters{
        {recordName, [](const Identity& i) { return Values{i.name}; }},
        {sid, [](const Identity& i) { return i.id.empty() ? Values() : Values{i.id}; }},
        {platform::kODAttributeTypePrimaryNTDomain, [](const Identity& i) { return Values{i.domain}; }},
        {platform::kODAttributeTypeRecordType,
         [](const Identity& i) { return Values{i.isGroup() ? groups : users}; }},
        {"dsAttrTypeNative:cn", [](const Identity& i) { return Values{i.name}; }},
        {"dsAttrTypeNative:sAMAccountName", [](const Identity& i) { return Values{i.name}; }},
        {"dsAttrTypeNative:objectSid",
         [](const Identity& i) { return i.id.empty() ? Values() : Values{i.id}; }},
        {distinguishedName, [](const Identity& i) { return Values{i.distinguishedName}; }},
        {"dsAttrTypeNative:objectClass",
         [](const Identity& i) {
             return Values{"top", i.objectClass};
         }},
        {platform::nativeMemberOf, memberOf},
    };
    const auto getter = getters.find(attribute);
    return getter == getters.end() ? Values() : getter->second(identity);
}

class MemoryRecord : public platform::DirectoryRecord {
public:
    MemoryRecord(const Identity& identity, std::shared_ptr<const Identities> owner)
        : identity_(identity)
        , owner_(std::move(owner)) {}

    std::optional<Values> values(const std::string& attribute) override {
        return valuesOf(identity_, attribute);
    }

private:
    const Identity& identity_;
    std::shared_ptr<const Identities> owner_; ///< keeps identity_ alive
};

class MemoryNode : public platform::DirectoryNode {
public:
    /// Searches one domain, or all when there is none.
    MemoryNode(std::shared_ptr<const Identities> identities, std::shared_ptr<State> state,
               std::optional<std::string> domain)
        : identities_(std::move(identities))
        , state_(std::move(state))
        , domain_(std::move(domain)) {}

    std::optional<platform::DirectoryRecords> query(const platform::DirectoryQuery& query) override {
        ++state_->queries;
        if (state_->failQueries) {
            errno = ECONNRESET;
            return std::nullopt;
        }
        platform::DirectoryRecords records;
        for (const Identity* identity : candidates(query)) {
            if (query.limit != 0 && records.size() == query.limit)
                break;
            if (isAsked(*identity, query))
                records.push_back(std::make_shared<MemoryRecord>(*identity, identities_));
        }
        return records;
    }

private:
    /// What the store's indexes know to be all possible matches, or everything where they know nothing.
    std::vector<const Identity*> candidates(const platform::DirectoryQuery& query) const {
        const bool equal = query.match == platform::DirectoryMatch::equalTo;
        const bool part = query.match == platform::DirectoryMatch::contains;
        std::vector<const Identity*> found;
        const auto add = [&](const std::vector<const Identity*>& more) {
            found.insert(found.end(), more.begin(), more.end());
        };
        if (query.attribute == recordName && equal) {
            for (const std::string& value : query.values)
                add(identities_->findByName(value));
        } else if (query.attribute == recordName && part && query.values.size() == 1) {
            add(identities_->findByPartOfName(query.values.front()));
        } else if (equal && (query.attribute == sid || query.attribute == distinguishedName)) {
            for (const std::string& value : query.values) {
                const Identity* one = query.attribute == sid ? identities_->findById(value)
                                                             : identities_->findByDistinguishedName(value);
                if (one != nullptr)
                    found.push_back(one);
            }
        } else {
            for (const Identity& each : identities_->all())
                found.push_back(&each);
        }
        return found;
    }

    bool isAsked(const Identity& identity, const platform::DirectoryQuery& query) const {
        const auto& types = query.recordTypes;
        if (identity.kind != IdentityKind::activeDirectory || (domain_ && identity.domain != *domain_) ||
            std::find(types.begin(), types.end(), identity.isGroup() ? groups : users) == types.end())
            return false;
        if (query.match == platform::DirectoryMatch::any)
            return true;
        for (const std::string& value : valuesOf(identity, query.attribute)) {
            for (const std::string& wanted : query.values) {
                const std::string folded = fold(value);
                if (query.match == platform::DirectoryMatch::equalTo
                        ? folded == fold(wanted)
                        : folded.find(fold(wanted)) != std::string::npos)
                    return true;
            }
        }
        return false;
    }

    std::shared_ptr<const Identities> identities_;
    std::shared_ptr<State> state_;
    std::optional<std::string> domain_;
};

const std::string nodePrefix = platform::activeDirectoryNode + std::string("/");
const std::string forestSuffix = platform::allDomainsNode;

/// The domain by itself, and the forest that is reached through it.
std::array<std::string, 2> nodesOf(const std::string& domain) {
    const std::string node = nodePrefix + domain;
    return {node, node + forestSuffix};
}

} // namespace

MemoryDirectory::MemoryDirectory(std::shared_ptr<const Identities> identities)
    : identities_(std::move(identities)) {}

std::optional<std::map<std::string, std::string>> MemoryDirectory::activeDirectoryState() {
    if (!state_->bound)
        return std::nullopt;
    return std::map<std::string, std::string>{{platform::nodeNameKey, nodePrefix + identities_->domain}};
}

std::vector<std::string> MemoryDirectory::domains() const {
    std::vector<std::string> found{identities_->domain};
    for (const Identity& each : identities_->all()) {
        if (each.kind == IdentityKind::activeDirectory &&
            std::find(found.begin(), found.end(), each.domain) == found.end())
            found.push_back(each.domain);
    }
    return found;
}

std::optional<std::vector<std::string>> MemoryDirectory::nodeNames() {
    if (state_->failNodes) {
        errno = EIO;
        return std::nullopt;
    }
    std::vector<std::string> names{"/Local/Default"};
    if (!state_->bound)
        return names;
    std::vector<std::string> all = domains();
    all.insert(all.end(), state_->unreachable.begin(), state_->unreachable.end());
    for (const std::string& domain : all)
        for (const std::string& node : nodesOf(domain))
            names.push_back(node);
    return names;
}

std::shared_ptr<platform::DirectoryNode> MemoryDirectory::openNode(const std::string& name) {
    if (state_->bound && !state_->failNodes) {
        for (const std::string& domain : domains()) {
            if (const auto nodes = nodesOf(domain); std::ranges::count(nodes, name) != 0)
                return std::make_shared<MemoryNode>(identities_, state_, domain);
        }
        if (name == "/Local/Default")
            return std::make_shared<MemoryNode>(identities_, state_, "");
    }
    errno = EHOSTUNREACH;
    return nullptr;
}

std::shared_ptr<platform::DirectoryNode> MemoryDirectory::openNetworkNode() {
    if (state_->bound && !state_->failNodes)
        return std::make_shared<MemoryNode>(identities_, state_, std::nullopt);
    errno = EHOSTUNREACH;
    return nullptr;
}

std::optional<std::vector<platform::ManagedIdentity>>
MemoryDirectory::managedIdentities(platform::IdentityClass identityClass) {
    if (!state_->bound || state_->failQueries) {
        errno = EHOSTUNREACH;
        return std::nullopt;
    }
    std::vector<platform::ManagedIdentity> found;
    for (const Identity& each : identities_->all()) {
        if (each.kind == IdentityKind::activeDirectory && each.domain == identities_->domain &&
            each.isGroup() == (identityClass == platform::IdentityClass::group))
            found.push_back({each.name});
    }
    return found;
}

void MemoryDirectory::prefetch(const std::vector<std::string>& sids) {
    state_->prefetched.insert(state_->prefetched.end(), sids.begin(), sids.end());
}

} // namespace quorvan::simulator
