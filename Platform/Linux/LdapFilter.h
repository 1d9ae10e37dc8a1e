// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/DirectoryServices.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvan::platform {

/// The text S-1-… of a security identifier; nothing when the bytes are not one.
std::optional<std::string> sidText(std::string_view bytes);

/// The bytes that the directory keeps for S-1-…; nothing for any other text.
std::optional<std::string> sidBytes(std::string_view text);

/// A value, text or bytes, as it stands in an LDAP filter (RFC 4515) without ever meaning anything there.
/// Nothing else may put a value into a filter.
std::string escapeForFilter(std::string_view value);

/// The attribute of the directory behind an attribute of records; nothing when there is none that can
/// be searched.
std::optional<std::string> ldapAttribute(std::string_view attribute);

/// The filter of a query; nothing when no record can match it.
std::optional<std::string> ldapFilter(const DirectoryQuery& query);

/// Whether a distinguished name is `base` or lies below it; both as one server wrote them.
bool isBelow(std::string_view name, std::string_view base);

} // namespace quorvan::platform
