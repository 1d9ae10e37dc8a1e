// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/LinkFollowing.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Platform/Services.h"
#include "Quorvan/ViewModal/Requests/SmbInformationRequests.h"
#include "Quorvan/ViewModal/ScopedPipe.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <algorithm>

namespace quorvan {
namespace {

bool succeeded(const std::string& status) {
    return status == "0" || status == "20407";
}

// Where a link leads goes into the requests to another server, with the user's password: it must not be able
// to add anything to them.

bool isPlain(const std::string& text) {
    return std::ranges::none_of(
        text, [](unsigned char c) { return c < 0x20 || c == 0x7F || c == '<' || c == '>' || c == '&'; });
}

bool isHostName(const std::string& text) {
    return isPlain(text) && text.find_first_of(" \"\\^`{|}/@?#%") == std::string::npos;
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

bool liesBelowLink(const std::string& status) {
    return status == "20429" || status == "20008";
}

std::int32_t LinkFollower::perform(const SelectionRequest& request) {
    ScopedPipe pipe(controller_, place_.server, request.pipe);
    if (!pipe.isOpen())
        return pipe.status();
    const std::string result = request.perform(place_.selectedPath);
    pipe.close();

    std::int32_t outcome = controller_.loss();
    if (outcome == 0 && liesBelowLink(result)) {
        outcome = performBehindLink(request);
    } else if (!succeeded(result)) {
        Log("%@%@", request.failed.here, result);
        if (outcome == 0)
            outcome = 1;
    }
    XMLReadWriteController::closePipe(); // once more: the log of every operation on a selection ends so
    return outcome;
}

/// Asks the server where the link leads and repeats the request there. The result is that of the SMB
/// client, or the errno of a lost connection, whatever else goes wrong.
std::int32_t LinkFollower::performBehindLink(const SelectionRequest& request) {
    ScopedPipe linkPipe(controller_, place_.server, pipes::smbInformation);
    if (!linkPipe.isOpen())
        return 0;
    controller_.resolveDFSPath(place_.mappedPath, place_.selectedPath, targetServer, targetPath, resVal);
    linkPipe.close();

    bool mayContinue = true;
    if (resVal == "0")
        mayContinue = moveToTarget(place_.mappedPath);
    else if (resVal == "30006")
        walkMappedPath();
    if (resVal != "0")
        Log("Unable to get DFS Path Info : error returned: %@", resVal);
    if (resVal != "0" || !mayContinue)
        return controller_.loss() != 0 ? controller_.loss() : status;

    ScopedPipe pipe(controller_, place_.server, request.pipe);
    if (!pipe.isOpen()) {
        Log("openPipe failed.");
        return status;
    }
    const std::string result = request.perform(place_.selectedPath);
    pipe.close();
    if (!succeeded(result))
        Log("%@%@", request.failed.behindLink, result);
    return controller_.loss() != 0 ? controller_.loss() : status;
}

void LinkFollower::walkMappedPath() {
    const std::vector<std::string> parts = partsOf(place_.mappedPath);
    require(parts.size() >= 2, "The mapped path \"%@\" has no component that could be a link",
            place_.mappedPath);
    std::string prefix = parts[0];
    for (std::size_t next = 1; next < parts.size(); ++next) {
        prefix += "\\" + parts[next];
        Log("Resolving DFS path %@", prefix);
        ScopedPipe pipe(controller_, place_.server, pipes::smbInformation);
        if (!pipe.isOpen()) {
            Log("Unable to open pipe %@ - %@", place_.server, pipes::smbInformation.file);
            return;
        }
        controller_.resolveDFSPath(prefix, place_.selectedPath, targetServer, targetPath, resVal);
        pipe.close();
        if (resVal == "0") {
            if (!moveToTarget(prefix)) {
                Log("Unable to get DFS Path Info : error returned: %@", resVal);
                return;
            }
            prefix = targetPath;
            continue;
        }
        Log("Resolved path %@ with error: %@", place_.selectedPath, resVal);
        if (resVal != "30005") // what is no link may still contain one
            return;
    }
}

bool LinkFollower::moveToTarget(const std::string& linkPath) {
    std::int32_t err = 0;
    XMLReadWriteController::buildDFSPath(place_.selectedPath, targetPath, linkPath, targetServer,
                                         place_.server, status, err);
    return err == 0;
}

std::string XMLReadWriteController::getDFSPath(const std::string& path) {
    return exchangeRequest(
        readLinkRequest(path),
        {"Get DFS Path Request : %@", "response.deinitialize getDFSPath", "Get DFS Path Response: %@"});
}

std::string XMLReadWriteController::getDFSPathInfo(const std::string& path, std::string& targetServer,
                                                   std::string& targetPath) {
    const XMLDocument reply(getDFSPath(path));
    if (loss_ != 0)
        return statusOfExchange();
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
    const std::string volume = getValue("volumeName", junction);
    const std::string inVolume = getValue("pathName", junction);
    if (!isHostName(host) || !isPlain(volume) || !isPlain(inVolume)) {
        Log("Error parsing KELP Reply - %@", "the link leads to no server or path");
        return "-1";
    }
    targetServer = host.substr(0, host.find('.'));
    targetPath = volume + (inVolume.empty() ? ":" : ":\\" + inVolume);
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
    LinkFollower walk(*this, {server, selectedPath, mappedPath});
    walk.targetServer = targetServer;
    walk.targetPath = targetPath;
    walk.resVal = resVal;
    walk.status = status;
    walk.walkMappedPath();
    targetServer = walk.targetServer;
    targetPath = walk.targetPath;
    resVal = walk.resVal;
    status = walk.status;
}

} // namespace quorvan
