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
    case code::invalidAmount:
        return "invalid amount of space";
    case code::noSuchAttribute:
        return "no such attribute";
    case code::atLink:
        return "the path is a link";
    case code::belowLink:
    case code::linkAbove:
        return "the path lies below a link";
    case code::volumeIsNoLink:
    case code::noLink:
        return "the path is no link";
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

std::string failureReply(const RequestElement& elements, int code) {
    // A reply repeats the operations of its request (fileInfo with getFileInfo, trustees with each
    // addTrustee), so that every operation has its result where the client looks for it.
    const RequestElement* const envelope = firstChild(&elements, "adminRequest");
    const RequestElement* const outer = envelope == nullptr ? &elements : envelope;
    const RequestElement* subject = nullptr;
    for (const char* name : {"fileRequest", "userRequest", "trellRequest"})
        subject = subject == nullptr ? firstChild(outer, name) : subject;
    const RequestElement* const group = firstChild(subject, "");
    const bool isEmptySet = group != nullptr && group->name == "userQuota" && group->children.empty();
    if (group == nullptr || (group->children.empty() && !isEmptySet))
        return failureReply(code);
    ReplyWriter reply;
    reply.open("adminReply");
    if (subject->name == "trellRequest")
        writeResult(reply, code); // the tree has a result for the request as well
    reply.open(group->name.c_str());
    const auto writeFailed = [&](const char* operation) {
        reply.open(operation);
        writeResult(reply, code);
        if (operation == std::string_view("browse"))
            reply.mark("userList"); // there even when the request failed
        reply.close();
    };
    for (const RequestElement& operation : group->children)
        writeFailed(operation.name.c_str());
    if (isEmptySet)
        writeFailed("set");
    return reply.finish();
}

} // namespace quorvan::simulator
