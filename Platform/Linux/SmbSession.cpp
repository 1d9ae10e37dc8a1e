// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbSession.h"

#include <cerrno>
#include <cstring>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <netdb.h>

namespace quorvan::platform {
namespace {

/// The library's own buffers for user name and password.
constexpr std::size_t longestCredential = 255;

bool resolves(const std::string& host) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (::getaddrinfo(host.c_str(), nullptr, &hints, &found) != 0)
        return false;
    ::freeaddrinfo(found);
    return true;
}

void fillIn(char* target, int size, std::string_view text) {
    const std::size_t length = text.copy(target, static_cast<std::size_t>(size) - 1);
    target[length] = '\0';
}

} // namespace

SmbSession::SmbSession(SmbUrl share, std::string user, const std::string& password,
                       std::chrono::milliseconds timeLimit)
    : share_(std::move(share))
    , user_(std::move(user))
    , password_(password)
    , timeLimit_(timeLimit) {}

SmbSession::~SmbSession() {
    if (context_ != nullptr)
        smbc_free_context(context_, 1);
    ::explicit_bzero(password_.data(), password_.size());
}

bool SmbSession::makeContext() {
    context_ = smbc_new_context();
    if (context_ == nullptr)
        return false;
    smbc_setDebug(context_, 0);
    smbc_setTimeout(context_, static_cast<int>(timeLimit_.count()));
    smbc_setPort(context_, 445); // left to itself, the library tries NetBIOS first
    smbc_setOptionUserData(context_, this);
    smbc_setFunctionAuthDataWithContext(context_, logIn);
    smbc_setOptionUseKerberos(context_, 0);
    smbc_setOptionUseCCache(context_, 0);
    smbc_setOptionNoAutoAnonymousLogin(context_, 1);
    if (smbc_init_context(context_) == nullptr || smbc_setOptionProtocols(context_, "SMB2_02", "SMB3") == 0)
        return false;
    addToCache_ = smbc_getFunctionAddCachedServer(context_);
    removeFromCache_ = smbc_getFunctionRemoveCachedServer(context_);
    smbc_setFunctionAddCachedServer(context_, connectionAdded);
    smbc_setFunctionRemoveCachedServer(context_, connectionRemoved);
    return true;
}

int SmbSession::connect() {
    if (user_.size() > longestCredential || password_.size() > longestCredential)
        return EINVAL; // the library would log in with a part of it
    // Asked first, because the library would go on to search the local network for the name.
    if (!resolves(share_.host()))
        return EHOSTUNREACH;
    if (!makeContext())
        return errno != 0 ? errno : ENOMEM;
    errno = 0;
    // Any request makes the connection. What its own outcome is does not matter: there is nothing to
    // look at in the root of a share for pipes.
    if (stat("") == 0 || connection_ != nullptr)
        return 0;
    return errno != 0 ? errno : EIO;
}

int SmbSession::stat(const std::string& path) {
    struct stat status {};
    return smbc_getFunctionStat(context_)(context_, share_.below(path).c_str(), &status);
}

SMBCFILE* SmbSession::open(const std::string& path) {
    return smbc_getFunctionOpen(context_)(context_, share_.below(path).c_str(), O_RDWR, 0);
}

off_t SmbSession::seek(SMBCFILE* file, off_t offset) {
    return smbc_getFunctionLseek(context_)(context_, file, offset, SEEK_SET);
}

ssize_t SmbSession::read(SMBCFILE* file, void* buffer, std::size_t size) {
    return smbc_getFunctionRead(context_)(context_, file, buffer, size);
}

ssize_t SmbSession::write(SMBCFILE* file, const void* data, std::size_t size) {
    return smbc_getFunctionWrite(context_)(context_, file, data, size);
}

int SmbSession::close(SMBCFILE* file) {
    return smbc_getFunctionClose(context_)(context_, file);
}

bool SmbSession::isAlive() {
    return connection_ != nullptr && smbc_getFunctionCheckServer(context_)(context_, connection_) == 0;
}

SmbSession& SmbSession::of(SMBCCTX* context) {
    return *static_cast<SmbSession*>(smbc_getOptionUserData(context));
}

void SmbSession::logIn(SMBCCTX* context, const char* server, const char*, char*, int, char* user,
                       int userSize, char* password, int passwordSize) {
    const SmbSession& session = of(context);
    if (session.share_.host() != server)
        return; // a server may refer to another one, but the password is for this one
    fillIn(user, userSize, session.user_);
    fillIn(password, passwordSize, session.password_);
}

int SmbSession::connectionAdded(SMBCCTX* context, SMBCSRV* connection, const char* server, const char* share,
                                const char* workgroup, const char* user) {
    SmbSession& session = of(context);
    const int result = session.addToCache_(context, connection, server, share, workgroup, user);
    if (result == 0)
        session.connection_ = connection;
    return result;
}

int SmbSession::connectionRemoved(SMBCCTX* context, SMBCSRV* connection) {
    SmbSession& session = of(context);
    if (session.connection_ == connection)
        session.connection_ = nullptr;
    return session.removeFromCache_(context, connection);
}

} // namespace quorvan::platform
