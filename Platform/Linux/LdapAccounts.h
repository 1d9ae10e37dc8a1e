// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/DirectoryServices.h"
#include "Platform/Linux/LdapConnection.h"

#include <unordered_map>

namespace quorvan::platform {

struct LdapDomain {
    std::string name; ///< NetBIOS name
    std::string base; ///< distinguished name of its top
    bool isHeld;      ///< whether the server has its accounts
};

struct LdapAccount {
    std::string distinguishedName;
    std::optional<std::string> name;
    std::optional<std::string> sid; ///< S-1-…
    std::string domain;             ///< NetBIOS name
    std::string recordType;         ///< "" for what is neither user nor group
};

/// The users and groups of a forest. Those found by their security identifier are remembered as long as
/// the connection lives.
class LdapAccounts {
public:
    using Found = std::vector<std::shared_ptr<const LdapAccount>>;

    explicit LdapAccounts(LdapConnection connection);

    LdapConnection& connection() { return connection_; }

    /// Whether the server can be talked to and the forest is known, after finding out if it was not.
    bool load();

    const std::vector<LdapDomain>& domains() const { return domains_; }

    /// The domain that BASE lies in; null when nothing is loaded.
    const LdapDomain* boundDomain() const;

    /// The tops of everything the server holds.
    std::vector<std::string> bases() const;

    /// What matches a query below some tops.
    std::optional<Found> find(const std::vector<std::string>& bases, const DirectoryQuery& query);

    /// Asks for the accounts of those identifiers that are not known yet.
    bool prefetch(const std::vector<std::string>& sids);

    /// An attribute of an object as the directory has it.
    std::optional<std::vector<std::string>> read(const std::string& distinguishedName,
                                                 const std::string& attribute);

private:
    bool readForest();
    std::shared_ptr<const LdapAccount> accountOf(LdapEntry entry) const;
    std::optional<Found> search(const std::vector<std::string>& bases, const std::string& filter,
                                std::size_t limit);
    std::optional<Found> findBySid(const std::vector<std::string>& bases, const DirectoryQuery& query);
    bool isCurrent() const { return loaded_ == connection_.openings(); }

    LdapConnection connection_;
    unsigned loaded_ = 0; ///< the opening that the rest was learnt through
    std::vector<LdapDomain> domains_;
    std::string defaultBase_;
    std::unordered_map<std::string, Found> bySid_; ///< by bytes; empty for an identifier that nobody has
};

} // namespace quorvan::platform
