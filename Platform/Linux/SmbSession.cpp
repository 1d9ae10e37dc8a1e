// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbSession.h"

#include "Platform/Linux/SmbConfiguration.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>

namespace quorvan::platform {

SmbSession::SmbSession(const SmbUrl& share, ServerAddress server, std::string user, const Secret& password,
                       std::chrono::milliseconds timeLimit)
    : server_(std::move(server))
    , share_(password.empty() ? share : share.at(server_.host))
    , credentials_(share_.host(), std::move(user), password.share())
    , timeLimit_(timeLimit) {}

SmbSession::~SmbSession() {
    if (context_ != nullptr)
        smbc_free_context(context_, 1);
}

bool SmbSession::makeContext() {
    context_ = newSmbContext();
    if (context_ == nullptr)
        return false;
    smbc_setDebug(context_, 0);
    smbc_setTimeout(context_, static_cast<int>(timeLimit_.count()));
    smbc_setPort(context_, 445); // left to itself, the library tries NetBIOS first
    smbc_setOptionUserData(context_, this);
    smbc_setFunctionAuthDataWithContext(context_, logIn);
    smbc_setOptionUseKerberos(context_, credentials_.hasPassword() ? 0 : 1);
    smbc_setOptionFallbackAfterKerberos(context_, 1);
    smbc_setOptionUseCCache(context_, 0);
    smbc_setOptionNoAutoAnonymousLogin(context_, 1);
    // Below this level the library takes a guest login for the user's, and signs nothing but the login where
    // the server does not insist; at this one each packet is signed, and encrypted where the server can.
    smbc_setOptionSmbEncryptionLevel(context_, SMBC_ENCRYPTLEVEL_REQUEST);
    if (smbc_init_context(context_) == nullptr || smbc_setOptionProtocols(context_, "SMB2_02", "SMB3") == 0)
        return false;
    addToCache_ = smbc_getFunctionAddCachedServer(context_);
    removeFromCache_ = smbc_getFunctionRemoveCachedServer(context_);
    smbc_setFunctionAddCachedServer(context_, connectionAdded);
    smbc_setFunctionRemoveCachedServer(context_, connectionRemoved);
    return true;
}

int SmbSession::connect() {
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

ssize_t SmbSession::read(SMBCFILE* file, off_t offset, void* buffer, std::size_t size) {
    seek(file, offset);
    return smbc_getFunctionRead(context_)(context_, file, buffer, size);
}

ssize_t SmbSession::write(SMBCFILE* file, off_t offset, const void* data, std::size_t size) {
    seek(file, offset);
    return smbc_getFunctionWrite(context_)(context_, file, data, size);
}

void SmbSession::seek(SMBCFILE* file, off_t offset) {
    smbc_getFunctionLseek(context_)(context_, file, offset, SEEK_SET); // costs no message
}

int SmbSession::close(SMBCFILE* file) {
    return smbc_getFunctionClose(context_)(context_, file);
}

SmbSession& SmbSession::of(SMBCCTX* context) {
    return *static_cast<SmbSession*>(smbc_getOptionUserData(context));
}

void SmbSession::logIn(SMBCCTX* context, const char* server, const char*, char* domain, int domainSize,
                       char* user, int userSize, char* password, int passwordSize) {
    of(context).credentials_.answer(server, {{domain, static_cast<std::size_t>(domainSize)},
                                             {user, static_cast<std::size_t>(userSize)},
                                             {password, static_cast<std::size_t>(passwordSize)}});
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
