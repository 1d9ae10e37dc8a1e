// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>

namespace quorvan::platform {

/// A property list dictionary of switches; a key whose value is not a Boolean maps to nothing.
using FeatureDictionary = std::map<std::string, std::optional<bool>>;

/// The resources that are installed with the program.
class Bundle {
public:
    virtual ~Bundle() = default;

    /// The text of a localisation key in the user's language (UTF-8), or the key itself when there is none.
    virtual std::string localizedString(const std::string& key) = 0;

    /// "feature.plist", read anew at each call; nothing when it is missing or not a dictionary.
    virtual std::optional<FeatureDictionary> featureDictionary() = 0;
};

} // namespace quorvan::platform
