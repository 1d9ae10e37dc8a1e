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
/// Nodes: "/Active Directory/NAME" and "/Active Directory/NAME/All Domains" with the store's domain, and
/// the network node. Attributes: RecordName, SMBSID, PrimaryNTDomain, RecordType, and of the native ones
/// cn, sAMAccountName, distinguishedName, objectSid, objectClass, memberOf. Comparing ignores case, as
/// the directory does. Names, SIDs and distinguished names are found through an index.
class MemoryDirectory : public platform::DirectoryServices {
public:
    explicit MemoryDirectory(std::shared_ptr<const Identities> identities);

    std::optional<std::map<std::string, std::string>> activeDirectoryState() override;
    std::shared_ptr<platform::DirectoryNode> openNode(const std::string& name) override;
    std::shared_ptr<platform::DirectoryNode> openNetworkNode() override;
    void prefetch(const std::vector<std::string>& sids) override;

    /// What goes wrong and what was asked; nodes and records refer to it as well.
    struct State {
        bool bound = true;        ///< false: this machine knows no Active Directory
        bool failNodes = false;   ///< no node can be opened
        bool failQueries = false; ///< queries are not answered
        bool failValues = false;  ///< reading an attribute fails
        std::size_t queries = 0;
        std::vector<std::string> openedNodes; ///< by name; "network" for the network node
        std::vector<std::string> prefetched;  ///< all hints, in order
    };
    State& state() { return *state_; }

private:
    std::shared_ptr<const Identities> identities_;
    std::shared_ptr<State> state_ = std::make_shared<State>();
};

} // namespace quorvan::simulator
