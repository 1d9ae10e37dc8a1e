// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Identities.h"

#include "Simulator/Text.h"

#include <cstdint>
#include <unordered_set>
#include <utility>

namespace quorvan::simulator {

namespace {

/// A GUID that is always the same for a text (FNV-1a).
std::string guidOf(std::string_view text) {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (const char c : text)
        hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3;
    std::string digits;
    for (int shift = 60; shift >= 0; shift -= 4)
        digits += "0123456789abcdef"[(hash >> shift) & 0xF];
    return digits.substr(0, 8) + "-" + digits.substr(8, 4) + "-4000-8000-00000000" + digits.substr(12);
}

} // namespace

bool Identity::isGroup() const {
    const std::string folded = fold(objectClass);
    return folded == "group" || folded == "groupofnames";
}

bool Identity::isUser() const {
    const std::string folded = fold(objectClass);
    return folded == "user" || folded == "inetorgperson";
}

Identity& Identities::add(Identity identity) {
    const auto known = byId_.find(identity.id);
    if (known != byId_.end())
        return *known->second;
    Identity& added = identities_.emplace_back(std::move(identity));
    byId_.emplace(added.id, &added);
    return added;
}

const Identities::NameIndex& Identities::names() const {
    while (names_.foldedNames.size() < identities_.size()) {
        const Identity& next = identities_[names_.foldedNames.size()];
        const std::string& name = names_.foldedNames.emplace_back(fold(next.name));
        names_.byName.emplace(name, &next);
        names_.byDistinguishedName.emplace(fold(next.distinguishedName), &next);
        if (next.kind == IdentityKind::morvane)
            names_.byDistinguishedName.emplace(name, &next);
    }
    return names_;
}

Identity& Identities::addDomainIdentity(const std::string& name, const std::string& sid,
                                        const char* objectClass) {
    return add({IdentityKind::activeDirectory,
                name,
                sid,
                objectClass,
                "CN=" + name + ",CN=Users," + domainSuffix,
                domain,
                {}});
}

Identity& Identities::addTreeIdentity(const std::string& name, const std::string& unit,
                                      const std::string& guid, const char* objectClass) {
    const Identity& top = container("O", organization, "organization", nullptr);
    const Identity& parent = container("OU", unit, "organizational unit", &top);
    return add({IdentityKind::morvane,
                "CN=" + name + "." + parent.name,
                guid,
                objectClass,
                parent.distinguishedName + "\\CN=" + name,
                tree,
                {},
                &parent});
}

const Identity& Identities::container(const char* type, const std::string& name, const char* objectClass,
                                      const Identity* parent) {
    const std::string typed = std::string(type) + "=" + name;
    const std::string path = (parent == nullptr ? "\\" + tree : parent->distinguishedName) + "\\" + typed;
    std::string id = guidOf(path);
    return add({IdentityKind::morvane,
                parent == nullptr ? typed : typed + "." + parent->name,
                std::move(id),
                objectClass,
                path,
                tree,
                {},
                parent});
}

const Identity* Identities::findById(std::string_view id) const {
    const auto found = byId_.find(std::string(id));
    return found == byId_.end() ? nullptr : found->second;
}

const Identity* Identities::findByDistinguishedName(std::string_view name) const {
    const auto& index = names().byDistinguishedName;
    const auto found = index.find(fold(name));
    return found == index.end() ? nullptr : found->second;
}

std::vector<const Identity*> Identities::findByName(std::string_view name) const {
    std::vector<const Identity*> found;
    const auto [from, to] = names().byName.equal_range(fold(name));
    for (auto at = from; at != to; ++at)
        found.push_back(at->second);
    return found;
}

std::vector<const Identity*> Identities::findByPartOfName(std::string_view part) const {
    std::vector<const Identity*> found;
    const std::vector<std::string>& all = names().foldedNames;
    const std::string wanted = fold(part);
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].find(wanted) != std::string::npos)
            found.push_back(&identities_[i]);
    }
    return found;
}

std::vector<const Identity*> withAllGroups(const Identity& identity) {
    std::vector<const Identity*> reached{&identity};
    std::unordered_set<const Identity*> seen{&identity};
    for (const Identity* above = identity.container; above != nullptr; above = above->container) {
        seen.insert(above);
        reached.push_back(above);
    }
    for (std::size_t next = 0; next < reached.size(); ++next) {
        for (const Identity* group : reached[next]->groups) {
            if (seen.insert(group).second)
                reached.push_back(group);
        }
    }
    return reached;
}

} // namespace quorvan::simulator
