// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/ScopedPipe.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace quorvan {

/// What a view about the selected path starts out with. An incomplete selection is fatal.
struct SelectionContext {
    SelectionContext();

    /// A request controller for the next operation.
    XMLReadWriteController& renewController();

    /// Opens a pipe for the next operation, whose request controller is new; null after a failure, which is
    /// reported to the user.
    std::unique_ptr<ScopedPipe> openPipe(const ManagementPipe& pipe);
    /// The same for an operation of a controller that is there already.
    std::unique_ptr<ScopedPipe> openPipeOf(XMLReadWriteController& controller,
                                           const ManagementPipe& pipe) const;

    /// Tells the user that the controller's operation failed; `changesInDoubt` is what it was to change.
    void reportFailed(std::int32_t status, std::size_t changesInDoubt = 0) const;
    /// The same when the connection was lost in it, of which most replies tell nothing else; whether it was.
    bool reportLoss(std::size_t changesInDoubt = 0) const;
    /// What became of the list that the controller's operation has read, and whatever was read for it before.
    /// Where that is not all, a line in the window says so.
    using Reading = XMLReadWriteController::Reading;
    Reading readingOfList(Reading before = Reading::whole) const;
    /// What an empty list says: `none` where it was read and holds nothing.
    static const char* emptyListKey(Reading reading, const char* none);

    /// The path that was selected, to be shown; requests go to where a link on it leads.
    static QString selectedPathName();

    std::unique_ptr<XMLReadWriteController> xmlController; ///< anew for each operation
    std::string serverIP;
    std::string selectedPath;   ///< as the server knows it
    std::string mappedPath;     ///< what the mounted share stands for
    std::string domainIdentity; ///< the identity type worked in
};

} // namespace quorvan
