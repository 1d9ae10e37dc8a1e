// SPDX-License-Identifier: GPL-3.0-or-later
// How the trustee rights tab gets new trustees.
#include "Quorvan/Controller/Rights/RightsTabViewController.h"

#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/UsersViewModal.h"

#include <QCheckBox>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace quorvan {

bool RightsTabViewController::bothIdentities() const {
    return showCheck->isChecked();
}

bool RightsTabViewController::onReturnMorvaneSelectedUser(const std::vector<User>& users) {
    TrusteeList chosen;
    for (const User& user : users)
        chosen.push_back(std::make_shared<Trustees>(user.trusteeName, user.trusteeID, newTrusteeRights, "ADD",
                                                    user.trusteeType, domainIdentity));
    return add(chosen);
}

bool RightsTabViewController::onReturnSelectedUser(const std::vector<std::string>& names,
                                                   const std::vector<std::string>& ids,
                                                   const std::string& /*category*/) {
    const DirectoryLookup lookup;
    DirectoryLookup::prefetch(ids);
    TrusteeList chosen;
    for (std::size_t i = 0; i < std::min(names.size(), ids.size()); ++i) {
        chosen.push_back(
            std::make_shared<Trustees>(names[i], ids[i], newTrusteeRights, "ADD", "", domainIdentity));
        lookup.setTrusteeTypeforTrustee(*chosen.back());
    }
    return add(chosen);
}

bool RightsTabViewController::add(const TrusteeList& chosen) {
    std::unordered_set<std::string> listed;
    for (const auto& trustee : editedTrusteeList)
        listed.insert(trustee->trusteeID);
    std::vector<std::string> ids;
    for (const auto& trustee : chosen)
        ids.push_back(trustee->trusteeID);
    const std::size_t before = editedTrusteeList.size();
    const bool areNew = addOnce(std::move(listed), ids, [&](std::size_t at) {
        editedTrusteeList.push_back(std::make_shared<Trustees>(*chosen[at]));
        trackTrusteeList.push_back(std::make_shared<Trustees>(*chosen[at]));
    });
    redisplay();
    if (const auto added = editedTrusteeList.size() - before; added > 0) {
        setChangesEnabled(true);
        rightsTable->setSortDescriptor({}); // the new rows stand at the end, whatever the order was
        rightsTable->showRows(static_cast<int>(before), static_cast<int>(added));
    }
    if (!areNew)
        reportDuplicate();
    return areNew;
}

} // namespace quorvan
