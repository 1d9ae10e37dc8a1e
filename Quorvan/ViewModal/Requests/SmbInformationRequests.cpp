// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/Requests/SmbInformationRequests.h"

#include "Common/Format.h"
#include "Quorvan/Modal/Utils.h"

namespace quorvan {

std::string userTypeRequest() {
    return "<zelSmbGetInfo><userType/></zelSmbGetInfo>";
}

std::string readLinkRequest(const std::string& path) {
    return fill("<zelSmbGetInfo><readLink><pathName>%@</pathName></readLink></zelSmbGetInfo>",
                {normalizedNFC(path)});
}

} // namespace quorvan
