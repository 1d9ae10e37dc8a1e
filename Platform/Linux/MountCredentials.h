// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Keychain.h"
#include "Platform/Linux/ShareMounts.h"

#include <filesystem>
#include <memory>

namespace quorvan::platform {

/// A keychain that knows, besides what another one holds, the accounts with which shares are mounted:
///
/// - an entry of kind cifs or smb3 in the table of file systems whose options are an account and a password,
///   or `credentials=` with the name of a file of them; what this user may not read counts as not there;
/// - the user's Kerberos ticket, where a share of the server is mounted by one (`sec=krb5`) or by a file
///   manager, which tries it first. Its account has no password: the data is empty.
class MountCredentials : public Keychain {
public:
    explicit MountCredentials(std::shared_ptr<Keychain> first, std::filesystem::path table = "/etc/fstab",
                              MountPlaces places = {});

    /// What the first keychain holds; where it holds no account, that of the first entry for the server,
    /// whatever the case of its name, and else the owner of the ticket.
    KeychainResult findInternetPassword(const std::string& server) override;

private:
    std::shared_ptr<Keychain> first_;
    std::filesystem::path table_;
    MountPlaces places_;
};

} // namespace quorvan::platform
