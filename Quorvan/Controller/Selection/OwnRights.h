// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <optional>
#include <string>

namespace quorvan {

/// What the logged-in user may do with the selected path.
struct OwnRights {
    bool isSupervisor = false;
    bool isAccessControl = false;
};

/// Asks the server for the logged-in user's rights. A failure is reported to the user and gives nothing.
/// Server and paths change when the path is a DFS link.
std::optional<OwnRights> loadOwnRights(XMLReadWriteController& xmlController, std::string& selectedPath,
                                       std::string& serverIP, std::string& mappedPath,
                                       const std::string& identityType);

} // namespace quorvan
