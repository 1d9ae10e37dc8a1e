// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/RequestParts.h"

#include "Simulator/Text.h"

#include <charconv>

namespace quorvan::simulator {

void takePrefix(ElementWalk& walk) {
    ElementWalk inside(walk.element("virtualIO"));
    const RequestElement& stream = inside.any();
    inside.end();
    refuseUnless(stream.name == "datastream" && stream.children.empty() && stream.text.empty() &&
                 stream.attributes == decltype(stream.attributes){{"name", "command"}});
}

Enveloped takeEnvelope(const RequestElement& elements, std::string_view subject) {
    ElementWalk walk(elements);
    const RequestElement& envelope = walk.element("adminRequest");
    walk.end();
    ElementWalk inside(envelope);
    takePrefix(inside);
    const bool doubled = envelope.children.size() == 3;
    if (doubled)
        takePrefix(inside);
    const RequestElement& found = inside.element(subject);
    inside.end();
    return {found, doubled ? 2 : 1};
}

std::string takeComposed(ElementWalk& walk, std::string_view name) {
    std::string text = walk.text(name);
    refuseUnless(isComposed(text));
    return text;
}

std::string takePath(ElementWalk& walk) {
    return takeComposed(walk, "fileName");
}

void takeNameSpace(ElementWalk& walk) {
    walk.text("nameSpace", "LONG");
}

IdentityKind takeKind(ElementWalk& walk) {
    return walk.optionalMark("adOnly") ? IdentityKind::activeDirectory : IdentityKind::morvane;
}

IdentityKind kindOf(const RequestElement& element, const char* attribute) {
    if (element.attributes.empty())
        return IdentityKind::morvane;
    refuseUnless(element.attributes == decltype(element.attributes){{attribute, "adID"}});
    return IdentityKind::activeDirectory;
}

std::int64_t takeAmount(ElementWalk& walk, std::string_view name) {
    const std::string text = walk.text(name);
    std::int64_t amount = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, amount);
    refuseUnless(error == std::errc() && stop == end);
    return amount;
}

void writeRights(ReplyWriter& reply, const char* name, Mask rights) {
    reply.open(name);
    for (const RightTag& tag : rightTags) {
        if ((rights & tag.bit) != 0)
            reply.mark(tag.name);
    }
    reply.close();
}

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

void writeAttributes(ReplyWriter& reply, const Node& node) {
    reply.open("standardInfo");
    reply.open("attributes");
    for (const AttributeTag& tag : attributeTags) {
        if ((node.attributes & tag.bit) != 0)
            reply.mark(tag.name);
    }
    reply.close();
    reply.close();
}

Node& nodeAt(const Request& request, std::string_view path) {
    Volumes& volumes = request.server.volumes();
    Node* const node = volumes.find(path);
    if (const Node* link = volumes.firstLink(path))
        throw Refusal{link == node ? code::atLink : code::belowLink};
    if (node == nullptr)
        throw Refusal{code::noSuchPath};
    return *node;
}

Node& changeableNode(const Request& request, std::string_view path, Mask needed) {
    Node& node = nodeAt(request, path);
    if ((effectiveRights(node, request.user) & needed) != needed)
        throw Refusal{code::noRights};
    return node;
}

const Identity& identityFor(const Request& request, IdentityKind kind, std::string_view id) {
    const Identities& identities = request.server.identities();
    const Identity* identity = identities.findById(id);
    if (identity == nullptr && kind == IdentityKind::morvane)
        identity = identities.findByDistinguishedName(id);
    if (identity == nullptr || identity->kind != kind)
        throw Refusal{code::unknownIdentity};
    return *identity;
}

} // namespace quorvan::simulator
