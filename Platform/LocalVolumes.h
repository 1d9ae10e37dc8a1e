// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace quorvan::platform {

/// A name in a local folder; bytes, not necessarily UTF-8.
struct LocalEntry {
    std::string name;
    bool isFolder = false; ///< links are followed
};

struct LocalListing {
    std::vector<LocalEntry> entries; ///< hidden ones too, in the order in which the file system has them
    std::string error;               ///< why there are none; "" after a listing
};

/// The volumes that the user has mounted, as the desktop's other programs see them.
///
/// A path has the form /Volumes/NAME/…, wherever NAME is really mounted; nothing is at any other path.
/// Links are followed, and one that leads nowhere does not exist.
class LocalVolumes {
public:
    enum class Kind { nothing, file, folder };

    virtual ~LocalVolumes() = default;

    virtual Kind kindOf(const std::string& path) = 0;

    /// What lies in a folder; entries that are gone by the time they are looked at are left out.
    virtual LocalListing list(const std::string& path) = 0;

    /// Whether `list` would find anything, without listing it all.
    virtual bool hasEntries(const std::string& path) = 0;
};

} // namespace quorvan::platform
