// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/Requests/RequestEnvelope.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

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

using Actions = UserQuotaConstants::Actions;

bool isChange(const std::optional<SharedText>& action) {
    return action == Actions::ADD || action == Actions::MODIFY || action == Actions::REMOVE;
}

/// The limit to write for a row that is changed.
std::string quotaText(const UserQuotaData& user) {
    return user.action == Actions::REMOVE
               ? std::string(DirectoryQuotaConstants::UNLIMITED)
               : std::to_string(unwrap(user.quotaLimit, "A changed quota has no amount"));
}

} // namespace

std::string XMLReadWriteController::createGetUserQuotaRequest(const std::string& volumeName,
                                                              const std::string& identityType) {
    return variantRequest(identityType, browseAD, browseMorvane, {normalizedNFC(volumeName)});
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
        const std::string_view set = variantFor(user->domainIdentity.value_or("").str(), setAD, setMorvane);
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

} // namespace quorvan
