// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Fatal.h"
#include "Platform/Services.h"

#include <optional>
#include <string>

namespace quorvan {

/// The switches of "feature.plist"; a missing file is fatal.
inline platform::FeatureDictionary readFeatureFlags() {
    return unwrap(platform::services().bundle->featureDictionary(), "feature.plist is missing");
}

/// One switch; a missing key or a value that is not a Boolean is fatal.
inline bool featureFlag(const platform::FeatureDictionary& flags, const std::string& key) {
    const auto found = flags.find(key);
    require(found != flags.end(), "feature.plist has no %@", key);
    return unwrap(found->second, "feature.plist: %@ is not a Boolean", key);
}

} // namespace quorvan
