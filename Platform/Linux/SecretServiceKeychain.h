// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Keychain.h"

#include <chrono>

namespace quorvan::platform {

/// The desktop's keyring, through the Secret Service: the network passwords that the file manager
/// stores for its own SMB mounts (attributes server, user and protocol = smb, and where given domain and
/// port).
///
/// Everything that keeps it from finding a password gives errSecItemNotFound: no session bus, no service, a
/// locked collection, no item, or a service that does not answer within the time limit. Nothing ever
/// asks the user to unlock anything.
class SecretServiceKeychain : public Keychain {
public:
    explicit SecretServiceKeychain(std::chrono::milliseconds timeLimit = std::chrono::seconds(20));

    KeychainResult findInternetPassword(const std::string& server) override;

    /// How the keyring writes the name of a server for which it holds a password, whatever the case; the
    /// name itself where it holds none.
    std::string spellingOf(const std::string& server) const;

private:
    std::chrono::milliseconds timeLimit_;
};

} // namespace quorvan::platform
