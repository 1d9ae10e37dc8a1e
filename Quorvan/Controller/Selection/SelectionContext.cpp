// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Selection/SelectionContext.h"

#include "Common/Fatal.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Selection/FailedOperation.h"
#include "Quorvan/Toolkit/FailedStatus.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NoticeLine.h"

#include <algorithm>

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

void SelectionContext::reportFailed(std::int32_t status, std::size_t changesInDoubt) const {
    reportFailedOperation(*xmlController, serverIP, status, changesInDoubt);
}

bool SelectionContext::reportLoss(std::size_t changesInDoubt) const {
    if (xmlController->loss() != 0)
        reportFailed(xmlController->loss(), changesInDoubt);
    return xmlController->loss() != 0;
}

SelectionContext::Reading SelectionContext::readingOfList(Reading before) const {
    const Reading reading = std::max(before, xmlController->reading());
    if (reading != Reading::whole)
        NoticeLine::tell(
            NoticeLine::Kind::problem,
            L(reading == Reading::refused ? "List_Partly_Refused_Label" : "List_Partly_Unreadable_Label"));
    return reading;
}

const char* SelectionContext::emptyListKey(Reading reading, const char* none) {
    return reading == Reading::whole     ? none
           : reading == Reading::refused ? "List_Refused_Label"
                                         : "List_Unreadable_Label";
}

QString SelectionContext::selectedPathName() {
    return QString::fromStdString(
        unwrap(ServerDetails::serverInfo().selectedPathName, "There is no selected path"));
}

} // namespace quorvan
