// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorvan {

/// A folder on the way from a volume to a path.
struct FolderOnWay {
    struct Assignment {
        std::string id;
        std::uint16_t rights = 0; ///< mask of KelpRights
        std::string name = {};
    };

    std::string path;
    std::vector<Assignment> assignments;
    std::uint16_t filter = 0xFFFF; ///< what it lets through of what comes from above
    bool isVisible = true;         ///< false: it could not be read
    bool isBehindLink = false;     ///< … because a link leads from here or above to another place
};

/// Somebody whose assignments count for an identity: itself, and its groups and containers.
struct RightsHolder {
    std::string id;
    std::string name;
};

/// What became of one right that was granted to one holder on one folder.
struct Contribution {
    enum class End {
        none,     ///< it holds at the path
        filtered, ///< the filter of `endFolder` stops it
        replaced, ///< an assignment of the same holder on `endFolder` takes its place
    };

    std::size_t holder;
    std::size_t folder; ///< where it was granted
    End end = End::none;
    std::size_t endFolder = 0;
};

struct RightExplanation {
    std::uint16_t right;
    bool isHeld = false;                     ///< also by the Supervisor right
    std::vector<Contribution> contributions; ///< of this right itself, from the volume down
};

struct RightsExplanation {
    std::uint16_t rights = 0;                 ///< what is held; all eight by the Supervisor right
    std::vector<RightExplanation> reasons;    ///< of the eight rights, in the order of rightTags
    std::optional<std::size_t> lastInvisible; ///< the lowest folder that could not be read
};

/// Works out why an identity holds its rights on the last of `way`, the folders from the volume down. An
/// assignment takes the place of what the same holder has from above; other rights from above have to pass
/// the folder's filter, but for the Supervisor right, which passes all and brings every other right; and
/// the holders' rights add up. What lies above a folder that could not be read is left out.
RightsExplanation explainRights(const std::vector<FolderOnWay>& way,
                                const std::vector<RightsHolder>& holders);

/// Whether an identifier of Active Directory stands for a group whose members no directory lists: everyone,
/// whoever has logged in, or the group that every user of a domain has as the primary one.
bool hasUnlistedMembers(const std::string& id);

/// A right that does not arrive at the path.
struct StoppedRight {
    std::uint16_t right;
    std::size_t folder; ///< whose filter stops it
};

/// Which rights the filters below `folder` would stop if they were granted there to the holder `id`.
std::vector<StoppedRight> stoppedRights(const std::vector<FolderOnWay>& way, const std::string& id,
                                        std::size_t folder);

} // namespace quorvan
