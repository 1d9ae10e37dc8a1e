// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace quorvan::platform {

/// The key-value store that an application group shares; the hand-over of the selection lies in it.
class DefaultsSuite {
public:
    virtual ~DefaultsSuite() = default;

    /// Reads what other programs wrote, and makes what this one wrote visible to them.
    virtual void synchronize() = 0;

    /// The text stored under `key` (UTF-8); nothing when the key is missing or not a text.
    virtual std::optional<std::string> string(const std::string& key) = 0;

    virtual void setString(const std::string& key, const std::string& value) = 0;
};

class SharedDefaults {
public:
    virtual ~SharedDefaults() = default;

    /// The suite of the group `name`; null when it cannot be opened.
    virtual std::unique_ptr<DefaultsSuite> openSuite(const std::string& name) = 0;
};

} // namespace quorvan::platform
