// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/FileItem.h"

#include "Common/Log.h"
#include "Platform/PercentEscapes.h"
#include "Platform/Services.h"

#include <string_view>

namespace quorvan {

namespace {
constexpr std::string_view fileScheme = "file://";
}

FileItem::FileItem(const std::string& path, bool isFolder)
    : fileUrl(std::string(fileScheme) + platform::percentEscaped(path) + (isFolder ? "/" : "")) {}

FileItem::FileItem(const FileItem& folder, const std::string& name, bool isFolder)
    : fileUrl(folder.fileUrl + platform::percentEscaped(name) + (isFolder ? "/" : "")) {}

std::string FileItem::path() const {
    std::string path = platform::percentUnescaped(std::string_view(fileUrl).substr(fileScheme.size()));
    if (path.ends_with('/'))
        path.pop_back();
    return path;
}

std::string FileItem::lastPathComponent() const {
    const std::string whole = path();
    return whole.substr(whole.rfind('/') + 1);
}

std::vector<FileItem> FileItem::computeChildren() const {
    platform::LocalVolumes& volumes = *platform::services().volumes;
    const std::string folder = path();
    if (!isFolder() || volumes.kindOf(folder) != platform::LocalVolumes::Kind::folder)
        return {};
    const platform::LocalListing listing = volumes.list(folder);
    if (!listing.error.empty())
        Log("%@", listing.error);
    std::vector<FileItem> children;
    children.reserve(listing.entries.size());
    for (const platform::LocalEntry& entry : listing.entries)
        children.emplace_back(*this, entry.name, entry.isFolder);
    return children;
}

bool FileItem::isExpandable() const {
    if (!isFolder())
        return false;
    // A folder that cannot be read looks like an empty one until it is listed, which logs why.
    return platform::services().volumes->hasEntries(path()) || !computeChildren().empty();
}

} // namespace quorvan
