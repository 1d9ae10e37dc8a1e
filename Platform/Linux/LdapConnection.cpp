// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/LdapConnection.h"

#include <cerrno>
#include <csignal>
#include <sstream>
#include <utility>

namespace quorvan::platform {
namespace {

using Clock = std::chrono::steady_clock;

constexpr auto pauseAfterFailure = std::chrono::seconds(5);
constexpr auto pauseAfterRefusal = std::chrono::seconds(60); ///< wrong passwords are counted over there

/// A setting of ldap.conf, or of the environment variables that stand in for it.
std::string setting(int option) {
    char* text = nullptr;
    ldap_get_option(nullptr, option, &text);
    std::string value = text == nullptr ? "" : text;
    ldap_memfree(text);
    return value;
}

/// libldap writes to its socket without keeping a broken one from ending the process.
void surviveBrokenConnections() {
    struct sigaction action {};
    if (::sigaction(SIGPIPE, nullptr, &action) == 0 && action.sa_handler == SIG_DFL)
        ::signal(SIGPIPE, SIG_IGN);
}

} // namespace

LdapConnection::LdapConnection(std::shared_ptr<Keychain> keychain, LogLine log,
                               std::chrono::milliseconds timeLimit)
    : keychain_(std::move(keychain))
    , log_(std::move(log))
    , timeLimit_(timeLimit) {
    surviveBrokenConnections();
}

std::string LdapConnection::base() {
    return setting(LDAP_OPT_DEFBASE);
}

bool LdapConnection::open() {
    if (session_)
        return true;
    if (Clock::now() < pauseEnd_) {
        errno = lastError_;
        return false;
    }
    LdapFailure failure{EINVAL, "ldap.conf names no directory server"};
    std::istringstream servers(setting(LDAP_OPT_URI));
    for (std::string uri; servers >> uri && failure && failure.error != EACCES;)
        failure = LdapSession::open(uri, base(), *keychain_, timeLimit_, session_);
    if (failure) {
        giveUp(failure);
        return false;
    }
    ++openings_;
    return true;
}

std::optional<std::vector<LdapEntry>> LdapConnection::search(const LdapSearch& search) {
    for (bool isLastTry = false;; isLastTry = true) {
        if (!open())
            return std::nullopt;
        std::vector<LdapEntry> found;
        const LdapFailure failure = session_->search(search, found);
        if (!failure)
            return found;
        if (failure.error == ENOENT) { // says nothing about the next search
            report(failure.error, failure.reason);
            return std::nullopt;
        }
        if (failure.error != ECONNRESET || isLastTry) {
            giveUp(failure);
            return std::nullopt;
        }
        session_.reset(); // servers end idle connections
    }
}

void LdapConnection::giveUp(const LdapFailure& failure) {
    session_.reset();
    pauseEnd_ = Clock::now() + (failure.error == EACCES ? pauseAfterRefusal : pauseAfterFailure);
    lastError_ = failure.error;
    report(failure.error, failure.reason);
}

void LdapConnection::report(int error, const std::string& line) const {
    log_(line);
    errno = error;
}

} // namespace quorvan::platform
