// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace quorvan {

/// A special file through which the server's management services are reached, and the share it is on.
struct ManagementPipe {
    const char* share;
    const char* file;
};

namespace pipes {

/// Trustees, the filter and effective rights of a path, its attributes, owner and directory quota.
inline constexpr ManagementPipe files{"/IPC$", "/FilesCmdPipe"};
/// The rights of a path and of everything below it.
inline constexpr ManagementPipe rights{"/IPC$", "/RightsCmdPipe"};
/// The logged-in user's kind, and where links lead.
inline constexpr ManagementPipe smbInformation{"/IPC$", "/ZelSmbPipe"};
inline constexpr ManagementPipe directoryTree{"/_admin", "/Manage_KELP/TRELL.cmd"};
inline constexpr ManagementPipe userQuotas{"/_admin", "/Manage_KELP/user.cmd"};

} // namespace pipes

} // namespace quorvan
