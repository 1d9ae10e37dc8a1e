// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace quorvan::platform {

/// An SMB share, or a folder of one, that is mounted on this machine.
struct ShareMount {
    std::string server; ///< as the mount names it
    std::string share;
    std::filesystem::path folder;  ///< below the share, what is mounted; empty for the whole
    std::filesystem::path point;   ///< where it is mounted
    bool triesTicket = false;      ///< the user's Kerberos ticket opens it, where there is one
    bool hasLowerCaseName = false; ///< the file manager writes the names of shares so, whatever they are
};

/// Where mounts are looked for.
struct MountPlaces {
    std::filesystem::path mountTable = "/proc/self/mountinfo";
    std::filesystem::path runtimeFolder; ///< holds those of the file managers; "" for the user's own
};

/// What is mounted now: by the kernel (cifs, smb3), by GVfs and by kio-fuse, in this order.
std::vector<ShareMount> shareMounts(const MountPlaces& places = {});
/// The same and every other mount of the kernel, which has a point alone: it may lie within a share.
std::vector<ShareMount> allMounts(const MountPlaces& places = {});

/// smb://[USER@]HOST[:PORT]/SHARE/rest, percent-escaped: the share, and with `folder` the rest. A share
/// without a name when the text is no such address.
ShareMount shareOfAddress(const std::string& address);

} // namespace quorvan::platform
