// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Selection/SelectionContext.h"

#include "Common/Fatal.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Toolkit/FailedStatus.h"

namespace quorvan {

SelectionContext::SelectionContext()
    : serverIP(unwrap(ServerDetails::serverInfo().serverIP, "There is no server to work on"))
    , selectedPath(unwrap(ServerDetails::serverInfo().selectedPathName, "There is no selected path"))
    , mappedPath(unwrap(ServerDetails::serverInfo().mappedPathName, "There is no mapped path"))
    , domainIdentity(ServerDetails::serverInfo().getIdentityType()) {}

XMLReadWriteController& SelectionContext::renewController() {
    xmlController = std::make_unique<XMLReadWriteController>();
    return *xmlController;
}

std::unique_ptr<ScopedPipe> SelectionContext::openPipe(const ManagementPipe& pipe) {
    return openPipeOf(renewController(), pipe);
}

std::unique_ptr<ScopedPipe> SelectionContext::openPipeOf(XMLReadWriteController& controller,
                                                         const ManagementPipe& pipe) const {
    auto opened = std::make_unique<ScopedPipe>(controller, serverIP, pipe);
    if (opened->isOpen())
        return opened;
    reportFailedStatus(opened->status());
    return nullptr;
}

QString SelectionContext::selectedPathName() {
    return QString::fromStdString(
        unwrap(ServerDetails::serverInfo().selectedPathName, "There is no selected path"));
}

} // namespace quorvan
