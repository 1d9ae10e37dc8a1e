// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Requests.h"
#include "Simulator/Text.h"

namespace quorvan::simulator {

namespace {

/// Who is asking for what on which server.
struct Context {
    KelpServer& server;
    const Identity& user;
    int prefixes; ///< how often the command stream is announced before the request
};

void refuseUnless(bool condition) {
    if (!condition)
        throw Refusal{code::refusedRequest};
}

/// <virtualIO><datastream name="command"/></virtualIO>
void takePrefix(ElementWalk& walk) {
    ElementWalk inside(walk.element("virtualIO"));
    const RequestElement& stream = inside.any();
    inside.end();
    refuseUnless(stream.name == "datastream" && stream.children.empty() && stream.text.empty() &&
                 stream.attributes == decltype(stream.attributes){{"name", "command"}});
}

std::string takePath(ElementWalk& walk) {
    std::string path = walk.text("fileName");
    refuseUnless(isComposed(path));
    return path;
}

void takeNameSpace(ElementWalk& walk) {
    walk.text("nameSpace", "LONG");
}

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

void writeRights(ReplyWriter& reply, const char* name, Mask rights) {
    reply.open(name);
    for (const RightTag& tag : rightTags) {
        if ((rights & tag.bit) != 0)
            reply.mark(tag.name);
    }
    reply.close();
}

// Reading

void writeTrustees(ReplyWriter& reply, const Node& node, IdentityKind kind) {
    reply.open("trusteeList");
    for (const TrusteeEntry& entry : node.trustees.entries()) {
        if (entry.identity->kind != kind)
            continue;
        reply.open("trusteeInfo");
        if (kind == IdentityKind::morvane)
            reply.text("name", entry.identity->name, {{"objectClass", entry.identity->objectClass}});
        else
            reply.text("name", entry.identity->name);
        reply.text("id", entry.identity->id);
        writeRights(reply, "rights", entry.rights);
        reply.close();
    }
    reply.close();
}

std::string getFileInfo(const Context& context, const RequestElement& request) {
    refuseUnless(context.prefixes == 1);
    ElementWalk walk(request);
    const auto kind = walk.optionalMark("adOnly") ? IdentityKind::activeDirectory : IdentityKind::morvane;
    const std::string path = takePath(walk);
    walk.mark("symLink");
    takeNameSpace(walk);
    ElementWalk kinds(walk.element("typeOfInfo"));
    walk.end();
    kinds.mark("rightsInfo");
    if (kind == IdentityKind::morvane)
        kinds.mark("objectClass");
    kinds.end();

    const Node* node = context.server.volumes().find(path);
    if (node == nullptr)
        throw Refusal{code::noSuchPath};
    ReplyWriter reply;
    reply.open("adminReply");
    reply.open("fileInfo");
    reply.open("getFileInfo");
    writeResult(reply, 0);
    reply.open("rightsInfo");
    writeTrustees(reply, *node, kind);
    writeRights(reply, "inheritedRightsFilter", node->filter);
    writeRights(reply, "effectiveRights", effectiveRights(*node, context.user));
    return reply.finish();
}

// Changing

struct Change {
    const char* operation = "";
    IdentityKind kind = IdentityKind::morvane;
    std::string id;
    std::string path;
    Mask rights = 0;
    int (*carryOut)(const Context&, const Change&) = nullptr; ///< returns the result's code
};

/// The node, when the user may change trustees and filter there; otherwise throws.
Node& changeableNode(const Context& context, const std::string& path) {
    Node* node = context.server.volumes().find(path);
    if (node == nullptr)
        throw Refusal{code::noSuchPath};
    if ((effectiveRights(*node, context.user) & right::accessControl) == 0)
        throw Refusal{code::noRights};
    return *node;
}

const Identity& changedIdentity(const Context& context, const Change& change) {
    const Identities& identities = context.server.identities();
    const Identity* identity = identities.findById(change.id);
    if (identity == nullptr && change.kind == IdentityKind::morvane)
        identity = identities.findByDistinguishedName(change.id);
    if (identity == nullptr || identity->kind != change.kind)
        throw Refusal{code::unknownIdentity};
    return *identity;
}

/// Only a supervisor may give the supervisor right or take it away.
void guardSupervisor(const Context& context, const Node& node, Mask before, Mask after) {
    if (((before ^ after) & right::supervisor) != 0 &&
        (effectiveRights(node, context.user) & right::supervisor) == 0)
        throw Refusal{code::noRights};
}

int addTrustee(const Context& context, const Change& change) {
    Node& node = changeableNode(context, change.path);
    const Identity& identity = changedIdentity(context, change);
    guardSupervisor(context, node, node.trustees.rightsOf(identity).value_or(0), change.rights);
    node.trustees.set(identity, change.rights);
    return 0;
}

int removeTrustee(const Context& context, const Change& change) {
    Node& node = changeableNode(context, change.path);
    const Identity& identity = changedIdentity(context, change);
    guardSupervisor(context, node, node.trustees.rightsOf(identity).value_or(0), 0);
    return node.trustees.remove(identity) ? 0 : code::noSuchTrustee;
}

int setFilter(const Context& context, const Change& change) {
    changeableNode(context, change.path).filter = change.rights;
    return 0;
}

/// type="adID" on the element goes with <adUser/> as its first child; both or neither.
IdentityKind takeKind(const RequestElement& element, ElementWalk& walk) {
    if (element.attributes.empty())
        return IdentityKind::morvane;
    refuseUnless(element.attributes == decltype(element.attributes){{"type", "adID"}});
    walk.mark("adUser");
    return IdentityKind::activeDirectory;
}

Change readChange(const RequestElement& element) {
    Change change;
    ElementWalk walk(element);
    if (element.name == "addTrustee") {
        change.operation = "addTrustee";
        change.carryOut = addTrustee;
        change.kind = takeKind(element, walk);
        change.id = walk.text("userID");
        change.rights = takeRights(walk, "rights");
        change.path = takePath(walk);
        takeNameSpace(walk);
        walk.mark("symLink");
    } else if (element.name == "removeTrustee") {
        change.operation = "removeTrustee";
        change.carryOut = removeTrustee;
        change.kind = takeKind(element, walk);
        change.id = walk.text("userID");
        walk.mark("symLink");
        change.path = takePath(walk);
        takeNameSpace(walk);
    } else if (element.name == "modifyInheritedRightsFilter") {
        change.operation = "modifyInheritedRightsFilter";
        change.carryOut = setFilter;
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
void checkTogether(const Context& context, const std::vector<Change>& changes) {
    for (const Change& change : changes) {
        refuseUnless(context.prefixes == 2 || change.path == changes.front().path);
        refuseUnless(change.carryOut != setFilter || (changes.size() == 1 && context.prefixes == 1));
    }
}

std::string changeTrustees(const Context& context, const RequestElement& request) {
    std::vector<Change> changes;
    for (ElementWalk walk(request); !walk.atEnd();)
        changes.push_back(readChange(walk.any()));
    refuseUnless(request.text.empty());
    checkTogether(context, changes);

    ReplyWriter reply;
    reply.open("adminReply");
    reply.open("trustees");
    for (const Change& change : changes) {
        reply.open(change.operation);
        try {
            writeResult(reply, change.carryOut(context, change));
        } catch (const Refusal& refusal) {
            writeResult(reply, refusal.code);
        }
        reply.close();
    }
    return reply.finish();
}

} // namespace

std::string answerFileRequest(KelpServer& server, const Identity& user, const RequestElement& request) {
    refuseUnless(request.name == "adminRequest");
    requireNoAttributes(request);
    ElementWalk admin(request);
    takePrefix(admin);
    const bool doubled = request.children.size() == 3;
    if (doubled)
        takePrefix(admin);
    const Context context{server, user, doubled ? 2 : 1};
    ElementWalk fileRequest(admin.element("fileRequest"));
    admin.end();
    const RequestElement& group = fileRequest.any();
    fileRequest.end();
    requireNoAttributes(group);
    if (group.name == "trustees")
        return changeTrustees(context, group);
    refuseUnless(group.name == "fileInfo");
    ElementWalk fileInfo(group);
    const RequestElement& operation = fileInfo.element("getFileInfo");
    fileInfo.end();
    return getFileInfo(context, operation);
}

} // namespace quorvan::simulator
