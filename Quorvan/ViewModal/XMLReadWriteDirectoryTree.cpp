// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"

namespace quorvan {

std::string XMLReadWriteController::getUserType() {
    const std::string reply =
        exchangeRequest("<zelSmbGetInfo><userType/></zelSmbGetInfo>",
                        {"Get userType Request : %@", "response.deinitialize", "Get userType Response: %@"});
    const bool named = lowercased(reply).find("morvane") != std::string::npos;
    return std::string(named ? identityMorvane : identityActiveDirectory);
}

} // namespace quorvan
