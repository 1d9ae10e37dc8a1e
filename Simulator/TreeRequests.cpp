// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/RequestParts.h"
#include "Simulator/Text.h"

#include <algorithm>

namespace quorvan::simulator {

namespace {

/// The result of an operation. It has no description: every element of a search that holds another one is
/// an entry.
void writeBareResult(ReplyWriter& reply, int code) {
    reply.text("result", "", {{"value", std::to_string(code)}});
}

/// A name in root-left notation with the tree in front, however it was written: \TREE\O=x\OU=y as it is,
/// O=x\OU=y, and with dots .OU=y.O=x.TREE. or OU=y.O=x; the tree may be typed, T=TREE.
std::string rootLeft(std::string_view name, const std::string& tree) {
    const char separator = name.find('\\') != std::string_view::npos ? '\\' : '.';
    std::vector<std::string_view> parts;
    for (const std::string_view part : split(name, separator)) {
        if (!part.empty())
            parts.push_back(part);
    }
    if (separator == '.')
        std::reverse(parts.begin(), parts.end());
    std::string path = "\\" + tree;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::string part = fold(parts[i]);
        if (i == 0 && (part == fold(tree) || part == "t=" + fold(tree)))
            continue;
        path.append("\\").append(parts[i]);
    }
    return path;
}

bool liesBelow(const Identity& object, const Identity* base) {
    if (base == nullptr)
        return true; // the whole tree
    const Identity* at = object.container;
    while (at != nullptr && at != base)
        at = at->container;
    return at == base;
}

void search(ReplyWriter& reply, const Request& request, const RequestElement& operation) {
    const Identities& identities = request.server.identities();
    ElementWalk walk(operation);
    const std::string path = rootLeft(walk.text("trellBaseDN"), identities.tree);
    walk.end();
    const Identity* const base = identities.findByDistinguishedName(path);
    const bool known = base != nullptr || path == "\\" + identities.tree;
    writeBareResult(reply, known ? 0 : code::unknownIdentity);
    if (!known)
        return;
    for (const Identity& each : identities.all()) {
        if (each.kind != IdentityKind::morvane || !liesBelow(each, base))
            continue;
        reply.open("trellEntry");
        reply.text("dn", each.name);
        reply.text("objectClass", each.objectClass);
        reply.text("userID", each.id);
        reply.close();
    }
}

/// The object of that name in a container; objects with a name alone are leaves or containers alike.
const Identity* findObject(const Identities& identities, const std::string& context,
                           const std::string& name) {
    const std::string path = rootLeft(context, identities.tree);
    const Identity* found = nullptr;
    for (const char* type : {"\\CN=", "\\OU=", "\\O="}) {
        if (found == nullptr)
            found = identities.findByDistinguishedName(std::string(path).append(type).append(name));
    }
    return found;
}

void getAttribute(ReplyWriter& reply, const Request& request, const RequestElement& operation) {
    ElementWalk walk(operation);
    const std::string name = walk.text("name");
    const std::string context = walk.text("context");
    const std::string wanted = walk.text("attributeName");
    walk.end();
    const Identity* const object = findObject(request.server.identities(), context, name);
    std::vector<std::string> values;
    int result = 0;
    if (object == nullptr) {
        result = code::unknownIdentity;
    } else if (wanted == "guid") {
        values.push_back(object->id);
    } else if (wanted == "group membership") {
        for (const Identity* group : object->groups)
            values.push_back(group->distinguishedName);
    } else {
        result = code::noSuchAttribute;
    }
    writeBareResult(reply, result);
    if (result != 0)
        return;
    reply.open("trellAttribute");
    for (const std::string& value : values)
        reply.text("value", value);
    reply.close();
}

} // namespace

std::string answerTreeRequest(const Request& request) {
    // A search comes without the envelope, attributes are asked for within it.
    ElementWalk outer(request.elements);
    const bool isSearch = request.elements.children.size() == 2;
    if (isSearch)
        takePrefix(outer);
    const Enveloped enveloped = isSearch ? Enveloped{outer.element("trellRequest"), 1}
                                         : takeEnvelope(request.elements, "trellRequest");
    refuseUnless(enveloped.prefixes == 1);
    ElementWalk trell(enveloped.subject);
    ElementWalk object(trell.element("trellObject"));
    trell.end();
    const char* const name = isSearch ? "trellSearch" : "getAttribute";
    const RequestElement& operation = object.element(name);
    object.end();

    ReplyWriter reply;
    reply.open("adminReply");
    writeBareResult(reply, 0);
    reply.open("trellObject");
    reply.open(name);
    (isSearch ? search : getAttribute)(reply, request, operation);
    return reply.finish();
}

} // namespace quorvan::simulator
