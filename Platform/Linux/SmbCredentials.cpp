// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbCredentials.h"

#include <utility>

namespace quorvan::platform {
namespace {

/// The library's own buffers for user name and password.
constexpr std::size_t longestCredential = 255;

void fillIn(std::span<char> target, std::string_view text) {
    target[text.copy(target.data(), target.size() - 1)] = '\0';
}

} // namespace

SmbCredentials::SmbCredentials(std::string host, std::string account, Secret password)
    : host_(std::move(host))
    , user_(std::move(account))
    , password_(std::move(password)) {
    if (const std::size_t end = user_.find('\\'); end != std::string::npos) {
        domain_ = user_.substr(0, end);
        user_.erase(0, end + 1);
    }
}

bool SmbCredentials::canUse(std::string_view account, const Secret& password) {
    return account.size() <= longestCredential && password.size() <= longestCredential;
}

void SmbCredentials::answer(std::string_view host, const LoginBuffers& buffers) const {
    if (host != host_)
        return;
    if (!domain_.empty())
        fillIn(buffers.domain, domain_);
    fillIn(buffers.user, user_);
    fillIn(buffers.password, password_.reveal());
}

} // namespace quorvan::platform
