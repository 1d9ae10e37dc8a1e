// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Keychain.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace quorvan {

using platform::errSecItemNotFound; ///< no usable account is stored for the server

/// The defaults suite through which the file manager's menu extension hands over the selection.
inline constexpr const char* groupSuiteName = "group.tarnix.common";

/// What the user selected in the file manager, on which server, and with whose credentials the share
/// was mounted. Read once; only the kind of the logged-in user changes afterwards.
class ServerDetails {
public:
    /// The one instance; the first access reads the hand-over, then the keychain. A hand-over without
    /// selection or mapped path is fatal.
    static ServerDetails& serverInfo();

    /// Lets the next access read everything again. For tests: a run of the program has one selection.
    static void forget();

    std::optional<std::string> serverIP;             ///< host name or dotted IPv4 address
    std::optional<std::string> selectedPathName;     ///< the selection as VOLUME:\dir\file
    std::optional<std::string> selectedAbsolutePath; ///< the selection as handed over, below /Volumes
    std::optional<std::string> mappedPathName;       ///< the server path of the share's root, VOLUME:\dir
    std::optional<std::string> username;
    std::optional<platform::Secret> password;
    std::string domain; ///< of the account, where the keychain keeps it apart from the user name
    std::optional<std::int32_t> keychainStatus; ///< 0 or errSecItemNotFound
    std::optional<std::string> loggedUserType;  ///< "ActiveDirectory" or "Morvane"

    /// Turns a local path below /Volumes into server form: /Volumes/VOL1/dir/file is VOL1:\dir\file.
    static std::string getFormattedPath(const std::string& path);

    /// The server form of a path relative to /Volumes. A mere VOL1, which has none, gets `rootEnd` appended.
    static std::string serverForm(std::string belowVolumes, const char* rootEnd);

    /// Fills username, password and keychainStatus from the keychain item of serverIP.
    void getKeychainCred();

    /// The kind of the logged-in user, read from the shared defaults at every call; fatal when missing.
    std::string getIdentityType();

    /// The first IPv4 address of a host as dotted text; "" (and a log line) when it does not resolve.
    static std::string getIPfromHostname(const std::string& host);

private:
    ServerDetails() = default;
    void retrieveSharedParams();
    static std::unique_ptr<ServerDetails>& instance();
};

} // namespace quorvan
