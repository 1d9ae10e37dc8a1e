// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/CallThread.h"
#include "Platform/Linux/LogLine.h"
#include "Platform/Linux/NameResolver.h"
#include "Platform/Linux/SmbSockets.h"
#include "Platform/Linux/SmbTimeLimits.h"
#include "Platform/NetworkFileSystem.h"

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace quorvan::platform {

class SmbSession;

/// SMB shares through libsmbclient, without root and without the kernel: a mount is an authenticated
/// session of this process, and /Volumes/NAME is only its name. For use by one thread.
///
/// Sessions log in with the given name and password alone: no prompt, no Kerberos ticket, no anonymous or
/// guest login in their place, nothing unsigned, no protocol older than SMB 2 and no NTLM older than
/// version 2. A session that broke is set up again by the next open(); the password is kept for that until
/// the share is unmounted. A refused login is not repeated with the same name and password before
/// forgetRefusals().
///
/// Files are pipes: every read gives the next piece of the reply, whatever the offset, and pieces are fetched
/// ahead. A request that could not be written whole is a loss.
///
/// Each library call runs in a thread of its own, while the calling thread keeps to the time limits and tells
/// `waiting` every second how long it has been waiting. A server that is gone is a loss: the call fails with
/// ETIMEDOUT, lossOn() says so of the file, and for a pause the server is not asked again.
///
/// How a mount fails: EINVAL for a URL that is not smb://server/share (or a password longer than the
/// library can take), EHOSTUNREACH when the name does not resolve, ECONNREFUSED or ETIMEDOUT when no
/// server answers there, EACCES when it does not accept name and password, ENOENT when it has no such
/// share.
class SmbClientFileSystem : public NetworkFileSystem {
public:
    using Waiting = std::function<void(std::chrono::seconds soFar)>;

    explicit SmbClientFileSystem(LogLine log, Waiting waiting = {}, const SmbTimeLimits& limits = {});
    ~SmbClientFileSystem() override;

    std::string resolve(const std::string& host) override;
    /// 0: mount() needs no preparation.
    int createContext(const std::string& server) override;
    MountResult mount(const std::string& url, const std::string& user, const Secret& password,
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
    int lossOn(int descriptor) const override;
    void forgetRefusals() override;

private:
    class Drip;
    struct Piece;
    struct OpenFile;
    struct Place {
        SmbSession* session = nullptr; ///< null when nothing is mounted there
        std::string rest;              ///< "" for the mount point itself, or "/dir/file"
    };

    using Clock = std::chrono::steady_clock;

    std::string freeMountPoint(const std::string& name) const;
    Place locate(const std::string& path) const;
    OpenFile* find(int descriptor) const;
    int probe(const ServerAddress& server);
    bool attend(const ServerAddress& server, const std::function<void()>& call,
                const OpenFile* file = nullptr);
    bool isPausing(const ServerAddress& server) const;
    bool isTooSlow(const OpenFile& file) const;
    void lose(OpenFile& file, int error);
    void tell(Clock::time_point since);
    static void readAhead(OpenFile& file, std::size_t size);
    ssize_t progress(OpenFile& file, std::size_t count, Clock::time_point now);

    LogLine log_;
    Waiting waiting_;
    SmbTimeLimits limits_;
    NameResolver resolver_;
    CallThread library_;
    std::map<ServerAddress, Clock::time_point> silentSince_;
    Clock::time_point told_; ///< when `waiting_` was last called
    struct Login {
        std::string user;
        Secret password;
    };
    std::map<std::string, Login> refused_;                        ///< by server
    std::map<std::string, std::unique_ptr<SmbSession>> sessions_; ///< by mount point
    std::map<int, std::shared_ptr<OpenFile>> files_;              ///< by descriptor
};

} // namespace quorvan::platform
