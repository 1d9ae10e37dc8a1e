// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Log.h"
#include "Quorvan/ViewModal/Replies/ElementReaders.h"
#include "Quorvan/ViewModal/Replies/RightsReplies.h"
#include "Quorvan/ViewModal/Replies/TrusteeReader.h"

namespace quorvan {
namespace {

/// Stores the last mask of one kind that the reply carries.
void loadMask(const std::optional<ReplyEntries>& entries, std::optional<std::uint16_t> ReplyEntry::*kind,
              Rights& rights) {
    if (!entries)
        return;
    for (const auto& entry : *entries)
        rights.uright = ((*entry).*kind).value_or(rights.uright);
}

} // namespace

std::int64_t XMLReadWriteController::setInheritedRights(std::uint16_t irf, const std::string& path) {
    return parseSetInheritedRights(
        exchangeRequest(createSetIRFRequest(path, irf),
                        {"Set inherited rights Request : %@", "response.deinitialize setInheritedRights",
                         "Set inherited rights Response: %@"}));
}

std::int64_t XMLReadWriteController::parseSetInheritedRights(const std::string& xml) {
    const std::int64_t status = parse(xml).xmlReqStatus;
    return loss_ != 0 ? loss_ : status;
}

void XMLReadWriteController::loadIRFRights(Rights& irf) const {
    loadMask(dictResponse, &ReplyEntry::inheritedRightsFilter, irf);
}

void XMLReadWriteController::loadEffRights(Rights& effRights) const {
    loadMask(dictResponse, &ReplyEntry::effectiveRights, effRights);
}

std::string XMLReadWriteController::getEffectiveRightsforPath(const std::string& path,
                                                              TrusteeList& trusteeList,
                                                              const std::string& identityType) {
    const std::string reply = exchangeRequest(createGetERRequests(path, identityType),
                                              {"Get effective rights Request : %@",
                                               "response.deinitialize getEffectiveRightsforPath",
                                               "Get effective rights Response: %@"});
    std::string status = statusOf(parse(reply, {"fileInfo", "getAllEffectiveRights", "result"}));
    if (status == "0")
        loadTrusteeDataFromServer(trusteeList, identityType);
    return status;
}

std::string XMLReadWriteController::getEffectiveRightsforUserOnPath(const std::string& path,
                                                                    const std::string& userID, Rights& rights,
                                                                    const std::string& identityType) {
    const std::string reply = exchangeRequest(createGetUserEffRightRequest(userID, path, identityType),
                                              {"Get effective rights for user on path Request : %@",
                                               "response.deinitialize getEffectiveRightsforUserOnPath",
                                               "Get effective rights for user on path Response: %@"});
    parse(reply);
    loadEffRights(rights);
    return statusOfExchange();
}

std::string XMLReadWriteController::getIRRequest(const std::string& path,
                                                 std::vector<DirectoryRights>& dirTrustee,
                                                 const std::string& identityType) {
    std::string status =
        statusOf(parse(exchangeRequest(createGetIRRequest(path, identityType),
                                       {"Get IR rights Request : %@", "response.deinitialize getIRRequest",
                                        "Get IR rights Response: %@"}),
                       {"result"}));
    if (status == "0")
        loadDirectoryRights(dirTrustee, identityType);
    return status;
}

void XMLReadWriteController::loadDirectoryRights(std::vector<DirectoryRights>& dirTrustee,
                                                 const std::string& identityType) const {
    if (!dictResponse)
        return;
    TrusteeReader reader(*dictResponse, identityType);
    dirTrustee.reserve(dirTrustee.size() + dictResponse->size());
    TrusteeList pending; // the path comes behind its trustees
    for (const auto& entry : *dictResponse) {
        if (auto trustee = reader.read(*entry))
            pending.push_back(std::move(trustee));
        if (!entry->path)
            continue;
        const SharedText path(*entry->path);
        for (auto& trustee : pending)
            dirTrustee.push_back({std::move(trustee), path});
        pending.clear();
    }
}

std::string XMLReadWriteController::getEffectiveRightsForMappedUser(const std::string& path,
                                                                    std::vector<std::string>& effectiveRights,
                                                                    const std::string& ctx) {
    ElementReader result({"fileInfo", "getFileInfo", "result"});
    ElementReader names({"fileInfo", "getFileInfo", "rightsInfo", "effectiveRights"});
    const auto error = readReply(getTrusteeList(path, ctx), result, names);
    if (loss_ != 0)
        return statusOfExchange();
    if (!error) {
        const XMLElement status = result.element();
        if (const auto rights = names.find()) {
            effectiveRights = parseEffectiveRights(*rights);
            return std::string(status.attribute("value").value_or(""));
        }
    }
    Log("Error parsing ownerInfo : error %d", error ? error->code : 0);
    return "-1";
}

std::string XMLReadWriteController::getFSRights(const std::string& path,
                                                const std::vector<std::string>& userID,
                                                std::vector<IdentityFileRights>& grpRights,
                                                const std::string& ctx) {
    FileRightsReader files(userID, grpRights);
    const XMLResponseParser parsed =
        parse(exchangeRequest(
                  createGetIRRequest(path, ctx),
                  {"Get FSR Request : %@", "response.deinitialize getIRRequest", "Get FSR Response: %@"}),
              {}, files);
    files.finish(parsed.error);
    return statusOfExchange();
}

} // namespace quorvan
