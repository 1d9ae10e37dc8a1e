// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/Users.h"

#include "Quorvan/Modal/Constants.h"

#include <utility>

namespace quorvan {

User::User(SharedText name, SharedText type, std::string id)
    : trusteeName(std::move(name))
    , trusteeType(std::move(type))
    , trusteeID(std::move(id)) {}

Trustees::Trustees(SharedText name, std::string id, std::uint16_t mask, SharedText pendingStatus,
                   SharedText type, SharedText domain)
    : User(std::move(name), std::move(type), std::move(id))
    , rights(mask)
    , status(std::move(pendingStatus))
    , domainType(std::move(domain)) {
    nameTheTypeOfEveryone();
}

Trustees::Trustees(const Trustees& other)
    : User(other)
    , rights(other.rights)
    , status(other.status)
    , domainType(other.domainType) {
    nameTheTypeOfEveryone();
}

Trustees& Trustees::operator=(const Trustees& other) {
    return *this = Trustees(other);
}

void Trustees::nameTheTypeOfEveryone() {
    if (trusteeType.empty() && trusteeID == TrusteeInfo::EVERYONE)
        trusteeType = UserQuotaConstants::ObjectTypes::GROUPS;
}

TrusteeList copyOf(const TrusteeList& trustees) {
    TrusteeList copies;
    copies.reserve(trustees.size());
    for (const auto& trustee : trustees)
        copies.push_back(std::make_shared<Trustees>(*trustee));
    return copies;
}

std::vector<DirectoryRights> copyOf(const std::vector<DirectoryRights>& rows) {
    std::vector<DirectoryRights> copies;
    copies.reserve(rows.size());
    for (const DirectoryRights& row : rows)
        copies.push_back({std::make_shared<Trustees>(*row.trustee), row.path});
    return copies;
}

} // namespace quorvan
