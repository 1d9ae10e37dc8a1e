// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/ScopedPipe.h"

#include "Quorvan/ViewModal/XMLReadWrite.h"

namespace quorvan {

ScopedPipe::ScopedPipe(XMLReadWriteController& controller, const std::string& server,
                       const ManagementPipe& pipe)
    : status_(controller.openPipe(server, pipe.share, pipe.file))
    , isOpen_(status_ == 0) {}

void ScopedPipe::close() {
    if (!isOpen_)
        return;
    isOpen_ = false;
    XMLReadWriteController::closePipe();
}

} // namespace quorvan
