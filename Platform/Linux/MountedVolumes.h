// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/FolderVolumes.h"
#include "Platform/Linux/ShareMounts.h"
#include "Platform/Linux/ShareTable.h"

namespace quorvan::platform {

/// The volumes among this machine's mounts: a folder of /Volumes, or a share that the system or a file
/// manager has mounted. A share lies where the table of shares says that it does on the server, so that
/// /Volumes/VOL1/users/bob may be all there is of VOL1. Looked for anew each time, because mounts come and
/// go. Case does not count in the names of volumes.
class MountedVolumes : public FolderVolumes {
public:
    /// Where to look.
    struct Places {
        std::filesystem::path volumes = volumesFolder;
        MountPlaces mounts;
        ShareTable shares = ShareTable();
    };

    MountedVolumes();
    explicit MountedVolumes(Places places);

protected:
    std::optional<std::filesystem::path> folderOf(const std::string& volume) override;
    std::optional<std::filesystem::path> placeBelowVolumes(const std::filesystem::path& path) override;
    std::set<std::string> wayThroughVolumes(const std::filesystem::path& path) override;

private:
    Places places_;
};

} // namespace quorvan::platform
