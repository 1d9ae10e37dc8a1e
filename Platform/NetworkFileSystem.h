// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Secret.h"

#include <cstddef>
#include <string>
#include <vector>

#include <sys/types.h>

namespace quorvan::platform {

struct MountOptions {
    bool noUserInterface = true; ///< "UIOption": "NoUI": never show an authentication dialog
    bool allowSubMounts = true;  ///< "AllowSubMounts": a mount may lie below another
};

struct MountResult {
    int error = 0;                        ///< 0, or an errno value
    std::vector<std::string> mountPoints; ///< absolute, below /Volumes, the first one is the share's
};

/// SMB shares and the files on them.
///
/// Calls that can fail return -1 and set errno, as their POSIX namesakes do. Every call that reaches
/// the network has a time limit. `read` returns -1 only for an error that passes (EINTR, EAGAIN); once
/// the other end is gone for good it returns 0, because the only thing that ends an exchange is an empty
/// read, and `lossOn` tells that from the end of a reply.
class NetworkFileSystem {
public:
    virtual ~NetworkFileSystem() = default;

    /// The first IPv4 address of a host as dotted text; "" when the name does not resolve.
    virtual std::string resolve(const std::string& host) = 0;

    /// Prepares the desktop's SMB client for a server that was not known so far, before the first of its
    /// shares is mounted: 0, or the client's own error code.
    virtual int createContext(const std::string& server) = 0;

    /// Mounts an "smb://server/share" URL below /Volumes, under a free name.
    virtual MountResult mount(const std::string& url, const std::string& user, const Secret& password,
                              const MountOptions& options) = 0;
    virtual int unmount(const std::string& path, bool force) = 0;

    /// 0 when something is at `path`.
    virtual int stat(const std::string& path) = 0;

    /// Opens an existing file for reading and writing, not following a symbolic link; a descriptor
    /// above 0, or -1.
    virtual int open(const std::string& path) = 0;
    virtual int disableCaching(int descriptor) = 0;
    virtual off_t seek(int descriptor, off_t offset) = 0; ///< from the start of the file
    virtual ssize_t read(int descriptor, void* buffer, std::size_t size) = 0;
    virtual ssize_t write(int descriptor, const void* data, std::size_t size) = 0;
    virtual int close(int descriptor) = 0;

    /// Whether the server was lost while an open file was read or written: the errno of it, or 0. What was
    /// read is then a part of the reply, and what was written may or may not have arrived.
    virtual int lossOn(int /*descriptor*/) const { return 0; }

    /// A server that refused a login, or did not answer, is not asked again for a while, unless the user says
    /// so: this says it.
    virtual void forgetRefusals() {}
};

} // namespace quorvan::platform
