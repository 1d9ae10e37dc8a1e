// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvan {

/// One row of the user quota table. Amounts are bytes.
class UserQuotaData {
public:
    enum class Order { displayName };

    UserQuotaData() = default;
    UserQuotaData(std::string name, std::string id, std::string type, std::int64_t limit, std::int64_t used,
                  std::string identity);

    std::optional<std::string> displayName = "";
    std::optional<std::string> SID = ""; ///< Active Directory SID or directory-tree GUID
    std::optional<std::string> userType = "Users";
    std::optional<std::string> action = "NONE"; ///< one of UserQuotaConstants::Actions
    std::optional<std::int64_t> quotaLimit = 0;
    std::optional<std::int64_t> quotaUsed = 0;
    std::optional<std::int64_t> quotaAvailable = 0;
    std::optional<std::string> domainIdentity;
};

/// Lists refer to rows, because a view changes one object that stands in several lists.
using UserQuotaList = std::vector<std::shared_ptr<UserQuotaData>>;

} // namespace quorvan
