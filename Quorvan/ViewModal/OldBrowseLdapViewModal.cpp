// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/OldBrowseLdapViewModal.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Platform/Services.h"
#include "Quorvan/ViewModal/BrowseLdapViewModal.h"
#include "Quorvan/ViewModal/UsersViewModal.h"

namespace quorvan {

namespace {

using Names = std::vector<std::string>;

const Names& listed(std::optional<Names>& names, platform::IdentityClass identityClass, bool& failed) {
    if (names)
        return *names;
    const platform::BusyScope busy(platform::services().busy);
    names.emplace();
    const auto identities = platform::services().directory->managedIdentities(identityClass);
    failed = !identities;
    for (const auto& identity : identities.value_or(std::vector<platform::ManagedIdentity>()))
        names->push_back(unwrap(identity.posixName, "An identity of this machine has no name"));
    return *names;
}

} // namespace

OldBrowseLdapViewModal::OldBrowseLdapViewModal(const std::string& category)
    : userTypeCount(static_cast<int>(ldapCategories(category).size()))
    , usersCategory(ldapCategories(category)) {}

const Names& OldBrowseLdapViewModal::ldapUserList() {
    return listed(users_, platform::IdentityClass::user, listingFailed);
}

const Names& OldBrowseLdapViewModal::ldapGroupList() {
    return listed(groups_, platform::IdentityClass::group, listingFailed);
}

Names OldBrowseLdapViewModal::searchAD(const std::string& text, const std::string& type) {
    const platform::BusyScope busy(platform::services().busy);
    platform::DirectoryServices& directory = *platform::services().directory;
    const auto state = directory.activeDirectoryState();
    if (!state) {
        Log("Could not find a Active Directory on the server");
        return {};
    }
    const auto nodeName = state->find(platform::nodeNameKey);
    require(nodeName != state->end(), "The Active Directory of this machine has no node");
    const auto node = directory.openNode(nodeName->second + platform::allDomainsNode);
    const auto records = node ? node->query({{recordTypeOf(type)},
                                             kODAttributeTypeRecordName,
                                             platform::DirectoryMatch::contains,
                                             {text}})
                              : std::nullopt;
    Names names;
    bool failed = !records;
    for (const auto& record : records.value_or(platform::DirectoryRecords())) {
        const auto values = record->values(kODAttributeTypeRecordName);
        failed = !values;
        if (failed)
            break;
        if (!values->empty())
            names.push_back(values->front());
    }
    if (failed)
        Log("Error in Open Directory Session");
    return names;
}

} // namespace quorvan
