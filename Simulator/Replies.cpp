// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Requests.h"

namespace quorvan::simulator {

namespace {

const char* description(int code) {
    switch (code) {
    case 0:
        return "success";
    case code::refusedRequest:
        return "the request is not valid";
    case code::noSuchPath:
        return "no such path";
    case code::noRights:
        return "insufficient rights";
    case code::unknownIdentity:
        return "unknown identity";
    case code::noSuchTrustee:
        return "no such trustee";
    default:
        return "the request failed";
    }
}

/// The first child of that name, or of any name when it is ""; null when there is none.
const RequestElement* firstChild(const RequestElement* parent, std::string_view name) {
    if (parent != nullptr) {
        for (const RequestElement& each : parent->children) {
            if (name.empty() || each.name == name)
                return &each;
        }
    }
    return nullptr;
}

} // namespace

void writeResult(ReplyWriter& reply, int code) {
    reply.open("result", {{"value", std::to_string(code)}});
    reply.text("description", description(code));
    reply.close();
}

std::string failureReply(int code) {
    ReplyWriter reply;
    reply.open("adminReply");
    writeResult(reply, code);
    return reply.finish();
}

std::string failureReply(const RequestElement& request, int code) {
    // A reply repeats the operations of its request (fileInfo with getFileInfo, trustees with each
    // addTrustee), so that every operation has its result where the client looks for it.
    const RequestElement* subject = firstChild(&request, "fileRequest");
    const RequestElement* group = firstChild(subject, "");
    if (group == nullptr || group->children.empty())
        return failureReply(code);
    ReplyWriter reply;
    reply.open("adminReply");
    reply.open(group->name.c_str());
    for (const RequestElement& operation : group->children) {
        reply.open(operation.name.c_str());
        writeResult(reply, code);
        reply.close();
    }
    return reply.finish();
}

} // namespace quorvan::simulator
