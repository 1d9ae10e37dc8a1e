// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvan {

/// Looks users and groups up in the one Active Directory that the machine is bound to.
class OldBrowseLdapViewModal {
public:
    explicit OldBrowseLdapViewModal(const std::string& category);

    int userTypeCount; ///< how many categories are offered
    std::vector<UserType> usersCategory;
    bool listingFailed = false; ///< the last list that was asked for: the directory did not answer

    /// The names of all users or groups, asked for the first time only.
    const std::vector<std::string>& ldapUserList();
    const std::vector<std::string>& ldapGroupList();

    /// The names that contain a text, of users ("Users") or groups (any other type).
    static std::vector<std::string> searchAD(const std::string& text, const std::string& type);

private:
    std::optional<std::vector<std::string>> users_;
    std::optional<std::vector<std::string>> groups_;
};

} // namespace quorvan
