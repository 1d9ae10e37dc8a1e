// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvan::platform {

/// The share (or folder on a share) that an SMB URL names.
struct SmbUrl {
    std::string server; ///< host name or address as the URL has it, with ":port" when it has one
    std::string share;  ///< "IPC$" or "projects/archive", not percent-encoded, no slash at either end

    /// Takes "smb://server/share" apart; nothing for any other text, and for one with user names,
    /// parameters or blanks in the server part.
    static std::optional<SmbUrl> parse(std::string_view url);

    /// The server without its port.
    std::string host() const;

    /// The port of the server; 445 when the URL names none.
    std::uint16_t port() const;

    /// The same share on the server of an address.
    SmbUrl at(const std::string& address) const;

    /// The last component of the share.
    std::string name() const;

    /// The URL of `path` ("" or "/dir/file") below the share, percent-encoded.
    std::string below(std::string_view path) const;
};

} // namespace quorvan::platform
