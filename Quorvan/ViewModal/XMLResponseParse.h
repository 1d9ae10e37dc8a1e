// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan {

/// What the event pass gathered about one entry of a reply; a key that the reply did not give is absent.
///
/// Entries "trusteeInfo" and "accessRights" carry the trustee keys, "inheritedRightsFilter" and
/// "effectiveRights" their mask, "file" its path.
struct ReplyEntry {
    std::optional<std::string> trusteeName;
    std::optional<std::string> trusteeID;
    std::optional<std::string> trusteeType;
    std::optional<std::uint16_t> rights;
    std::optional<std::uint16_t> inheritedRightsFilter;
    std::optional<std::uint16_t> effectiveRights;
    std::optional<std::string> path;
};

/// Entries are shared: a later element may still write into one that is already in the list.
using ReplyEntries = std::vector<std::shared_ptr<ReplyEntry>>;

/// The names of the elements that lead from (not including) the root element to an element: at each
/// step the first child element of that name.
using ElementPath = std::vector<std::string>;

/// What the same event pass found out about the reply as a document.
struct ReplyDocument {
    std::optional<std::string> error; ///< why the reply is not XML; nothing when it is well-formed
    bool resultFound = false;         ///< the element at the result path exists
    bool resultHasAttributes = false;
    std::string resultValue = "0"; ///< its "value" attribute; "0" when it has none
};

/// The event pass over one reply. Single use: its list and counters only grow.
class XMLResponseParser {
public:
    XMLResponseParser();
    ~XMLResponseParser();
    XMLResponseParser(const XMLResponseParser&) = delete;
    XMLResponseParser& operator=(const XMLResponseParser&) = delete;

    /// Parses a reply and returns the entries in the order in which their elements closed. A parse
    /// error stops the events early; what was gathered until then is returned. `document`, when given,
    /// receives what the pass learned about the document, with its result element at `resultPath`.
    const ReplyEntries& getdictionaryfromXMLData(std::string_view reply, const ElementPath& resultPath = {},
                                                 ReplyDocument* document = nullptr);

    ReplyEntries arrStack;
    int nAddFailed = 0;   ///< "addTrustee" elements that closed while the last result was not "0"
    int nRemFailed = 0;   ///< the same for "removeTrustee"
    int xmlReqStatus = 0; ///< the last result value other than "0"

    // TODO core: state and handlers
};

} // namespace quorvan
