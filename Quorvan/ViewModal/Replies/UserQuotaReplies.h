// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/UserQuotaData.h"
#include "Quorvan/ViewModal/Replies/RowBlocks.h"
#include "Quorvan/ViewModal/Replies/RowsOfNothing.h"
#include "Quorvan/ViewModal/Replies/TextRowReader.h"

#include <cstddef>
#include <optional>
#include <string>

namespace quorvan {

/// Reads the users of a volume with their quotas out of the reply that lists them.
class UserQuotaReader {
public:
    /// The rows are appended to `users`. An identity type that is neither gives none, and rows
    /// without any text are few (RowsOfNothing.h).
    UserQuotaReader(UserQuotaList& users, std::string identityType);
    UserQuotaReader(const UserQuotaReader&) = delete;
    UserQuotaReader& operator=(const UserQuotaReader&) = delete;

    void didStartElement(std::string_view name, XMLAttributes attributes) {
        rows_.didStartElement(name, attributes);
    }
    void didEndElement(std::string_view name) { rows_.didEndElement(name); }
    void foundCharacters(std::string_view text) { rows_.foundCharacters(text); }

    /// To be called when the reply is over. Takes the rows back, with a log line, when it was not XML; names
    /// those of Active Directory otherwise. A reply without the list is fatal.
    void finish(const std::optional<XMLError>& error);

private:
    void append(std::vector<std::string>& texts);

    UserQuotaList& users_;
    std::string identityType_;
    SharedText identity_; ///< the same, for all rows at once
    SharedText userType_{UserQuotaConstants::ObjectTypes::USERS};
    std::size_t before_; ///< how many rows there were
    RowsOfNothing ofNothing_;
    RowBlocks<UserQuotaData> blocks_;
    TextRowReader rows_;
};

} // namespace quorvan
