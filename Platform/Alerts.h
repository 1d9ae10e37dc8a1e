// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace quorvan::platform {

enum class AlertStyle { warning = 0, informational = 1, critical = 2 };

class Alerts {
public:
    virtual ~Alerts() = default;

    /// Shows a message with one button and returns when the user has dismissed it.
    virtual void runModal(const std::string& windowTitle, const std::string& message, AlertStyle style) = 0;
};

} // namespace quorvan::platform
