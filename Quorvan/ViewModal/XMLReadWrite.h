// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Modal/FileInfo.h"
#include "Quorvan/Modal/UserQuotaData.h"
#include "Quorvan/Modal/Users.h"
#include "Quorvan/ViewModal/DictionaryForMountedPIPE.h"
#include "Quorvan/ViewModal/IdentitySet.h"
#include "Quorvan/ViewModal/Replies/ReplyPass.h"
#include "Quorvan/ViewModal/Replies/XMLResponseParse.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvan {

struct FileProperty;

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
///
/// When the connection is lost in the middle of an exchange, nothing of what arrived counts: the operation
/// ends with the errno as its status, whatever else it promises, and `loss()` tells it, too.
class XMLReadWriteController {
public:
    static constexpr int MEM_SIZE = 4096; ///< the server hands out a reply in pieces of this many bytes
    /// In bytes. The rights of all paths of a volume with a million trustees come to half of it.
    static std::size_t longestReply;

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
    /// Fatal while a pipe is open. A ScopedPipe opens and closes in one.
    std::int32_t openPipe(const std::string& server, const std::string& share, const std::string& pipe);
    /// Finds or makes the mount of share `mountPt`; on success `mountPath` is its mount point without
    /// "/Volumes". `shareName` is ignored.
    std::int32_t mountIPCPipe(const std::string& serverAddress, const std::string& mountPt,
                              const std::string& shareName, std::string& mountPath);
    /// Opens a pipe file below a mount; the descriptor, or -1.
    std::int32_t mountShare(const std::string& server, const std::string& mountPath, const std::string& pipe);
    /// Where the share of a scheme-less URL is mounted; "" when it is not, or no longer.
    std::string searchMountPathinDict(const std::string& url);
    /// Ends an operation: logs "pipe closed" and closes the descriptor, whose number stays. Then the user
    /// reads what was kept back while the pipe was open.
    static void closePipe();
    /// Closes the descriptor alone, where the program ends and the operation does not.
    static void dropPipe();
    /// Writes a request to the open pipe and returns the whole reply, well-formed UTF-8. Without an
    /// open pipe the process ends with status 1; in the middle of another exchange it is fatal. Empty after a
    /// loss, to which a reply beyond `longestReply` counts.
    std::string exchangeRequest(const std::string& request, const ExchangeLog& log);
    /// Whether the connection was lost in an exchange since openPipe: the errno, or 0. What the last request
    /// was to change may or may not have been changed.
    std::int32_t loss() const { return loss_; }
    /// What became of the lists that were read since openPipe. Several operations promise success whatever
    /// the server has answered; a list that is empty or short because of that must not look whole.
    enum class Reading { whole, refused, unreadable };
    Reading reading() const { return reading_; }

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

    static std::string createSetIRFRequest(const std::string& path, std::uint16_t irf);
    /// Sets the inherited rights filter of a path and returns the reply's status number.
    std::int64_t setInheritedRights(std::uint16_t irf, const std::string& path);
    std::int64_t parseSetInheritedRights(const std::string& xml);
    /// The mask of dictResponse's last such entry; without one the argument keeps its value.
    void loadIRFRights(Rights& irf) const;
    void loadEffRights(Rights& effRights) const;
    static std::string createGetERRequests(const std::string& path, const std::string& identityType);
    /// Appends the trustees of a path, each with its effective rights, when the status is "0".
    std::string getEffectiveRightsforPath(const std::string& path, TrusteeList& trusteeList,
                                          const std::string& identityType);
    static std::string createGetUserEffRightRequest(const std::string& userID, const std::string& path,
                                                    const std::string& identityType);
    /// The effective rights of one identity, which stay as they are when the request failed. Otherwise always
    /// "0".
    std::string getEffectiveRightsforUserOnPath(const std::string& path, const std::string& userID,
                                                Rights& rights, const std::string& identityType);
    /// The names of the logged-in user's rights on a path ("read", "fileScan", …), whatever the status.
    /// "-1" when the reply holds none; the list then stays as it is.
    std::string getEffectiveRightsForMappedUser(const std::string& path,
                                                std::vector<std::string>& effectiveRights,
                                                const std::string& ctx);
    static std::vector<std::string> parseEffectiveRights(XMLElement xmlData);
    static std::string createGetIRRequest(const std::string& path, const std::string& identityType);
    /// Appends the trustees of a path and of everything below it when the status is "0".
    std::string getIRRequest(const std::string& path, std::vector<DirectoryRights>& dirTrustee,
                             const std::string& identityType);
    /// Appends the trustees of dictResponse with the path that follows them there; those behind the last
    /// path are dropped.
    void loadDirectoryRights(std::vector<DirectoryRights>& dirTrustee, const std::string& identityType) const;
    /// Appends the paths below `path` on which identities of `userID` hold rights. Otherwise always "0".
    std::string getFSRights(const std::string& path, const std::vector<std::string>& userID,
                            std::vector<IdentityFileRights>& grpRights, const std::string& ctx);
    static void decodeFSRInfo(const std::string& xmlResp, const std::vector<std::string>& userID,
                              std::vector<IdentityFileRights>& arr);
    static void decodeFSRTrusteeInfo(XMLElement xmlNodeArr, const SharedText& path, const IdentitySet& userID,
                                     std::vector<IdentityFileRights>& arr);

    // File information

    /// These three fill their record when the status is "0" and leave it as it is otherwise.
    std::string getFileInfoOwner(const std::string& path, OwnerInfo& ownerInfo,
                                 const std::string& identityType);
    std::string getAttributes(const std::string& path, AttributesInfo& fileAttributes,
                              const std::string& identityType);
    std::string getDirectoryQuota(const std::string& path, DirectoryQuotaInfo& dirQuota,
                                  const std::string& ctx);
    static std::string createGetOwnerRequest(const std::string& path, const std::string& identityType);
    static std::string createGetAttributesRequest(const std::string& path, const std::string& identityType);
    static std::string createGetDirQuotaRequest(const std::string& path, const std::string& identityType);
    static void decodeOwnerInfo(const std::string& xml, OwnerInfo& dictionary);
    static void decodeFileAttributesResponse(const std::string& xml, AttributesInfo& dictionary);
    static std::vector<std::string> parseFileAttributes(XMLElement xmlData);
    static void decodeDirQuotaResponse(const std::string& xml, DirectoryQuotaInfo& dictionary);
    /// How a change went is not told; read the value again to see it. "0" unless the connection was lost.
    std::string setFileInfoOwner(const std::string& path, const std::string& ownerID,
                                 const std::string& identityType);
    /// `attributes`: tags of FileAttributes, one after the other.
    std::string setAttributes(const std::string& path, const std::string& attributes);
    std::string setDirectoryQuota(const std::string& path, const std::string& amount);
    static std::string createSetOwnerRequest(const std::string& path, const std::string& ownerID,
                                             const std::string& identityType);
    static std::string createSetAttributesRequest(const std::string& path, const std::string& attributes);
    static std::string createSetDirQuotaRequest(const std::string& path, const std::string& amount);

    // User quotas

    /// Appends one row for each user of the volume of `path`, whatever the status. A path that names no
    /// volume is fatal, here and in setUserQuotaInfo.
    std::string getUserQuotaInfo(const std::string& path, UserQuotaList& array, const std::string& ctx);
    static std::string createGetUserQuotaRequest(const std::string& volumeName,
                                                 const std::string& identityType);
    static void decodeUserQuotaInfo(const std::string& xml, UserQuotaList& array,
                                    const std::string& identityType);
    /// Sends the rows by their action, 300 in one request, and returns the first status other than "0".
    std::string setUserQuotaInfo(const std::string& path, const UserQuotaList& array, const std::string& ctx);
    /// A row's own kind decides how it is written; the identity type is ignored.
    static std::string createSetUserQuotaRequest(const std::string& volumeName,
                                                 std::span<const std::shared_ptr<UserQuotaData>> users,
                                                 const std::string& identityType);
    static std::string createXMLforUsers(const std::string& volumeName,
                                         std::span<const std::shared_ptr<UserQuotaData>> users,
                                         const std::string& identityType);

    // Directory tree

    /// Appends what lies below the base DN `tree`.
    std::string getMorvaneBrowse(const std::string& tree, std::vector<User>& userlist);
    /// The status; "" when the reply is not XML.
    std::string parseMorvaneBrowseResp(const std::string& xml, std::vector<User>& userlist);
    static void decodeTRELLBrowse(XMLElement nodes, std::vector<User>& userlist);
    static std::string createGetGuidRequest(const std::string& context, const std::string& objectName);
    /// The GUID of an object, or a status: "0" and "" mean that it has none.
    std::string getGuid_Morvane(const std::string& context, const std::string& objectName);
    std::string parseMorvaneGuidResp(const std::string& xml);
    static std::string createGetGroupMembershipRequest(const std::string& context,
                                                       const std::string& objectName);
    /// Appends the groups of an object, by their names alone. `id` is ignored.
    std::string getGroupMemberShip_Morvane(const std::string& id, std::vector<Group>& grouplist,
                                           const std::string& context, const std::string& objectName);
    std::string parseMorvaneGroupsResp(const std::string& xml, std::vector<Group>& grouplist);
    /// "Morvane" when the reply names that directory, "ActiveDirectory" in every other case but a loss, ""
    /// then.
    std::string getUserType();

    // Links

    /// The reply to the question where a link leads, on the open "/ZelSmbPipe".
    std::string getDFSPath(const std::string& path);
    /// Where the link at a path leads. The status; "-1" when the reply is not XML or carries none.
    std::string getDFSPathInfo(const std::string& path, std::string& targetServer, std::string& targetPath);
    /// Asks for the mapped path, and where the server wants it so for the selected one.
    void resolveDFSPath(const std::string& mappedPath, const std::string& selectedPath,
                        std::string& targetServer, std::string& targetPath, std::string& resVal);
    /// Walks the mapped path component by component and follows every link on the way. A mapped path of
    /// one component is fatal.
    void resolveMultipleDFSPath(std::string& server, const std::string& mappedPath, std::string& selectedPath,
                                std::string& targetServer, std::string& targetPath, std::string& resVal,
                                std::int32_t& status);
    /// Moves the selection to the target of a link at `mappedPath`. When the SMB client cannot be prepared
    /// for another server, `status` is its error and `err` is 1.
    static void buildDFSPath(std::string& selectedPath, const std::string& targetPath,
                             const std::string& mappedPath, const std::string& targetServer,
                             std::string& serverIP, std::int32_t& status, std::int32_t& err);

    // Operations about the selection
    //
    // Each opens the pipe, performs its request and closes the pipe. Where the server says that the path
    // lies below a link, server and selected path are rewritten to the link's target and the request is
    // repeated there. The result is 0, also when the link could not be resolved or its target not be
    // reached (the log says so); 1 when the request failed; the status of openPipe; the SMB client's error
    // for the target server; or the errno of a lost connection.

    /// Empties `trusteeList` and fills it, the filter and the logged-in user's rights.
    std::int32_t initializeTrusteesHandleDFS(std::string& server, TrusteeList& trusteeList,
                                             std::string& selectedPath, Rights& irf, Rights& effRights,
                                             std::string& mappedPath, const std::string& identityType);
    /// Empties `trusteeList` and fills it.
    std::int32_t getEffectiveRightsforPathHandleDFS(std::string& server, TrusteeList& trusteeList,
                                                    std::string& selectedPath, std::string& mappedPath,
                                                    const std::string& identityType);
    std::int32_t getEffectiveRightsForMappedUserForPathHandleDFS(std::string& selectedPath,
                                                                 std::vector<std::string>& effectiveRights,
                                                                 std::string& server, std::string& mappedPath,
                                                                 const std::string& identityType);
    /// Appends to `dirTrustee`.
    std::int32_t getIRRequestHandleDFS(std::string& server, std::vector<DirectoryRights>& dirTrustee,
                                       std::string& mappedPath, std::string& selectedPath,
                                       const std::string& identityType);
    std::int32_t setInheritedRightsforPathHandleDFS(std::string& server, std::uint16_t irf,
                                                    std::string& selectedPath, std::string& mappedPath);
    /// Adds or removes one trustee, as its status says.
    std::int32_t setTrusteeHandleDFS(std::string& server, std::string& mappedPath, std::string& selectedPath,
                                     const Trustees& trustee, const std::string& identityType);
    std::int32_t getFileInfoOwnerHandleDFS(std::string& server, std::string& selectedPath,
                                           OwnerInfo& ownerInfo, std::string& mappedPath,
                                           const std::string& identityType);
    std::int32_t getAttributesHandleDFS(std::string& server, std::string& selectedPath,
                                        AttributesInfo& fileAttributes, std::string& mappedPath,
                                        const std::string& identityType);
    std::int32_t getDirectoryQuotaHandleDFS(std::string& server, std::string& selectedPath,
                                            DirectoryQuotaInfo& dirQuota, std::string& mappedPath,
                                            const std::string& identityType);

private:
    /// Reads a reply once: its entries into dictResponse, or for other readers instead. The rest of what the
    /// event pass learned comes back.
    template <class... Readers>
    XMLResponseParser parse(const std::string& reply, const ElementPath& resultPath, Readers&... others) {
        using Entries = XMLResponseParser::Entries;
        XMLResponseParser entries(resultPath, sizeof...(others) == 0 ? Entries::gathered : Entries::leftOut);
        entries.error = readReply(reply, entries, others...);
        if (entries.error)
            reading_ = Reading::unreadable;
        else if (entries.xmlReqStatus != 0 && reading_ == Reading::whole)
            reading_ = Reading::refused;
        dictResponse = std::move(entries.arrStack);
        return entries;
    }
    XMLResponseParser parse(const std::string& reply) { return parse(reply, {}); }
    std::string statusOf(const std::optional<XMLError>& error, const ResultElement& result) const;
    std::string statusOf(const XMLResponseParser& parsed) const {
        return statusOf(parsed.error, parsed.result);
    }
    /// The status of an operation that has none of its own.
    std::string statusOfExchange() const { return std::to_string(loss_); }

    std::int32_t loss_ = 0;
    Reading reading_ = Reading::whole;

    std::string setOneTrustee(const std::string& request, const ElementPath& resultPath,
                              const ExchangeLog& log);
    template <class Info>
    std::string getFileInfo(const std::string& request, const ExchangeLog& log, const FileProperty& property,
                            Info& info);
    template <class Reader>
    std::string askTree(const std::string& request, const ExchangeLog& log, Reader&& reader);
};

} // namespace quorvan
