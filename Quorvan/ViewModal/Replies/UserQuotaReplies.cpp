// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Replies/UserQuotaReplies.h"

#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/Replies/ReplyPass.h"
#include "Quorvan/ViewModal/UsersViewModal.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <algorithm>
#include <functional>
#include <span>
#include <utility>

namespace quorvan {
namespace {

enum Text : std::size_t { userName, id, quota, spaceUsed };

std::int64_t amount(const std::string& text) {
    return decimalNumber(text).value_or(0);
}

/// The display names of Active Directory users, DOMAIN\name. The directory is told so many of them at once
/// that its questions are full ones, and not more: a second list of all would be as large as the reply.
void nameFromDirectory(std::span<const std::shared_ptr<UserQuotaData>> users) {
    constexpr std::size_t batch = 1'000;
    const std::string domain = kODAttributeTypePrimaryNTDomain;
    const std::string account = kODAttributeTypeRecordName;
    const DirectoryLookup lookup;
    std::vector<std::string> sids;
    while (!users.empty()) {
        const auto announced = users.first(std::min(batch, users.size()));
        users = users.subspan(announced.size());
        sids.resize(announced.size());
        for (std::size_t at = 0; at < announced.size(); ++at)
            sids[at] = *announced[at]->SID;
        DirectoryLookup::prefetch(sids);
        for (const auto& user : announced) {
            std::string& name = user->displayName.emplace(lookup.lookupAttrValueFromID(*user->SID, domain));
            name += '\\';
            name += lookup.lookupAttrValueFromID(*user->SID, account);
        }
    }
}

} // namespace

UserQuotaReader::UserQuotaReader(UserQuotaList& users, std::string identityType)
    : users_(users)
    , identityType_(std::move(identityType))
    , identity_(identityType_)
    , before_(users.size())
    , rows_({"userQuota", "browse", "userList"}, {"userName", "id", "quota", "spaceUsed"},
            [this](std::vector<std::string>& texts) { append(texts); }) {}

void UserQuotaReader::append(std::vector<std::string>& texts) {
    const bool fromDirectory = identityType_ == identityActiveDirectory;
    if (!fromDirectory && identityType_ != identityMorvane)
        return;
    if (std::all_of(texts.begin(), texts.end(), std::mem_fn(&std::string::empty)) &&
        ofNothing_.isOneTooMany())
        return;
    users_.push_back(blocks_.make(fromDirectory ? std::string() : std::move(texts[userName]),
                                  std::move(texts[id]), userType_, amount(texts[quota]),
                                  amount(texts[spaceUsed]), identity_));
}

void UserQuotaReader::finish(const std::optional<XMLError>& error) {
    if (error) {
        Log("Error parsing UserQuota Response : error %@", error->description);
        users_.resize(before_);
        return;
    }
    rows_.requireList();
    ofNothing_.report();
    if (identityType_ == identityActiveDirectory)
        nameFromDirectory(std::span(users_).subspan(before_));
}

void XMLReadWriteController::decodeUserQuotaInfo(const std::string& xml, UserQuotaList& array,
                                                 const std::string& identityType) {
    UserQuotaReader users(array, identityType);
    users.finish(readReply(xml, users));
}

} // namespace quorvan
