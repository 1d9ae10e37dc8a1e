// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

/// TCP on the loopback addresses, for tests that talk to a server or stand in for one.
namespace quorvan::test {

/// A socket that is closed with this object.
class Socket {
public:
    explicit Socket(int descriptor = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
        : descriptor_(descriptor) {}
    ~Socket() { ::close(descriptor_); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    /// Whether a server is there.
    bool connect(const std::string& address, int port) const {
        const sockaddr_in where = at(address, port);
        return ::connect(descriptor_, reinterpret_cast<const sockaddr*>(&where), sizeof where) == 0;
    }
    /// Whether the port could be taken; 0 stands for any that is free. Connections to it are refused until
    /// listen(), and then wait for accept().
    bool bind(const std::string& address = "127.0.0.1", int port = 0) const {
        const int yes = 1; // connections of an earlier test may still be winding down
        ::setsockopt(descriptor_, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        const sockaddr_in where = at(address, port);
        return ::bind(descriptor_, reinterpret_cast<const sockaddr*>(&where), sizeof where) == 0;
    }
    void listen() const { ::listen(descriptor_, 8); }
    /// The descriptor of the next client; negative once this socket is shut down.
    int accept() const { return ::accept(descriptor_, nullptr, nullptr); }
    int port() const {
        sockaddr_in own{};
        socklen_t size = sizeof own;
        ::getsockname(descriptor_, reinterpret_cast<sockaddr*>(&own), &size);
        return ::ntohs(own.sin_port);
    }

    bool send(std::string_view bytes) const {
        return ::send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL) ==
               static_cast<ssize_t>(bytes.size());
    }
    /// At most so many bytes, as soon as there are any; none when the other side has hung up.
    std::string receive(std::size_t size) const {
        std::string bytes(size, '\0');
        bytes.resize(static_cast<std::size_t>(
            std::max(ssize_t{0}, ::recv(descriptor_, bytes.data(), bytes.size(), 0))));
        return bytes;
    }
    void shutDown(int how = SHUT_RDWR) const { ::shutdown(descriptor_, how); }
    int descriptor() const { return descriptor_; }

private:
    static sockaddr_in at(const std::string& address, int port) {
        sockaddr_in where{};
        where.sin_family = AF_INET;
        where.sin_port = ::htons(static_cast<std::uint16_t>(port));
        ::inet_pton(AF_INET, address.c_str(), &where.sin_addr);
        return where;
    }
    int descriptor_;
};

/// A server on a free port, in a thread of its own, for one client after the other. A client ends with the
/// function that serves it; that has to return before this object can end.
class TestServer {
public:
    explicit TestServer(std::function<void(const Socket& client)> serve,
                        const std::string& address = "127.0.0.1") {
        listener_.bind(address);
        listener_.listen();
        thread_ = std::thread([this, serve = std::move(serve)] {
            for (int client = 0; (client = listener_.accept()) >= 0;)
                serve(Socket(client));
        });
    }
    ~TestServer() {
        refuse();
        thread_.join();
    }
    TestServer(const TestServer&) = delete;
    TestServer& operator=(const TestServer&) = delete;

    int port() const { return listener_.port(); }
    /// Lets no further client in.
    void refuse() const { listener_.shutDown(); }

private:
    Socket listener_;
    std::thread thread_;
};

} // namespace quorvan::test
