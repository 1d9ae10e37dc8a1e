// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/ScopedPipe.h"

#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <utility>

namespace quorvan {

ScopedPipe::ScopedPipe(XMLReadWriteController& controller, const std::string& server,
                       const ManagementPipe& pipe)
    : status_(controller.openPipe(server, pipe.share, pipe.file))
    , isOpen_(status_ == 0) {}

void ScopedPipe::close() {
    if (std::exchange(isOpen_, false))
        XMLReadWriteController::closePipe();
}

void ScopedPipe::drop() {
    if (std::exchange(isOpen_, false))
        XMLReadWriteController::dropPipe();
}

} // namespace quorvan
