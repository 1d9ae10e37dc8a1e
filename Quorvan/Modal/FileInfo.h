// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvan {

// What the server told about a path. A field is absent until a reply has told it; a reply that leaves a
// text out makes it "". `result` is the server's description of how the request went.

struct OwnerInfo {
    std::optional<std::string> name;
    std::optional<std::string> id;
    std::optional<std::string> result;
};

struct AttributesInfo {
    std::optional<std::vector<std::string>>
        attributes; ///< those that are set, by their FILE_ATTRIBUTES names
    std::optional<std::string> result;
};

/// Decimal texts, in bytes. "-1" as an amount means not set.
struct DirectoryQuotaInfo {
    std::optional<std::string> quotaAmount;
    std::optional<std::string> usedAmount;
    std::optional<std::string> result;
};

} // namespace quorvan
