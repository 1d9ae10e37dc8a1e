// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Keychain.h"
#include "Platform/SharedDefaults.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace quorvan::simulator {

/// Shared defaults that live as long as this object, however often a suite is opened.
class MemorySharedDefaults : public platform::SharedDefaults {
public:
    using Values = std::map<std::string, std::string>;

    std::unique_ptr<platform::DefaultsSuite> openSuite(const std::string& name) override;

    /// The values of a suite, to read and to change.
    Values& values(const std::string& suite);

    /// How often any suite was synchronised.
    std::size_t synchronizations() const { return *synchronizations_; }

    bool available = true; ///< false: no suite can be opened

private:
    std::map<std::string, std::shared_ptr<Values>> suites_;
    std::shared_ptr<std::size_t> synchronizations_ = std::make_shared<std::size_t>(0);
};

/// A keychain with any number of items, at most one per server.
class MemoryKeychain : public platform::Keychain {
public:
    platform::KeychainResult findInternetPassword(const std::string& server) override;

    void setItem(const std::string& server, const std::string& account, const std::string& password);

    struct Item {
        std::string account;
        std::string password;
    };
    std::map<std::string, Item> items;   ///< by server, exactly as spelled
    std::optional<std::int32_t> failure; ///< every look-up fails with this status
};

} // namespace quorvan::simulator
