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
    for (std::size_t next = 0; next < reached.size(); ++next) {
        for (const Identity* group : reached[next]->groups) {
            if (seen.insert(group).second)
                reached.push_back(group);
        }
    }
    return reached;
}

} // namespace quorvan::simulator
