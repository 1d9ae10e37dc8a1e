// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/Identities.h"
#include "Simulator/Misbehaviour.h"
#include "Simulator/Rights.h"
#include "Simulator/Volumes.h"

#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan::simulator {

/// What a "result" element carries when a request fails.
namespace code {
inline constexpr int refusedRequest =
    20901;                               ///< not one of the requests that the pipe takes, letter by letter
inline constexpr int noSuchPath = 20902; ///< no such volume, folder or file
inline constexpr int noRights = 20903;   ///< the logged-in user may not do that there
inline constexpr int unknownIdentity = 20904; ///< no such SID, GUID or name in that directory
inline constexpr int noSuchTrustee = 20905;   ///< removing an identity that is no trustee of the path
inline constexpr int invalidAmount = 20906;   ///< a negative amount of space
inline constexpr int noSuchAttribute = 20907; ///< no such attribute of objects of the tree

// About links. A request about what lies elsewhere fails with one of the first two; the others answer
// the question where a path leads.
inline constexpr int atLink = 20008;         ///< the path is a link
inline constexpr int belowLink = 20429;      ///< the path leads through a link
inline constexpr int volumeIsNoLink = 20156; ///< the path is a whole volume, which is never a link
inline constexpr int noLink = 30005;         ///< the path is no link, and none lies above it
inline constexpr int linkAbove = 30006;      ///< the path leads through a link
} // namespace code

struct PipeFile {
    const char* share; ///< without slash
    const char* file;  ///< below the share, with its leading slash
};

/// The pipe files that a server offers, and the shares they lie on.
inline constexpr std::array<PipeFile, 5> pipeFiles{{
    {"IPC$", "/FilesCmdPipe"},
    {"IPC$", "/RightsCmdPipe"},
    {"IPC$", "/ZelSmbPipe"},
    {"_admin", "/Manage_KELP/TRELL.cmd"},
    {"_admin", "/Manage_KELP/user.cmd"},
}};

/// Whether the share is one of the two that carry pipe files; case does not count.
bool isManagementShare(std::string_view share);

/// The pipe file of that name on that share, with or without leading slash; null when there is none.
const PipeFile* findPipeFile(std::string_view share, std::string_view file);

/// Who may log in. The kind of the identity is the kind of the logged-in user.
struct Account {
    std::string password;
    const Identity* identity = nullptr;
};

struct RecordedRequest {
    std::string pipeFile;
    std::string user;
    std::string text;
};

/// A Kelp server: volumes, trustees and accounts behind the management pipes.
///
/// Requests are checked to the letter: elements missing, added or out of order, other attributes, a
/// path that is not in NFC are all refused, and then nothing of the request is carried out.
class KelpServer {
public:
    explicit KelpServer(std::shared_ptr<Identities> identities = std::make_shared<Identities>());

    /// Answers a request that `user` wrote to `pipeFile` ("/FilesCmdPipe"). Misbehaviour that
    /// changes the reply as a whole (code, garbage, size) is applied here.
    std::string handle(std::string_view pipeFile, std::string_view user, std::string_view request);

    // The model. Rights of a path that is not there are 0; setters make the path.
    Identities& identities() { return *identities_; }
    Volumes& volumes() { return volumes_; }
    const Volumes& volumes() const { return volumes_; }
    void addPath(std::string_view path) { volumes_.make(path); }
    void setTrustee(std::string_view path, const Identity& identity, Mask rights);
    void setFilter(std::string_view path, Mask filter);
    std::vector<TrusteeEntry> trustees(std::string_view path) const;
    Mask filter(std::string_view path) const;
    Mask rightsOf(std::string_view path, const Identity& identity) const; ///< effective rights

    // Accounts; case does not count in user names.
    void addAccount(const std::string& user, const std::string& password, const Identity& identity);
    const Account* findAccount(std::string_view user) const;

    // What the network layer asks before it lets anyone near a pipe file; 0 or an errno value.
    struct Login {
        std::string_view user;
        std::string_view password;
    };
    int checkMount(const Login& login, std::string_view share) const;
    int checkOpen(std::string_view pipeFile) const;
    const std::map<std::string, Account>& accounts() const { return accounts_; }

    Misbehaviour misbehaviour;

    // What was asked, oldest first; the count goes on when old requests are dropped.
    std::size_t requestCount() const { return requestCount_; }
    const std::vector<RecordedRequest>& requests() const { return requests_; }
    std::string lastRequest() const { return requests_.empty() ? std::string() : requests_.back().text; }

private:
    std::string answer(const RecordedRequest& asked, std::optional<int> failure);

    std::shared_ptr<Identities> identities_;
    Volumes volumes_;
    std::map<std::string, Account> accounts_;
    std::vector<RecordedRequest> requests_;
    std::size_t requestCount_ = 0;
};

} // namespace quorvan::simulator
