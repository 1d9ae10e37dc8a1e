// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Secret.h"

#include <span>
#include <string>
#include <string_view>

namespace quorvan::platform {

/// Where the library wants to have a login, as texts that end in a null.
struct LoginBuffers {
    std::span<char> domain;
    std::span<char> user;
    std::span<char> password;
};

/// Name and password for one server, and for no other that it may refer to.
class SmbCredentials {
public:
    /// An account DOMAIN\USER logs in to that domain.
    SmbCredentials(std::string host, std::string account, Secret password);

    bool hasPassword() const { return !password_.empty(); }

    /// Whether the library takes these as they are; it would log in with a part of longer ones.
    static bool canUse(std::string_view account, const Secret& password);

    /// Answers the library's question for a login: fills its buffers when `host` is the server that this is
    /// for, and leaves them as they are for any other; that of the domain, too, for an account without one.
    void answer(std::string_view host, const LoginBuffers& buffers) const;

private:
    std::string host_;
    std::string domain_;
    std::string user_;
    Secret password_;
};

} // namespace quorvan::platform
