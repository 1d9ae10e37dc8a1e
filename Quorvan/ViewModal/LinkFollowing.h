// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/Pipes.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace quorvan {

class XMLReadWriteController;

/// What the requests about a selection go to. The server and the path are the caller's own: when the path
/// lies below a link they move to its target.
struct SelectionPlace {
    std::string& server;
    std::string& selectedPath;
    const std::string& mappedPath; ///< the server path of the share's root
};

/// What is logged before the status of a request that failed, here and behind a link.
struct FailureMessages {
    std::string_view here;
    std::string_view behindLink;
};

/// A request about the selection, which may lie below a link to another server.
struct SelectionRequest {
    ManagementPipe pipe;
    FailureMessages failed;
    std::function<std::string(const std::string& path)> perform; ///< returns the status text
};

/// Whether the status of a request says that its path lies below a link.
bool liesBelowLink(const std::string& status);

/// Performs requests about a selection and follows the links that it lies below.
class LinkFollower {
public:
    LinkFollower(XMLReadWriteController& controller, SelectionPlace place)
        : controller_(controller)
        , place_(place) {}

    /// Opens the pipe, performs the request and closes the pipe; behind a link once more. The result is that
    /// of the controller's operations about the selection.
    std::int32_t perform(const SelectionRequest& request);

    /// Walks the mapped path component by component and moves to the target of every link on the way.
    void walkMappedPath();

    std::string targetServer; ///< of the last link that was found
    std::string targetPath;
    std::string resVal = "-1"; ///< the last answer about a link
    std::int32_t status = 0;   ///< of the SMB client for the server that was last moved to

private:
    std::int32_t performBehindLink(const SelectionRequest& request);
    /// Moves to the target of the link at `linkPath`; false when the SMB client refuses its server.
    bool moveToTarget(const std::string& linkPath);

    XMLReadWriteController& controller_;
    SelectionPlace place_;
};

} // namespace quorvan
