// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Keychain.h"

#include <chrono>
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <ldap.h>

namespace quorvan::platform {

/// Why a conversation with a directory server failed; false when it did not.
struct LdapFailure {
    /// EHOSTUNREACH: nobody there; ETIMEDOUT: no answer in time; EKEYREJECTED: a certificate that is not
    /// trusted; EPROTONOSUPPORT: no TLS; EACCES: not let in; ECONNRESET: the connection is gone; EIO: an
    /// answer that is an error.
    int error = 0;
    std::string reason; ///< a line for the log, without any secret

    explicit operator bool() const { return error != 0; }
};

struct LdapSearch {
    std::string base;
    int scope = LDAP_SCOPE_SUBTREE;
    std::string filter = "(objectClass=*)";
    std::vector<std::string> attributes;
    std::size_t limit = 0; ///< at most this many entries; 0 = all
};

struct LdapEntry {
    std::string distinguishedName;
    std::map<std::string, std::vector<std::string>> attributes; ///< by the names that were asked for

    /// The first value of an attribute, or null.
    const std::string* first(const std::string& attribute) const;
};

/// One connection to one directory server, encrypted or to this machine itself, on which the user is
/// logged in. Referrals are not followed, certificates always verified, and no call waits longer for the
/// server than the time limit.
class LdapSession {
public:
    /// Connects to a server of ldap.conf and logs in: with the user's ticket where that works, else with
    /// the keychain item of the host. An account name without a domain is one of `base`'s.
    static LdapFailure open(const std::string& uri, const std::string& base, Keychain& keychain,
                            std::chrono::milliseconds timeLimit, std::unique_ptr<LdapSession>& session);

    /// Adds what a search finds, asked for in pages; after a failure only what came before it.
    LdapFailure search(const LdapSearch& search, std::vector<LdapEntry>& found);

    /// Whether this is a global catalogue, which knows something of every domain of its forest.
    bool isGlobalCatalogue() const;

    const std::string& server() const { return uri_; }

private:
    struct Unbind {
        void operator()(LDAP* handle) const { ldap_unbind_ext_s(handle, nullptr, nullptr); }
    };
    struct FreeMessage {
        void operator()(LDAPMessage* message) const { ldap_msgfree(message); }
    };
    using Message = std::unique_ptr<LDAPMessage, FreeMessage>;
    struct Page;

    LdapSession(std::string uri, std::chrono::milliseconds timeLimit);
    LdapFailure connect();
    LdapFailure startTls(bool byRequest);
    LdapFailure logIn(const std::string& base, Keychain& keychain);
    int logInWithTicket();
    LdapFailure logInWithPassword(const std::string& account, const std::string& password);
    bool reachesThisMachine() const;
    LdapFailure readPage(const LdapSearch& search, Page& page, std::vector<LdapEntry>& found);
    LdapFailure exchange(const LdapSearch& search, berval& cookie, Message& message);
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
