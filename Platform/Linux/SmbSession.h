// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/SmbCredentials.h"
#include "Platform/Linux/SmbSockets.h"
#include "Platform/Linux/SmbUrl.h"

#include <chrono>
#include <memory>
#include <string>

#include <libsmbclient.h>

namespace quorvan::platform {

/// One authenticated connection to one share, by the user's Kerberos ticket where the password is empty.
/// Functions fail with -1 or null, and errno. The time limit is the library's own, for each message: a last
/// resort behind the caller's.
class SmbSession {
public:
    SmbSession(const SmbUrl& share, ServerAddress server, std::string user, const Secret& password,
               std::chrono::milliseconds timeLimit);
    ~SmbSession();
    SmbSession(const SmbSession&) = delete;
    SmbSession& operator=(const SmbSession&) = delete;

    /// Logs in and connects to the share; 0 or an errno value.
    int connect();

    const ServerAddress& server() const { return server_; }

    int stat(const std::string& path);
    SMBCFILE* open(const std::string& path);
    ssize_t read(SMBCFILE* file, off_t offset, void* buffer, std::size_t size);
    ssize_t write(SMBCFILE* file, off_t offset, const void* data, std::size_t size);
    int close(SMBCFILE* file);

private:
    static void logIn(SMBCCTX* context, const char* server, const char* share, char* workgroup,
                      int workgroupSize, char* user, int userSize, char* password, int passwordSize);
    static int connectionAdded(SMBCCTX* context, SMBCSRV* connection, const char* server, const char* share,
                               const char* workgroup, const char* user);
    static int connectionRemoved(SMBCCTX* context, SMBCSRV* connection);
    static SmbSession& of(SMBCCTX* context);
    bool makeContext();
    void seek(SMBCFILE* file, off_t offset);

    ServerAddress server_;
    SmbUrl share_; ///< on the server's address, so that the library has no name to resolve; tickets need it
    SmbCredentials credentials_;
    std::chrono::milliseconds timeLimit_;
    SMBCCTX* context_ = nullptr;
    SMBCSRV* connection_ = nullptr; ///< owned by the context
    smbc_add_cached_srv_fn addToCache_ = nullptr;
    smbc_remove_cached_srv_fn removeFromCache_ = nullptr;
};

} // namespace quorvan::platform
