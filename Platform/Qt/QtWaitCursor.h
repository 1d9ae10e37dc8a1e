// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/BusyIndicator.h"

namespace quorvan::platform {

/// The wait cursor over all windows of the program, from the first begin() to the last end().
class QtWaitCursor : public BusyIndicator {
public:
    void begin() override;
    void end() override;

private:
    int depth_ = 0;
};

} // namespace quorvan::platform
