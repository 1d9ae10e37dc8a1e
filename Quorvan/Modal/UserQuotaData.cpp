// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/UserQuotaData.h"

#include <utility>

namespace quorvan {

UserQuotaData::UserQuotaData(std::string name, std::string id, SharedText type, std::int64_t limit,
                             std::int64_t used, SharedText identity)
    : displayName(std::move(name))
    , SID(std::move(id))
    , userType(std::move(type))
    , quotaLimit(limit)
    , quotaUsed(used)
    , domainIdentity(std::move(identity)) {}

} // namespace quorvan
