// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Platform/Services.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/RequestEnvelope.h"
#include "Quorvan/ViewModal/UsersViewModal.h"
#include "Quorvan/ViewModal/XMLRows.h"

#include <algorithm>

namespace quorvan {
namespace {

constexpr std::string_view browseAD =
    "<userRequest><userQuota><browse><adOnly/><idOnly/><volumeName>%@</volumeName></browse></userQuota>"
    "</userRequest>";
constexpr std::string_view browseMorvane =
    "<userRequest><userQuota><browse><volumeName>%@</volumeName></browse></userQuota></userRequest>";
constexpr std::string_view setWrapper = "<userRequest><userQuota>%@</userQuota></userRequest>";
constexpr std::string_view setAD =
    R"(<set type="adID"><volumeName>%@</volumeName><id>%@</id><quota>%@</quota></set>)";
constexpr std::string_view setMorvane = "<set><volumeName>%@</volumeName><id>%@</id><quota>%@</quota></set>";

constexpr std::size_t batchSize = 300;

/// The first part of a server path, whose parts are separated by colons.
std::string volumeOf(const std::string& path) {
    const std::size_t begin = path.find_first_not_of(':');
    require(begin != std::string::npos, "The path \"%@\" names no volume", path);
    return path.substr(begin, path.find(':', begin) - begin);
}

using Actions = UserQuotaConstants::Actions;

bool isChange(const std::optional<std::string>& action) {
    return action == Actions::ADD || action == Actions::MODIFY || action == Actions::REMOVE;
}

/// The limit to write for a row that is changed.
std::string quotaText(const UserQuotaData& user) {
    return user.action == Actions::REMOVE
               ? std::string(DirectoryQuotaConstants::UNLIMITED)
               : std::to_string(unwrap(user.quotaLimit, "A changed quota has no amount"));
}

/// The display names of Active Directory users, DOMAIN\name, for all of a list at once.
void nameFromDirectory(std::span<const std::shared_ptr<UserQuotaData>> users) {
    std::vector<std::string> sids;
    sids.reserve(users.size());
    for (const auto& user : users)
        sids.push_back(std::move(*user->SID)); // lent: copies would be almost as large as the reply
    platform::services().directory->prefetch(sids);
    const DirectoryLookup lookup;
    auto sid = sids.begin();
    for (const auto& user : users) {
        user->SID = std::move(*sid++);
        std::string name = lookup.lookupAttrValueFromID(*user->SID, kODAttributeTypePrimaryNTDomain);
        name += '\\';
        name += lookup.lookupAttrValueFromID(*user->SID, kODAttributeTypeRecordName);
        user->displayName = std::move(name);
    }
}

} // namespace

std::string XMLReadWriteController::getUserQuotaInfo(const std::string& path, UserQuotaList& array,
                                                     const std::string& ctx) {
    const std::string reply =
        exchangeRequest(createGetUserQuotaRequest(volumeOf(path), ctx),
                        {"Get User Quota Request: %@", "response.deinitialize Get User Quota Request",
                         "Get User Quota Reply: %@"});
    decodeUserQuotaInfo(reply, array, ctx);
    return getResultValue(reply, {"userQuota", "browse", "result"});
}

std::string XMLReadWriteController::createGetUserQuotaRequest(const std::string& volumeName,
                                                              const std::string& identityType) {
    return variantRequest(identityType, browseAD, browseMorvane, {normalizedNFC(volumeName)});
}

void XMLReadWriteController::decodeUserQuotaInfo(const std::string& xml, UserQuotaList& array,
                                                 const std::string& identityType) {
    const bool fromDirectory = identityType == identityActiveDirectory;
    const std::size_t before = array.size();
    const auto error = readRows(xml, {"userQuota", "browse", "userList"}, [&](XMLElement user) {
        if (!fromDirectory && identityType != identityMorvane)
            return;
        array.push_back(std::make_shared<UserQuotaData>(
            fromDirectory ? "" : getValue("userName", user), getValue("id", user),
            std::string(UserQuotaConstants::ObjectTypes::USERS),
            decimalNumber(getValue("quota", user)).value_or(0),
            decimalNumber(getValue("spaceUsed", user)).value_or(0), identityType));
    });
    if (error) {
        Log("Error parsing UserQuota Response : error %@", error->description);
        array.erase(array.begin() + static_cast<std::ptrdiff_t>(before), array.end());
    } else if (fromDirectory) {
        nameFromDirectory(std::span(array).subspan(before));
    }
}

std::string XMLReadWriteController::createXMLforUsers(const std::string& volumeName,
                                                      std::span<const std::shared_ptr<UserQuotaData>> users,
                                                      const std::string&) {
    const std::string volume = normalizedNFC(volumeName);
    std::string elements;
    for (const auto& user : users) {
        if (!isChange(user->action)) {
            Log("skipping user: ");
            continue;
        }
        const std::string_view set = variantFor(user->domainIdentity.value_or(""), setAD, setMorvane);
        if (!set.empty())
            elements +=
                fill(set, {volume, unwrap(user->SID, "A changed quota has no user"), quotaText(*user)});
    }
    return elements;
}

std::string
XMLReadWriteController::createSetUserQuotaRequest(const std::string& volumeName,
                                                  std::span<const std::shared_ptr<UserQuotaData>> users,
                                                  const std::string& identityType) {
    return adminRequest(fill(setWrapper, {createXMLforUsers(volumeName, users, identityType)}));
}

std::string XMLReadWriteController::setUserQuotaInfo(const std::string& path, const UserQuotaList& array,
                                                     const std::string& ctx) {
    const std::string volume = volumeOf(path);
    std::string status = "0";
    std::span<const std::shared_ptr<UserQuotaData>> rest = array;
    // The last request is the one that is not full, be it empty. A failure does not stop the others.
    for (bool full = true; full;) {
        const auto batch = rest.first(std::min(batchSize, rest.size()));
        rest = rest.subspan(batch.size());
        full = batch.size() == batchSize;
        const std::string reply =
            exchangeRequest(createSetUserQuotaRequest(volume, batch, ctx),
                            {"Set User Quota Request: %@", "response.deinitialize Set User Quota Request",
                             "Set User Quota Reply: %@"});
        if (status == "0")
            status = getResultValue(reply, {"userQuota", "set", "result"});
    }
    return status;
}

} // namespace quorvan
