// SPDX-License-Identifier: GPL-3.0-or-later
#include "Handover/Handover.h"

#include "Common/ServerDetails.h"
#include "Common/Utf8.h"
#include "Platform/PercentEscapes.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace quorvan {

namespace {

namespace fs = std::filesystem;

bool isBelow(const fs::path& path, const fs::path& folder) {
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

/// A mount, and with its folder how far the selection lies below the share.
struct Selected {
    platform::ShareMount mount;
    fs::path below; ///< the selection, below what is mounted
};

std::optional<Selected> shareOf(const fs::path& path, const platform::MountPlaces& places) {
    std::optional<Selected> found;
    for (platform::ShareMount& mount : platform::allMounts(places)) {
        std::error_code error; // a runtime folder may be reached through links
        const fs::path point = fs::weakly_canonical(mount.point, error);
        if (error || !isBelow(path, point))
            continue;
        if (found && !isBelow(point, fs::weakly_canonical(found->mount.point, error)))
            continue; // the inner one of two mounts is what is seen
        const fs::path below = path.lexically_relative(point);
        found = {std::move(mount), below == "." ? fs::path() : below};
    }
    if (found && (found->mount.server.empty() || found->mount.share.empty()))
        return std::nullopt;
    return found;
}

/// A few names, such as one that holds "Volumes" or a backslash or is no UTF-8, would be read as another
/// path, and that must not be managed.
bool isReadAs(const Handover& handover, const platform::ServerPlace& place) {
    if (!isUtf8(handover.serverIP) || !isUtf8(handover.selectedPath))
        return false; // the hand-over holds texts
    for (const fs::path& part : place.below)
        if (part == ".." || part == "." || part.native().find('\\') != std::string::npos)
            return false;
    const std::string formatted = ServerDetails::getFormattedPath(handover.selectedPath);
    return formatted == place.serverPath() && formatted.find(handover.mappedPath) != std::string::npos;
}

} // namespace

std::variant<Handover, Refusal> handoverOf(const std::string& selection, const platform::MountPlaces& places,
                                           const platform::ShareTable& shares) {
    std::optional<Selected> selected;
    constexpr std::string_view fileScheme = "file://";
    if (selection.starts_with("smb://")) {
        platform::ShareMount share = platform::shareOfAddress(selection);
        if (share.share.empty())
            return Refusal{"Handover_No_Share_Label"};
        const fs::path below = std::exchange(share.folder, {});
        selected = {std::move(share), below};
    } else {
        const std::string local = selection.starts_with(fileScheme)
                                      ? platform::percentUnescaped(selection.substr(fileScheme.size()))
                                      : selection;
        std::error_code error;
        const fs::path path = fs::canonical(local, error);
        if (error)
            return Refusal{"Handover_Gone_Label"};
        selected = shareOf(path, places);
        if (!selected)
            return Refusal{"Handover_No_Share_Label"};
    }

    const auto root = shares.placeOf(selected->mount);
    if (!root)
        return Refusal{"Handover_Unknown_Share_Label"};
    platform::ServerPlace place = *root;
    if (!selected->below.empty())
        place.below /= selected->below;
    const Handover handover{selected->mount.server, place.localPath(), root->serverPath()};
    return isReadAs(handover, place) ? std::variant<Handover, Refusal>(handover)
                                     : Refusal{"Handover_Odd_Name_Label"};
}

} // namespace quorvan
