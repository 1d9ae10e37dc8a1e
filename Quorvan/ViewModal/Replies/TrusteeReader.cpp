// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/TrusteeReader.h"

#include "Common/Fatal.h"
#include "Quorvan/Modal/Constants.h"

#include <utility>
#include <vector>

namespace quorvan {
namespace {

std::vector<std::string> sidsOf(const ReplyEntries& entries) {
    std::vector<std::string> sids;
    sids.reserve(entries.size());
    for (const auto& entry : entries) {
        if (entry->trusteeID)
            sids.emplace_back(*entry->trusteeID);
    }
    return sids;
}

} // namespace

TrusteeReader::TrusteeReader(const ReplyEntries& entries, std::string identityType)
    : identityType_(std::move(identityType))
    , typesFromDirectory_(identityType_ == identityActiveDirectory) {
    if (typesFromDirectory_)
        lookup_.prefetch(sidsOf(entries));
}

std::shared_ptr<Trustees> TrusteeReader::read(const ReplyEntry& entry) {
    if (entry.trusteeName)
        name_ = texts_.shared(*entry.trusteeName);
    if (entry.trusteeType)
        type_ = texts_.shared(*entry.trusteeType);
    if (entry.rights)
        rights_ = entry.rights;
    if (!entry.trusteeID)
        return nullptr;
    require(name_ && rights_, "The trustee \"%@\" of the reply has no name or no rights", *entry.trusteeID);
    auto trustee =
        trustees_.make(*name_, std::string(*entry.trusteeID), *rights_, SharedText(), type_, identityType_);
    if (typesFromDirectory_)
        lookup_.setTrusteeTypeforTrustee(*trustee);
    return trustee;
}

} // namespace quorvan
