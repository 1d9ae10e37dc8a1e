// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/FolderVolumes.h"

namespace quorvan::platform {

/// The volumes among this machine's mounts: a folder of /Volumes, a share that the system has mounted, or
/// one that the desktop's file manager has mounted for the user, in this order. Looked for anew each time,
/// because mounts come and go. Case does not count in the names of shares.
class MountedVolumes : public FolderVolumes {
public:
    /// Where to look.
    struct Places {
        std::filesystem::path volumes = volumesFolder;
        std::filesystem::path mountTable = "/proc/self/mountinfo";
        std::filesystem::path desktopMounts; ///< the folder of GVfs; "" for the user's own
    };

    MountedVolumes();
    explicit MountedVolumes(Places places);

protected:
    std::optional<std::filesystem::path> folderOf(const std::string& volume) override;

private:
    std::optional<std::filesystem::path> systemMount(const std::string& volume) const;
    std::optional<std::filesystem::path> desktopMount(const std::string& volume) const;

    Places places_;
};

} // namespace quorvan::platform
