// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Volumes.h"

#include "Simulator/Text.h"

#include <utility>

namespace quorvan::simulator {

namespace {

/// The volume and then the folders of a path; nothing when it has no volume. Empty parts do not count, as in
/// VOL1:\ for the root.
std::vector<std::string_view> pathParts(std::string_view path) {
    const std::size_t colon = path.find(':');
    if (colon == std::string_view::npos || colon == 0)
        return {};
    std::vector<std::string_view> parts{path.substr(0, colon)};
    const std::string_view below = path.substr(colon + 1);
    if (!below.empty() && below.front() != '\\')
        return {};
    for (const std::string_view part : split(below, '\\')) {
        if (!part.empty())
            parts.push_back(part);
    }
    return parts;
}

} // namespace

std::string rightNames(Mask rights) {
    std::string names;
    for (const RightTag& tag : rightTags) {
        if ((rights & tag.bit) != 0)
            names.append(names.empty() ? "" : " ").append(tag.name);
    }
    return names;
}

void TrusteeList::set(const Identity& identity, Mask rights) {
    const auto [position, isNew] = positions_.emplace(&identity, entries_.size());
    if (isNew)
        entries_.push_back({&identity, rights});
    else
        entries_[position->second].rights = rights;
}

bool TrusteeList::remove(const Identity& identity) {
    const auto found = positions_.find(&identity);
    if (found == positions_.end())
        return false;
    const std::size_t position = found->second;
    positions_.erase(found);
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position));
    for (std::size_t i = position; i < entries_.size(); ++i)
        positions_[entries_[i].identity] = i;
    return true;
}

std::optional<Mask> TrusteeList::rightsOf(const Identity& identity) const {
    const auto found = positions_.find(&identity);
    if (found == positions_.end())
        return std::nullopt;
    return entries_[found->second].rights;
}

Mask ownRights(const Node& node, const Identity& identity) {
    Mask passing = right::all; // what the filters between the entry and the node let through
    for (const Node* at = &node; at != nullptr; at = at->parent) {
        if (const auto entry = at->trustees.rightsOf(identity))
            return throughFilter(*entry, passing);
        passing &= at->filter;
    }
    return 0;
}

Mask effectiveRights(const Node& node, const Identity& identity) {
    Mask rights = 0;
    for (const Identity* each : withAllGroups(identity))
        rights |= ownRights(node, *each);
    return expanded(rights);
}

std::string ownerOf(const Node& node) {
    const Node* at = &node;
    while (at->owner.empty() && at->parent != nullptr)
        at = at->parent;
    return at->owner;
}

std::string pathOf(const Node& node) {
    if (node.parent == nullptr)
        return node.name + ":\\";
    std::string path = pathOf(*node.parent);
    if (path.back() != '\\')
        path += '\\';
    return path + node.name;
}

UserQuota& UserQuotas::of(const Identity& user) {
    UserQuota*& quota = byUser_[&user];
    if (quota == nullptr) {
        quota = &entries_.emplace_back();
        quota->user = &user;
    }
    return *quota;
}

Node* Volumes::make(std::string_view path) {
    Node* node = nullptr;
    for (const std::string_view part : pathParts(path)) {
        auto& slot = node == nullptr ? volumes_[fold(part)].root : node->children[fold(part)];
        if (!slot) {
            slot = std::make_unique<Node>();
            slot->name = part;
            slot->parent = node;
        }
        node = slot.get();
    }
    return node;
}

/// The volume of that name, or the child of `from`; null when there is none.
const Node* Volumes::step(const Node* from, std::string_view part) const {
    if (from == nullptr) {
        const auto volume = volumes_.find(fold(part));
        return volume == volumes_.end() ? nullptr : volume->second.root.get();
    }
    const auto child = from->children.find(fold(part));
    return child == from->children.end() ? nullptr : child->second.get();
}

const Node* Volumes::find(std::string_view path) const {
    const Node* node = nullptr;
    for (const std::string_view part : pathParts(path)) {
        node = step(node, part);
        if (node == nullptr)
            break;
    }
    return node;
}

const Node* Volumes::firstLink(std::string_view path) const {
    const Node* node = nullptr;
    for (const std::string_view part : pathParts(path)) {
        node = step(node, part);
        if (node == nullptr || node->link)
            return node;
    }
    return nullptr;
}

UserQuotas* Volumes::userQuotas(std::string_view volume) {
    const auto found = volumes_.find(fold(volume));
    return found == volumes_.end() ? nullptr : &found->second.userQuotas;
}

Node* Volumes::find(std::string_view path) {
    return const_cast<Node*>(std::as_const(*this).find(path));
}

} // namespace quorvan::simulator
