// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/NetworkFileSystem.h"
#include "Simulator/PipeSession.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quorvan::simulator {

/// The network as seen from one machine: simulated servers, their shares mounted below /Volumes.
///
/// Mounting checks user and password against the server's accounts (EACCES). Unknown servers give
/// EHOSTUNREACH, unknown shares and files ENOENT, closed descriptors EBADF.
class SimulatedFileSystem : public platform::NetworkFileSystem {
public:
    /// Makes a server known under a host name, the first label of that name, and a dotted address (case does
    /// not count); any of them serves in URLs.
    void addServer(std::shared_ptr<KelpServer> server, const std::string& host, const std::string& address);

    std::string resolve(const std::string& host) override;
    int createContext(const std::string& server) override;
    platform::MountResult mount(const std::string& url, const std::string& user,
                                const platform::Secret& password,
                                const platform::MountOptions& options) override;
    int unmount(const std::string& path, bool force) override;
    int stat(const std::string& path) override;
    int open(const std::string& path) override;
    int disableCaching(int descriptor) override;
    off_t seek(int descriptor, off_t offset) override;
    ssize_t read(int descriptor, void* buffer, std::size_t size) override;
    ssize_t write(int descriptor, const void* data, std::size_t size) override;
    int close(int descriptor) override;
    int lossOn(int descriptor) const override;

    // For tests.

    /// Takes a mount away as if the network had; no call is recorded.
    void unmountBehindTheBack(const std::string& path) { mounts_.erase(path); }

    std::vector<std::string> mountedPaths() const;
    std::size_t openDescriptors() const { return files_.size(); }

    /// Every call since the start or the last clear: "mount smb://host/IPC$ user", "unmount PATH force",
    /// "stat PATH", "open PATH", "nocache 3", "seek 3 0", "read 3 4096", "write 3 120", "close 3",
    /// "resolve HOST", "context SERVER". Passwords are not recorded.
    std::vector<std::string> calls;

    /// How many of the calls begin with this word.
    std::size_t count(std::string_view word) const;

private:
    struct Server {
        std::shared_ptr<KelpServer> server;
        std::string host;
        std::string address;
    };
    struct Mount {
        std::shared_ptr<KelpServer> server;
        std::string share;
        std::string user;
    };
    struct OpenFile {
        std::shared_ptr<KelpServer> server;
        PipeSession session;
        off_t offset = 0;
    };

    const Server* findServer(std::string_view name) const;
    std::string freeMountPoint(const std::string& share) const;
    const Mount* findMount(const std::string& path, std::string& rest) const;
    OpenFile* findFile(int descriptor);

    std::vector<Server> servers_;
    std::map<std::string, Mount> mounts_; ///< by mount point
    std::map<int, OpenFile> files_;
    int nextDescriptor_ = 3;
};

} // namespace quorvan::simulator
