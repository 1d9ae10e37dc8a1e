// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/Attributes.h"
#include "Simulator/Identities.h"
#include "Simulator/Rights.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <limits>
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

/// Amounts of space are in bytes. Removing a limit sets it to `unlimited`.
inline constexpr std::int64_t unlimited = std::numeric_limits<std::int64_t>::max();

/// How much space the files below a folder may take up.
struct DirectoryQuota {
    static constexpr std::int64_t notSet = -1; ///< a limit that was never set
    std::int64_t limit = notSet;
    std::int64_t used = 0;
};

/// Where a link leads, on this server or on another one.
struct Link {
    std::string server; ///< its host name, which may be fully qualified
    std::string volume; ///< without colon
    std::string path;   ///< below the volume, without backslash in front; "" for the whole volume
};

/// A file, a folder or a link; the root folder of a volume has no parent.
struct Node {
    std::string name;
    Node* parent = nullptr;
    std::map<std::string, std::unique_ptr<Node>> children; ///< by folded name
    TrusteeList trustees;
    Mask filter = right::all; ///< inherited rights filter
    AttributeSet attributes = 0;
    std::string owner; ///< id of an identity, which may be gone; "" for the parent's owner
    DirectoryQuota quota;
    std::optional<Link> link; ///< set: what is asked about here and below is answered where it leads
};

/// The id of the owner of a node, or of the nearest folder above that has one; "" when none has.
std::string ownerOf(const Node& node);

/// The path by which the server calls a node: VOL1:\ for a root, VOL1:\dir\file otherwise.
std::string pathOf(const Node& node);

/// How much space of a volume a user may take up.
struct UserQuota {
    const Identity* user = nullptr;
    std::int64_t limit = unlimited;
    std::int64_t used = 0;
};

/// The quotas of a volume's users in the order in which they were set up.
class UserQuotas {
public:
    /// The user's quota, made when there is none yet.
    UserQuota& of(const Identity& user);

    const std::deque<UserQuota>& entries() const { return entries_; }

private:
    std::deque<UserQuota> entries_;
    std::unordered_map<const Identity*, UserQuota*> byUser_;
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

    /// The first link on the way to `path`, which may be the node there; null when there is none.
    const Node* firstLink(std::string_view path) const;

    /// Null when there is no volume of that name (VOL1, without colon).
    UserQuotas* userQuotas(std::string_view volume);

private:
    struct Volume {
        std::unique_ptr<Node> root;
        UserQuotas userQuotas;
    };
    const Node* step(const Node* from, std::string_view part) const;

    std::map<std::string, Volume> volumes_; ///< by folded name
};

} // namespace quorvan::simulator
