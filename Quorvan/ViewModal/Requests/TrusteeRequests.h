// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"

#include <string>
#include <vector>

namespace quorvan {

// The requests about one trustee go by the identity type of the logged-in user, whatever the trustee's own.
// For a type that is neither the envelope is empty.

std::string addTrusteeRequest(const Trustees& trustee, const std::string& path,
                              const std::string& identityType);
std::string removeTrusteeRequest(const Trustees& trustee, const std::string& path,
                                 const std::string& identityType);

/// The pending changes of several paths in one.
std::string directoryTrusteesRequest(const std::vector<DirectoryRights>& entries,
                                     const std::string& identityType);

} // namespace quorvan
