// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/ViewModal/Pipes.h"

#include <cstdint>
#include <functional>
#include <string>

namespace quorvan {

class XMLReadWriteController;

/// A pipe that is open for the lifetime of this object, for one operation of `controller`. There is one
/// pipe at a time: opening another before this one is closed is fatal.
class ScopedPipe {
public:
    ScopedPipe(XMLReadWriteController& controller, const std::string& server, const ManagementPipe& pipe);
    ~ScopedPipe() { close(); }
    ScopedPipe(const ScopedPipe&) = delete;
    ScopedPipe& operator=(const ScopedPipe&) = delete;

    bool isOpen() const { return isOpen_; }
    /// 0 when the pipe could be opened, otherwise what openPipe returned.
    std::int32_t status() const { return status_; }

    /// Closes the pipe before the scope ends, which is logged. Nothing when it is not open.
    void close();
    /// The same without the line in the log, where the program ends and the operation does not.
    void drop();

private:
    std::int32_t status_;
    bool isOpen_;
};

/// Tells the user something by `report` as soon as no pipe is open: at once, or when the open one has been
/// closed. An alert runs an event loop, in which the user could start another operation on the pipe.
void reportWhenPipeIsClosed(std::function<void()> report);

} // namespace quorvan
