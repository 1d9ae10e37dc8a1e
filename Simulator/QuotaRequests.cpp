// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/RequestParts.h"

namespace quorvan::simulator {

namespace {

constexpr std::size_t mostAtOnce = 300; ///< users in one request

UserQuotas& quotasOf(const Request& request, const std::string& volume) {
    UserQuotas* const quotas = request.server.volumes().userQuotas(volume);
    if (quotas == nullptr)
        throw Refusal{code::noSuchPath};
    return *quotas;
}

/// All users of one directory that have a limit.
std::string browse(const Request& request, const RequestElement& operation) {
    ElementWalk walk(operation);
    const IdentityKind kind = takeKind(walk);
    const bool inTree = kind == IdentityKind::morvane;
    if (!inTree)
        walk.mark("idOnly");
    const std::string volume = takeComposed(walk, "volumeName");
    walk.end();

    const UserQuotas& quotas = quotasOf(request, volume);
    ReplyWriter reply;
    reply.open("adminReply");
    reply.open("userQuota");
    reply.open("browse");
    writeResult(reply, 0);
    reply.open("userList");
    for (const UserQuota& each : quotas.entries()) {
        if (each.user->kind != kind || each.limit == unlimited)
            continue;
        reply.open("user");
        reply.text("id", each.user->id);
        reply.text("quota", std::to_string(each.limit));
        reply.text("spaceUsed", std::to_string(each.used));
        if (inTree)
            reply.text("userName", each.user->name);
        reply.close();
    }
    return reply.finish();
}

struct QuotaChange {
    IdentityKind kind = IdentityKind::activeDirectory;
    std::string volume;
    std::string id;
    std::int64_t limit = 0;
};

QuotaChange readQuotaChange(const RequestElement& element) {
    refuseUnless(element.name == "set");
    QuotaChange change;
    change.kind = kindOf(element);
    ElementWalk walk(element);
    change.volume = takeComposed(walk, "volumeName");
    change.id = walk.text("id");
    change.limit = takeAmount(walk, "quota");
    walk.end();
    return change;
}

void carryOut(const Request& request, const QuotaChange& change) {
    UserQuotas& quotas = quotasOf(request, change.volume);
    changeableNode(request, change.volume + ":\\", neededFor::userQuotas);
    const Identity& user = identityFor(request, change.kind, change.id);
    if (change.limit < 0)
        throw Refusal{code::invalidAmount};
    quotas.of(user).limit = change.limit;
}

/// Changes what can be changed; the one result is that of the first user where it failed. Changing nothing at
/// all is a success.
std::string set(const Request& request, const RequestElement& group) {
    std::vector<QuotaChange> changes;
    ElementWalk walk(group);
    while (!walk.atEnd())
        changes.push_back(readQuotaChange(walk.any()));
    walk.end();
    refuseUnless(changes.size() <= mostAtOnce);
    for (const QuotaChange& change : changes)
        refuseUnless(change.volume == changes.front().volume);

    int result = 0;
    for (const QuotaChange& change : changes) {
        const int each = resultOf([&] { carryOut(request, change); });
        result = result == 0 ? each : result;
    }
    ReplyWriter reply;
    reply.open("adminReply");
    reply.open("userQuota");
    reply.open("set");
    writeResult(reply, result);
    return reply.finish();
}

} // namespace

std::string answerQuotaRequest(const Request& request) {
    const Enveloped enveloped = takeEnvelope(request.elements, "userRequest");
    refuseUnless(enveloped.prefixes == 1);
    ElementWalk walk(enveloped.subject);
    const RequestElement& group = walk.element("userQuota");
    walk.end();
    if (group.children.empty() || group.children.front().name != "browse")
        return set(request, group);
    ElementWalk inside(group);
    const RequestElement& operation = inside.element("browse");
    inside.end();
    return browse(request, operation);
}

} // namespace quorvan::simulator
