// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_set>

namespace quorvan {

/// Identities by ID, for asking "is this one of them?" without making a copy.
struct IdentityHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view id) const { return std::hash<std::string_view>{}(id); }
};
using IdentitySet = std::unordered_set<std::string, IdentityHash, std::equal_to<>>;

} // namespace quorvan
