// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/FileRequests.h"
#include "Simulator/RequestParts.h"

namespace quorvan::simulator {

namespace {

struct Change {
    const char* operation = "";
    IdentityKind kind = IdentityKind::morvane;
    std::string id;
    std::string path;
    Mask rights = 0;
    void (*carryOut)(const Request&, const Change&) = nullptr; ///< throws a Refusal with the result's code
};

/// The rights inside an element, each at most once and in the order of rightTags.
Mask takeRights(ElementWalk& walk, std::string_view name) {
    ElementWalk inside(walk.element(name));
    Mask rights = 0;
    for (const RightTag& tag : rightTags) {
        if (inside.optionalMark(tag.name))
            rights |= tag.bit;
    }
    inside.end();
    return rights;
}

/// Only a supervisor may give the supervisor right or take it away.
void guardSupervisor(const Request& request, const Node& node, Mask before, Mask after) {
    if (((before ^ after) & right::supervisor) != 0 &&
        (effectiveRights(node, request.user) & right::supervisor) == 0)
        throw Refusal{code::noRights};
}

void addTrustee(const Request& request, const Change& change) {
    Node& node = changeableNode(request, change.path, neededFor::trustees);
    const Identity& identity = identityFor(request, change.kind, change.id);
    guardSupervisor(request, node, node.trustees.rightsOf(identity).value_or(0), change.rights);
    node.trustees.set(identity, change.rights);
}

void removeTrustee(const Request& request, const Change& change) {
    Node& node = changeableNode(request, change.path, neededFor::trustees);
    const Identity& identity = identityFor(request, change.kind, change.id);
    guardSupervisor(request, node, node.trustees.rightsOf(identity).value_or(0), 0);
    if (!node.trustees.remove(identity))
        throw Refusal{code::noSuchTrustee};
}

void setPathFilter(const Request& request, const Change& change) {
    changeableNode(request, change.path, neededFor::filter).filter = change.rights;
}

/// type="adID" on the element demands <adUser/> as its first child, and the other way round.
IdentityKind takeUserKind(const RequestElement& element, ElementWalk& walk) {
    const IdentityKind kind = kindOf(element);
    if (kind == IdentityKind::activeDirectory)
        walk.mark("adUser");
    return kind;
}

Change readTrusteeChange(const RequestElement& element) {
    Change change;
    ElementWalk walk(element);
    if (element.name == "addTrustee") {
        change.operation = "addTrustee";
        change.carryOut = addTrustee;
        change.kind = takeUserKind(element, walk);
        change.id = walk.text("userID");
        change.rights = takeRights(walk, "rights");
        change.path = takePath(walk);
        takeNameSpace(walk);
        walk.mark("symLink");
    } else if (element.name == "removeTrustee") {
        change.operation = "removeTrustee";
        change.carryOut = removeTrustee;
        change.kind = takeUserKind(element, walk);
        change.id = walk.text("userID");
        walk.mark("symLink");
        change.path = takePath(walk);
        takeNameSpace(walk);
    } else if (element.name == "modifyInheritedRightsFilter") {
        change.operation = "modifyInheritedRightsFilter";
        change.carryOut = setPathFilter;
        requireNoAttributes(element);
        change.path = takePath(walk);
        walk.mark("symLink");
        change.rights = takeRights(walk, "inheritedRightsFilter");
    } else {
        throw Refusal{code::refusedRequest};
    }
    walk.end();
    return change;
}

/// Changes behind one prefix are all on one path; only a doubled prefix announces several paths. A
/// filter is set by itself.
void checkTogether(const std::vector<Change>& changes, int prefixes) {
    for (const Change& change : changes) {
        refuseUnless(prefixes == 2 || change.path == changes.front().path);
        refuseUnless(change.carryOut != setPathFilter || (changes.size() == 1 && prefixes == 1));
    }
}

} // namespace

std::string changeTrustees(const Request& request, const RequestElement& group, int prefixes) {
    std::vector<Change> changes;
    ElementWalk walk(group);
    while (!walk.atEnd())
        changes.push_back(readTrusteeChange(walk.any()));
    walk.end();
    checkTogether(changes, prefixes);

    ReplyWriter reply;
    reply.open("adminReply");
    reply.open("trustees");
    for (const Change& change : changes) {
        reply.open(change.operation);
        writeResult(reply, resultOf([&] { change.carryOut(request, change); }));
        reply.close();
    }
    return reply.finish();
}

} // namespace quorvan::simulator
