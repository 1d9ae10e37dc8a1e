// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace quorvan {

/// Tells the user that an operation of `controller` about `server` failed. When the connection was lost in
/// it, a line in the window says so, and how many changes it leaves in doubt.
void reportFailedOperation(const XMLReadWriteController& controller, const std::string& server,
                           std::int32_t status, std::size_t changesInDoubt = 0);

} // namespace quorvan
