// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/KelpServer.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan::simulator {

using Arguments = std::vector<std::string_view>;

struct ProtocolAnswer {
    int error = 0; ///< an errno value, or 0
    std::string payload;
    bool hangUp = false; ///< close the connection instead of answering
};

/// Runs one of the commands that show and change the model of a server (PROTOCOL.md); nothing when there is
/// none of that name with so many arguments.
std::optional<ProtocolAnswer> runModelCommand(KelpServer& server, std::string_view name,
                                              const Arguments& arguments);

} // namespace quorvan::simulator
