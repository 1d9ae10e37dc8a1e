// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/FolderVolumes.h"
#include "Simulator/KelpServer.h"

#include <memory>
#include <set>

namespace quorvan::simulator {

/// The volumes of a simulated server as mounted ones: a temporary folder that gets each volume's folders
/// and (empty) files when that volume is first asked for, and is removed with this object.
class MirroredVolumes : public platform::FolderVolumes {
public:
    explicit MirroredVolumes(std::shared_ptr<KelpServer> server);
    ~MirroredVolumes() override;
    MirroredVolumes(const MirroredVolumes&) = delete;
    MirroredVolumes& operator=(const MirroredVolumes&) = delete;

    /// Where a volume (VOL1) is, to add to it or to take from it; nothing when the server has none.
    std::optional<std::filesystem::path> folderOf(const std::string& volume) override;

private:
    std::shared_ptr<KelpServer> server_;
    std::filesystem::path folder_; ///< "" until something is asked for
    std::set<std::string> mirrored_;
};

} // namespace quorvan::simulator
