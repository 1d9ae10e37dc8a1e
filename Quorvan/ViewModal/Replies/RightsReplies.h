// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"
#include "Quorvan/ViewModal/IdentitySet.h"
#include "Quorvan/ViewModal/Replies/ElementReaders.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quorvan {

/// Reads the paths on which some identities hold rights out of the reply about all paths.
class FileRightsReader {
public:
    /// The rows are appended to `rows`.
    FileRightsReader(const std::vector<std::string>& identities, std::vector<IdentityFileRights>& rows);
    FileRightsReader(const FileRightsReader&) = delete;
    FileRightsReader& operator=(const FileRightsReader&) = delete;

    void didStartElement(std::string_view name, XMLAttributes attributes) {
        files_.didStartElement(name, attributes);
    }
    void didEndElement(std::string_view name) { files_.didEndElement(name); }
    void foundCharacters(std::string_view text) { files_.foundCharacters(text); }

    /// To be called when the reply is over. Takes the rows back, with a log line, when it was not XML. A file
    /// without a path or without a list of trustees is fatal.
    void finish(const std::optional<XMLError>& error);

private:
    void readFile(XMLElement file);

    IdentitySet identities_;
    std::vector<IdentityFileRights>& rows_;
    std::size_t before_; ///< how many rows there were
    bool complete_ = true;
    RowReader files_;
};

} // namespace quorvan
