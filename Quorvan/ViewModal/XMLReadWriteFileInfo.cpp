// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/RequestEnvelope.h"

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

bool isAttribute(std::string_view name) {
    return FileAttributes::FILE_ATTRIBUTES_TAG_ENABLED.contains(name);
}

/// The part of a file information reply that every decoder reads; nothing when the reply is not XML, which
/// is logged behind `complaint`.
std::optional<XMLElement> fileInfoOf(const XMLDocument& reply, std::string_view complaint) {
    if (reply.error()) {
        Log("%@%@", complaint, reply.error()->description);
        return std::nullopt;
    }
    return getElement({"fileInfo", "getFileInfo"}, reply.rootElement());
}

} // namespace

/// What reading a property of a file comes to: the record is filled only when the server says "0".
std::string XMLReadWriteController::getFileInfo(const std::string& request, const ExchangeLog& log,
                                                const std::function<void(const std::string& reply)>& decode) {
    const std::string reply = exchangeRequest(request, log);
    std::string status = getResultValue(reply, {"fileInfo", "getFileInfo", "result"});
    if (status == "0")
        decode(reply);
    return status;
}

std::string XMLReadWriteController::createGetOwnerRequest(const std::string& path,
                                                          const std::string& identityType) {
    return variantRequest(identityType, getOwnerAD, getOwnerMorvane, {normalizedNFC(path)});
}

std::string XMLReadWriteController::getFileInfoOwner(const std::string& path, OwnerInfo& ownerInfo,
                                                     const std::string& identityType) {
    return getFileInfo(createGetOwnerRequest(path, identityType),
                       {"Get file info owner Request", "response.deinitialize get file info owner Reply",
                        "Get file info owner Reply: %@"},
                       [&](const std::string& reply) { decodeOwnerInfo(reply, ownerInfo); });
}

void XMLReadWriteController::decodeOwnerInfo(const std::string& xml, OwnerInfo& dictionary) {
    const XMLDocument reply(xml);
    const auto info = fileInfoOf(reply, "Error parsing ownerInfo - ");
    if (!info)
        return;
    const XMLElement creator = getElement({"idInfo", "creator"}, *info);
    const XMLElement result = getElement({"result"}, *info);
    dictionary = {getValue("name", creator), getValue("id", creator), getValue("description", result)};
}

std::string XMLReadWriteController::createGetAttributesRequest(const std::string& path,
                                                               const std::string& identityType) {
    return variantRequest(identityType, getAttributesAD, getAttributesMorvane, {normalizedNFC(path)});
}

std::string XMLReadWriteController::getAttributes(const std::string& path, AttributesInfo& fileAttributes,
                                                  const std::string& identityType) {
    return getFileInfo(
        createGetAttributesRequest(path, identityType),
        {"Get Attributes Request : %@", "response.deinitialize Get File Attributes Request",
         "Get Attributes Request: %@"},
        [&](const std::string& reply) { decodeFileAttributesResponse(reply, fileAttributes); });
}

void XMLReadWriteController::decodeFileAttributesResponse(const std::string& xml,
                                                          AttributesInfo& dictionary) {
    const XMLDocument reply(xml);
    const auto info = fileInfoOf(reply, "Error parsing ownerInfo - ");
    if (!info)
        return;
    const XMLElement attributes = getElement({"standardInfo", "attributes"}, *info);
    const XMLElement result = getElement({"result"}, *info);
    dictionary = {parseFileAttributes(attributes), getValue("description", result)};
}

std::vector<std::string> XMLReadWriteController::parseFileAttributes(XMLElement xmlData) {
    std::vector<std::string> names;
    for (const XMLElement attribute : xmlData.children()) {
        require(!attribute.isText(), "There is text among the attributes");
        if (isAttribute(attribute.name()))
            names.emplace_back(attribute.name());
    }
    return names;
}

std::string XMLReadWriteController::createGetDirQuotaRequest(const std::string& path,
                                                             const std::string& identityType) {
    return variantRequest(identityType, getQuotaAD, getQuotaMorvane, {normalizedNFC(path)});
}

std::string XMLReadWriteController::getDirectoryQuota(const std::string& path, DirectoryQuotaInfo& dirQuota,
                                                      const std::string& ctx) {
    return getFileInfo(createGetDirQuotaRequest(path, ctx),
                       {"Get Directory Quota Request", "response.deinitialize Get Directory Quota Request",
                        "Get Directory Quota Request: %@"},
                       [&](const std::string& reply) { decodeDirQuotaResponse(reply, dirQuota); });
}

void XMLReadWriteController::decodeDirQuotaResponse(const std::string& xml, DirectoryQuotaInfo& dictionary) {
    const XMLDocument reply(xml);
    const auto info = fileInfoOf(reply, "Error parsing Directory Quota Response - ");
    if (!info)
        return;
    const XMLElement quota = getElement({"quotaInfo"}, *info);
    const XMLElement result = getElement({"result"}, *info);
    dictionary = {getValue("quotaAmount", quota), getValue("usedAmount", quota),
                  getValue("description", result)};
}

std::string XMLReadWriteController::createSetOwnerRequest(const std::string& path, const std::string& ownerID,
                                                          const std::string& identityType) {
    return variantRequest(identityType, setOwnerAD, setOwnerMorvane, {normalizedNFC(path), ownerID});
}

void XMLReadWriteController::setFileInfoOwner(const std::string& path, const std::string& ownerID,
                                              const std::string& identityType) {
    exchangeRequest(createSetOwnerRequest(path, ownerID, identityType),
                    {"Set file info owner Request", "response.deinitialize set file info owner Request",
                     "Set file info owner Request: %@"});
}

std::string XMLReadWriteController::createSetAttributesRequest(const std::string& path,
                                                               const std::string& attributes) {
    return adminRequest(fill(setAttributesOfAny, {normalizedNFC(path), attributes}));
}

void XMLReadWriteController::setAttributes(const std::string& path, const std::string& attributes) {
    exchangeRequest(createSetAttributesRequest(path, attributes),
                    {"Set Attributes Request : %@", "response.deinitialize Set File Attributes Request",
                     "Set Attributes Reply: %@"});
}

std::string XMLReadWriteController::createSetDirQuotaRequest(const std::string& path,
                                                             const std::string& amount) {
    const std::string element = fill("<quotaAmount>%@</quotaAmount>", {amount});
    return adminRequest(fill(setQuotaOfAny, {normalizedNFC(path), element}));
}

void XMLReadWriteController::setDirectoryQuota(const std::string& path, const std::string& amount) {
    exchangeRequest(createSetDirQuotaRequest(path, amount),
                    {"Set Directory Quota Request", "response.deinitialize Set Directory Quota Request",
                     "Set Directory Quota Request: %@"});
}

} // namespace quorvan
