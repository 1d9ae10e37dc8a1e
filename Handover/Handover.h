// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/ShareMounts.h"
#include "Platform/Linux/ShareTable.h"

#include <string>
#include <variant>

namespace quorvan {

/// What Quorvan is told of a selection, by the keys of the shared defaults.
struct Handover {
    std::string serverIP;
    std::string selectedPath; ///< "/Volumes/VOL1/users/bob/plan.txt"
    std::string mappedPath;   ///< the root of the share, "VOL1:\users\bob"

    bool operator==(const Handover&) const = default;
};

/// Why a selection cannot be handed over: the key of the text that says so. The text's %1 is the selection.
struct Refusal {
    const char* key;
};

/// Finds the share of a local path, links followed, or of an address smb://HOST/SHARE/…. The server is
/// named as the mount or the address names it.
std::variant<Handover, Refusal> handoverOf(const std::string& selection,
                                           const platform::MountPlaces& places = {},
                                           const platform::ShareTable& shares = platform::ShareTable());

} // namespace quorvan
