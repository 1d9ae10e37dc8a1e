// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/RequestEnvelope.h"
#include "Quorvan/ViewModal/TrusteeReader.h"
#include "Quorvan/ViewModal/XMLRows.h"

#include <algorithm>

namespace quorvan {
namespace {

constexpr std::string_view setFilter =
    "<fileRequest><trustees><modifyInheritedRightsFilter><fileName>%@</fileName><symLink/>"
    "<inheritedRightsFilter>%@</inheritedRightsFilter></modifyInheritedRightsFilter></trustees></"
    "fileRequest>";

constexpr std::string_view allEffectiveAD =
    "<fileRequest><fileInfo><getAllEffectiveRights><adOnly/><fileName>%@</fileName><symLink/>"
    "</getAllEffectiveRights></fileInfo></fileRequest>";
constexpr std::string_view allEffectiveMorvane =
    "<fileRequest><fileInfo><getAllEffectiveRights><fileName>%@</fileName><symLink/><objectClass/>"
    "</getAllEffectiveRights></fileInfo></fileRequest>";

// These two mark the command stream themselves, inside an envelope that does so already.
constexpr std::string_view oneEffectiveAD =
    R"(<virtualIO><datastream name="command"/></virtualIO><fileRequest><fileInfo>)"
    R"(<getEffectiveRightsByID type="adID"><adOnly/><idOnly/><userID>%@</userID><fileName>%@</fileName>)"
    "<nameSpace>LONG</nameSpace><symLink/></getEffectiveRightsByID></fileInfo></fileRequest>";
constexpr std::string_view oneEffectiveMorvane =
    R"(<virtualIO><datastream name="command"/></virtualIO><fileRequest><fileInfo>)"
    "<getEffectiveRightsByID><userID>%@</userID><fileName>%@</fileName>"
    "<nameSpace>LONG</nameSpace><symLink/></getEffectiveRightsByID></fileInfo></fileRequest>";

// The server takes the path from the file name and ignores the share.
constexpr std::string_view allPathsAD =
    "<rightsRequest><adOnly/><fileName>%@</fileName><sharePath>ss</sharePath><shareName>ss</shareName>"
    "<allPaths/><nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/><standardInfo/></typeOfInfo>"
    "</rightsRequest>";
constexpr std::string_view allPathsMorvane =
    "<rightsRequest><fileName>%@</fileName><sharePath>ss</sharePath><shareName>ss</shareName>"
    "<allPaths/><nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/><standardInfo/><objectClass/>"
    "</typeOfInfo></rightsRequest>";

/// Stores the last mask of one kind that the reply carries.
void loadMask(const std::optional<ReplyEntries>& entries, std::optional<std::uint16_t> ReplyEntry::*kind,
              Rights& rights) {
    if (!entries)
        return;
    for (const auto& entry : *entries)
        rights.uright = ((*entry).*kind).value_or(rights.uright);
}

/// The bit of a right by the name of its element; 0 for any other name.
std::uint16_t bitOf(std::string_view tag) {
    const auto right = std::find_if(rightTags.begin(), rightTags.end(),
                                    [tag](const RightTag& known) { return known.tag == tag; });
    return right == rightTags.end() ? std::uint16_t{0} : right->bit;
}

} // namespace

std::string XMLReadWriteController::createSetIRFRequest(const std::string& path, std::uint16_t irf) {
    return adminRequest(fill(setFilter, {normalizedNFC(path), createRightsForXML(irf)}));
}

std::int64_t XMLReadWriteController::setInheritedRights(std::uint16_t irf, const std::string& path) {
    return parseSetInheritedRights(
        exchangeRequest(createSetIRFRequest(path, irf),
                        {"Set inherited rights Request : %@", "response.deinitialize setInheritedRights",
                         "Set inherited rights Response: %@"}));
}

std::int64_t XMLReadWriteController::parseSetInheritedRights(const std::string& xml) {
    return parse(xml).xmlReqStatus;
}

void XMLReadWriteController::loadIRFRights(Rights& irf) const {
    loadMask(dictResponse, &ReplyEntry::inheritedRightsFilter, irf);
}

void XMLReadWriteController::loadEffRights(Rights& effRights) const {
    loadMask(dictResponse, &ReplyEntry::effectiveRights, effRights);
}

std::string XMLReadWriteController::createGetERRequests(const std::string& path,
                                                        const std::string& identityType) {
    return variantRequest(identityType, allEffectiveAD, allEffectiveMorvane, {normalizedNFC(path)});
}

std::string XMLReadWriteController::getEffectiveRightsforPath(const std::string& path,
                                                              TrusteeList& trusteeList,
                                                              const std::string& identityType) {
    const std::string reply = exchangeRequest(createGetERRequests(path, identityType),
                                              {"Get effective rights Request : %@",
                                               "response.deinitialize getEffectiveRightsforPath",
                                               "Get effective rights Response: %@"});
    const std::string status = getResultValue(reply, {"fileInfo", "getAllEffectiveRights", "result"});
    if (status == "0")
        loadTrusteeDataFromServer(trusteeList, identityType);
    return status;
}

std::string XMLReadWriteController::createGetUserEffRightRequest(const std::string& userID,
                                                                 const std::string& path,
                                                                 const std::string& identityType) {
    return variantRequest(identityType, oneEffectiveAD, oneEffectiveMorvane, {userID, normalizedNFC(path)});
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
    return "0";
}

std::string XMLReadWriteController::getEffectiveRightsForMappedUser(const std::string& path,
                                                                    std::vector<std::string>& effectiveRights,
                                                                    const std::string& ctx) {
    const XMLDocument reply(getTrusteeList(path, ctx));
    int error = 0;
    if (reply.error()) {
        error = reply.error()->code;
    } else {
        const XMLElement info = getElement({"fileInfo", "getFileInfo"}, reply.rootElement());
        const XMLElement result = getElement({"result"}, info);
        if (const auto names = getXMLElement({"rightsInfo", "effectiveRights"}, info)) {
            effectiveRights = parseEffectiveRights(*names);
            return std::string(result.attribute("value").value_or(""));
        }
    }
    Log("Error parsing ownerInfo : error %d", error);
    return "-1";
}

std::vector<std::string> XMLReadWriteController::parseEffectiveRights(XMLElement xmlData) {
    std::vector<std::string> names;
    for (const XMLElement right : xmlData.children()) {
        require(!right.isText(), "There is text among the effective rights");
        names.emplace_back(right.name());
    }
    return names;
}

std::string XMLReadWriteController::createGetIRRequest(const std::string& path,
                                                       const std::string& identityType) {
    return variantRequest(identityType, allPathsAD, allPathsMorvane, {normalizedNFC(path)});
}

std::string XMLReadWriteController::getIRRequest(const std::string& path,
                                                 std::vector<DirectoryRights>& dirTrustee,
                                                 const std::string& identityType) {
    const std::string reply = exchangeRequest(
        createGetIRRequest(path, identityType),
        {"Get IR rights Request : %@", "response.deinitialize getIRRequest", "Get IR rights Response: %@"});
    const std::string status = getResultValue(reply, {"result"});
    if (status == "0")
        loadDirectoryRights(dirTrustee, identityType);
    return status;
}

void XMLReadWriteController::loadDirectoryRights(std::vector<DirectoryRights>& dirTrustee,
                                                 const std::string& identityType) const {
    if (!dictResponse)
        return;
    TrusteeReader reader(*dictResponse, identityType);
    TrusteeList pending; // the path comes behind its trustees
    for (const auto& entry : *dictResponse) {
        if (auto trustee = reader.read(*entry))
            pending.push_back(std::move(trustee));
        if (!entry->path)
            continue;
        for (auto& trustee : pending)
            dirTrustee.push_back({std::move(trustee), std::string(*entry->path)});
        pending.clear();
    }
}

std::string XMLReadWriteController::getFSRights(const std::string& path,
                                                const std::vector<std::string>& userID,
                                                std::vector<IdentityFileRights>& grpRights,
                                                const std::string& ctx) {
    const std::string reply = exchangeRequest(
        createGetIRRequest(path, ctx),
        {"Get FSR Request : %@", "response.deinitialize getIRRequest", "Get FSR Response: %@"});
    parse(reply);
    decodeFSRInfo(reply, userID, grpRights);
    return "0";
}

void XMLReadWriteController::decodeFSRInfo(const std::string& xmlResp, const std::vector<std::string>& userID,
                                           std::vector<IdentityFileRights>& arr) {
    const IdentitySet identities(userID.begin(), userID.end());
    const auto before = static_cast<std::ptrdiff_t>(arr.size());
    bool complete = true;
    const auto error = readRows(xmlResp, {}, [&](XMLElement file) {
        if (file.name() != "file")
            return;
        const auto list = getXMLElement({"rightsInfo", "trusteeList"}, file);
        const auto path = file.firstChild("path");
        complete = complete && list && path;
        if (!complete || !list->hasChildren())
            return;
        const std::string pathText = path->stringValue();
        for (const XMLElement trustee : list->children()) {
            if (trustee.hasChildren())
                decodeFSRTrusteeInfo(trustee, pathText, identities, arr);
        }
    });
    if (error) {
        Log("Error parsing FSR Response : error %@", error->description);
        arr.erase(arr.begin() + before, arr.end());
        return;
    }
    require(complete, "A file of the reply has no path or no list of trustees");
}

void XMLReadWriteController::decodeFSRTrusteeInfo(XMLElement xmlNodeArr, const std::string& path,
                                                  const IdentitySet& userID,
                                                  std::vector<IdentityFileRights>& arr) {
    std::string current;
    std::uint16_t mask = 0;
    for (const XMLElement child : xmlNodeArr.children()) {
        if (child.name() == "id") {
            current = child.stringValue();
        } else if (child.name() == "rights" && userID.contains(current)) {
            for (const XMLElement right : child.children())
                mask |= bitOf(right.name());
            arr.push_back({current, {path, mask}});
        }
    }
}

} // namespace quorvan
