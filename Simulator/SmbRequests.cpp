// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Requests.h"

namespace quorvan::simulator {

std::string answerSmbRequest(const Identity& user, const RequestElement& request) {
    if (request.name != "zelSmbGetInfo")
        throw Refusal{code::refusedRequest};
    requireNoAttributes(request);
    ElementWalk walk(request);
    walk.mark("userType");
    walk.end();
    ReplyWriter reply;
    reply.open("zelSmbGetInfo");
    writeResult(reply, 0);
    reply.text("userType", user.kind == IdentityKind::morvane ? "Morvane" : "ActiveDirectory");
    return reply.finish();
}

} // namespace quorvan::simulator
