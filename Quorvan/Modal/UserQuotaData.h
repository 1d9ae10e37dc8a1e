// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/SharedText.h"

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
    UserQuotaData(std::string name, std::string id, SharedText type, std::int64_t limit, std::int64_t used,
                  SharedText identity);

    std::optional<std::string> displayName = "";
    std::optional<std::string> SID = ""; ///< Active Directory SID or directory-tree GUID
    std::optional<SharedText> userType = users;
    std::optional<SharedText> action = none; ///< one of UserQuotaConstants::Actions
    std::optional<std::int64_t> quotaLimit = 0;
    std::optional<std::int64_t> quotaUsed = 0;
    std::optional<std::int64_t> quotaAvailable = 0;
    std::optional<SharedText> domainIdentity;

private:
    static inline const SharedText users{UserQuotaConstants::ObjectTypes::USERS};
    static inline const SharedText none{UserQuotaConstants::Actions::NONE};
};

/// Lists refer to rows, because a view changes one object that stands in several lists.
using UserQuotaList = std::vector<std::shared_ptr<UserQuotaData>>;

} // namespace quorvan
