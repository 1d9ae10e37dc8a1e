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

bool SelectionContext::openPipe(const char* share, const char* pipe) {
    const std::int32_t status = renewController().openPipe(serverIP, share, pipe);
    if (status != 0)
        reportFailedStatus(status);
    return status == 0;
}

QString SelectionContext::selectedPathName() {
    return QString::fromStdString(
        unwrap(ServerDetails::serverInfo().selectedPathName, "There is no selected path"));
}

} // namespace quorvan
