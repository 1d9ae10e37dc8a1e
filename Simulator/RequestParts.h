// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/Requests.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quorvan::simulator {

// What requests of several pipes have in common.

/// <virtualIO><datastream name="command"/></virtualIO>
void takePrefix(ElementWalk& walk);

/// What stands in the envelope behind the prefix.
struct Enveloped {
    const RequestElement& subject;
    int prefixes; ///< 1 or 2
};

/// Takes the envelope, which must be all there is and hold a `subject`.
Enveloped takeEnvelope(const RequestElement& elements, std::string_view subject);

/// An element with text in NFC: a path or the name of a volume.
std::string takeComposed(ElementWalk& walk, std::string_view name);
std::string takePath(ElementWalk& walk);
void takeNameSpace(ElementWalk& walk);

/// <adOnly/>, which limits the reply to Active Directory; without it the tree is asked about.
IdentityKind takeKind(ElementWalk& walk);

/// Whether an element has the attribute type="adID" or none at all; anything else is refused.
IdentityKind kindOf(const RequestElement& element, const char* attribute = "type");

/// An amount of space in bytes, which may be negative.
std::int64_t takeAmount(ElementWalk& walk, std::string_view name);

void writeRights(ReplyWriter& reply, const char* name, Mask rights);
void writeTrustees(ReplyWriter& reply, const Node& node, IdentityKind kind);
void writeAttributes(ReplyWriter& reply, const Node& node);

/// The node at a path of this server; throws when there is none and when a link leads elsewhere.
Node& nodeAt(const Request& request, std::string_view path);

/// The same for a change that needs these rights.
Node& changeableNode(const Request& request, std::string_view path, Mask needed);

/// The identity of that kind with a SID, a GUID or, in the tree, a name; throws when there is none.
const Identity& identityFor(const Request& request, IdentityKind kind, std::string_view id);

} // namespace quorvan::simulator
