// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"

#include <array>
#include <string>
#include <vector>

namespace quorvan {

/// Account name and SID of an account or group of Active Directory.
using LdapRow = std::array<std::string, 2>;

/// The categories that a browser of Active Directory offers: the one its caller wants, or both.
std::vector<UserType> ldapCategories(const std::string& category);

/// Looks users and groups up in the domains of all forests that the machine knows.
class BrowseLdapViewModal {
public:
    explicit BrowseLdapViewModal(const std::string& category);

    int userTypeCount; ///< how many categories are offered
    std::vector<UserType> usersCategory;
    std::string selectedDomain; ///< name of the node to search
    std::vector<LdapRow> ldapUserList;
    std::vector<LdapRow> ldapGroupList;
    bool listingFailed = false; ///< the directory did not answer the latest listing

    /// The names of the nodes that stand for one domain each.
    static std::vector<std::string> getAvaialbleDomains();

    /// All users ("Users") or groups (any other type) of the selected domain, remembered until the list of
    /// that category is emptied.
    const std::vector<LdapRow>& getUserListforType(const std::string& usertype);
    /// All records of a type, in the directory's order. A failure is logged and gives none.
    std::vector<LdapRow> initLdapList(const std::string& identityType);
    /// The users or groups of the selected domain whose names contain a text. A failure is shown as a
    /// warning and gives what was read until then.
    std::vector<LdapRow> searchAD(const std::string& text, const std::string& type) const;

    /// The distinguished names of the groups that the account with a SID is a member of.
    std::vector<std::string> getGroupMembership(const std::string& id);
    static std::string getSidforObject(const std::string& objName, const std::string& objType,
                                       const std::string& attributeName);
};

} // namespace quorvan
