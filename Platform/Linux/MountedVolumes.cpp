// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/MountedVolumes.h"

#include "Platform/PercentEscapes.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include <strings.h>
#include <unistd.h>

namespace quorvan::platform {

namespace {

namespace fs = std::filesystem;

bool isFolder(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

bool sameName(const std::string& a, const std::string& b) {
    return strcasecmp(a.c_str(), b.c_str()) == 0;
}

/// Takes back what the kernel does to blanks and backslashes in its tables: "\040".
std::string unescaped(const std::string& field) {
    std::string text;
    for (std::size_t at = 0; at < field.size(); ++at) {
        const std::string digits = field.substr(at + 1, 3);
        if (field[at] == '\\' && digits.size() == 3 &&
            digits.find_first_not_of("01234567") == std::string::npos) {
            text += static_cast<char>(std::stoi(digits, nullptr, 8));
            at += 3;
        } else {
            text += field[at];
        }
    }
    return text;
}

/// The last part of a source "//server/share", or of "//server/share/folder".
std::string mountedName(std::string source) {
    while (source.ends_with('/'))
        source.pop_back();
    return source.substr(source.rfind('/') + 1);
}

struct Mount {
    std::string root; ///< which folder of what is mounted
    std::string point;
    std::string kind;
    std::string source;
};

/// A line of the mount table: id, parent, device, root, mount point, options, optional fields, "-", kind,
/// source, …
Mount parsed(const std::string& line) {
    std::istringstream fields(line);
    std::string skipped;
    Mount mount;
    fields >> skipped >> skipped >> skipped >> mount.root >> mount.point;
    while (fields >> skipped && skipped != "-") {
    }
    fields >> mount.kind >> mount.source;
    mount.root = unescaped(mount.root);
    mount.point = unescaped(mount.point);
    mount.source = unescaped(mount.source);
    return mount;
}

/// The share in "smb-share:server=files,share=vol1,user=x", which the desktop escapes like a URL.
std::string shareOfDesktopMount(const std::string& folder) {
    constexpr const char* prefix = "smb-share:";
    if (!folder.starts_with(prefix))
        return {};
    std::istringstream fields(folder.substr(std::string(prefix).size()));
    for (std::string field; std::getline(fields, field, ',');)
        if (field.starts_with("share="))
            return percentUnescaped(field.substr(std::string("share=").size()));
    return {};
}

fs::path ownDesktopMounts() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && *runtime != '\0')
        return fs::path(runtime) / "gvfs";
    return fs::path("/run/user") / std::to_string(getuid()) / "gvfs";
}

} // namespace

MountedVolumes::MountedVolumes()
    : MountedVolumes(Places()) {}

MountedVolumes::MountedVolumes(Places places)
    : places_(std::move(places)) {
    if (places_.desktopMounts.empty())
        places_.desktopMounts = ownDesktopMounts();
}

std::optional<fs::path> MountedVolumes::folderOf(const std::string& volume) {
    if (isFolder(places_.volumes / volume))
        return places_.volumes / volume;
    if (auto mount = systemMount(volume))
        return mount;
    return desktopMount(volume);
}

std::optional<fs::path> MountedVolumes::systemMount(const std::string& volume) const {
    std::ifstream table(places_.mountTable);
    for (std::string line; std::getline(table, line);) {
        const Mount mount = parsed(line);
        const bool isShare = mount.kind == "cifs" || mount.kind == "smb3";
        // Of a share that is mounted below one of its folders, the kernel may name the folder in both.
        const bool isWhole = mount.root == "/" || mount.source.ends_with(mount.root);
        if (isShare && isWhole && sameName(mountedName(mount.source), volume))
            return mount.point;
    }
    return std::nullopt;
}

std::optional<fs::path> MountedVolumes::desktopMount(const std::string& volume) const {
    std::error_code error;
    for (fs::directory_iterator at(places_.desktopMounts, error), end; !error && at != end;
         at.increment(error))
        if (sameName(shareOfDesktopMount(at->path().filename().native()), volume))
            return at->path();
    return std::nullopt;
}

} // namespace quorvan::platform
