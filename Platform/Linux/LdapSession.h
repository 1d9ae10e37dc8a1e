// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Keychain.h"
#include "Platform/Linux/LdapSearch.h"

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include <ldap.h>

namespace quorvan::platform {

/// Why a conversation with a directory server failed; false when it did not.
struct LdapFailure {
    /// EHOSTUNREACH: nobody there; ETIMEDOUT: no answer in time; EKEYREJECTED: a certificate that is not
    /// trusted; EPROTONOSUPPORT: no TLS; EACCES: not let in; ECONNRESET: the connection is gone; ENOENT: what
    /// was asked about is not there; EFBIG: an answer that is too large; EIO: any other answer that is an
    /// error.
    int error = 0;
    std::string reason; ///< a line for the log, without any secret

    explicit operator bool() const { return error != 0; }
};

/// One connection to one directory server, encrypted or to this machine itself, on which the user is
/// logged in. Referrals are not followed, certificates always verified.
///
/// No step of opening it takes longer than the time limit, no search longer than `patience` of them, whatever
/// the server sends meanwhile, and none keeps more than LdapSearchRun::mostBytes.
class LdapSession {
public:
    static constexpr int patience = 3;
    static constexpr ber_len_t mostBytesOfAMessage = 16U << 20U; ///< an entry with all that it holds

    /// Connects to a server of ldap.conf and logs in: with the user's ticket where that works, else with
    /// the keychain item of the host. An account name without a domain is one of `base`'s.
    static LdapFailure open(const std::string& uri, const std::string& base, Keychain& keychain,
                            std::chrono::milliseconds timeLimit, std::unique_ptr<LdapSession>& session);

    /// Adds what a search finds, asked for in pages; after a failure only what came before it. Attributes
    /// with more values than the server gives at once are asked for until all are there.
    LdapFailure search(const LdapSearch& search, std::vector<LdapEntry>& found);

    /// Whether this is a global catalogue, which knows something of every domain of its forest.
    bool isGlobalCatalogue() const;

    const std::string& server() const { return uri_; }

private:
    struct Unbind {
        void operator()(LDAP* handle) const { ldap_unbind_ext_s(handle, nullptr, nullptr); }
    };

    LdapSession(std::string uri, std::chrono::milliseconds timeLimit);
    LdapFailure connect();
    LdapFailure startTls(bool byRequest);
    LdapFailure logIn(const std::string& base, Keychain& keychain);
    int logInWithTicket();
    LdapFailure logInWithPassword(const std::string& account, const Secret& password);
    bool reachesThisMachine() const;
    LdapFailure failure(int error, const std::string& text) const;
    LdapFailure answer(int code) const;

    std::string uri_;
    std::string scheme_;
    std::string host_;
    int port_ = 0;
    std::chrono::milliseconds timeLimit_;
    std::unique_ptr<LDAP, Unbind> handle_;
};

} // namespace quorvan::platform
