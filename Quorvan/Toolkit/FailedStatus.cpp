// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/FailedStatus.h"

#include "Common/Error.h"
#include "Common/Log.h"
#include "Common/ServerDetails.h"

namespace quorvan {

void reportFailedStatus(std::int32_t status) {
    if (status == errSecItemNotFound) {
        displayErrorMsg(errorCode::keychainNotFound);
        return;
    }
    Log("Failed with err - %d", status);
    displayErrorMsg(errorCode::operationFailed);
}

} // namespace quorvan
