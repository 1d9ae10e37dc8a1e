// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Secret.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quorvan::platform {

/// The keychain's code for "item not found".
inline constexpr std::int32_t errSecItemNotFound = -25300;

/// What the keychain knows about one internet password.
struct KeychainItem {
    std::optional<std::string> account; ///< user name
    std::optional<Secret> data;         ///< the password; empty where a ticket stands for it
    std::string domain = {};            ///< that the account belongs to, where the store keeps it apart
};

/// The account to log in with, DOMAIN\USER. A user name that names its domain itself, as DOMAIN\USER or
/// USER@DOMAIN, and one without a domain stay as they are.
inline std::string accountOf(const std::string& domain, const std::string& user) {
    return domain.empty() || user.find_first_of("\\@") != std::string::npos ? user : domain + '\\' + user;
}

struct KeychainResult {
    std::int32_t status = 0;          ///< 0, or the service's own code; errSecItemNotFound
    std::optional<KeychainItem> item; ///< set when the status is 0
};

class Keychain {
public:
    virtual ~Keychain() = default;

    /// The internet-password item whose server attribute equals `server` exactly; of several, the one that
    /// was written last. Never asks the user anything: a locked store counts as one without the item.
    virtual KeychainResult findInternetPassword(const std::string& server) = 0;
};

} // namespace quorvan::platform
