// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"
#include "Quorvan/ViewModal/Replies/RowBlocks.h"
#include "Quorvan/ViewModal/Replies/XMLResponseParse.h"
#include "Quorvan/ViewModal/UsersViewModal.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quorvan {

/// Makes trustees of the entries of a reply, one after the other. What an entry does not say is what the
/// last one said that did.
class TrusteeReader {
public:
    /// `entries` must outlive the reader. Trustees of Active Directory get their type from there.
    TrusteeReader(const ReplyEntries& entries, std::string identityType);

    /// The trustee of the next entry; null for an entry without an ID. An ID before any name or rights is
    /// fatal.
    std::shared_ptr<Trustees> read(const ReplyEntry& entry);

private:
    SharedText identityType_;
    bool typesFromDirectory_;
    DirectoryLookup lookup_;
    SharedTexts texts_;
    RowBlocks<Trustees> trustees_;
    std::optional<SharedText> name_;
    SharedText type_;
    std::optional<std::uint16_t> rights_;
};

} // namespace quorvan
