// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/ShareMounts.h"

#include "Platform/PercentEscapes.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string_view>
#include <system_error>

#include <unistd.h>

namespace quorvan::platform {

namespace {

namespace fs = std::filesystem;

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

/// A path without slashes at its ends.
std::string trimmed(std::string path) {
    path.erase(0, path.find_first_not_of('/'));
    path.erase(path.find_last_not_of('/') + 1);
    return path;
}

/// Cuts off and returns the first part of a path "a/b/c".
std::string takePart(std::string& path) {
    const std::size_t end = std::min(path.find('/'), path.size());
    std::string part = path.substr(0, end);
    path.erase(0, end + 1);
    return part;
}

/// What is mounted of a source "//server/share/folder" whose root in the mount table is `root`. The kernel
/// may name the folder in both; a bind mount names more of it in the root.
fs::path folderOf(const std::string& ofSource, const std::string& root) {
    if (ofSource.empty() || root == ofSource || root.starts_with(ofSource + '/'))
        return root;
    return root.empty() ? fs::path(ofSource) : fs::path(ofSource) / root;
}

/// A line of the mount table: id, parent, device, root, mount point, options, optional fields, "-", kind,
/// source, options of the file system.
ShareMount parsedMountLine(const std::string& line) {
    std::istringstream fields(line);
    std::string skipped;
    std::string root;
    std::string point;
    std::string kind;
    std::string source;
    fields >> skipped >> skipped >> skipped >> root >> point;
    while (fields >> skipped && skipped != "-") {
    }
    std::string options;
    fields >> kind >> source >> options;
    ShareMount mount;
    mount.point = unescaped(point);
    if ((kind != "cifs" && kind != "smb3") || !source.starts_with("//"))
        return mount;
    source = trimmed(unescaped(source));
    mount.server = takePart(source);
    mount.share = takePart(source);
    mount.folder = folderOf(trimmed(source), trimmed(unescaped(root)));
    mount.triesTicket = (',' + options).find(",sec=krb5") != std::string::npos; // and krb5i
    return mount;
}

/// A folder "smb-share:server=files,share=vol1,user=x" of GVfs, which escapes it like a URL.
ShareMount parsedDesktopMount(const fs::path& point) {
    constexpr std::string_view prefix = "smb-share:";
    ShareMount mount;
    mount.point = point;
    const std::string name = point.filename().native();
    if (!name.starts_with(prefix))
        return mount;
    bool isOfSmbPort = true;
    std::istringstream fields(name.substr(prefix.size()));
    for (std::string field; std::getline(fields, field, ',');) {
        const std::string value = percentUnescaped(field.substr(std::min(field.find('=') + 1, field.size())));
        if (field.starts_with("server="))
            mount.server = value;
        else if (field.starts_with("share="))
            mount.share = value;
        else if (field.starts_with("port=") && value != "445")
            isOfSmbPort = false;
    }
    if (!isOfSmbPort)
        mount.server.clear();
    mount.triesTicket = true;
    mount.hasLowerCaseName = true;
    return mount;
}

/// The server of "[USER@]HOST[:PORT]"; "" for a port that is not SMB's own, where another server listens, and
/// for an IPv6 address.
std::string serverOf(const std::string& authority) {
    const std::string host = authority.substr(authority.rfind('@') + 1); // npos + 1 = 0
    const std::size_t colon = std::min(host.find(':'), host.size());
    const std::string port = host.substr(colon);
    return port.empty() || port == ":" || port == ":445" ? host.substr(0, colon) : std::string();
}

/// Calls `take` with each entry of a folder, as far as it can be read.
template <class Take>
void forEachEntry(const fs::path& folder, Take take) {
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        take(at->path());
}

fs::path ownRuntimeFolder() {
    const char* runtime = std::getenv("XDG_RUNTIME_DIR");
    if (runtime != nullptr && *runtime != '\0')
        return runtime;
    return fs::path("/run/user") / std::to_string(getuid());
}

} // namespace

std::vector<ShareMount> shareMounts(const MountPlaces& places) {
    std::vector<ShareMount> mounts = allMounts(places);
    std::erase_if(mounts,
                  [](const ShareMount& mount) { return mount.server.empty() || mount.share.empty(); });
    return mounts;
}

std::vector<ShareMount> allMounts(const MountPlaces& places) {
    std::vector<ShareMount> mounts;
    const auto add = [&mounts](ShareMount mount) { mounts.push_back(std::move(mount)); };
    std::ifstream table(places.mountTable);
    for (std::string line; std::getline(table, line);)
        add(parsedMountLine(line));
    const fs::path runtime = places.runtimeFolder.empty() ? ownRuntimeFolder() : places.runtimeFolder;
    forEachEntry(runtime / "gvfs", [&add](const fs::path& entry) { add(parsedDesktopMount(entry)); });
    forEachEntry(runtime, [&add](const fs::path& entry) {
        if (!entry.filename().native().starts_with("kio-fuse-"))
            return;
        forEachEntry(entry / "smb", [&add](const fs::path& host) {
            const std::string server = serverOf(host.filename().native());
            forEachEntry(host, [&](const fs::path& share) {
                add({server, share.filename().native(), {}, share, true, false});
            });
        });
    });
    return mounts;
}

ShareMount shareOfAddress(const std::string& address) {
    constexpr std::string_view scheme = "smb://";
    ShareMount found;
    if (!address.starts_with(scheme))
        return found;
    std::string rest = address.substr(scheme.size());
    found.server = percentUnescaped(serverOf(takePart(rest)));
    found.share = percentUnescaped(takePart(rest));
    found.folder = percentUnescaped(trimmed(rest));
    found.hasLowerCaseName = true;
    if (found.server.empty())
        found.share.clear();
    return found;
}

} // namespace quorvan::platform
