// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/ViewModal/Replies/TrusteeReader.h"
#include "Quorvan/ViewModal/Requests/TrusteeRequests.h"

namespace quorvan {
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
    std::string status =
        statusOf(parse(getTrusteeList(path, identityType), {"fileInfo", "getFileInfo", "result"}));
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
    trusteeList.reserve(trusteeList.size() + dictResponse->size());
    for (const auto& entry : *dictResponse) {
        if (auto trustee = reader.read(*entry))
            trusteeList.push_back(std::move(trustee));
    }
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

std::string XMLReadWriteController::setTrusteeAdd(const Trustees& trustee, const std::string& path,
                                                  const std::string& identityType) {
    return setOneTrustee(
        addTrusteeRequest(trustee, path, identityType), {"trustees", "addTrustee", "result"},
        {"Add trustee Request : %@", "response.deinitialize setTrusteeAdd", "Add trustee Response: %@"});
}

std::string XMLReadWriteController::setTrusteeRemove(const Trustees& trustee, const std::string& path,
                                                     const std::string& identityType) {
    return setOneTrustee(removeTrusteeRequest(trustee, path, identityType),
                         {"trustees", "removeTrustee", "result"},
                         {"Remove trustee Request : %@", "response.deinitialize setTrusteeRemove",
                          "Remove trustee Response: %@"});
}

std::string XMLReadWriteController::setOneTrustee(const std::string& request, const ElementPath& resultPath,
                                                  const ExchangeLog& log) {
    const XMLResponseParser parsed = parse(exchangeRequest(request, log), resultPath);
    const std::string result = statusOf(parsed);
    if (parsed.xmlReqStatus >= 1 || parsed.nAddFailed >= 1 || parsed.nRemFailed >= 1)
        Log("Failed to process SetTrustees response %d", parsed.xmlReqStatus);
    return result;
}

std::int64_t XMLReadWriteController::setTrusteeforDir(const std::vector<DirectoryRights>& entries,
                                                      const std::string& identityType) {
    const std::string reply = exchangeRequest(directoryTrusteesRequest(entries, identityType),
                                              {"Add Remove trustee for directory Request : %@",
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

// NOLINTNEXTLINE(bugprone-easily-swappable-parameters): a fixed signature
void XMLReadWriteController::parseSetTrusteeResp(const std::string& xml, std::int64_t& nAddFailed,
                                                 std::int64_t& nRemFailed, std::int64_t& status) {
    const XMLResponseParser parsed = parse(xml);
    nAddFailed = parsed.nAddFailed;
    nRemFailed = parsed.nRemFailed;
    status = loss_ != 0 ? loss_ : parsed.xmlReqStatus;
}

} // namespace quorvan
