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

SmbCredentials::SmbCredentials(std::string host, std::string user, Secret password)
    : host_(std::move(host))
    , user_(std::move(user))
    , password_(std::move(password)) {}

bool SmbCredentials::canUse(std::string_view user, const Secret& password) {
    return user.size() <= longestCredential && password.size() <= longestCredential;
}

void SmbCredentials::answer(std::string_view host, std::span<char> user, std::span<char> password) const {
    if (host != host_)
        return;
    fillIn(user, user_);
    fillIn(password, password_.reveal());
}

} // namespace quorvan::platform
