// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/LinkFollowing.h"

namespace quorvan {
namespace {

constexpr FailureMessages cannotGetTrustees = {"Unable to get trustees : error returned: ",
                                               "Unable to get trustees on DFS path : error returned: "};
// Owner, attributes and quota have no messages of their own.
constexpr FailureMessages cannotGetRights = {"Unable to get effective rights : error returned: ",
                                             "Unable to get effective rights on DFS path : error returned: "};
constexpr FailureMessages cannotSetTrustee = {"Unable to set trustees : error returned: ",
                                              "Unable to set trustees on DFS path : error returned: "};
constexpr FailureMessages cannotSetFilter = {"Unable to set trustees : error returned: ",
                                             "Unable to set inherited rights on DFS path : error returned: "};

} // namespace

std::int32_t XMLReadWriteController::initializeTrusteesHandleDFS(std::string& server,
                                                                 TrusteeList& trusteeList,
                                                                 std::string& selectedPath, Rights& irf,
                                                                 Rights& effRights, std::string& mappedPath,
                                                                 const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        trusteeList.clear();
        return initializeTrustees(path, identityType, trusteeList, irf, effRights);
    };
    return LinkFollower(*this, {server, selectedPath, mappedPath})
        .perform({pipes::files, cannotGetTrustees, request});
}

std::int32_t XMLReadWriteController::getEffectiveRightsforPathHandleDFS(std::string& server,
                                                                        TrusteeList& trusteeList,
                                                                        std::string& selectedPath,
                                                                        std::string& mappedPath,
                                                                        const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        trusteeList.clear();
        return getEffectiveRightsforPath(path, trusteeList, identityType);
    };
    return LinkFollower(*this, {server, selectedPath, mappedPath})
        .perform({pipes::files, cannotGetTrustees, request});
}

std::int32_t XMLReadWriteController::getEffectiveRightsForMappedUserForPathHandleDFS(
    std::string& selectedPath, std::vector<std::string>& effectiveRights, std::string& server,
    std::string& mappedPath, const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getEffectiveRightsForMappedUser(path, effectiveRights, identityType);
    };
    return LinkFollower(*this, {server, selectedPath, mappedPath})
        .perform({pipes::files, cannotGetRights, request});
}

std::int32_t XMLReadWriteController::getIRRequestHandleDFS(std::string& server,
                                                           std::vector<DirectoryRights>& dirTrustee,
                                                           std::string& mappedPath, std::string& selectedPath,
                                                           const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getIRRequest(path, dirTrustee, identityType);
    };
    return LinkFollower(*this, {server, selectedPath, mappedPath})
        .perform({pipes::rights, cannotGetTrustees, request});
}

std::int32_t XMLReadWriteController::setInheritedRightsforPathHandleDFS(std::string& server,
                                                                        std::uint16_t irf,
                                                                        std::string& selectedPath,
                                                                        std::string& mappedPath) {
    const auto request = [&](const std::string& path) {
        return std::to_string(setInheritedRights(irf, path));
    };
    return LinkFollower(*this, {server, selectedPath, mappedPath})
        .perform({pipes::files, cannotSetFilter, request});
}

std::int32_t XMLReadWriteController::setTrusteeHandleDFS(std::string& server, std::string& mappedPath,
                                                         std::string& selectedPath, const Trustees& trustee,
                                                         const std::string& identityType) {
    const auto request = [&](const std::string& path) -> std::string {
        if (trustee.status == TrusteeInfo::ADD)
            return setTrusteeAdd(trustee, path, identityType);
        if (trustee.status == TrusteeInfo::REMOVE)
            return setTrusteeRemove(trustee, path, identityType);
        Log("skipping user: ");
        return "-1";
    };
    return LinkFollower(*this, {server, selectedPath, mappedPath})
        .perform({pipes::files, cannotSetTrustee, request});
}

std::int32_t XMLReadWriteController::getFileInfoOwnerHandleDFS(std::string& server, std::string& selectedPath,
                                                               OwnerInfo& ownerInfo, std::string& mappedPath,
                                                               const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getFileInfoOwner(path, ownerInfo, identityType);
    };
    return LinkFollower(*this, {server, selectedPath, mappedPath})
        .perform({pipes::files, cannotGetRights, request});
}

std::int32_t XMLReadWriteController::getAttributesHandleDFS(std::string& server, std::string& selectedPath,
                                                            AttributesInfo& fileAttributes,
                                                            std::string& mappedPath,
                                                            const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getAttributes(path, fileAttributes, identityType);
    };
    return LinkFollower(*this, {server, selectedPath, mappedPath})
        .perform({pipes::files, cannotGetRights, request});
}

std::int32_t XMLReadWriteController::getDirectoryQuotaHandleDFS(std::string& server,
                                                                std::string& selectedPath,
                                                                DirectoryQuotaInfo& dirQuota,
                                                                std::string& mappedPath,
                                                                const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getDirectoryQuota(path, dirQuota, identityType);
    };
    return LinkFollower(*this, {server, selectedPath, mappedPath})
        .perform({pipes::files, cannotGetRights, request});
}

} // namespace quorvan
