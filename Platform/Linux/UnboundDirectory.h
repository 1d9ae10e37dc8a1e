// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/DirectoryServices.h"

namespace quorvan::platform {

/// The directory services of a machine that is bound to no Active Directory: there is nothing to open
/// and nobody to find.
class UnboundDirectory : public DirectoryServices {
public:
    std::optional<std::map<std::string, std::string>> activeDirectoryState() override { return std::nullopt; }
    std::optional<std::vector<std::string>> nodeNames() override { return std::vector<std::string>(); }
    std::shared_ptr<DirectoryNode> openNode(const std::string&) override { return nullptr; }
    std::shared_ptr<DirectoryNode> openNetworkNode() override { return nullptr; }
    std::optional<std::vector<ManagedIdentity>> managedIdentities(IdentityClass) override {
        return std::nullopt;
    }
    void prefetch(const std::vector<std::string>&) override {}
};

} // namespace quorvan::platform
