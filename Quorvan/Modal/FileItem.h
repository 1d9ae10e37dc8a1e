// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quorvan {

/// A file or folder of a mounted volume, as a place in the tree of the folder browser. It remembers nothing
/// of what lies in it: every question about that goes to the file system.
class FileItem {
public:
    /// `path` begins with /Volumes; what is there need not exist.
    FileItem(const std::string& path, bool isFolder);

    /// What lies in a folder.
    FileItem(const FileItem& folder, const std::string& name, bool isFolder);

    /// Percent-escaped, with a slash at its end for a folder: file:///Volumes/VOL1/my%20docs/
    std::string fileUrl;

    bool isFolder() const { return fileUrl.ends_with('/'); }
    std::string path() const;              ///< without a slash at its end
    std::string lastPathComponent() const; ///< bytes, not necessarily UTF-8

    /// What lies in it now, in the file system's order. A folder that cannot be read is logged.
    std::vector<FileItem> computeChildren() const;
    /// Whether computeChildren would find anything. A folder that cannot be read is logged.
    bool isExpandable() const;
};

} // namespace quorvan
