// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Identities.h"

#include "Simulator/Text.h"

#include <unordered_set>
#include <utility>

namespace quorvan::simulator {

bool Identity::isGroup() const {
    const std::string folded = fold(objectClass);
    return folded == "group" || folded == "groupofnames";
}

Identity& Identities::add(Identity identity) {
    const auto known = byId_.find(identity.id);
    if (known != byId_.end())
        return *known->second;
    Identity& added = identities_.emplace_back(std::move(identity));
    byId_.emplace(added.id, &added);
    byName_.emplace(fold(added.name), &added);
    byDistinguishedName_.emplace(fold(added.distinguishedName), &added);
    if (added.kind == IdentityKind::morvane)
        byDistinguishedName_.emplace(fold(added.name), &added);
    return added;
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
    return add({IdentityKind::morvane,
                "CN=" + name + ".OU=" + unit + ".O=" + organization,
                guid,
                objectClass,
                "\\" + tree + "\\O=" + organization + "\\OU=" + unit + "\\CN=" + name,
                tree,
                {}});
}

const Identity* Identities::findById(std::string_view id) const {
    const auto found = byId_.find(std::string(id));
    return found == byId_.end() ? nullptr : found->second;
}

const Identity* Identities::findByDistinguishedName(std::string_view name) const {
    const auto found = byDistinguishedName_.find(fold(name));
    return found == byDistinguishedName_.end() ? nullptr : found->second;
}

std::vector<const Identity*> Identities::findByName(std::string_view name) const {
    std::vector<const Identity*> found;
    const auto [from, to] = byName_.equal_range(fold(name));
    for (auto at = from; at != to; ++at)
        found.push_back(at->second);
    return found;
}

std::vector<const Identity*> withAllGroups(const Identity& identity) {
    std::vector<const Identity*> reached{&identity};
    std::unordered_set<const Identity*> seen{&identity};
    for (std::size_t next = 0; next < reached.size(); ++next) {
        for (const Identity* group : reached[next]->groups) {
            if (seen.insert(group).second)
                reached.push_back(group);
        }
    }
    return reached;
}

} // namespace quorvan::simulator
