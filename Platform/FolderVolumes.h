// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/LocalVolumes.h"
#include "Platform/VolumesFolder.h"

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <system_error>

namespace quorvan::platform {

/// Volumes that lie somewhere among the machine's own folders; a derived class knows where.
class FolderVolumes : public LocalVolumes {
public:
    Kind kindOf(const std::string& path) override {
        const auto place = placeOf(path);
        if (!place)
            return wayThrough(path).empty() ? Kind::nothing : Kind::folder;
        std::error_code error;
        return kindOf(std::filesystem::status(*place, error));
    }

    LocalListing list(const std::string& path) override {
        LocalListing listing;
        listing.error = forEachEntry(path, [&listing](LocalEntry entry) {
            listing.entries.push_back(std::move(entry));
            return true;
        });
        return listing;
    }

    bool hasEntries(const std::string& path) override {
        bool found = false;
        forEachEntry(path, [&found](const LocalEntry&) {
            found = true;
            return false;
        });
        return found;
    }

protected:
    /// The folder that is /Volumes/NAME; nothing when no volume of that name is mounted.
    virtual std::optional<std::filesystem::path> folderOf(const std::string& volume) = 0;
    /// Where "NAME/folder/file" of /Volumes lies.
    virtual std::optional<std::filesystem::path> placeBelowVolumes(const std::filesystem::path& path) {
        const auto folder = folderOf(*path.begin());
        return folder ? std::optional(*folder / path.lexically_relative(*path.begin())) : std::nullopt;
    }
    /// The names that lead on from "NAME/folder" of /Volumes, which is not mounted itself, to what is.
    virtual std::set<std::string> wayThroughVolumes(const std::filesystem::path& /*path*/) { return {}; }

private:
    static Kind kindOf(const std::filesystem::file_status& status) {
        if (!std::filesystem::exists(status))
            return Kind::nothing;
        return std::filesystem::is_directory(status) ? Kind::folder : Kind::file;
    }

    /// A path below /Volumes without that; nothing for any other, and for one that climbs with "..", which
    /// could leave its volume.
    static std::optional<std::filesystem::path> belowVolumes(const std::string& path) {
        const std::string volumes = volumesFolder + std::string("/");
        if (!path.starts_with(volumes))
            return std::nullopt;
        const std::filesystem::path below = path.substr(volumes.size());
        for (const auto& part : below)
            if (part == ".." || part == ".")
                return std::nullopt;
        if (below.empty() || below.is_absolute())
            return std::nullopt;
        return below;
    }

    std::optional<std::filesystem::path> placeOf(const std::string& path) {
        const auto below = belowVolumes(path);
        return below ? placeBelowVolumes(*below) : std::nullopt;
    }

    std::set<std::string> wayThrough(const std::string& path) {
        const auto below = belowVolumes(path);
        return below ? wayThroughVolumes(*below) : std::set<std::string>();
    }

    /// Hands over entries until one is answered with false; why there was nothing to hand over, or "".
    template <class Take>
    std::string forEachEntry(const std::string& path, Take take) {
        const auto place = placeOf(path);
        if (!place) {
            const std::set<std::string> names = wayThrough(path);
            if (names.empty())
                return std::make_error_code(std::errc::no_such_file_or_directory).message();
            for (const std::string& name : names)
                if (!take(LocalEntry{name, true}))
                    break;
            return {};
        }
        std::error_code error;
        for (std::filesystem::directory_iterator at(*place, error), end; !error && at != end;
             at.increment(error)) {
            std::error_code gone;
            const Kind kind = kindOf(at->status(gone));
            if (kind != Kind::nothing &&
                !take(LocalEntry{at->path().filename().native(), kind == Kind::folder}))
                break;
        }
        return error ? error.message() : std::string();
    }
};

} // namespace quorvan::platform
