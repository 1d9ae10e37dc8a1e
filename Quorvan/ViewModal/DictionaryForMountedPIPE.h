// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <string>

namespace quorvan {

/// Where each management share is mounted. Lives in memory only.
class DictionaryForMountedPIPE {
public:
    static DictionaryForMountedPIPE& mountDict();

    /// "ADDRESS/SHARE" (no scheme) -> the mount point without its leading "/Volumes".
    std::map<std::string, std::string> PipeMapDict;

    void removeValue(const std::string& key);

    /// Unmounts every share, by force; failures are only logged.
    void unmountAll() const;
};

} // namespace quorvan
