// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace quorvan::platform {

/// A password: bytes in one place, which stays out of swap files and core dumps as far as the system allows
/// it, and is wiped before it is given back.
///
/// A secret moves from owner to owner, or is shared by several, who then all refer to the same place. Nothing
/// copies it or converts it into a text that could be logged.
class Secret {
public:
    Secret() = default;
    explicit Secret(std::string_view bytes);

    /// The same secret for another owner.
    Secret share() const;

    /// The bytes, for whoever sends them to the server or compares them. Valid as long as an owner.
    std::string_view reveal() const { return bytes_ ? *bytes_ : std::string_view(); }

    std::size_t size() const { return reveal().size(); }
    bool empty() const { return reveal().empty(); }

    Secret(Secret&&) = default;
    Secret& operator=(Secret&&) = default;
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;
    ~Secret() = default;

private:
    std::shared_ptr<const std::string_view> bytes_;
};

} // namespace quorvan::platform
