// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Keychain.h"

#include <filesystem>
#include <memory>

namespace quorvan::platform {

/// A keychain that knows, besides what another one holds, the accounts with which the system mounts shares:
/// an entry of kind cifs or smb3 in the table of file systems whose options are an account and a password, or
/// `credentials=` with the name of a file of them. What this user may not read counts as not there.
class MountCredentials : public Keychain {
public:
    explicit MountCredentials(std::shared_ptr<Keychain> first, std::filesystem::path table = "/etc/fstab");

    /// What the first keychain holds; where it holds no account, that of the first entry for the server,
    /// whatever the case of its name.
    KeychainResult findInternetPassword(const std::string& server) override;

private:
    std::shared_ptr<Keychain> first_;
    std::filesystem::path table_;
};

} // namespace quorvan::platform
