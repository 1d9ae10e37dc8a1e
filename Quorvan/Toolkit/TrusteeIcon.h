// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

#include <string_view>

namespace quorvan {

/// The name of the icon that stands for a kind of trustee ("Users", "Groups" or a directory-tree
/// object class, in any case); unknown kinds look like users.
const char* trusteeIconName(std::string_view trusteeType);

/// The icon of a user by its identity type; none for an unknown type.
QIcon userIcon(std::string_view identityType);

/// One of the program's icons by its name, made once.
QIcon namedIcon(const char* name);

} // namespace quorvan
