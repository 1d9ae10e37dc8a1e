// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Log.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/RequestEnvelope.h"
#include "Quorvan/ViewModal/TrusteeReader.h"

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
    const std::string& type = ownType ? trustee.domainType : identityType;
    if (trustee.status == TrusteeInfo::ADD)
        return addElement(type, trustee.trusteeID, trustee.rights, path);
    if (trustee.status == TrusteeInfo::REMOVE)
        return removeElement(type, trustee.trusteeID, path);
    Log("skipping user: ");
    return "";
}

} // namespace

std::string XMLReadWriteController::createGetTrusteesListRequestAD(const std::string& path) {
    return adminRequest(fill(getListAD, {normalizedNFC(path)}));
}

std::string XMLReadWriteController::createGetTrusteesListRequestMorvane(const std::string& path) {
    return adminRequest(fill(getListMorvane, {normalizedNFC(path)}));
}

std::string XMLReadWriteController::getTrusteeList(const std::string& path, const std::string& identityType) {
    const std::string request = identityType == identityActiveDirectory
                                    ? createGetTrusteesListRequestAD(path)
                                    : createGetTrusteesListRequestMorvane(path);
    return exchangeRequest(request, {"Get trustee list Request : %@", "response.deinitialize getTrusteeList",
                                     "Get trustee list Response: %@"});
}

std::string XMLReadWriteController::initializeTrustees(const std::string& path,
                                                       const std::string& identityType,
                                                       TrusteeList& trusteeList, Rights& irf,
                                                       Rights& effRights) {
    const std::string status =
        getResultValue(getTrusteeList(path, identityType), {"fileInfo", "getFileInfo", "result"});
    if (status != "0")
        return status;
    loadTrusteeDataFromServer(trusteeList, identityType);
    loadIRFRights(irf);
    loadEffRights(effRights);
    return status;
}

void XMLReadWriteController::loadTrusteeDataFromServer(TrusteeList& trusteeList,
                                                       const std::string& identityType) const {
    if (!dictResponse)
        return;
    TrusteeReader reader(*dictResponse, identityType);
    for (const auto& entry : *dictResponse) {
        if (auto trustee = reader.read(*entry))
            trusteeList.push_back(std::move(trustee));
    }
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

std::int64_t XMLReadWriteController::setTrustee(const TrusteeList& trustees, const std::string& path,
                                                const std::string& identityType) {
    const std::string reply =
        exchangeRequest(createAddRemoveTrusteeRequest(trustees, path, identityType),
                        {"Add Remove trustee list Request : %@", "response.deinitialize setTrustee",
                         "Add or Remove trustee Response: %@"});
    std::int64_t addFailed = 0;
    std::int64_t removeFailed = 0;
    std::int64_t status = 0;
    parseSetTrusteeResp(reply, addFailed, removeFailed, status);
    if (status >= 1 || addFailed >= 1 || removeFailed >= 1)
        Log("Failed to process SetTrustees response %d", status);
    return status;
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

std::string XMLReadWriteController::setTrusteeAdd(const Trustees& trustee, const std::string& path,
                                                  const std::string& identityType) {
    return setOneTrustee(
        addElement(identityType, trustee.trusteeID, trustee.rights, path),
        {"trustees", "addTrustee", "result"},
        {"Add trustee Request : %@", "response.deinitialize setTrusteeAdd", "Add trustee Response: %@"});
}

std::string XMLReadWriteController::setTrusteeRemove(const Trustees& trustee, const std::string& path,
                                                     const std::string& identityType) {
    return setOneTrustee(removeElement(identityType, trustee.trusteeID, path),
                         {"trustees", "removeTrustee", "result"},
                         {"Remove trustee Request : %@", "response.deinitialize setTrusteeRemove",
                          "Remove trustee Response: %@"});
}

/// Sends one element, or an empty envelope without one, and returns the status text.
std::string XMLReadWriteController::setOneTrustee(const std::string& element, const ElementPath& resultPath,
                                                  const ExchangeLog& log) {
    const std::string reply =
        exchangeRequest(adminRequest(element.empty() ? "" : trusteesRequest(element)), log);
    const XMLResponseParser parsed = parse(reply, resultPath);
    const std::string result = statusOf(parsed);
    if (parsed.xmlReqStatus >= 1 || parsed.nAddFailed >= 1 || parsed.nRemFailed >= 1)
        Log("Failed to process SetTrustees response %d", parsed.xmlReqStatus);
    return result;
}

std::int64_t XMLReadWriteController::setTrusteeforDir(const std::vector<DirectoryRights>& entries,
                                                      const std::string& identityType) {
    std::string elements;
    for (const DirectoryRights& entry : entries)
        elements += changeElement(*entry.trustee, entry.path, identityType);
    // The server gets the command stream twice here: once from the envelope, once in front of the body.
    const std::string request = adminRequest(fill("%@%@", {virtualIO, trusteesRequest(elements)}));
    const std::string reply = exchangeRequest(request, {"Add Remove trustee for directory Request : %@",
                                                        "response.deinitialize setTrusteeforDir",
                                                        "Add or Remove trustee for directory Response: %@"});
    std::int64_t addFailed = 0;
    std::int64_t removeFailed = 0;
    std::int64_t status = 0;
    parseSetTrusteeResp(reply, addFailed, removeFailed, status);
    if (status >= 1 || addFailed >= 1 || removeFailed >= 1)
        Log("Failed to process SetTrustees for directory response %d", status);
    return status;
}

void XMLReadWriteController::parseSetTrusteeResp(const std::string& xml, std::int64_t& nAddFailed,
                                                 std::int64_t& nRemFailed, std::int64_t& status) {
    const XMLResponseParser parsed = parse(xml);
    nAddFailed = parsed.nAddFailed;
    nRemFailed = parsed.nRemFailed;
    status = parsed.xmlReqStatus;
}

} // namespace quorvan
