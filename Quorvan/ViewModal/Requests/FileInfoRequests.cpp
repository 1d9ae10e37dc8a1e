// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/Requests/RequestEnvelope.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

namespace quorvan {
namespace {

constexpr std::string_view getOwnerAD =
    "<fileRequest><fileInfo><getFileInfo><adOnly/><idOnly/><fileName>%@</fileName><symLink/>"
    "<nameSpace>LONG</nameSpace><typeOfInfo><idInfo/></typeOfInfo></getFileInfo></fileInfo></fileRequest>";
constexpr std::string_view getOwnerMorvane =
    "<fileRequest><fileInfo><getFileInfo><idOnly/><fileName>%@</fileName><symLink/>"
    "<nameSpace>LONG</nameSpace><typeOfInfo><idInfo/></typeOfInfo></getFileInfo></fileInfo></fileRequest>";
constexpr std::string_view getAttributesAD =
    "<fileRequest><fileInfo><getFileInfo><adOnly/><idOnly/><fileName>%@</fileName><symLink/>"
    "<nameSpace>LONG</nameSpace><typeOfInfo><standardInfo/></typeOfInfo></getFileInfo></fileInfo>"
    "</fileRequest>";
constexpr std::string_view getAttributesMorvane =
    "<fileRequest><fileInfo><getFileInfo><idOnly/><fileName>%@</fileName><symLink/>"
    "<nameSpace>LONG</nameSpace><typeOfInfo><standardInfo/></typeOfInfo></getFileInfo></fileInfo>"
    "</fileRequest>";
constexpr std::string_view getQuotaAD =
    "<fileRequest><fileInfo><getFileInfo><adOnly/><idOnly/><fileName>%@</fileName><symLink/>"
    "<nameSpace>LONG</nameSpace><typeOfInfo><directoryQuotaInfo/></typeOfInfo></getFileInfo></fileInfo>"
    "</fileRequest>";
constexpr std::string_view getQuotaMorvane =
    "<fileRequest><fileInfo><getFileInfo><idOnly/><fileName>%@</fileName><symLink/>"
    "<nameSpace>LONG</nameSpace><typeOfInfo><directoryQuotaInfo/></typeOfInfo></getFileInfo></fileInfo>"
    "</fileRequest>";

// The blanks around the equals sign belong there; no other request has them.
constexpr std::string_view setOwnerAD =
    "<fileRequest><fileInfo><setFileInfo><nameSpace>LONG</nameSpace><fileName>%@</fileName><symLink/>"
    R"(<idInfo><creatorID type = "adID">%@</creatorID></idInfo></setFileInfo></fileInfo></fileRequest>)";
constexpr std::string_view setOwnerMorvane =
    "<fileRequest><fileInfo><setFileInfo><nameSpace>LONG</nameSpace><fileName>%@</fileName><symLink/>"
    "<idInfo><creatorID>%@</creatorID></idInfo></setFileInfo></fileInfo></fileRequest>";
constexpr std::string_view setAttributesOfAny =
    "<fileRequest><fileInfo><setFileInfo><nameSpace>LONG</nameSpace><fileName>%@</fileName><symLink/>"
    "<attributes>%@</attributes></setFileInfo></fileInfo></fileRequest>";
constexpr std::string_view setQuotaOfAny =
    "<fileRequest><directoryQuotas><addQuota><fileName>%@</fileName>%@</addQuota></directoryQuotas>"
    "</fileRequest>";

} // namespace

std::string XMLReadWriteController::createGetOwnerRequest(const std::string& path,
                                                          const std::string& identityType) {
    return variantRequest(identityType, getOwnerAD, getOwnerMorvane, {normalizedNFC(path)});
}

std::string XMLReadWriteController::createGetAttributesRequest(const std::string& path,
                                                               const std::string& identityType) {
    return variantRequest(identityType, getAttributesAD, getAttributesMorvane, {normalizedNFC(path)});
}

std::string XMLReadWriteController::createGetDirQuotaRequest(const std::string& path,
                                                             const std::string& identityType) {
    return variantRequest(identityType, getQuotaAD, getQuotaMorvane, {normalizedNFC(path)});
}

std::string XMLReadWriteController::createSetOwnerRequest(const std::string& path, const std::string& ownerID,
                                                          const std::string& identityType) {
    return variantRequest(identityType, setOwnerAD, setOwnerMorvane, {normalizedNFC(path), ownerID});
}

std::string XMLReadWriteController::createSetAttributesRequest(const std::string& path,
                                                               const std::string& attributes) {
    return adminRequest(fill(setAttributesOfAny, {normalizedNFC(path), attributes}));
}

std::string XMLReadWriteController::createSetDirQuotaRequest(const std::string& path,
                                                             const std::string& amount) {
    const std::string element = fill("<quotaAmount>%@</quotaAmount>", {amount});
    return adminRequest(fill(setQuotaOfAny, {normalizedNFC(path), element}));
}

} // namespace quorvan
