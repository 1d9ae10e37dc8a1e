// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Log.h"

namespace quorvan {

/// A request about the selection, which may lie below a link to another server.
struct XMLReadWriteController::SelectionRequest {
    std::string pipe;
    std::string_view failureMessage;     ///< before the status of a request that failed
    std::string_view linkFailureMessage; ///< the same after a link was followed
    std::function<std::string(const std::string& path)> perform; ///< returns the status text
};

namespace {

bool succeeded(const std::string& status) {
    return status == "0" || status == "20407";
}

bool liesBelowLink(const std::string& status) {
    return status == "20429" || status == "20008";
}

} // namespace

std::int32_t XMLReadWriteController::performHandleDFS(const SelectionRequest& request, std::string& server,
                                                      std::string& selectedPath, std::string& mappedPath) {
    const std::int32_t status = openPipe(server, "/IPC$", request.pipe);
    if (status != 0)
        return status;
    const std::string result = request.perform(selectedPath);
    closePipe();

    std::int32_t outcome = 0;
    if (liesBelowLink(result)) {
        outcome = followLink(request, server, selectedPath, mappedPath);
    } else if (!succeeded(result)) {
        Log("%@%@", request.failureMessage, result);
        outcome = 1;
    }
    closePipe(); // a second time: the log of every operation on the selection ends with this line
    return outcome;
}

/// Asks the server where the link leads and repeats the request there. Links are not resolved yet, which
/// leaves the answer of a server that does not know.
std::int32_t XMLReadWriteController::followLink(const SelectionRequest&, std::string&, std::string&,
                                                std::string&) {
    Log("Unable to get DFS Path Info : error returned: %@", "-1");
    return 0;
}

std::int32_t XMLReadWriteController::initializeTrusteesHandleDFS(std::string& server,
                                                                 TrusteeList& trusteeList,
                                                                 std::string& selectedPath, Rights& irf,
                                                                 Rights& effRights, std::string& mappedPath,
                                                                 const std::string& identityType) {
    const SelectionRequest request{
        "/FilesCmdPipe", "Unable to get trustees : error returned: ",
        "Unable to get trustees on DFS path : error returned: ", [&](const std::string& path) {
            trusteeList.clear();
            return initializeTrustees(path, identityType, trusteeList, irf, effRights);
        }};
    return performHandleDFS(request, server, selectedPath, mappedPath);
}

} // namespace quorvan
