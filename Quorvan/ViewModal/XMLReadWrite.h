// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/Users.h"
#include "Quorvan/ViewModal/XMLResponseParse.h"

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan {

/// Where each management share is mounted. Lives in memory only.
class DictionaryForMountedPIPE {
public:
    static DictionaryForMountedPIPE& mountDict();

    /// "ADDRESS/SHARE" (no scheme) -> the mount point without its leading "/Volumes".
    std::map<std::string, std::string> PipeMapDict;

    void removeValue(const std::string& key);

    /// Unmounts every share, by force; failures are only logged.
    void unmountAll() const;
};

/// The three texts that frame an exchange in the log. The labels hold one "%@".
struct ExchangeLog {
    std::string_view request;
    std::string_view completion;
    std::string_view response;
};

/// The request layer: opens a pipe file of the server, writes one request, reads one reply, and turns
/// replies into records. Operations are named after what they ask; those ending in HandleDFS open and
/// close the pipe themselves, all others use the pipe that is open.
///
/// Paths are server paths, VOLUME:\dir\file. An identity type is "ActiveDirectory" or "Morvane". A
/// status text is the server's own: "0" is success, anything else its code, unchanged; a reply that is
/// not XML counts as success. Nothing is thrown.
class XMLReadWriteController {
public:
    static constexpr int MEM_SIZE = 4096; ///< the server hands out a reply in pieces of this many bytes

    XMLReadWriteController();
    ~XMLReadWriteController();
    XMLReadWriteController(const XMLReadWriteController&) = delete;
    XMLReadWriteController& operator=(const XMLReadWriteController&) = delete;

    std::optional<ReplyEntries> dictResponse; ///< the last parsed reply
    std::unique_ptr<std::array<char, MEM_SIZE>> response;

    /// The pipe that is open now, or was last: there is only ever one.
    static std::int32_t fileDes;

    // Pipe

    /// Makes sure that `share` of `server` is mounted and opens the pipe file. 0, or -25300 without
    /// stored credentials, the errno of the mount, -1 without a mount point, or the failed descriptor.
    std::int32_t openPipe(const std::string& server, const std::string& share, const std::string& pipe);
    /// Finds or makes the mount of share `mountPt`; on success `mountPath` is its mount point without
    /// "/Volumes". `shareName` is ignored.
    std::int32_t mountIPCPipe(const std::string& serverAddress, const std::string& mountPt,
                              const std::string& shareName, std::string& mountPath);
    /// Opens a pipe file below a mount; the descriptor, or -1.
    std::int32_t mountShare(const std::string& server, const std::string& mountPath, const std::string& pipe);
    /// Where the share of a scheme-less URL is mounted; "" when it is not, or no longer.
    std::string searchMountPathinDict(const std::string& url);
    /// Ends an operation: logs "pipe closed" and closes the descriptor, whose number stays.
    static void closePipe();
    /// Writes a request to the open pipe and returns the whole reply, well-formed UTF-8. Without an
    /// open pipe the process ends with status 1.
    std::string exchangeRequest(const std::string& request, const ExchangeLog& log);

    // Replies

    /// Parses a reply into dictResponse and returns the "value" of the element at `resultPath`. A
    /// missing element, or one without attributes, is fatal.
    std::string getResultValue(const std::string& reply, const ElementPath& resultPath);

    // Trustees

    std::string getTrusteeList(const std::string& path, const std::string& identityType);
    static std::string createGetTrusteesListRequestAD(const std::string& path);
    static std::string createGetTrusteesListRequestMorvane(const std::string& path);
    /// Reads the trustees of a path (they are appended to the list), its inherited rights filter and the
    /// logged-in user's effective rights; all three stay as they are unless the status is "0".
    std::string initializeTrustees(const std::string& path, const std::string& identityType,
                                   TrusteeList& trusteeList, Rights& irf, Rights& effRights);
    /// Appends the trustees of dictResponse. An entry with an ID before any name or rights is fatal.
    void loadTrusteeDataFromServer(TrusteeList& trusteeList, const std::string& identityType) const;
    static std::string createRightsForXML(std::uint16_t rights);
    static std::string createAddRemoveTrusteeRequest(const TrusteeList& trustees, const std::string& path,
                                                     const std::string& identityType);
    /// Sends the pending changes of one path in one request and returns the reply's status number.
    std::int64_t setTrustee(const TrusteeList& trustees, const std::string& path,
                            const std::string& identityType);
    static std::string createAddTrusteeRequest(const std::string& id, std::uint16_t rights,
                                               const std::string& path);
    static std::string createAddTrusteeRequestMorvane(const std::string& id, std::uint16_t rights,
                                                      const std::string& path);
    std::string setTrusteeAdd(const Trustees& trustee, const std::string& path,
                              const std::string& identityType);
    std::string setTrusteeRemove(const Trustees& trustee, const std::string& path,
                                 const std::string& identityType);
    /// Sends the pending changes of several paths in one request and returns the reply's status number.
    std::int64_t setTrusteeforDir(const std::vector<DirectoryRights>& entries,
                                  const std::string& identityType);
    void parseSetTrusteeResp(const std::string& xml, std::int64_t& nAddFailed, std::int64_t& nRemFailed,
                             std::int64_t& status);

    // Rights

    /// The mask of dictResponse's last such entry; without one the argument keeps its value.
    void loadIRFRights(Rights& irf) const;
    void loadEffRights(Rights& effRights) const;

    // Directory tree

    /// "Morvane" when the reply names that directory, "ActiveDirectory" in every other case.
    std::string getUserType();

    // Operations about the selection

    /// Empties `trusteeList` and fills it, the filter and the logged-in user's rights; may rewrite
    /// server and selected path when the path is a link. 0, 1 or the status of openPipe.
    std::int32_t initializeTrusteesHandleDFS(std::string& server, TrusteeList& trusteeList,
                                             std::string& selectedPath, Rights& irf, Rights& effRights,
                                             std::string& mappedPath, const std::string& identityType);

private:
    struct SelectionRequest;

    std::string statusOf(const XMLResponseParser& parsed) const;
    std::string setOneTrustee(const std::string& element, const ElementPath& resultPath,
                              const ExchangeLog& log);
    std::int32_t performHandleDFS(const SelectionRequest& request, std::string& server,
                                  std::string& selectedPath, std::string& mappedPath);
    std::int32_t followLink(const SelectionRequest& request, std::string& server, std::string& selectedPath,
                            std::string& mappedPath);
};

} // namespace quorvan
