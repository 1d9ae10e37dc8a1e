// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbSockets.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <vector>

#include <arpa/inet.h>
#include <linux/tcp.h>
#include <netinet/in.h>

namespace quorvan::platform {
namespace {

ServerAddress peerOf(int descriptor) {
    sockaddr_storage peer{};
    socklen_t size = sizeof peer;
    char text[INET6_ADDRSTRLEN] = "";
    if (::getpeername(descriptor, reinterpret_cast<sockaddr*>(&peer), &size) != 0)
        return {};
    if (peer.ss_family == AF_INET) {
        const auto& v4 = reinterpret_cast<const sockaddr_in&>(peer);
        return {::inet_ntop(AF_INET, &v4.sin_addr, text, sizeof text), ntohs(v4.sin_port)};
    }
    if (peer.ss_family == AF_INET6) {
        const auto& v6 = reinterpret_cast<const sockaddr_in6&>(peer);
        return {::inet_ntop(AF_INET6, &v6.sin6_addr, text, sizeof text), ntohs(v6.sin6_port)};
    }
    return {};
}

std::vector<int> connectionsTo(const ServerAddress& server) {
    std::vector<int> found;
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd", error)) {
        const std::string name = entry.path().filename().string();
        int descriptor = -1;
        std::from_chars(name.data(), name.data() + name.size(), descriptor);
        if (peerOf(descriptor) == server)
            found.push_back(descriptor);
    }
    return found;
}

} // namespace

std::optional<sockaddr_storage> ServerAddress::forSockets() const {
    sockaddr_storage address{};
    auto& v4 = reinterpret_cast<sockaddr_in&>(address);
    auto& v6 = reinterpret_cast<sockaddr_in6&>(address);
    if (::inet_pton(AF_INET, host.c_str(), &v4.sin_addr) == 1) {
        v4.sin_family = AF_INET;
        v4.sin_port = htons(port);
    } else if (::inet_pton(AF_INET6, host.c_str(), &v6.sin6_addr) == 1) {
        v6.sin6_family = AF_INET6;
        v6.sin6_port = htons(port);
    } else {
        return std::nullopt;
    }
    return address;
}

std::optional<Heard> heardFrom(const ServerAddress& server, int leftOut) {
    std::optional<Heard> heard;
    for (const int descriptor : connectionsTo(server)) {
        tcp_info info{};
        socklen_t size = sizeof info;
        if (descriptor == leftOut || ::getsockopt(descriptor, IPPROTO_TCP, TCP_INFO, &info, &size) != 0)
            continue;
        const std::chrono::milliseconds since(info.tcpi_last_data_recv);
        const Heard before = heard.value_or(Heard{since, 0});
        heard = {std::min(before.ago, since),
                 before.bytes + static_cast<std::int64_t>(info.tcpi_bytes_received)};
    }
    return heard;
}

void endConnections(const ServerAddress& server) {
    for (const int descriptor : connectionsTo(server))
        ::shutdown(descriptor, SHUT_RDWR);
}

} // namespace quorvan::platform
