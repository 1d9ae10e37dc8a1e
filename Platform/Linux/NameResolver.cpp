// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/NameResolver.h"

#include <algorithm>
#include <future>
#include <memory>
#include <thread>

#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace quorvan::platform {
namespace {

NameResolver::Addresses addressesOf(const std::string& host) {
    NameResolver::Addresses addresses;
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (host.empty() || ::getaddrinfo(host.c_str(), nullptr, &hints, &found) != 0)
        return addresses;
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> list(found, ::freeaddrinfo);
    for (const addrinfo* each = found; each != nullptr; each = each->ai_next) {
        char text[NI_MAXHOST] = "";
        ::getnameinfo(each->ai_addr, each->ai_addrlen, text, sizeof text, nullptr, 0, NI_NUMERICHOST);
        if (addresses.v4.empty() && each->ai_family == AF_INET)
            addresses.v4 = text;
        if (addresses.any.empty())
            addresses.any = text;
    }
    if (!addresses.v4.empty())
        addresses.any = addresses.v4;
    return addresses;
}

} // namespace

NameResolver::Addresses NameResolver::resolve(const std::string& host) {
    const auto known = answers_.find(host);
    if (known != answers_.end() && std::chrono::steady_clock::now() - known->second.since < memory)
        return known->second.addresses;
    // In a thread of its own, which ends when the system's resolver does.
    std::packaged_task<Addresses()> search([host] { return addressesOf(host); });
    std::future<Addresses> answer = search.get_future();
    std::thread(std::move(search)).detach();
    constexpr std::chrono::milliseconds interval{100};
    const auto begin = std::chrono::steady_clock::now();
    const auto isThere = [&answer](std::chrono::milliseconds patience) {
        return answer.wait_for(patience) == std::future_status::ready;
    };
    while (!isThere(std::min(interval, timeLimit_)) && std::chrono::steady_clock::now() - begin < timeLimit_)
        waiting_(begin);
    const Addresses addresses = isThere({}) ? answer.get() : Addresses();
    answers_[host] = {addresses, std::chrono::steady_clock::now()};
    return addresses;
}

} // namespace quorvan::platform
