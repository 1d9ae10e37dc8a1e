// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/DirectoryServices.h"
#include "Simulator/Identities.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quorvan::simulator {

/// Active Directory, answered from the Active Directory identities of a store.
///
/// The machine is bound to the store's domain. Nodes: "/Local/Default", which is empty;
/// "/Active Directory/NAME" and "/Active Directory/NAME/All Domains" for that domain, then for every other
/// domain of the store's identities (each a forest of its own), then for the unreachable ones; and the
/// network node, which searches them all. An identity without an id has no SMBSID. Attributes: RecordName,
/// SMBSID, PrimaryNTDomain, RecordType, and of the native ones cn, sAMAccountName, distinguishedName,
/// objectSid, objectClass, memberOf. Comparing ignores case, as the directory does. Names, SIDs and
/// distinguished names are found through an index.
class MemoryDirectory : public platform::DirectoryServices {
public:
    explicit MemoryDirectory(std::shared_ptr<const Identities> identities);

    std::optional<std::map<std::string, std::string>> activeDirectoryState() override;
    std::optional<std::vector<std::string>> nodeNames() override;
    std::shared_ptr<platform::DirectoryNode> openNode(const std::string& name) override;
    std::shared_ptr<platform::DirectoryNode> openNetworkNode() override;
    std::optional<std::vector<platform::ManagedIdentity>>
    managedIdentities(platform::IdentityClass identityClass) override;
    void prefetch(const std::vector<std::string>& sids) override;

    /// What goes wrong and what was asked; nodes refer to it as well.
    struct State {
        bool bound = true;                    ///< false: this machine knows no Active Directory
        bool failNodes = false;               ///< no node can be opened, nor their names be read
        bool failQueries = false;             ///< queries are not answered
        std::vector<std::string> unreachable; ///< domains that have nodes which cannot be opened
        std::size_t queries = 0;
        std::vector<std::string> prefetched; ///< all hints, in order
    };
    State& state() { return *state_; }

private:
    std::vector<std::string> domains() const;

    std::shared_ptr<const Identities> identities_;
    std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace quorvan::simulator
