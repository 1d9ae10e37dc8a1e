// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Log.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/RequestEnvelope.h"

namespace quorvan {
namespace {

constexpr std::string_view search =
    R"(<virtualIO><datastream name="command"/></virtualIO><trellRequest><trellObject><trellSearch>)"
    "<trellBaseDN>%@</trellBaseDN></trellSearch></trellObject></trellRequest>";
constexpr std::string_view attribute =
    "<trellRequest><trellObject><getAttribute><name>%@</name><context>%@</context>"
    "<attributeName>%@</attributeName></getAttribute></trellObject></trellRequest>";

const ElementPath attributeResult = {"trellObject", "getAttribute", "result"};
const ElementPath attributeValues = {"trellObject", "getAttribute", "trellAttribute"};

std::string attributeRequest(const std::string& context, const std::string& objectName,
                             std::string_view attributeName) {
    return adminRequest(fill(attribute, {objectName, context, attributeName}));
}

} // namespace

/// What asking the directory tree comes to: the answer of `parse`, or the status of a failure.
std::string
XMLReadWriteController::askTree(const std::string& request, const ExchangeLog& log,
                                const std::function<std::string(const std::string& reply)>& parse) {
    const std::string reply = exchangeRequest(request, log);
    std::string status = getResultValue(reply, {"result"});
    return status == "0" ? parse(reply) : status;
}

std::string XMLReadWriteController::getMorvaneBrowse(const std::string& tree, std::vector<User>& userlist) {
    return askTree(fill(search, {tree}),
                   {"Get Morvane browse request : %@", "response.deinitialize getDFSPath",
                    "Get Morvane browse Response: %@"},
                   [&](const std::string& reply) { return parseMorvaneBrowseResp(reply, userlist); });
}

std::string XMLReadWriteController::parseMorvaneBrowseResp(const std::string& xml,
                                                           std::vector<User>& userlist) {
    const XMLDocument reply(xml);
    if (reply.error()) {
        Log("Error parsing TRELL Response : error %@", reply.error()->description);
        return "";
    }
    std::string status = getResultValue(xml, {"trellObject", "trellSearch", "result"});
    if (status == "0") {
        for (const XMLElement entry :
             getElement({"trellObject", "trellSearch"}, reply.rootElement()).children()) {
            if (entry.hasChildren()) // the result has none
                decodeTRELLBrowse(entry, userlist);
        }
    }
    return status;
}

void XMLReadWriteController::decodeTRELLBrowse(XMLElement nodes, std::vector<User>& userlist) {
    User user;
    for (const XMLElement child : nodes.children()) {
        if (child.name() == "dn")
            user.trusteeName = child.stringValue();
        else if (child.name() == "objectClass")
            user.trusteeType = child.stringValue();
        else if (child.name() == "userID")
            user.trusteeID = child.stringValue();
    }
    userlist.push_back(std::move(user));
}

std::string XMLReadWriteController::createGetGuidRequest(const std::string& context,
                                                         const std::string& objectName) {
    return attributeRequest(context, objectName, "guid");
}

std::string XMLReadWriteController::getGuid_Morvane(const std::string& context,
                                                    const std::string& objectName) {
    return askTree(
        createGetGuidRequest(context, objectName),
        {"Get Guid Request : %@", "response.deinitialize getDFSPath", "Get Morvane GUID Response: %@"},
        [this](const std::string& reply) { return parseMorvaneGuidResp(reply); });
}

std::string XMLReadWriteController::parseMorvaneGuidResp(const std::string& xml) {
    const XMLDocument reply(xml);
    if (reply.error()) {
        Log("Error parsing TRELL Morvane Guid Response : error %@", reply.error()->description);
        return "0";
    }
    std::string status = getResultValue(xml, attributeResult);
    if (status != "0")
        return status;
    const XMLElement values = getElement(attributeValues, reply.rootElement());
    if (!values.hasChildren())
        return status;
    const XMLElement first = *values.children().begin();
    return first.name() == "value" ? first.stringValue() : status;
}

std::string XMLReadWriteController::createGetGroupMembershipRequest(const std::string& context,
                                                                    const std::string& objectName) {
    return attributeRequest(context, objectName, "group membership");
}

std::string XMLReadWriteController::getGroupMemberShip_Morvane(const std::string&,
                                                               std::vector<Group>& grouplist,
                                                               const std::string& context,
                                                               const std::string& objectName) {
    return askTree(createGetGroupMembershipRequest(context, objectName),
                   {"Get GroupMembership Request : %@", "response.deinitialize getDFSPath",
                    "Get Morvane Groups Response: %@"},
                   [&](const std::string& reply) { return parseMorvaneGroupsResp(reply, grouplist); });
}

std::string XMLReadWriteController::parseMorvaneGroupsResp(const std::string& xml,
                                                           std::vector<Group>& grouplist) {
    const XMLDocument reply(xml);
    if (reply.error()) {
        Log("Error parsing TRELL Morvane Groups Response : error %@", reply.error()->description);
        return "0";
    }
    std::string status = getResultValue(xml, attributeResult);
    if (status == "0") {
        for (const XMLElement value : getElement(attributeValues, reply.rootElement()).children())
            grouplist.push_back({value.name() == "value" ? value.stringValue() : "", "", ""});
    }
    return status;
}

std::string XMLReadWriteController::getUserType() {
    const std::string reply =
        exchangeRequest("<zelSmbGetInfo><userType/></zelSmbGetInfo>",
                        {"Get userType Request : %@", "response.deinitialize", "Get userType Response: %@"});
    const bool named = lowercased(reply).find("morvane") != std::string::npos;
    return std::string(named ? identityMorvane : identityActiveDirectory);
}

} // namespace quorvan
