// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/ShareMounts.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace quorvan::platform {

/// A place on a server: a volume and the folders below it.
struct ServerPlace {
    std::string volume;
    std::filesystem::path below;

    std::string serverPath() const; ///< "VOL1:\users\bob", "VOL1:\"
    std::string localPath() const;  ///< "/Volumes/VOL1/users/bob"
};

/// Which server paths the shares of servers stand for, which no client can know. Files of the form
///
///     [files.example.org]
///     bob = VOL1:\users\bob
///
/// say so; the section "*" counts for every server. Case does not count in the names of servers and shares.
/// A share that no file names is the volume of the same name.
class ShareTable {
public:
    /// `files` in the order in which they are asked; those of the user and of the machine.
    explicit ShareTable(std::vector<std::filesystem::path> files = usualFiles());

    /// What is mounted there; nothing when a file names the share but gives it no path.
    std::optional<ServerPlace> placeOf(const ShareMount& mount) const;

    /// `quorvan/shares.conf` in the user's folder of configurations and in /etc.
    static std::vector<std::filesystem::path> usualFiles();

private:
    std::vector<std::filesystem::path> files_;
};

} // namespace quorvan::platform
