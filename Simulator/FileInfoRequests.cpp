// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/FileRequests.h"
#include "Simulator/RequestParts.h"

#include <unordered_set>

namespace quorvan::simulator {

namespace {

/// Opens the reply of an operation that has succeeded.
void openReply(ReplyWriter& reply, const char* operation) {
    reply.open("adminReply");
    reply.open("fileInfo");
    reply.open(operation);
    writeResult(reply, 0);
}

// One kind of information about a path

void writeRightsInfo(ReplyWriter& reply, const Request& request, const Node& node, IdentityKind kind) {
    reply.open("rightsInfo");
    writeTrustees(reply, node, kind);
    writeRights(reply, "inheritedRightsFilter", node.filter);
    writeRights(reply, "effectiveRights", effectiveRights(node, request.user));
    reply.close();
}

/// The owner, if it is of the directory that the reply is limited to. One whose identity is gone has an id
/// but no name.
void writeOwner(ReplyWriter& reply, const Request& request, const Node& node, IdentityKind kind) {
    const std::string id = ownerOf(node);
    const Identity* const owner = request.server.identities().findById(id);
    const bool isSid = id.compare(0, 4, "S-1-") == 0;
    reply.open("idInfo");
    reply.open("creator");
    if (!id.empty() && (isSid || kind == IdentityKind::morvane)) {
        if (owner != nullptr)
            reply.text("name", owner->name);
        reply.text("id", id);
    }
    reply.close();
    reply.close();
}

void writeStandardInfo(ReplyWriter& reply, const Request&, const Node& node, IdentityKind) {
    writeAttributes(reply, node);
}

void writeQuota(ReplyWriter& reply, const Request&, const Node& node, IdentityKind) {
    reply.open("quotaInfo");
    reply.text("quotaAmount", std::to_string(node.quota.limit));
    reply.text("usedAmount", std::to_string(node.quota.used));
    reply.close();
}

using InfoWriter = void (*)(ReplyWriter&, const Request&, const Node&, IdentityKind);

/// Rights are asked for without <idOnly/>, and in the tree together with the object classes; everything else
/// by itself and with it.
InfoWriter takeTypeOfInfo(ElementWalk& walk, IdentityKind kind, bool idOnly) {
    ElementWalk types(walk.element("typeOfInfo"));
    InfoWriter write = writeRightsInfo;
    if (!idOnly) {
        types.mark("rightsInfo");
        if (kind == IdentityKind::morvane)
            types.mark("objectClass");
    } else if (types.optionalMark("idInfo")) {
        write = writeOwner;
    } else if (types.optionalMark("standardInfo")) {
        write = writeStandardInfo;
    } else {
        types.mark("directoryQuotaInfo");
        write = writeQuota;
    }
    types.end();
    return write;
}

std::string getFileInfo(const Request& request, const RequestElement& operation) {
    requireNoAttributes(operation);
    ElementWalk walk(operation);
    const IdentityKind kind = takeKind(walk);
    const bool idOnly = walk.optionalMark("idOnly");
    const std::string path = takePath(walk);
    walk.mark("symLink");
    takeNameSpace(walk);
    const InfoWriter write = takeTypeOfInfo(walk, kind, idOnly);
    walk.end();

    const Node& node = nodeAt(request, path);
    ReplyWriter reply;
    openReply(reply, "getFileInfo");
    write(reply, request, node, kind);
    return reply.finish();
}

// Effective rights

/// Everyone with an entry at the node or above, nearest first.
std::vector<const Identity*> trusteesReaching(const Node& node, IdentityKind kind) {
    std::vector<const Identity*> found;
    std::unordered_set<const Identity*> seen;
    for (const Node* at = &node; at != nullptr; at = at->parent) {
        for (const TrusteeEntry& entry : at->trustees.entries()) {
            if (entry.identity->kind == kind && seen.insert(entry.identity).second)
                found.push_back(entry.identity);
        }
    }
    return found;
}

std::string getAllEffectiveRights(const Request& request, const RequestElement& operation) {
    requireNoAttributes(operation);
    ElementWalk walk(operation);
    const IdentityKind kind = takeKind(walk);
    const bool inTree = kind == IdentityKind::morvane;
    const std::string path = takePath(walk);
    walk.mark("symLink");
    if (inTree)
        walk.mark("objectClass");
    walk.end();

    const Node& node = nodeAt(request, path);
    ReplyWriter reply;
    openReply(reply, "getAllEffectiveRights");
    for (const Identity* identity : trusteesReaching(node, kind)) {
        reply.open("accessRights");
        if (inTree)
            reply.text("trustee", identity->name, {{"objectClass", identity->objectClass}});
        else
            reply.text("trustee", identity->name);
        reply.text("id", identity->id);
        writeRights(reply, "rights", effectiveRights(node, *identity));
        reply.close();
    }
    return reply.finish();
}

std::string getEffectiveRightsById(const Request& request, const RequestElement& operation) {
    const IdentityKind kind = kindOf(operation);
    ElementWalk walk(operation);
    if (kind == IdentityKind::activeDirectory) {
        walk.mark("adOnly");
        walk.mark("idOnly");
    }
    const std::string id = walk.text("userID");
    const std::string path = takePath(walk);
    takeNameSpace(walk);
    walk.mark("symLink");
    walk.end();

    const Node& node = nodeAt(request, path);
    const Identity& identity = identityFor(request, kind, id);
    ReplyWriter reply;
    openReply(reply, "getEffectiveRightsByID");
    writeRights(reply, "effectiveRights", effectiveRights(node, identity));
    return reply.finish();
}

// Changing

struct AttributeSwitch {
    AttributeSet bit = 0;
    bool on = false;
};

AttributeSwitch readSwitch(const RequestElement& tag) {
    const bool on = tag.attributes == decltype(tag.attributes){{"enabled", "yes"}};
    refuseUnless(on || tag.attributes == decltype(tag.attributes){{"enabled", "no"}});
    refuseUnless(tag.children.empty() && tag.text.empty());
    for (std::size_t i = 0; i < changeableAttributes; ++i) {
        if (tag.name == attributeTags[i].name)
            return {attributeTags[i].bit, on};
    }
    throw Refusal{code::refusedRequest};
}

/// All attributes in order, each on or off; in front of them once more those that are on, in any order.
AttributeSet takeAttributes(const RequestElement& element) {
    const auto& tags = element.children;
    refuseUnless(tags.size() >= changeableAttributes);
    const std::size_t first = tags.size() - changeableAttributes;
    AttributeSet announced = 0;
    for (std::size_t i = 0; i < first; ++i) {
        const AttributeSwitch each = readSwitch(tags[i]);
        refuseUnless(each.on && (announced & each.bit) == 0);
        announced |= each.bit;
    }
    AttributeSet attributes = 0;
    for (std::size_t i = 0; i < changeableAttributes; ++i) {
        const AttributeSwitch each = readSwitch(tags[first + i]);
        refuseUnless(each.bit == attributeTags[i].bit);
        attributes |= each.on ? each.bit : AttributeSet{0};
    }
    refuseUnless(announced == attributes);
    return attributes;
}

void setOwner(const Request& request, const std::string& path, const RequestElement& idInfo) {
    ElementWalk inside(idInfo);
    const RequestElement& creator = inside.any();
    inside.end();
    refuseUnless(creator.name == "creatorID" && creator.children.empty());
    const IdentityKind kind = kindOf(creator, "type "); // blanks around the equals sign
    Node& node = changeableNode(request, path, neededFor::owner);
    node.owner = identityFor(request, kind, creator.text).id;
}

void setAttributes(const Request& request, const std::string& path, const RequestElement& element) {
    const AttributeSet attributes = takeAttributes(element);
    Node& node = changeableNode(request, path, neededFor::attributes);
    node.attributes = static_cast<AttributeSet>((node.attributes & ~attribute::changeable) | attributes);
}

std::string setFileInfo(const Request& request, const RequestElement& operation) {
    requireNoAttributes(operation);
    ElementWalk walk(operation);
    takeNameSpace(walk);
    const std::string path = takePath(walk);
    walk.mark("symLink");
    const RequestElement& what = walk.any();
    walk.end();
    requireNoAttributes(what);
    if (what.name == "idInfo") {
        setOwner(request, path, what);
    } else {
        refuseUnless(what.name == "attributes" && what.text.empty());
        setAttributes(request, path, what);
    }
    ReplyWriter reply;
    openReply(reply, "setFileInfo");
    return reply.finish();
}

struct Operation {
    std::string_view name;
    int prefixes;
    std::string (*answer)(const Request&, const RequestElement&);
};

constexpr Operation operations[] = {
    {"getFileInfo", 1, getFileInfo},
    {"setFileInfo", 1, setFileInfo},
    {"getAllEffectiveRights", 1, getAllEffectiveRights},
    {"getEffectiveRightsByID", 2, getEffectiveRightsById},
};

} // namespace

std::string answerFileInfo(const Request& request, const RequestElement& group, int prefixes) {
    ElementWalk walk(group);
    const RequestElement& asked = walk.any();
    walk.end();
    for (const Operation& each : operations) {
        if (each.name == asked.name && each.prefixes == prefixes)
            return each.answer(request, asked);
    }
    throw Refusal{code::refusedRequest};
}

} // namespace quorvan::simulator
