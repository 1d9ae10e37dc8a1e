// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Fatal.h"
#include "Platform/Services.h"

#include <string>

namespace quorvan {

/// A switch of "feature.plist". The file comes with the program: one that is missing or lacks a
/// switch that is asked for is fatal.
inline bool featureEnabled(const std::string& key) {
    const auto features = platform::services().bundle->featureDictionary();
    const auto& dictionary = unwrap(features, "feature.plist is missing or not a dictionary");
    const auto entry = dictionary.find(key);
    require(entry != dictionary.end(), "feature.plist has no \"%@\"", key);
    return unwrap(entry->second, "\"%@\" of feature.plist is not a Boolean", key);
}

} // namespace quorvan
