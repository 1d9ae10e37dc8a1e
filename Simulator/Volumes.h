// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/Identities.h"
#include "Simulator/Rights.h"

#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quorvan::simulator {

struct TrusteeEntry {
    const Identity* identity = nullptr;
    Mask rights = 0;
};

/// The trustees of one path in the order in which they were added.
class TrusteeList {
public:
    /// Adds the identity, or replaces its rights where it stands.
    void set(const Identity& identity, Mask rights);
    bool remove(const Identity& identity);

    /// The rights of the identity's own entry; nothing when it has none.
    std::optional<Mask> rightsOf(const Identity& identity) const;

    const std::vector<TrusteeEntry>& entries() const { return entries_; }

private:
    std::vector<TrusteeEntry> entries_;
    std::unordered_map<const Identity*, std::size_t> positions_;
};

/// A file or folder; the root folder of a volume has no parent.
struct Node {
    std::string name;
    Node* parent = nullptr;
    std::map<std::string, std::unique_ptr<Node>> children; ///< by folded name
    TrusteeList trustees;
    Mask filter = right::all; ///< inherited rights filter
};

/// The rights that the identity has at a node by itself, groups not counted: its entry there, or
/// else what it has at the parent, through the node's filter.
Mask ownRights(const Node& node, const Identity& identity);

/// The union of ownRights over the identity and all its groups; every right when supervisor is
/// among them.
Mask effectiveRights(const Node& node, const Identity& identity);

/// Volumes with their folders and files. Paths have the form VOL1:\dir\file; case does not count.
class Volumes {
public:
    /// The node at `path`, made with all its parents when it is not there; null for an ill-formed
    /// path.
    Node* make(std::string_view path);

    /// The node at `path`; null when there is none.
    Node* find(std::string_view path);
    const Node* find(std::string_view path) const;

private:
    std::map<std::string, std::unique_ptr<Node>> roots_; ///< by folded volume name
};

} // namespace quorvan::simulator
