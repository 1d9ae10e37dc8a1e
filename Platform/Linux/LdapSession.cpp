// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/LdapSession.h"

#include "Platform/Linux/LdapHandles.h"

#include <cerrno>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <thread>
#include <utility>

#include <netinet/in.h>
#include <sasl/sasl.h>
#include <sys/socket.h>

namespace quorvan::platform {
namespace {

int socketOf(LDAP* handle) {
    int descriptor = -1;
    ldap_get_option(handle, LDAP_OPT_DESC, &descriptor);
    return descriptor;
}

/// Ends a connection when it outlives a time limit within this object's lifetime. The beginning of TLS
/// needs it: libldap waits for a silent server there without end, whatever limits it was given.
class Watchdog {
public:
    Watchdog(LDAP* handle, std::chrono::milliseconds limit)
        : thread_([this, descriptor = socketOf(handle), limit](const std::stop_token& stop) {
            std::unique_lock lock(mutex_);
            changed_.wait_for(lock, stop, limit, [] { return false; });
            if (!stop.stop_requested()) {
                hasBitten_ = true;
                ::shutdown(descriptor, SHUT_RDWR);
            }
        }) {}

    /// Calls it off; whether it has ended the connection by then.
    bool stop() {
        thread_.request_stop();
        thread_.join();
        return hasBitten_;
    }

private:
    std::mutex mutex_;
    std::condition_variable_any changed_;
    bool hasBitten_ = false;
    std::jthread thread_;
};

/// What libldap says beyond a code; "" when it says nothing.
std::string diagnosis(LDAP* handle) {
    char* text = nullptr;
    ldap_get_option(handle, LDAP_OPT_DIAGNOSTIC_MESSAGE, &text);
    const Text owner(text);
    return text == nullptr ? "" : text;
}

/// Gives a connection the TLS settings of ldap.conf, except that certificates are verified whatever that
/// says. A connection inherits none of the former once it has any of its own.
bool prepareTls(LDAP* handle) {
    for (const int option : {LDAP_OPT_X_TLS_CACERTFILE, LDAP_OPT_X_TLS_CACERTDIR, LDAP_OPT_X_TLS_CERTFILE,
                             LDAP_OPT_X_TLS_KEYFILE, LDAP_OPT_X_TLS_CRLFILE, LDAP_OPT_X_TLS_CIPHER_SUITE}) {
        char* value = nullptr;
        ldap_get_option(nullptr, option, &value);
        const Text owner(value);
        if (value != nullptr)
            ldap_set_option(handle, option, value);
    }
    int oldest = 0;
    ldap_get_option(nullptr, LDAP_OPT_X_TLS_PROTOCOL_MIN, &oldest);
    ldap_set_option(handle, LDAP_OPT_X_TLS_PROTOCOL_MIN, &oldest);
    const int demand = LDAP_OPT_X_TLS_DEMAND;
    ldap_set_option(handle, LDAP_OPT_X_TLS_REQUIRE_CERT, &demand);
    const int forClient = 0;
    return ldap_set_option(handle, LDAP_OPT_X_TLS_NEWCTX, &forClient) == LDAP_SUCCESS;
}

/// libldap has no code of its own for this. Its GnuTLS build leaves the error text of the library unknown
/// only when it has rejected the certificate itself.
bool isCertificateTrouble(const std::string& diagnosis) {
    const auto says = [&](const char* word) { return diagnosis.find(word) != std::string::npos; };
    return says("certificate") || says("hostname") || says("unknown error code");
}

/// Answers the questions of a SASL mechanism with its own proposals: the ticket says all there is to say.
int acceptProposals(LDAP*, unsigned, void*, void* questions) {
    for (auto* each = static_cast<sasl_interact_t*>(questions); each->id != SASL_CB_LIST_END; ++each) {
        each->result = each->defresult == nullptr ? "" : each->defresult;
        each->len = static_cast<unsigned>(std::strlen(static_cast<const char*>(each->result)));
    }
    return LDAP_SUCCESS;
}

/// Domain controllers know an account in a simple bind by name@domain, DOMAIN\name or distinguished name.
std::string withDomain(const std::string& account, const std::string& base) {
    if (account.find_first_of("@\\=") != std::string::npos)
        return account;
    char* domain = nullptr;
    ldap_dn2domain(base.c_str(), &domain);
    const Text owner(domain);
    return domain == nullptr ? account : account + "@" + domain;
}

/// Logging in with no password would succeed, anonymously.
bool isComplete(const KeychainResult& found) {
    return found.status == 0 && found.item && found.item->account && !found.item->account->empty() &&
           found.item->data && !found.item->data->empty();
}

} // namespace

LdapSession::LdapSession(std::string uri, std::chrono::milliseconds timeLimit)
    : uri_(std::move(uri))
    , timeLimit_(timeLimit) {}

LdapFailure LdapSession::failure(int error, const std::string& text) const {
    return {error, "The directory server " + uri_ + " " + text};
}

LdapFailure LdapSession::answer(int code) const {
    if (code == LDAP_SERVER_DOWN || code == LDAP_CONNECT_ERROR || code == LDAP_UNAVAILABLE)
        return failure(ECONNRESET, "has closed the connection");
    if (code == LDAP_TIMEOUT)
        return failure(ETIMEDOUT, "does not answer within the time limit");
    if (code == LDAP_NO_SUCH_OBJECT)
        return failure(ENOENT, "knows no such object");
    return failure(EIO, std::string("answers: ") + ldap_err2string(code));
}

LdapFailure LdapSession::open(const std::string& uri, const std::string& base, Keychain& keychain,
                              std::chrono::milliseconds timeLimit, std::unique_ptr<LdapSession>& session) {
    std::unique_ptr<LdapSession> opened(new LdapSession(uri, timeLimit));
    LdapFailure failure = opened->connect();
    if (!failure && opened->scheme_ == "ldaps")
        failure = opened->startTls(false);
    if (!failure)
        failure = opened->logIn(base, keychain);
    if (!failure)
        session = std::move(opened);
    return failure;
}

LdapFailure LdapSession::connect() {
    LDAPURLDesc* parts = nullptr;
    if (ldap_url_parse(uri_.c_str(), &parts) != LDAP_URL_SUCCESS)
        return failure(EINVAL, "has no such address");
    const Url owner(parts);
    scheme_ = parts->lud_scheme;
    host_ = parts->lud_host == nullptr || *parts->lud_host == '\0' ? "localhost" : parts->lud_host;
    port_ = parts->lud_port;
    // TLS is begun by hand, so that a certificate that is not trusted can be told from a server that is not
    // there.
    std::string address = uri_;
    if (scheme_ != "ldapi") {
        const std::string host = host_.find(':') == std::string::npos ? host_ : "[" + host_ + "]";
        address = "ldap://" + host + ":" + std::to_string(port_);
    }
    LDAP* handle = nullptr;
    if (ldap_initialize(&handle, address.c_str()) != LDAP_SUCCESS)
        return failure(EINVAL, "has no such address");
    handle_.reset(handle);
    const int version = LDAP_VERSION3;
    const timeval limit = timevalOf(timeLimit_);
    ldap_set_option(handle, LDAP_OPT_PROTOCOL_VERSION, &version);
    ldap_set_option(handle, LDAP_OPT_REFERRALS, LDAP_OPT_OFF);
    ldap_set_option(handle, LDAP_OPT_X_SASL_NOCANON,
                    LDAP_OPT_ON); // the name of ldap.conf, not of reverse DNS
    ldap_set_option(handle, LDAP_OPT_RESTART, LDAP_OPT_ON);
    ldap_set_option(handle, LDAP_OPT_NETWORK_TIMEOUT, &limit);
    ldap_set_option(handle, LDAP_OPT_TIMEOUT, &limit);
    if (ldap_connect(handle) != LDAP_SUCCESS)
        return failure(EHOSTUNREACH, "cannot be reached");
    // Without a bound the length that a server claims is allocated before the first byte of it has come.
    Sockbuf* buffer = nullptr;
    ber_len_t most = mostBytesOfAMessage;
    if (ldap_get_option(handle, LDAP_OPT_SOCKBUF, &buffer) == LDAP_SUCCESS)
        ber_sockbuf_ctrl(buffer, LBER_SB_OPT_SET_MAX_INCOMING, &most);
    // libldap's own limits hold until an answer begins; these hold when it stops halfway.
    ::setsockopt(socketOf(handle), SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    ::setsockopt(socketOf(handle), SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
    return {};
}

LdapFailure LdapSession::startTls(bool byRequest) {
    LDAP* const handle = handle_.get();
    if (!prepareTls(handle))
        return failure(EKEYREJECTED, "cannot be verified: the TLS files of ldap.conf are not usable");
    Watchdog watchdog(handle, timeLimit_);
    ldap_set_option(handle, LDAP_OPT_NETWORK_TIMEOUT, nullptr); // with a limit it would poll all the time
    int code = byRequest ? ldap_start_tls_s(handle, nullptr, nullptr) : ldap_install_tls(handle);
    if (watchdog.stop())
        code = LDAP_TIMEOUT;
    if (code == LDAP_SUCCESS)
        return {};
    if (code == LDAP_CONNECT_ERROR && isCertificateTrouble(diagnosis(handle)))
        return failure(EKEYREJECTED, "has a certificate that is not trusted");
    if (code == LDAP_TIMEOUT || code == LDAP_SERVER_DOWN)
        return answer(code);
    if (code == LDAP_CONNECT_ERROR || !byRequest)
        return failure(ECONNRESET, "breaks off the beginning of TLS");
    return failure(EPROTONOSUPPORT, "does not offer TLS, and no password is sent without");
}

LdapFailure LdapSession::logIn(const std::string& base, Keychain& keychain) {
    const int code = logInWithTicket();
    if (code == LDAP_SUCCESS)
        return {};
    if (code == LDAP_SERVER_DOWN || code == LDAP_TIMEOUT)
        return answer(code);
    const KeychainResult found = keychain.findInternetPassword(host_);
    if (!isComplete(found))
        return failure(EACCES,
                       "lets nobody in: there is neither a valid ticket nor a keyring item for " + host_);
    const std::string account = accountOf(found.item->domain, *found.item->account);
    return logInWithPassword(withDomain(account, base), *found.item->data);
}

int LdapSession::logInWithTicket() {
    LDAP* const handle = handle_.get();
    // A ticket encrypts what follows, but not once more within TLS.
    const bool tls = ldap_tls_inplace(handle) != 0;
    const ber_len_t strength = tls ? 0 : 56;
    ldap_set_option(handle, tls ? LDAP_OPT_X_SASL_SSF_MAX : LDAP_OPT_X_SASL_SSF_MIN, &strength);
    if (tls) {
        const int endpoint = LDAP_OPT_X_SASL_CBINDING_TLS_ENDPOINT;
        ldap_set_option(handle, LDAP_OPT_X_SASL_CBINDING, &endpoint);
    }
    return ldap_sasl_interactive_bind_s(handle, nullptr, "GSSAPI", nullptr, nullptr, LDAP_SASL_QUIET,
                                        acceptProposals, nullptr);
}

LdapFailure LdapSession::logInWithPassword(const std::string& account, const Secret& password) {
    LDAP* const handle = handle_.get();
    berval secret{static_cast<ber_len_t>(password.size()), const_cast<char*>(password.reveal().data())};
    const auto bind = [&] {
        return ldap_sasl_bind_s(handle, account.c_str(), LDAP_SASL_SIMPLE, &secret, nullptr, nullptr,
                                nullptr);
    };
    const auto needsTls = [](int code) {
        return code == LDAP_STRONG_AUTH_REQUIRED || code == LDAP_CONFIDENTIALITY_REQUIRED;
    };
    int code = LDAP_CONFIDENTIALITY_REQUIRED;
    if (ldap_tls_inplace(handle) != 0 || reachesThisMachine())
        code = bind();
    if (needsTls(code) && ldap_tls_inplace(handle) == 0) {
        if (LdapFailure tls = startTls(true))
            return tls;
        code = bind();
    }
    if (code == LDAP_SUCCESS)
        return {};
    if (code == LDAP_INVALID_CREDENTIALS)
        return failure(EACCES, "refuses the keyring's password of " + account);
    return answer(code);
}

bool LdapSession::reachesThisMachine() const {
    sockaddr_storage peer{};
    socklen_t size = sizeof peer;
    if (::getpeername(socketOf(handle_.get()), reinterpret_cast<sockaddr*>(&peer), &size) != 0)
        return false;
    in_addr_t v4 = 0;
    in6_addr v6{};
    if (peer.ss_family == AF_INET) {
        v4 = reinterpret_cast<const sockaddr_in&>(peer).sin_addr.s_addr;
    } else if (peer.ss_family == AF_INET6) {
        v6 = reinterpret_cast<const sockaddr_in6&>(peer).sin6_addr;
        if (IN6_IS_ADDR_V4MAPPED(&v6))
            std::memcpy(&v4, &v6.s6_addr[12], sizeof v4);
    }
    return peer.ss_family == AF_UNIX || IN6_IS_ADDR_LOOPBACK(&v6) || ntohl(v4) >> 24U == IN_LOOPBACKNET;
}

LdapFailure LdapSession::search(const LdapSearch& search, std::vector<LdapEntry>& found) {
    const auto limit = patience * timeLimit_;
    LdapSearchRun run(handle_.get(), search, std::chrono::steady_clock::now() + limit, found);
    Watchdog watchdog(handle_.get(), limit); // for a message that never becomes complete
    int code = run.all();
    if (watchdog.stop())
        code = LDAP_TIMEOUT;
    if (code == LDAP_SUCCESS)
        return {};
    return run.isTooMuch() ? failure(EFBIG, "answers with more than can be taken") : answer(code);
}

bool LdapSession::isGlobalCatalogue() const {
    return port_ == 3268 || port_ == 3269;
}

} // namespace quorvan::platform
