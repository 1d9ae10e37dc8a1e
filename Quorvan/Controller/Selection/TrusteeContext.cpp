// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Selection/TrusteeContext.h"

#include "Quorvan/Modal/Constants.h"

namespace quorvan {

bool TrusteeContext::loadTrustees(TrusteeList& trustees, const std::string& identityType) {
    Rights irf = irfList.value_or(Rights());
    const std::int32_t status = renewController().initializeTrusteesHandleDFS(
        serverIP, trustees, selectedPath, irf, effRights, mappedPath, identityType);
    irfList = irf;
    isSupervisor = isSupervisor || (effRights.uright & KelpRights::supervisor) != 0;
    isAccessControl = isAccessControl || (effRights.uright & KelpRights::accessControl) != 0;
    if (status != 0) {
        reportFailed(status);
        return false;
    }
    reading = readingOfList(reading);
    return true;
}

} // namespace quorvan
