// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <QString>

#include <memory>
#include <optional>
#include <string>

namespace quorvan {

/// What a view about the selected path starts out with. An incomplete selection is fatal.
struct SelectionContext {
    SelectionContext();

    /// A request controller for the next operation.
    XMLReadWriteController& renewController();

    /// Opens a pipe for the next operation, whose request controller is new; a failure is reported to the
    /// user.
    bool openPipe(const char* share, const char* pipe);

    /// The path that was selected, to be shown; requests go to where a link on it leads.
    static QString selectedPathName();

    std::unique_ptr<XMLReadWriteController> xmlController; ///< anew for each operation
    std::string serverIP;
    std::string selectedPath;   ///< as the server knows it
    std::string mappedPath;     ///< what the mounted share stands for
    std::string domainIdentity; ///< the identity type worked in
};

/// The same for a view that learns from the trustees of the path what the logged-in user may do there.
struct TrusteeContext : SelectionContext {
    /// Puts the trustees of an identity type in place of what the list held; a failure is reported to the
    /// user. What the user has been seen to hold stays held for as long as the view lives.
    bool loadTrustees(TrusteeList& trustees, const std::string& identityType);

    std::optional<Rights> irfList = Rights();
    Rights effRights; ///< of the logged-in user
    bool isSupervisor = false;
    bool isAccessControl = false;
};

} // namespace quorvan
