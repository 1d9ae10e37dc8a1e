// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Alerts.h"

namespace quorvan::platform {

/// Alerts as message boxes over the window that the user is working in, which may end in the meantime.
class QtAlerts : public Alerts {
public:
    void runModal(const std::string& windowTitle, const std::string& message, AlertStyle style) override;
};

} // namespace quorvan::platform
