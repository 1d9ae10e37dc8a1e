// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/SelectionContext.h"

#include "Common/Fatal.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Shared.h"

namespace quorvan {

Shared& Shared::value() {
    static Shared shared;
    return shared;
}

SelectionContext::SelectionContext()
    : serverIP(unwrap(ServerDetails::serverInfo().serverIP, "There is no server to work on"))
    , selectedPath(unwrap(ServerDetails::serverInfo().selectedPathName, "There is no selected path"))
    , mappedPath(unwrap(ServerDetails::serverInfo().mappedPathName, "There is no mapped path"))
    , domainIdentity(ServerDetails::serverInfo().getIdentityType()) {}

XMLReadWriteController& SelectionContext::renewController() {
    xmlController = std::make_unique<XMLReadWriteController>();
    return *xmlController;
}

QString SelectionContext::selectedPathName() {
    return QString::fromStdString(
        unwrap(ServerDetails::serverInfo().selectedPathName, "There is no selected path"));
}

} // namespace quorvan
