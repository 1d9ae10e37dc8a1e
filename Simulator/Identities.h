// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvan::simulator {

enum class IdentityKind { activeDirectory, morvane };

/// A user or group that can be a trustee; in the tree also a container.
struct Identity {
    IdentityKind kind = IdentityKind::activeDirectory;
    std::string name;              ///< as the server shows it: account name, or CN=x.OU=y.O=z in the tree
    std::string id;                ///< SID (S-1-…) or GUID
    std::string objectClass;       ///< "user", "group"; in the tree "inetOrgPerson", "groupOfNames",
                                   ///< "organization", "organizational unit"
    std::string distinguishedName; ///< CN=x,OU=y,DC=z, or \TREE\O=z\OU=y\CN=x in the tree
    std::string domain;            ///< NetBIOS name of the domain, or name of the tree
    std::vector<const Identity*> groups; ///< of which it is a direct member
    const Identity* container = nullptr; ///< where it lies in the tree; null at the top of it

    bool isGroup() const;
    bool isUser() const;
};

/// The users and groups of both directories; servers and MemoryDirectory share one.
///
/// Entries live as long as the store. Every look-up by a single value takes constant time; the index
/// of names is made when the first one is looked up, so even look-ups are not for several threads
/// at once.
class Identities {
public:
    /// Adds an identity; a second one with the same id is not added, the first is returned.
    Identity& add(Identity identity);

    /// Shorthands that make up the rest from the store's domain or tree; a tree name is given without
    /// its type, the unit is the container it lies in, made when there is none yet.
    Identity& addDomainUser(const std::string& name, const std::string& sid) {
        return addDomainIdentity(name, sid, "user");
    }
    Identity& addDomainGroup(const std::string& name, const std::string& sid) {
        return addDomainIdentity(name, sid, "group");
    }
    Identity& addTreeUser(const std::string& name, const std::string& unit, const std::string& guid) {
        return addTreeIdentity(name, unit, guid, "inetOrgPerson");
    }
    Identity& addTreeGroup(const std::string& name, const std::string& unit, const std::string& guid) {
        return addTreeIdentity(name, unit, guid, "groupOfNames");
    }

    const Identity* findById(std::string_view id) const;

    /// By distinguished name or, in the tree, by name as well; case does not count.
    const Identity* findByDistinguishedName(std::string_view name) const;

    /// All with this name; case does not count.
    std::vector<const Identity*> findByName(std::string_view name) const;

    /// All with this text somewhere in their names, in the order of the store; case does not count.
    std::vector<const Identity*> findByPartOfName(std::string_view part) const;

    const std::deque<Identity>& all() const { return identities_; }

    std::string domain = "MERIDAL"; ///< of the identities that addDomain… makes
    std::string domainSuffix = "DC=meridal,DC=example";
    std::string tree = "MERIDAL-TREE"; ///< of those that addTree… makes
    std::string organization = "Meridal";

private:
    Identity& addDomainIdentity(const std::string& name, const std::string& sid, const char* objectClass);
    Identity& addTreeIdentity(const std::string& name, const std::string& unit, const std::string& guid,
                              const char* objectClass);
    const Identity& container(const char* type, const std::string& name, const char* objectClass,
                              const Identity* parent);

    struct NameIndex {
        std::vector<std::string> foldedNames; ///< one for each identity that is in the index yet
        std::unordered_multimap<std::string, const Identity*> byName;
        std::unordered_map<std::string, const Identity*> byDistinguishedName;
    };
    const NameIndex& names() const;

    std::deque<Identity> identities_;
    std::unordered_map<std::string, Identity*> byId_;
    mutable NameIndex names_;
};

/// The identity and everything that its rights come from: the containers above it, its groups and theirs,
/// each once.
std::vector<const Identity*> withAllGroups(const Identity& identity);

} // namespace quorvan::simulator
