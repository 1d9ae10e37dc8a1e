// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quorvan {

/// A server path and all its ancestors, nearest first; the root of the volume, with and without its
/// backslash, comes last: VOL1:\a gives VOL1:\a, VOL1:\ and VOL1:. A path without a backslash is fatal.
std::vector<std::string> getParentPaths(const std::string& path);

/// The volume of a server path: VOL1: of VOL1:\a. A path of nothing but backslashes is fatal.
std::string volumeOfPath(const std::string& path);

} // namespace quorvan
