// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/LocalVolumes.h"
#include "Platform/VolumesFolder.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string_view>
#include <system_error>

namespace quorvan::platform {

/// Volumes that lie somewhere among the machine's own folders; a derived class knows where.
class FolderVolumes : public LocalVolumes {
public:
    Kind kindOf(const std::string& path) override {
        const auto place = placeOf(path);
        if (!place)
            return Kind::nothing;
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

private:
    static Kind kindOf(const std::filesystem::file_status& status) {
        if (!std::filesystem::exists(status))
            return Kind::nothing;
        return std::filesystem::is_directory(status) ? Kind::folder : Kind::file;
    }

    /// Where a path really lies. One that climbs with ".." could leave its volume, and lies nowhere.
    std::optional<std::filesystem::path> placeOf(const std::string& path) {
        const std::string volumes = volumesFolder + std::string("/");
        if (!path.starts_with(volumes))
            return std::nullopt;
        const std::size_t nameEnd = std::min(path.find('/', volumes.size()), path.size());
        const std::string name = path.substr(volumes.size(), nameEnd - volumes.size());
        const auto below = std::filesystem::path(path.substr(nameEnd)).relative_path();
        for (const auto& part : below)
            if (part == "..")
                return std::nullopt;
        if (name.empty() || name == "." || name == "..")
            return std::nullopt;
        const auto folder = folderOf(name);
        return folder ? std::optional(*folder / below) : std::nullopt;
    }

    /// Hands over entries until one is answered with false; why there was nothing to hand over, or "".
    template <class Take>
    std::string forEachEntry(const std::string& path, Take take) {
        const auto place = placeOf(path);
        if (!place)
            return std::make_error_code(std::errc::no_such_file_or_directory).message();
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
