// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/RequestParts.h"

namespace quorvan::simulator {

namespace {

/// The link at a path; throws when there is none, with what the client needs to find the one above or below.
const Link& linkAt(const Volumes& volumes, const std::string& path) {
    const Node* const node = volumes.find(path);
    const Node* const link = volumes.firstLink(path);
    if (link == nullptr && node == nullptr)
        throw Refusal{code::noSuchPath};
    if (link == nullptr)
        throw Refusal{node->parent == nullptr ? code::volumeIsNoLink : code::noLink};
    if (link != node)
        throw Refusal{code::linkAbove};
    return *link->link;
}

} // namespace

std::string answerSmbRequest(const Request& request) {
    ElementWalk root(request.elements);
    ElementWalk walk(root.element("zelSmbGetInfo"));
    root.end();
    const RequestElement& asked = walk.any();
    walk.end();
    requireNoAttributes(asked);
    ReplyWriter reply;
    reply.open("zelSmbGetInfo");
    if (asked.name == "readLink") {
        ElementWalk inside(asked);
        const std::string path = takeComposed(inside, "pathName");
        inside.end();
        const Link& link = linkAt(request.server.volumes(), path);
        writeResult(reply, 0);
        reply.open("readLink");
        reply.open("junction");
        reply.text("server", link.server);
        reply.text("volumeName", link.volume);
        reply.text("pathName", link.path);
    } else {
        refuseUnless(asked.name == "userType" && asked.children.empty() && asked.text.empty());
        writeResult(reply, 0);
        reply.text("userType", request.user.kind == IdentityKind::morvane ? "Morvane" : "ActiveDirectory");
    }
    return reply.finish();
}

} // namespace quorvan::simulator
