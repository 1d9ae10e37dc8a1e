// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quorvan {

/// Asks for what lies below a distinguished name.
std::string browseTreeRequest(const std::string& baseDN);

} // namespace quorvan
