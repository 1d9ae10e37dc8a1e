// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Selection/OwnRights.h"

#include "Quorvan/Controller/Selection/FailedOperation.h"
#include "Quorvan/Modal/Constants.h"

#include <algorithm>
#include <vector>

namespace quorvan {

std::optional<OwnRights> loadOwnRights(XMLReadWriteController& xmlController, std::string& selectedPath,
                                       std::string& serverIP, std::string& mappedPath,
                                       const std::string& identityType) {
    std::vector<std::string> names;
    const std::int32_t status = xmlController.getEffectiveRightsForMappedUserForPathHandleDFS(
        selectedPath, names, serverIP, mappedPath, identityType);
    if (status != 0) {
        reportFailedOperation(xmlController, serverIP, status);
        return std::nullopt;
    }
    return OwnRights{std::ranges::find(names, EffectiveRightsConstants::SUPERVISOR) != names.end(),
                     std::ranges::find(names, EffectiveRightsConstants::ACCESS_CONTROL) != names.end()};
}

} // namespace quorvan
