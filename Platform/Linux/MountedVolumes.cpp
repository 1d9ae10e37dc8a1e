// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/MountedVolumes.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <strings.h>

namespace quorvan::platform {

namespace {

namespace fs = std::filesystem;

bool sameName(const std::string& a, const std::string& b) {
    return strcasecmp(a.c_str(), b.c_str()) == 0;
}

/// How many parts a path and the one above it have in common from their beginnings.
std::ptrdiff_t commonParts(const fs::path& a, const fs::path& b) {
    const auto sameParts = [](const fs::path& one, const fs::path& other) {
        return sameName(one.native(), other.native());
    };
    return std::distance(a.begin(), std::mismatch(a.begin(), a.end(), b.begin(), b.end(), sameParts).first);
}

std::ptrdiff_t partsOf(const fs::path& path) {
    return std::distance(path.begin(), path.end());
}

fs::path withoutSlash(const fs::path& path) {
    return path.has_filename() ? path : path.parent_path();
}

} // namespace

MountedVolumes::MountedVolumes()
    : MountedVolumes(Places()) {}

MountedVolumes::MountedVolumes(Places places)
    : places_(std::move(places)) {}

std::optional<fs::path> MountedVolumes::folderOf(const std::string& volume) {
    std::error_code error;
    if (fs::is_directory(places_.volumes / volume, error))
        return places_.volumes / volume;
    // A folder of a share may be mounted under its own name.
    for (const ShareMount& mount : shareMounts(places_.mounts))
        if (!mount.folder.empty() && sameName(mount.folder.filename(), volume))
            return mount.point;
    return std::nullopt;
}

std::optional<fs::path> MountedVolumes::placeBelowVolumes(const fs::path& path) {
    std::error_code error;
    if (!fs::is_directory(places_.volumes / *path.begin(), error)) {
        const fs::path wanted = withoutSlash(path);
        std::ptrdiff_t best = 0;
        fs::path found;
        for (const ShareMount& mount : shareMounts(places_.mounts)) {
            const auto place = places_.shares.placeOf(mount);
            if (!place)
                continue;
            const fs::path root = withoutSlash(fs::path(place->volume) / place->below);
            const std::ptrdiff_t parts = partsOf(root);
            if (parts <= best || commonParts(root, wanted) != parts)
                continue;
            best = parts;
            found = mount.point;
            for (auto part = std::next(wanted.begin(), parts); part != wanted.end(); ++part)
                found /= *part;
        }
        if (best != 0)
            return found;
    }
    return FolderVolumes::placeBelowVolumes(path);
}

std::set<std::string> MountedVolumes::wayThroughVolumes(const fs::path& path) {
    const fs::path wanted = withoutSlash(path);
    std::set<std::string> names;
    for (const ShareMount& mount : shareMounts(places_.mounts))
        if (const auto place = places_.shares.placeOf(mount)) {
            const fs::path root = fs::path(place->volume) / place->below;
            if (const auto parts = partsOf(wanted);
                commonParts(wanted, root) == parts && partsOf(root) > parts)
                names.insert(std::next(root.begin(), parts)->native());
        }
    return names;
}

} // namespace quorvan::platform
