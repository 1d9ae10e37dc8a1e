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
    reportFailedResult(std::to_string(status));
}

void reportFailedResult(const std::string& result) {
    Log("Failed with err - %@", result);
    displayErrorMsg(errorCode::operationFailed);
}

} // namespace quorvan
