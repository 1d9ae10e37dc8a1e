// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/SharedText.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvan {

/// An identity as an identity browser lists it. All texts are UTF-8.
class User {
public:
    User() = default;
    User(SharedText name, SharedText type, std::string id);

    SharedText trusteeName; ///< display name; for directory-tree objects the name the server returns
    SharedText trusteeType; ///< "Users" or "Groups", or a directory-tree object class
    std::string trusteeID;  ///< SID (Active Directory), or GUID or distinguished name (Morvane)
};

/// One trustee of one path.
///
/// A trustee without a type whose ID is exactly "S-1-1-0" (everyone) gets the type "Groups" when it
/// is built and when it is copied.
class Trustees : public User {
public:
    Trustees() = default;
    Trustees(SharedText name, std::string id, std::uint16_t rights, SharedText status, SharedText type,
             SharedText domainType);
    Trustees(const Trustees& other);
    Trustees& operator=(const Trustees& other);
    Trustees(Trustees&&) = default;
    Trustees& operator=(Trustees&&) = default;
    ~Trustees() = default;

    std::uint16_t rights = 0; ///< mask of KelpRights
    SharedText status;        ///< pending change: "ADD", "REMOVE" or "" (never sent)
    SharedText domainType;    ///< "ActiveDirectory", "Morvane" or "" when unknown

private:
    void nameTheTypeOfEveryone();
};

/// Lists refer to trustees, because views mark one object that stands in several lists.
using TrusteeList = std::vector<std::shared_ptr<Trustees>>;

/// An independent copy of every trustee of a list, in order.
TrusteeList copyOf(const TrusteeList& trustees);

/// A directory-tree group that a trustee belongs to.
struct Group {
    std::string groupName;
    std::string id; ///< GUID
    std::string DN; ///< distinguished name
};

struct Rights {
    std::uint16_t uright = 0; ///< mask of KelpRights
};

/// One trustee entry of a sub-directory or parent directory.
struct DirectoryRights {
    std::shared_ptr<Trustees> trustee;
    SharedText path; ///< server path on which the trustee is set
};

/// The same of rows that stand for a trustee on a path.
std::vector<DirectoryRights> copyOf(const std::vector<DirectoryRights>& rows);

/// One path on which a trustee holds rights.
struct FileRights {
    enum class Order { fpath };
    SharedText fpath;
    std::uint16_t frights = 0;
};

/// The rights that one identity, out of several that were asked for, holds on a path.
struct IdentityFileRights {
    std::string id;
    FileRights rights;
};

struct Owner {
    std::optional<std::string> ownerName;
    std::optional<std::string> ownerID;
};

/// Decimal texts as the server sends them; "-1" as an amount means not set.
struct DirectoryQuota {
    std::optional<std::string> quotaAmount;
    std::optional<std::string> usedAmount;
};

/// An identity category that the browsers offer.
struct UserType {
    std::string type;
};

} // namespace quorvan
