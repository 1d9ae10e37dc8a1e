// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/DictionaryForMountedPIPE.h"

#include "Common/Log.h"
#include "Platform/Services.h"
#include "Platform/VolumesFolder.h"

namespace quorvan {

DictionaryForMountedPIPE& DictionaryForMountedPIPE::mountDict() {
    static DictionaryForMountedPIPE registry;
    return registry;
}

void DictionaryForMountedPIPE::removeValue(const std::string& key) {
    PipeMapDict.erase(key);
}

void DictionaryForMountedPIPE::unmountAll() const {
    for (const auto& [key, value] : PipeMapDict) {
        const int result = platform::services().network->unmount(platform::volumesFolder + value, true);
        Log("unmount %@'s - %@ : %d", key, value, result);
    }
}

} // namespace quorvan
