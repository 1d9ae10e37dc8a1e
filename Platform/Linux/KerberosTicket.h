// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quorvan::platform {

/// Whose ticket the user's credential cache holds, as NAME@REALM; "" without one that is still valid. Asks no
/// server.
std::string ticketOwner();

} // namespace quorvan::platform
