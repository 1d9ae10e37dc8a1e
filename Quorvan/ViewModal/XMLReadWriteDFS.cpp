// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Platform/Services.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/ScopedPipe.h"

#include <algorithm>

namespace quorvan {

namespace {

/// What is logged before the status of a request that failed.
struct FailureMessages {
    std::string_view first;
    std::string_view behindLink;
};

} // namespace

/// A request about the selection, which may lie below a link to another server.
struct XMLReadWriteController::SelectionRequest {
    ManagementPipe pipe;
    FailureMessages failed;
    std::function<std::string(const std::string& path)> perform; ///< returns the status text
};

namespace {

constexpr std::string_view readLink =
    "<zelSmbGetInfo><readLink><pathName>%@</pathName></readLink></zelSmbGetInfo>";

bool succeeded(const std::string& status) {
    return status == "0" || status == "20407";
}

bool liesBelowLink(const std::string& status) {
    return status == "20429" || status == "20008";
}

/// The parts of a server path; empty ones do not count.
std::vector<std::string> partsOf(const std::string& path) {
    std::vector<std::string> parts;
    for (std::size_t begin = 0; begin < path.size();) {
        const std::size_t end = std::min(path.find('\\', begin), path.size());
        if (end > begin)
            parts.push_back(path.substr(begin, end - begin));
        begin = end + 1;
    }
    return parts;
}

} // namespace

std::string XMLReadWriteController::getDFSPath(const std::string& path) {
    return exchangeRequest(
        fill(readLink, {normalizedNFC(path)}),
        {"Get DFS Path Request : %@", "response.deinitialize getDFSPath", "Get DFS Path Response: %@"});
}

std::string XMLReadWriteController::getDFSPathInfo(const std::string& path, std::string& targetServer,
                                                   std::string& targetPath) {
    const XMLDocument reply(getDFSPath(path));
    if (reply.error()) {
        Log("Error parsing KELP Reply - %@", reply.error()->description);
        return "-1";
    }
    const XMLElement result = getElement({"result"}, reply.rootElement());
    require(result.hasAttributes(), "The result of the reply has no attributes");
    std::string status(result.attribute("value").value_or("-1"));
    if (status != "0")
        return status;
    const XMLElement junction = getElement({"readLink", "junction"}, reply.rootElement());
    const std::string host = getValue("server", junction);
    const std::string inVolume = getValue("pathName", junction);
    targetServer = host.substr(0, host.find('.'));
    targetPath = getValue("volumeName", junction) + (inVolume.empty() ? ":" : ":\\" + inVolume);
    Log("targetServer : %@, targetPath : %@", targetServer, targetPath);
    return status;
}

void XMLReadWriteController::resolveDFSPath(const std::string& mappedPath, const std::string& selectedPath,
                                            std::string& targetServer, std::string& targetPath,
                                            std::string& resVal) {
    resVal = getDFSPathInfo(mappedPath, targetServer, targetPath);
    Log("getDFPathInfo returned: %@", resVal);
    if (resVal != "20156")
        return;
    resVal = getDFSPathInfo(selectedPath, targetServer, targetPath);
    Log("getDFPathInfo returned: %@", resVal);
}

void XMLReadWriteController::buildDFSPath(std::string& selectedPath, const std::string& targetPath,
                                          const std::string& mappedPath, const std::string& targetServer,
                                          std::string& serverIP, std::int32_t& status, std::int32_t& err) {
    selectedPath.replace(0, std::min(mappedPath.size(), selectedPath.size()), targetPath);
    if (targetServer == serverIP)
        return;
    serverIP = targetServer;
    status = platform::services().network->createContext(targetServer);
    if (status != 0) {
        Log("Unable to create context for DFS target server, error returned: %d", status);
        err = 1;
    }
}

void XMLReadWriteController::resolveMultipleDFSPath(std::string& server, const std::string& mappedPath,
                                                    std::string& selectedPath, std::string& targetServer,
                                                    std::string& targetPath, std::string& resVal,
                                                    std::int32_t& status) {
    const std::vector<std::string> parts = partsOf(mappedPath);
    require(parts.size() >= 2, "The mapped path \"%@\" has no component that could be a link", mappedPath);
    std::string prefix = parts[0];
    for (std::size_t next = 1; next < parts.size(); ++next) {
        prefix += "\\" + parts[next];
        Log("Resolving DFS path %@", prefix);
        ScopedPipe pipe(*this, server, pipes::smbInformation);
        if (!pipe.isOpen()) {
            Log("Unable to open pipe %@ - %@", server, pipes::smbInformation.file);
            return;
        }
        resolveDFSPath(prefix, selectedPath, targetServer, targetPath, resVal);
        pipe.close();
        if (resVal == "0") {
            std::int32_t err = 0;
            buildDFSPath(selectedPath, targetPath, prefix, targetServer, server, status, err);
            if (err != 0) {
                Log("Unable to get DFS Path Info : error returned: %@", resVal);
                return;
            }
            prefix = targetPath;
            continue;
        }
        Log("Resolved path %@ with error: %@", selectedPath, resVal);
        if (resVal != "30005") // what is no link may still contain one
            return;
    }
}

std::int32_t XMLReadWriteController::performHandleDFS(const SelectionRequest& request, std::string& server,
                                                      std::string& selectedPath,
                                                      const std::string& mappedPath) {
    ScopedPipe pipe(*this, server, request.pipe);
    if (!pipe.isOpen())
        return pipe.status();
    const std::string result = request.perform(selectedPath);
    pipe.close();

    std::int32_t outcome = 0;
    if (liesBelowLink(result)) {
        outcome = followLink(request, server, selectedPath, mappedPath);
    } else if (!succeeded(result)) {
        Log("%@%@", request.failed.first, result);
        outcome = 1;
    }
    closePipe(); // a second time: the log of every operation on the selection ends with this line
    return outcome;
}

/// Asks the server where the link leads and repeats the request there. The result is that of the SMB
/// client, whatever else goes wrong.
std::int32_t XMLReadWriteController::followLink(const SelectionRequest& request, std::string& server,
                                                std::string& selectedPath, const std::string& mappedPath) {
    ScopedPipe linkPipe(*this, server, pipes::smbInformation);
    if (!linkPipe.isOpen())
        return 0;
    std::string targetServer;
    std::string targetPath;
    std::string resVal;
    resolveDFSPath(mappedPath, selectedPath, targetServer, targetPath, resVal);
    linkPipe.close();

    std::int32_t status = 0;
    std::int32_t err = 0;
    if (resVal == "0")
        buildDFSPath(selectedPath, targetPath, mappedPath, targetServer, server, status, err);
    else if (resVal == "30006")
        resolveMultipleDFSPath(server, mappedPath, selectedPath, targetServer, targetPath, resVal, status);
    if (resVal != "0") {
        Log("Unable to get DFS Path Info : error returned: %@", resVal);
        return status;
    }
    if (err != 0)
        return status;

    ScopedPipe pipe(*this, server, request.pipe);
    if (!pipe.isOpen()) {
        Log("openPipe failed.");
        return status;
    }
    const std::string result = request.perform(selectedPath);
    pipe.close();
    if (!succeeded(result))
        Log("%@%@", request.failed.behindLink, result);
    return status;
}

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
    return performHandleDFS({pipes::files, cannotGetTrustees, request}, server, selectedPath, mappedPath);
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
    return performHandleDFS({pipes::files, cannotGetTrustees, request}, server, selectedPath, mappedPath);
}

std::int32_t XMLReadWriteController::getEffectiveRightsForMappedUserForPathHandleDFS(
    std::string& selectedPath, std::vector<std::string>& effectiveRights, std::string& server,
    std::string& mappedPath, const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getEffectiveRightsForMappedUser(path, effectiveRights, identityType);
    };
    return performHandleDFS({pipes::files, cannotGetRights, request}, server, selectedPath, mappedPath);
}

std::int32_t XMLReadWriteController::getIRRequestHandleDFS(std::string& server,
                                                           std::vector<DirectoryRights>& dirTrustee,
                                                           std::string& mappedPath, std::string& selectedPath,
                                                           const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getIRRequest(path, dirTrustee, identityType);
    };
    return performHandleDFS({pipes::rights, cannotGetTrustees, request}, server, selectedPath, mappedPath);
}

std::int32_t XMLReadWriteController::setInheritedRightsforPathHandleDFS(std::string& server,
                                                                        std::uint16_t irf,
                                                                        std::string& selectedPath,
                                                                        std::string& mappedPath) {
    const auto request = [&](const std::string& path) {
        return std::to_string(setInheritedRights(irf, path));
    };
    return performHandleDFS({pipes::files, cannotSetFilter, request}, server, selectedPath, mappedPath);
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
    return performHandleDFS({pipes::files, cannotSetTrustee, request}, server, selectedPath, mappedPath);
}

std::int32_t XMLReadWriteController::getFileInfoOwnerHandleDFS(std::string& server, std::string& selectedPath,
                                                               OwnerInfo& ownerInfo, std::string& mappedPath,
                                                               const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getFileInfoOwner(path, ownerInfo, identityType);
    };
    return performHandleDFS({pipes::files, cannotGetRights, request}, server, selectedPath, mappedPath);
}

std::int32_t XMLReadWriteController::getAttributesHandleDFS(std::string& server, std::string& selectedPath,
                                                            AttributesInfo& fileAttributes,
                                                            std::string& mappedPath,
                                                            const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getAttributes(path, fileAttributes, identityType);
    };
    return performHandleDFS({pipes::files, cannotGetRights, request}, server, selectedPath, mappedPath);
}

std::int32_t XMLReadWriteController::getDirectoryQuotaHandleDFS(std::string& server,
                                                                std::string& selectedPath,
                                                                DirectoryQuotaInfo& dirQuota,
                                                                std::string& mappedPath,
                                                                const std::string& identityType) {
    const auto request = [&](const std::string& path) {
        return getDirectoryQuota(path, dirQuota, identityType);
    };
    return performHandleDFS({pipes::files, cannotGetRights, request}, server, selectedPath, mappedPath);
}

} // namespace quorvan
