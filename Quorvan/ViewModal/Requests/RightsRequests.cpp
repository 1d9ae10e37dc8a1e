// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/Requests/RequestEnvelope.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

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

} // namespace

std::string XMLReadWriteController::createSetIRFRequest(const std::string& path, std::uint16_t irf) {
    return adminRequest(fill(setFilter, {normalizedNFC(path), createRightsForXML(irf)}));
}

std::string XMLReadWriteController::createGetERRequests(const std::string& path,
                                                        const std::string& identityType) {
    return variantRequest(identityType, allEffectiveAD, allEffectiveMorvane, {normalizedNFC(path)});
}

std::string XMLReadWriteController::createGetUserEffRightRequest(const std::string& userID,
                                                                 const std::string& path,
                                                                 const std::string& identityType) {
    return variantRequest(identityType, oneEffectiveAD, oneEffectiveMorvane, {userID, normalizedNFC(path)});
}

std::string XMLReadWriteController::createGetIRRequest(const std::string& path,
                                                       const std::string& identityType) {
    return variantRequest(identityType, allPathsAD, allPathsMorvane, {normalizedNFC(path)});
}

} // namespace quorvan
