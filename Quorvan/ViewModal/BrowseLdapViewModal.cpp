// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/BrowseLdapViewModal.h"

#include "Common/Error.h"
#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Platform/Services.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/UsersViewModal.h"

#include <cerrno>

namespace quorvan {

namespace {

/// A record's row; nothing when it cannot be read.
std::optional<LdapRow> rowOf(platform::DirectoryRecord& record) {
    auto sid = record.first(kODAttributeTypeSMBSID);
    auto name = record.first(kODAttributeTypeRecordName);
    if (!sid || !name)
        return std::nullopt;
    return LdapRow{*std::move(name), *std::move(sid)};
}

std::optional<platform::DirectoryRecords> query(const std::string& domain,
                                                const platform::DirectoryQuery& wanted) {
    const auto node = platform::services().directory->openNode(domain + platform::allDomainsNode);
    return node ? node->query(wanted) : std::nullopt;
}

} // namespace

std::vector<UserType> ldapCategories(const std::string& category) {
    const std::string users(UserQuotaConstants::ObjectTypes::USERS);
    const std::string groups(UserQuotaConstants::ObjectTypes::GROUPS);
    if (category == users || category == groups)
        return {{category}};
    return {{users}, {groups}};
}

BrowseLdapViewModal::BrowseLdapViewModal(const std::string& category)
    : userTypeCount(static_cast<int>(ldapCategories(category).size()))
    , usersCategory(ldapCategories(category)) {}

std::vector<std::string> BrowseLdapViewModal::getAvaialbleDomains() {
    const platform::BusyScope busy(platform::services().busy);
    const auto names = platform::services().directory->nodeNames();
    if (!names) {
        Log("Error in Open Directory Session %d", errno);
        return {};
    }
    std::vector<std::string> domains;
    for (const std::string& name : *names)
        if (name.starts_with(platform::activeDirectoryNode) && !name.ends_with(platform::allDomainsNode))
            domains.push_back(name);
    return domains;
}

const std::vector<LdapRow>& BrowseLdapViewModal::getUserListforType(const std::string& usertype) {
    const bool users = usertype == UserQuotaConstants::ObjectTypes::USERS;
    std::vector<LdapRow>& list = users ? ldapUserList : ldapGroupList;
    if (list.empty())
        list = initLdapList(recordTypeOf(usertype));
    return list;
}

std::vector<LdapRow> BrowseLdapViewModal::initLdapList(const std::string& identityType) {
    const platform::BusyScope busy(platform::services().busy);
    const auto fail = [this]() -> std::vector<LdapRow> {
        Log("Error in Open Directory Session - %d", errno);
        listingFailed = true;
        return {};
    };
    listingFailed = false;
    const auto records = query(
        selectedDomain, {{identityType}, kODAttributeTypeRecordName, platform::DirectoryMatch::any, {}});
    if (!records)
        return fail();
    std::vector<LdapRow> rows;
    rows.reserve(records->size());
    for (const auto& record : *records) {
        auto row = rowOf(*record);
        if (!row)
            return fail();
        rows.push_back(*std::move(row));
    }
    return rows;
}

std::vector<LdapRow> BrowseLdapViewModal::searchAD(const std::string& text, const std::string& type) const {
    std::vector<LdapRow> rows;
    bool failed = false;
    {
        const platform::BusyScope busy(platform::services().busy);
        const auto records = query(
            selectedDomain,
            {{recordTypeOf(type)}, kODAttributeTypeRecordName, platform::DirectoryMatch::contains, {text}});
        failed = !records;
        for (const auto& record : records.value_or(platform::DirectoryRecords())) {
            auto row = rowOf(*record);
            failed = !row;
            if (failed)
                break;
            require(!row->front().empty(), "A record of %@ that was found by its name has none",
                    selectedDomain);
            rows.push_back(*std::move(row));
        }
    }
    if (failed) {
        Log("Error in Open Directory Session");
        displayWarningMsg(errorCode::adConnect);
    }
    return rows;
}

std::vector<std::string> BrowseLdapViewModal::getGroupMembership(const std::string& id) {
    const auto node = platform::services().directory->openNetworkNode();
    listingFailed = node == nullptr;
    if (listingFailed) {
        Log("Error in Open Directory Session");
        displayWarningMsg(errorCode::adConnect);
        return {};
    }
    const platform::BusyScope busy(platform::services().busy);
    const auto records =
        node->query({{kODRecordTypeUsers}, kODAttributeTypeSMBSID, platform::DirectoryMatch::equalTo, {id}});
    std::vector<std::string> groups;
    for (const auto& record : unwrap(records, "The directory does not say which groups %@ belongs to", id))
        if (auto values = record->values(platform::nativeMemberOf))
            groups = *std::move(values);
    return groups;
}

std::string BrowseLdapViewModal::getSidforObject(const std::string& objName, const std::string& objType,
                                                 const std::string& attributeName) {
    return DirectoryLookup().getSidforObject(objName, objType, attributeName);
}

} // namespace quorvan
