// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/FileRequests.h"

#include "Simulator/RequestParts.h"

namespace quorvan::simulator {

namespace {

std::string setDirectoryQuota(const Request& request, const RequestElement& group) {
    ElementWalk operations(group);
    ElementWalk walk(operations.element("addQuota"));
    operations.end();
    const std::string path = takePath(walk);
    const std::int64_t limit = takeAmount(walk, "quotaAmount");
    walk.end();

    Node& node = changeableNode(request, path, neededFor::directoryQuota);
    if (limit < 0)
        throw Refusal{code::invalidAmount};
    node.quota.limit = limit;
    ReplyWriter reply;
    reply.open("adminReply");
    reply.open("directoryQuotas");
    reply.open("addQuota");
    writeResult(reply, 0);
    return reply.finish();
}

} // namespace

std::string answerFileRequest(const Request& request) {
    const Enveloped enveloped = takeEnvelope(request.elements, "fileRequest");
    ElementWalk walk(enveloped.subject);
    const RequestElement& group = walk.any();
    walk.end();
    requireNoAttributes(group);
    if (group.name == "trustees")
        return changeTrustees(request, group, enveloped.prefixes);
    if (group.name == "fileInfo")
        return answerFileInfo(request, group, enveloped.prefixes);
    refuseUnless(group.name == "directoryQuotas" && enveloped.prefixes == 1);
    return setDirectoryQuota(request, group);
}

} // namespace quorvan::simulator
