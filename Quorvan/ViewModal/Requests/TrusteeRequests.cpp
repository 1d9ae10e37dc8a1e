// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Requests/TrusteeRequests.h"

#include "Common/Log.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/Requests/RequestEnvelope.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

namespace quorvan {
namespace {

constexpr std::string_view getListAD =
    "<fileRequest><fileInfo><getFileInfo><adOnly/><fileName>%@</fileName><symLink/><nameSpace>LONG</"
    "nameSpace>"
    "<typeOfInfo><rightsInfo/></typeOfInfo></getFileInfo></fileInfo></fileRequest>";
constexpr std::string_view getListMorvane =
    "<fileRequest><fileInfo><getFileInfo><fileName>%@</fileName><symLink/><nameSpace>LONG</nameSpace>"
    "<typeOfInfo><rightsInfo/><objectClass/></typeOfInfo></getFileInfo></fileInfo></fileRequest>";

// The order of the elements differs between adding and removing.
constexpr std::string_view addAD =
    R"(<addTrustee type="adID"><adUser/><userID>%@</userID><rights>%@</rights><fileName>%@</fileName>)"
    "<nameSpace>LONG</nameSpace><symLink/></addTrustee>";
constexpr std::string_view addMorvane =
    "<addTrustee><userID>%@</userID><rights>%@</rights><fileName>%@</fileName>"
    "<nameSpace>LONG</nameSpace><symLink/></addTrustee>";
constexpr std::string_view removeAD =
    R"(<removeTrustee type="adID"><adUser/><userID>%@</userID><symLink/><fileName>%@</fileName>)"
    "<nameSpace>LONG</nameSpace></removeTrustee>";
constexpr std::string_view removeMorvane =
    "<removeTrustee><userID>%@</userID><symLink/><fileName>%@</fileName>"
    "<nameSpace>LONG</nameSpace></removeTrustee>";

std::string trusteesRequest(std::string_view elements) {
    return fill("<fileRequest><trustees>%@</trustees></fileRequest>", {elements});
}

/// `path` is normalised here and in removeElement, so that no request can forget it. Both are "" for
/// an identity type that is neither.
std::string addElement(std::string_view identityType, const std::string& id, std::uint16_t rights,
                       const std::string& path) {
    return fill(variantFor(identityType, addAD, addMorvane),
                {id, XMLReadWriteController::createRightsForXML(rights), normalizedNFC(path)});
}

std::string removeElement(std::string_view identityType, const std::string& id, const std::string& path) {
    return fill(variantFor(identityType, removeAD, removeMorvane), {id, normalizedNFC(path)});
}

/// The element of a pending change; "" when there is none to send. The trustee's own kind goes before
/// that of the logged-in user.
std::string changeElement(const Trustees& trustee, const std::string& path, const std::string& identityType) {
    const bool ownType =
        trustee.domainType == identityActiveDirectory || trustee.domainType == identityMorvane;
    const std::string& type = ownType ? trustee.domainType.str() : identityType;
    if (trustee.status == TrusteeInfo::ADD)
        return addElement(type, trustee.trusteeID, trustee.rights, path);
    if (trustee.status == TrusteeInfo::REMOVE)
        return removeElement(type, trustee.trusteeID, path);
    Log("skipping user: ");
    return "";
}

/// One element in its envelope, or nothing in it.
std::string oneElementRequest(const std::string& element) {
    return adminRequest(element.empty() ? "" : trusteesRequest(element));
}

} // namespace

std::string XMLReadWriteController::createGetTrusteesListRequestAD(const std::string& path) {
    return adminRequest(fill(getListAD, {normalizedNFC(path)}));
}

std::string XMLReadWriteController::createGetTrusteesListRequestMorvane(const std::string& path) {
    return adminRequest(fill(getListMorvane, {normalizedNFC(path)}));
}

std::string XMLReadWriteController::createRightsForXML(std::uint16_t rights) {
    std::string text;
    for (const RightTag& right : rightTags) {
        if ((rights & right.bit) != 0)
            text += fill("<%@/>", {right.tag});
    }
    return text;
}

std::string XMLReadWriteController::createAddRemoveTrusteeRequest(const TrusteeList& trustees,
                                                                  const std::string& path,
                                                                  const std::string& identityType) {
    std::string elements;
    for (const auto& trustee : trustees)
        elements += changeElement(*trustee, path, identityType);
    return adminRequest(trusteesRequest(elements));
}

std::string XMLReadWriteController::createAddTrusteeRequest(const std::string& id, std::uint16_t rights,
                                                            const std::string& path) {
    return addElement(identityActiveDirectory, id, rights, path);
}

std::string XMLReadWriteController::createAddTrusteeRequestMorvane(const std::string& id,
                                                                   std::uint16_t rights,
                                                                   const std::string& path) {
    return addElement(identityMorvane, id, rights, path);
}

std::string addTrusteeRequest(const Trustees& trustee, const std::string& path,
                              const std::string& identityType) {
    return oneElementRequest(addElement(identityType, trustee.trusteeID, trustee.rights, path));
}

std::string removeTrusteeRequest(const Trustees& trustee, const std::string& path,
                                 const std::string& identityType) {
    return oneElementRequest(removeElement(identityType, trustee.trusteeID, path));
}

std::string directoryTrusteesRequest(const std::vector<DirectoryRights>& entries,
                                     const std::string& identityType) {
    std::string elements;
    for (const DirectoryRights& entry : entries)
        elements += changeElement(*entry.trustee, entry.path, identityType);
    // The server gets the command stream twice here: once from the envelope, once in front of the body.
    return adminRequest(fill("%@%@", {virtualIO, trusteesRequest(elements)}));
}

} // namespace quorvan
