// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/ShareTable.h"

#include "Platform/Linux/PlistSharedDefaults.h"
#include "Platform/VolumesFolder.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <glib.h>

namespace quorvan::platform {

namespace {

namespace fs = std::filesystem;

struct Free {
    void operator()(GKeyFile* file) const { g_key_file_free(file); }
    void operator()(char* text) const { g_free(text); }
    void operator()(char** texts) const { g_strfreev(texts); }
};
using KeyFile = std::unique_ptr<GKeyFile, Free>;
using Text = std::unique_ptr<char, Free>;
using Texts = std::unique_ptr<char*, Free>;

/// Bytes of a name as they are compared. What is no UTF-8 is compared as it stands.
std::string folded(const std::string& name) {
    if (g_utf8_validate(name.data(), static_cast<gssize>(name.size()), nullptr) == FALSE)
        return name;
    const Text composed(g_utf8_normalize(name.c_str(), -1, G_NORMALIZE_DEFAULT_COMPOSE));
    return Text(g_utf8_casefold(composed.get(), -1)).get();
}

std::string upperCase(const std::string& name) {
    return g_utf8_validate(name.data(), static_cast<gssize>(name.size()), nullptr) == FALSE
               ? name
               : std::string(Text(g_utf8_strup(name.c_str(), -1)).get());
}

/// The name in a list that is meant by another one; null when there is none.
const char* findFolded(char** names, const std::string& wanted) {
    for (; names != nullptr && *names != nullptr; ++names)
        if (folded(*names) == folded(wanted))
            return *names;
    return nullptr;
}

/// What a file says of a share, as it stands there.
std::optional<std::string> valueIn(const fs::path& file, const std::string& server,
                                   const std::string& share) {
    const KeyFile table(g_key_file_new());
    if (g_key_file_load_from_file(table.get(), file.c_str(), G_KEY_FILE_NONE, nullptr) == FALSE)
        return std::nullopt;
    const Texts sections(g_key_file_get_groups(table.get(), nullptr));
    for (const char* section : {findFolded(sections.get(), server), findFolded(sections.get(), "*")}) {
        if (section == nullptr)
            continue;
        const Texts shares(g_key_file_get_keys(table.get(), section, nullptr, nullptr));
        if (const char* key = findFolded(shares.get(), share))
            // As it stands: a backslash escapes nothing here.
            return Text(g_key_file_get_value(table.get(), section, key, nullptr)).get();
    }
    return std::nullopt;
}

/// "VOL1:\users\bob", "VOL1:\" or "VOL1:".
std::optional<ServerPlace> parsedPlace(std::string path) {
    const std::size_t colon = path.find(':');
    if (colon == 0 || colon == std::string::npos || path.find('/') != std::string::npos ||
        (colon + 1 < path.size() && path[colon + 1] != '\\'))
        return std::nullopt;
    std::replace(path.begin(), path.end(), '\\', '/');
    const std::size_t first = path.find_first_not_of('/', colon + 1);
    const std::size_t last = path.find_last_not_of('/');
    return ServerPlace{path.substr(0, colon),
                       first == std::string::npos ? std::string() : path.substr(first, last + 1 - first)};
}

} // namespace

std::string ServerPlace::serverPath() const {
    std::string path = below.native();
    std::replace(path.begin(), path.end(), '/', '\\');
    return volume + ":\\" + path;
}

std::string ServerPlace::localPath() const {
    const fs::path root = fs::path(volumesFolder) / volume;
    return (below.empty() ? root : root / below.relative_path()).native();
}

ShareTable::ShareTable(std::vector<fs::path> files)
    : files_(std::move(files)) {}

std::optional<ServerPlace> ShareTable::placeOf(const ShareMount& mount) const {
    ServerPlace place{mount.hasLowerCaseName ? upperCase(mount.share) : mount.share, {}};
    for (const fs::path& file : files_)
        if (auto value = valueIn(file, mount.server, mount.share)) {
            auto said = parsedPlace(std::move(*value));
            if (!said)
                return std::nullopt;
            place = std::move(*said);
            break;
        }
    if (place.volume.find_first_of("/\\:") != std::string::npos || place.volume == "." ||
        place.volume == "..")
        return std::nullopt; // escapes in an address can make any name
    if (!mount.folder.empty())
        place.below /= mount.folder.relative_path();
    return place;
}

std::vector<fs::path> ShareTable::usualFiles() {
    std::vector<fs::path> files = {"/etc/quorvan/shares.conf"};
    if (const fs::path own = PlistSharedDefaults::userConfigurationFolder(); !own.empty())
        files.insert(files.begin(), own / "quorvan/shares.conf");
    return files;
}

} // namespace quorvan::platform
