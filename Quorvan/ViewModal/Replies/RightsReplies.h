// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"
#include "Quorvan/ViewModal/IdentitySet.h"
#include "Quorvan/ViewModal/Replies/XMLEventParser.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan {

/// The rights that one trustee element gives, child by child.
class TrusteeRights {
public:
    void begin() {
        id_.clear();
        mask_ = 0;
    }
    void setID(const std::string& id) { id_ = id; }
    void add(std::string_view right); ///< the name of its element; others add nothing
    bool isOneOf(const IdentitySet& identities) const { return identities.contains(id_); }
    IdentityFileRights on(const SharedText& path) const { return {id_, {path, mask_}}; }

private:
    std::string id_;
    std::uint16_t mask_ = 0;
};

/// Reads the paths on which some identities hold rights out of the reply about all paths. It may have a
/// million trustees, most of them others, so that no tree is made of it.
class FileRightsReader {
public:
    /// The rows are appended to `rows`.
    FileRightsReader(const std::vector<std::string>& identities, std::vector<IdentityFileRights>& rows);
    FileRightsReader(const FileRightsReader&) = delete;
    FileRightsReader& operator=(const FileRightsReader&) = delete;

    void didStartElement(std::string_view name, XMLAttributes attributes);
    void didEndElement(std::string_view name);
    void foundCharacters(std::string_view text);

    /// To be called when the reply is over. Takes the rows back, with a log line, when it was not XML. A file
    /// without a path or without a list of trustees is fatal.
    void finish(const std::optional<XMLError>& error);

private:
    /// The way to a trustee's rights, by how many elements are open. Only the first list and path of a file
    /// count.
    enum Level : std::size_t { root, file, inFile, inRightsInfo, trustee, inTrustee, inRights };

    bool leadsOn(std::size_t level, std::string_view name);
    void read(std::string& text);
    void endFile();

    IdentitySet identities_;
    std::vector<IdentityFileRights>& rows_;
    std::size_t before_;        ///< how many rows there were
    std::size_t fileBegin_ = 0; ///< and before the current file
    bool isComplete_ = true;
    bool hasRightsInfo_ = false; ///< of the current file, as the two below
    bool hasList_ = false;
    bool hasPath_ = false;
    std::size_t depth_ = 0;       ///< open elements
    std::size_t onTheWay_ = 0;    ///< those of them that lie on the way
    std::string* text_ = nullptr; ///< what is being read, `path_` or `id_`
    std::size_t textDepth_ = 0;   ///< the open elements around it
    std::size_t textPart_ = 0;    ///< where its part after the last tag begins
    std::string path_;
    std::string id_;
    TrusteeRights trustee_;
};

} // namespace quorvan
