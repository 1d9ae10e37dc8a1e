// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/Replies/DirectoryTreeReplies.h"
#include "Quorvan/ViewModal/Requests/DirectoryTreeRequests.h"
#include "Quorvan/ViewModal/Requests/SmbInformationRequests.h"

namespace quorvan {
namespace {

/// What the directory tree answers, or its status where that is not "0".
template <class Reader>
std::string answerOf(const XMLResponseParser& parsed, Reader& reader) {
    if (parsed.error) {
        Log("%@%@", reader.question.complaint, parsed.error->description);
        return std::string(reader.question.ifNotXML);
    }
    std::string status = parsed.result.status();
    return status == "0" ? reader.answer(status) : status;
}

} // namespace

template <class Reader>
std::string XMLReadWriteController::askTree(const std::string& request, const ExchangeLog& log,
                                            Reader&& reader) {
    ResultElement ofRequest({"result"});
    const XMLResponseParser parsed =
        parse(exchangeRequest(request, log), reader.question.result, ofRequest, reader);
    std::string status = statusOf(parsed.error, ofRequest);
    return status == "0" ? answerOf(parsed, reader) : status;
}

std::string XMLReadWriteController::getMorvaneBrowse(const std::string& tree, std::vector<User>& userlist) {
    return askTree(browseTreeRequest(tree),
                   {"Get Morvane browse request : %@", "response.deinitialize getDFSPath",
                    "Get Morvane browse Response: %@"},
                   TreeBrowseReader(userlist));
}

std::string XMLReadWriteController::parseMorvaneBrowseResp(const std::string& xml,
                                                           std::vector<User>& userlist) {
    TreeBrowseReader reader(userlist);
    return answerOf(parse(xml, reader.question.result, reader), reader);
}

std::string XMLReadWriteController::getGuid_Morvane(const std::string& context,
                                                    const std::string& objectName) {
    return askTree(
        createGetGuidRequest(context, objectName),
        {"Get Guid Request : %@", "response.deinitialize getDFSPath", "Get Morvane GUID Response: %@"},
        TreeGuidReader());
}

std::string XMLReadWriteController::parseMorvaneGuidResp(const std::string& xml) {
    TreeGuidReader reader;
    return answerOf(parse(xml, reader.question.result, reader), reader);
}

std::string XMLReadWriteController::getGroupMemberShip_Morvane(const std::string&,
                                                               std::vector<Group>& grouplist,
                                                               const std::string& context,
                                                               const std::string& objectName) {
    return askTree(createGetGroupMembershipRequest(context, objectName),
                   {"Get GroupMembership Request : %@", "response.deinitialize getDFSPath",
                    "Get Morvane Groups Response: %@"},
                   TreeGroupsReader(grouplist));
}

std::string XMLReadWriteController::parseMorvaneGroupsResp(const std::string& xml,
                                                           std::vector<Group>& grouplist) {
    TreeGroupsReader reader(grouplist);
    return answerOf(parse(xml, reader.question.result, reader), reader);
}

std::string XMLReadWriteController::getUserType() {
    const std::string reply =
        exchangeRequest(userTypeRequest(),
                        {"Get userType Request : %@", "response.deinitialize", "Get userType Response: %@"});
    if (loss() != 0)
        return "";
    const bool named = lowercased(reply).find("morvane") != std::string::npos;
    return std::string(named ? identityMorvane : identityActiveDirectory);
}

} // namespace quorvan
