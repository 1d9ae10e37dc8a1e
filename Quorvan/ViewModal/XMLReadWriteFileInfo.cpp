// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Quorvan/ViewModal/Replies/FileInfoReplies.h"

namespace quorvan {

/// What reading a property of a file comes to: the record is filled only when the server says "0".
template <class Info>
std::string XMLReadWriteController::getFileInfo(const std::string& request, const ExchangeLog& log,
                                                const FileProperty& property, Info& info) {
    FileInfoReader reader(property);
    const XMLResponseParser parsed =
        parse(exchangeRequest(request, log), {"fileInfo", "getFileInfo", "result"}, reader);
    std::string status = statusOf(parsed);
    if (status == "0")
        reader.finish(parsed.error, info);
    return status;
}

std::string XMLReadWriteController::getFileInfoOwner(const std::string& path, OwnerInfo& ownerInfo,
                                                     const std::string& identityType) {
    return getFileInfo(createGetOwnerRequest(path, identityType),
                       {"Get file info owner Request", "response.deinitialize get file info owner Reply",
                        "Get file info owner Reply: %@"},
                       FileProperty::owner, ownerInfo);
}

std::string XMLReadWriteController::getAttributes(const std::string& path, AttributesInfo& fileAttributes,
                                                  const std::string& identityType) {
    return getFileInfo(createGetAttributesRequest(path, identityType),
                       {"Get Attributes Request : %@", "response.deinitialize Get File Attributes Request",
                        "Get Attributes Request: %@"},
                       FileProperty::attributes, fileAttributes);
}

std::string XMLReadWriteController::getDirectoryQuota(const std::string& path, DirectoryQuotaInfo& dirQuota,
                                                      const std::string& ctx) {
    return getFileInfo(createGetDirQuotaRequest(path, ctx),
                       {"Get Directory Quota Request", "response.deinitialize Get Directory Quota Request",
                        "Get Directory Quota Request: %@"},
                       FileProperty::directoryQuota, dirQuota);
}

std::string XMLReadWriteController::setFileInfoOwner(const std::string& path, const std::string& ownerID,
                                                     const std::string& identityType) {
    exchangeRequest(createSetOwnerRequest(path, ownerID, identityType),
                    {"Set file info owner Request", "response.deinitialize set file info owner Request",
                     "Set file info owner Request: %@"});
    return statusOfExchange();
}

std::string XMLReadWriteController::setAttributes(const std::string& path, const std::string& attributes) {
    exchangeRequest(createSetAttributesRequest(path, attributes),
                    {"Set Attributes Request : %@", "response.deinitialize Set File Attributes Request",
                     "Set Attributes Reply: %@"});
    return statusOfExchange();
}

std::string XMLReadWriteController::setDirectoryQuota(const std::string& path, const std::string& amount) {
    exchangeRequest(createSetDirQuotaRequest(path, amount),
                    {"Set Directory Quota Request", "response.deinitialize Set Directory Quota Request",
                     "Set Directory Quota Request: %@"});
    return statusOfExchange();
}

} // namespace quorvan
