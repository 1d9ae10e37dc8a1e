// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbProbe.h"

#include <array>
#include <cerrno>
#include <cstring>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvan::platform {
namespace {

constexpr std::size_t lengthOfHeader = 64;
constexpr std::size_t lengthOfNegotiate = 36;
constexpr std::array<std::uint16_t, 3> dialects = {0x0202, 0x0210, 0x0302};
constexpr std::size_t lengthOfMessage = lengthOfHeader + lengthOfNegotiate + 2 * dialects.size();

/// An SMB2 NEGOTIATE request behind its length ([MS-SMB2] 2.2.3), all of whose other fields may be zero.
std::array<std::uint8_t, 4 + lengthOfMessage> negotiateRequest() {
    std::array<std::uint8_t, 4 + lengthOfMessage> bytes{};
    const auto put = [&bytes](std::size_t at, std::uint16_t value) { // little-endian
        bytes[at] = static_cast<std::uint8_t>(value & 0xFFU);
        bytes[at + 1] = static_cast<std::uint8_t>(value >> 8U);
    };
    bytes[3] = lengthOfMessage;
    const std::size_t header = 4;
    std::memcpy(&bytes[header], "\xFESMB", 4);
    put(header + 4, lengthOfHeader);
    put(header + 14, 1); // credits
    const std::size_t negotiate = header + lengthOfHeader;
    put(negotiate, lengthOfNegotiate);
    put(negotiate + 2, dialects.size());
    put(negotiate + 4, 1); // signing is possible
    for (std::size_t at = 0; at < dialects.size(); ++at)
        put(negotiate + lengthOfNegotiate + 2 * at, dialects[at]);
    return bytes;
}

} // namespace

SmbProbe::SmbProbe(const ServerAddress& server) {
    const auto peer = server.forSockets();
    if (!peer) {
        fail(EHOSTUNREACH);
        return;
    }
    socket_ = ::socket(peer->ss_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (::connect(socket_, reinterpret_cast<const sockaddr*>(&*peer), sizeof *peer) != 0 &&
        errno != EINPROGRESS)
        fail(errno);
}

SmbProbe::~SmbProbe() {
    if (socket_ >= 0)
        ::close(socket_);
}

SmbProbe::State SmbProbe::fail(int error) {
    error_ = error;
    return state_ = State::failed;
}

bool SmbProbe::isReady(short events, std::chrono::milliseconds patience) const {
    pollfd each{socket_, events, 0};
    return ::poll(&each, 1, static_cast<int>(patience.count())) > 0;
}

SmbProbe::State SmbProbe::state(std::chrono::milliseconds patience) {
    if (state_ != State::waiting)
        return state_;
    if (!asked_ && isReady(POLLOUT, patience)) {
        int error = 0;
        socklen_t size = sizeof error;
        ::getsockopt(socket_, SOL_SOCKET, SO_ERROR, &error, &size);
        if (error != 0)
            return fail(error);
        static const auto request = negotiateRequest();
        if (::send(socket_, request.data(), request.size(), MSG_NOSIGNAL) != ssize_t{request.size()})
            return fail(errno);
        asked_ = true;
    }
    if (asked_ && isReady(POLLIN, patience)) {
        char byte = 0;
        const ssize_t count = ::recv(socket_, &byte, 1, 0);
        if (count != 1)
            return fail(count == 0 ? ECONNRESET : errno);
        state_ = State::answered;
    }
    return state_;
}

} // namespace quorvan::platform
