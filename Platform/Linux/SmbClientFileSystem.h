// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/LogLine.h"
#include "Platform/NetworkFileSystem.h"

#include <chrono>
#include <map>
#include <memory>

namespace quorvan::platform {

class SmbSession;

/// SMB shares through libsmbclient, without root and without the kernel: a mount is an authenticated
/// session of this process, and /Volumes/NAME is only its name. For use by one thread.
///
/// Sessions log in with the given name and password alone: no prompt, no Kerberos ticket, no anonymous
/// or guest login in their place, no protocol older than SMB 2. A session that broke is set up again
/// by the next open(); the password is kept for that until the share is unmounted.
///
/// How a mount fails: EINVAL for a URL that is not smb://server/share (or a password longer than the
/// library can take), EHOSTUNREACH when the name does not resolve, ECONNREFUSED or ETIMEDOUT when no
/// server answers there, EACCES when it does not accept name and password, ENOENT when it has no such
/// share.
class SmbClientFileSystem : public NetworkFileSystem {
public:
    /// `timeLimit` bounds each exchange of messages with a server.
    explicit SmbClientFileSystem(LogLine log, std::chrono::milliseconds timeLimit = std::chrono::seconds(20));
    ~SmbClientFileSystem() override;

    std::string resolve(const std::string& host) override;
    /// 0: mount() needs no preparation.
    int createContext(const std::string& server) override;
    MountResult mount(const std::string& url, const std::string& user, const std::string& password,
                      const MountOptions& options) override;
    /// EINVAL when nothing is mounted there, EBUSY when files are open and `force` is false.
    int unmount(const std::string& path, bool force) override;
    int stat(const std::string& path) override;
    int open(const std::string& path) override;
    int disableCaching(int descriptor) override;
    off_t seek(int descriptor, off_t offset) override;
    ssize_t read(int descriptor, void* buffer, std::size_t size) override;
    ssize_t write(int descriptor, const void* data, std::size_t size) override;
    int close(int descriptor) override;

private:
    struct OpenFile;
    struct Place {
        SmbSession* session = nullptr; ///< null when nothing is mounted there
        std::string rest;              ///< "" for the mount point itself, or "/dir/file"
    };

    std::string freeMountPoint(const std::string& name) const;
    Place locate(const std::string& path) const;
    OpenFile* find(int descriptor) const;

    LogLine log_;
    std::chrono::milliseconds timeLimit_;
    std::map<std::string, std::unique_ptr<SmbSession>> sessions_; ///< by mount point
    std::map<int, std::unique_ptr<OpenFile>> files_;              ///< by descriptor
};

} // namespace quorvan::platform
