// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/LdapAccounts.h"

#include "Platform/Linux/LdapFilter.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace quorvan::platform {
namespace {

constexpr std::size_t batch = 100; ///< identifiers in one query

/// As ldapFilter() tells them apart: computers are of the class user too.
std::string recordTypeOf(const std::vector<std::string>& classes) {
    const auto has = [&](const char* name) {
        return std::find(classes.begin(), classes.end(), name) != classes.end();
    };
    return has("group") ? kODRecordTypeGroups : has("user") && !has("computer") ? kODRecordTypeUsers : "";
}

bool contains(const std::vector<std::string>& list, const std::string& wanted) {
    return std::find(list.begin(), list.end(), wanted) != list.end();
}

} // namespace

LdapAccounts::LdapAccounts(LdapConnection connection)
    : connection_(std::move(connection)) {}

bool LdapAccounts::load() {
    if (!connection_.open())
        return false;
    if (isCurrent())
        return true;
    bySid_.clear();
    if (!readForest())
        return false;
    loaded_ = connection_.openings();
    return true;
}

bool LdapAccounts::readForest() {
    const auto root =
        connection_.search({"",
                            LDAP_SCOPE_BASE,
                            "(objectClass=*)",
                            {"configurationNamingContext", "defaultNamingContext", "namingContexts"}});
    if (!root)
        return false;
    const std::string* configuration =
        root->empty() ? nullptr : root->front().first("configurationNamingContext");
    if (configuration == nullptr) {
        connection_.giveUp({EPROTO, "The directory of ldap.conf is no Active Directory"});
        return false;
    }
    const auto partitions = connection_.search({"CN=Partitions," + *configuration,
                                                LDAP_SCOPE_ONELEVEL,
                                                "(&(objectClass=crossRef)(nETBIOSName=*))",
                                                {"nETBIOSName", "nCName"}});
    if (!partitions || connection_.session() == nullptr)
        return false;
    const LdapEntry& server = root->front();
    const std::vector<std::string>& held = server.attributes.at("namingContexts");
    const std::string* defaultBase = server.first("defaultNamingContext");
    defaultBase_ = defaultBase == nullptr ? "" : *defaultBase;
    domains_.clear();
    for (const LdapEntry& each : *partitions) {
        const std::string* name = each.first("nETBIOSName");
        const std::string* base = each.first("nCName");
        if (name != nullptr && base != nullptr)
            domains_.push_back(
                {*name, *base, connection_.session()->isGlobalCatalogue() || contains(held, *base)});
    }
    return true;
}

const LdapDomain* LdapAccounts::boundDomain() const {
    const LdapDomain* bound = nullptr;
    for (const std::string& within : {LdapConnection::base(), defaultBase_}) {
        for (const LdapDomain& each : domains_) {
            if (isBelow(within, each.base) && (bound == nullptr || isBelow(each.base, bound->base)))
                bound = &each;
        }
        if (bound != nullptr)
            break;
    }
    return bound;
}

std::vector<std::string> LdapAccounts::bases() const {
    std::vector<std::string> found;
    for (const LdapDomain& each : domains_) {
        const bool isCovered = std::any_of(domains_.begin(), domains_.end(), [&](const LdapDomain& other) {
            return other.isHeld && &other != &each && isBelow(each.base, other.base);
        });
        if (each.isHeld && !isCovered)
            found.push_back(each.base);
    }
    return found;
}

std::shared_ptr<const LdapAccount> LdapAccounts::accountOf(LdapEntry entry) const {
    auto account = std::make_shared<LdapAccount>();
    if (const std::string* name = entry.first("sAMAccountName"))
        account->name = *name;
    if (const std::string* sid = entry.first("objectSid"))
        account->sid = sidText(*sid);
    account->recordType = recordTypeOf(entry.attributes["objectClass"]);
    std::size_t longest = 0;
    for (const LdapDomain& each : domains_) {
        if (each.base.size() > longest && isBelow(entry.distinguishedName, each.base)) {
            longest = each.base.size();
            account->domain = each.name;
        }
    }
    account->distinguishedName = std::move(entry.distinguishedName);
    return account;
}

std::optional<LdapAccounts::Found> LdapAccounts::search(const std::vector<std::string>& bases,
                                                        const std::string& filter, std::size_t limit) {
    Found found;
    for (const std::string& base : bases) {
        auto entries = connection_.search({base,
                                           LDAP_SCOPE_SUBTREE,
                                           filter,
                                           {"sAMAccountName", "objectSid", "objectClass"},
                                           limit == 0 ? 0 : limit - found.size()});
        if (!entries)
            return std::nullopt;
        for (LdapEntry& each : *entries)
            found.push_back(accountOf(std::move(each)));
        if (limit != 0 && found.size() >= limit)
            break;
    }
    return found;
}

std::optional<LdapAccounts::Found> LdapAccounts::find(const std::vector<std::string>& bases,
                                                      const DirectoryQuery& query) {
    if (!load())
        return std::nullopt;
    if (query.match == DirectoryMatch::equalTo && ldapAttribute(query.attribute) == "objectSid")
        return findBySid(bases, query);
    const std::optional<std::string> filter = ldapFilter(query);
    return filter ? search(bases, *filter, query.limit) : Found();
}

std::optional<LdapAccounts::Found> LdapAccounts::findBySid(const std::vector<std::string>& bases,
                                                           const DirectoryQuery& query) {
    if (!prefetch(query.values))
        return std::nullopt;
    Found found;
    for (const std::string& value : query.values) {
        const auto known = bySid_.find(sidBytes(value).value_or(""));
        if (known == bySid_.end())
            continue;
        for (const auto& account : known->second) {
            const bool isWanted = contains(query.recordTypes, account->recordType) &&
                                  std::any_of(bases.begin(), bases.end(), [&](const std::string& base) {
                                      return isBelow(account->distinguishedName, base);
                                  });
            if (isWanted && (query.limit == 0 || found.size() < query.limit))
                found.push_back(account);
        }
    }
    return found;
}

bool LdapAccounts::prefetch(const std::vector<std::string>& sids) {
    if (!load())
        return false;
    std::vector<std::string> unknown;
    for (const std::string& sid : sids) {
        const std::optional<std::string> bytes = sidBytes(sid);
        if (bytes && bySid_.count(*bytes) == 0)
            unknown.push_back(*bytes);
    }
    std::sort(unknown.begin(), unknown.end()); // a list names the same identity in many rows
    unknown.erase(std::unique(unknown.begin(), unknown.end()), unknown.end());
    const std::vector<std::string> everywhere = bases();
    for (std::size_t at = 0; at < unknown.size(); at += batch) {
        const std::size_t end = std::min(unknown.size(), at + batch);
        std::string filter;
        for (std::size_t i = at; i < end; ++i)
            filter += "(objectSid=" + escapeForFilter(unknown[i]) + ")";
        // Of any class: next to an index for each identifier, a second one for the class costs the server
        // more than all of them.
        const auto found = search(everywhere, "(|" + filter + ")", 0);
        if (!found)
            return false;
        for (std::size_t i = at; i < end; ++i)
            bySid_[unknown[i]];
        for (const auto& account : *found) {
            if (account->sid)
                bySid_[*sidBytes(*account->sid)].push_back(account);
        }
    }
    return true;
}

std::optional<std::vector<std::string>> LdapAccounts::read(const std::string& distinguishedName,
                                                           const std::string& attribute) {
    auto entries = connection_.search({distinguishedName, LDAP_SCOPE_BASE, "(objectClass=*)", {attribute}});
    if (!entries)
        return std::nullopt;
    return entries->empty() ? std::vector<std::string>() : std::move(entries->front().attributes[attribute]);
}

} // namespace quorvan::platform
