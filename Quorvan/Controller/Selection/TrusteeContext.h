// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Selection/SelectionContext.h"

#include <optional>
#include <string>

namespace quorvan {

/// The selection of a view that learns from the trustees of the path what the logged-in user may do there.
struct TrusteeContext : SelectionContext {
    /// Puts the trustees of an identity type in place of what the list held; a failure is reported to the
    /// user. What the user has been seen to hold stays held for as long as the view lives.
    bool loadTrustees(TrusteeList& trustees, const std::string& identityType);

    std::optional<Rights> irfList = Rights();
    Rights effRights;                 ///< of the logged-in user
    Reading reading = Reading::whole; ///< of the trustees, over as many loads as the view sets
    bool isSupervisor = false;
    bool isAccessControl = false;
};

} // namespace quorvan
