// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quorvan {

// The directory tree writes a name in one of two notations: the root on the left with a backslash before
// every component, \TREE\O=org\CN=user, or the root on the right with dots between the components and
// often at both ends, .CN=user.O=org.TREE. — a component is a value, or a type and a value.
//
// A backslash before another separator escapes it. Which notation such a name is in cannot be told, so it
// stays as it is.

/// Separates an object's name from its context, the containers above it, with the root on the left:
/// \TREE\O=org\OU=unit\CN=user and .CN=user.OU=unit.O=org.TREE. are both "user" in \TREE\O=org\OU=unit.
/// False when one of the two comes out empty; a name with escapes is all name and no context.
bool convertDntoContextAndNameRootLeft(const std::string& dn, std::string& context, std::string& objectName);

/// The name of a group with the root on the right: \TREE\O=org\CN=grp is .CN=grp.O=org.TREE. — an empty
/// name is fatal.
std::string getDNFromGroupNameRootRight(const std::string& groupName);

} // namespace quorvan
