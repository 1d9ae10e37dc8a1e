// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/RequestParts.h"

namespace quorvan::simulator {

namespace {

/// The node and everything below it, each with its own path. Links are left out: what is there lies
/// elsewhere.
void writeFiles(ReplyWriter& reply, const Node& node, const std::string& path, IdentityKind kind) {
    reply.open("file");
    reply.open("rightsInfo");
    writeTrustees(reply, node, kind);
    reply.close();
    writeAttributes(reply, node);
    reply.text("path", path);
    reply.close();
    const std::string below = path.back() == '\\' ? path : path + '\\';
    for (const auto& [folded, child] : node.children) {
        if (!child->link)
            writeFiles(reply, *child, below + child->name, kind);
    }
}

} // namespace

std::string answerRightsRequest(const Request& request) {
    const Enveloped enveloped = takeEnvelope(request.elements, "rightsRequest");
    refuseUnless(enveloped.prefixes == 1);
    ElementWalk walk(enveloped.subject);
    const IdentityKind kind = takeKind(walk);
    const std::string path = takePath(walk);
    walk.text("sharePath", "ss"); // two fields that mean nothing and are always the same
    walk.text("shareName", "ss");
    walk.mark("allPaths");
    takeNameSpace(walk);
    ElementWalk types(walk.element("typeOfInfo"));
    walk.end();
    types.mark("rightsInfo");
    types.mark("standardInfo");
    if (kind == IdentityKind::morvane)
        types.mark("objectClass");
    types.end();

    const Node& node = nodeAt(request, path);
    ReplyWriter reply;
    reply.open("adminReply");
    writeResult(reply, 0);
    writeFiles(reply, node, pathOf(node), kind);
    return reply.finish();
}

} // namespace quorvan::simulator
