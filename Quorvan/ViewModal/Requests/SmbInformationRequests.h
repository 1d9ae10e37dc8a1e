// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quorvan {

/// Asks which kind of user is logged in.
std::string userTypeRequest();

/// Asks where the link at a path leads.
std::string readLinkRequest(const std::string& path);

} // namespace quorvan
