// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/DirectoryServices.h"
#include "Platform/Keychain.h"
#include "Platform/Linux/LogLine.h"

#include <chrono>

namespace quorvan::platform {

class LdapAccounts;

/// Active Directory through LDAP.
///
/// The machine is bound to one when its ldap.conf has a BASE; URI and TLS_CACERT are used as well. The user
/// is let in by the Kerberos ticket or, without one, by the keychain item of the server's host, whose
/// password goes over TLS or to this machine itself only. Certificates are always verified.
///
/// Each domain of the forest has the nodes "/Active Directory/NAME" and "/Active Directory/NAME/All
/// Domains". A domain controller holds the accounts of one domain; the nodes of the others cannot be
/// opened, unless ldap.conf names a global catalogue (port 3268 or 3269), where "All Domains" of the
/// topmost domain is the whole forest. Comparing ignores case, as the directory does. Accounts are users
/// but not computers, and groups; those without a name are no managed identities.
///
/// What the directory server does wrong, or not at all, gives one line in the log, an empty answer and
/// errno, within the time limit.
class LdapDirectory : public DirectoryServices {
public:
    LdapDirectory(std::shared_ptr<Keychain> keychain, LogLine log,
                  std::chrono::milliseconds timeLimit = std::chrono::seconds(20));

    std::optional<std::map<std::string, std::string>> activeDirectoryState() override;
    std::optional<std::vector<std::string>> nodeNames() override;
    std::shared_ptr<DirectoryNode> openNode(const std::string& name) override;
    std::shared_ptr<DirectoryNode> openNetworkNode() override;
    std::optional<std::vector<ManagedIdentity>> managedIdentities(IdentityClass identityClass) override;
    void prefetch(const std::vector<std::string>& sids) override;

private:
    bool isReady() const;

    std::shared_ptr<LdapAccounts> accounts_; ///< nodes and records refer to it as well
};

} // namespace quorvan::platform
