// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/SocketServer.h"

#include <array>
#include <cerrno>
#include <string>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvan::simulator {

namespace {

constexpr std::size_t longestLine = 64 * 1024;
constexpr std::size_t largestPayload = 256 * 1024 * 1024;

/// The bytes that come from a socket, cut into lines and payloads.
class Receiver {
public:
    explicit Receiver(int socket)
        : socket_(socket) {}

    bool line(std::string& into) {
        std::size_t end = 0;
        while ((end = buffer_.find('\n')) == std::string::npos) {
            if (buffer_.size() > longestLine || !receive())
                return false;
        }
        into = buffer_.substr(0, end);
        buffer_.erase(0, end + 1);
        return true;
    }

    bool payload(std::size_t size, std::string& into) {
        while (buffer_.size() < size) {
            if (!receive())
                return false;
        }
        into = buffer_.substr(0, size);
        buffer_.erase(0, size);
        return true;
    }

private:
    bool receive() {
        std::array<char, 65536> bytes;
        ssize_t length = 0;
        do {
            length = ::recv(socket_, bytes.data(), bytes.size(), 0);
        } while (length < 0 && errno == EINTR);
        if (length <= 0)
            return false;
        buffer_.append(bytes.data(), static_cast<std::size_t>(length));
        return true;
    }

    int socket_;
    std::string buffer_;
};

bool sendAll(int socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t length = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (length < 0 && errno == EINTR)
            continue;
        if (length <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(length));
    }
    return true;
}

} // namespace

SocketServer::SocketServer(KelpServer& server, std::function<void()> quit)
    : host_{server, std::move(quit)} {}

bool SocketServer::start(std::uint16_t port) {
    listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (listener_ < 0)
        return false;
    const int yes = 1;
    ::setsockopt(listener_, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (::bind(listener_, generic, length) != 0 || ::listen(listener_, SOMAXCONN) != 0 ||
        ::getsockname(listener_, generic, &length) != 0) {
        const int error = errno;
        ::close(std::exchange(listener_, -1));
        errno = error;
        return false;
    }
    port_ = ntohs(address.sin_port);
    acceptor_ = std::thread([this] { acceptConnections(); });
    return true;
}

void SocketServer::acceptConnections() {
    for (;;) {
        const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0) {
            if (errno == EINTR || errno == ECONNABORTED)
                continue;
            return; // the listener was shut down
        }
        const int yes = 1;
        ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
        forgetFinished();
        Connection* connection = nullptr;
        {
            const std::lock_guard lock(host_.mutex);
            connection = &connections_.emplace_back();
            connection->socket = socket;
        }
        connection->thread = std::thread([this, connection] { serve(*connection); });
    }
}

void SocketServer::serve(Connection& connection) {
    Conversation conversation(host_);
    Receiver receiver(connection.socket);
    std::string line;
    std::string payload;
    while (receiver.line(line)) {
        const std::size_t size = Conversation::payloadSize(line);
        if (size > largestPayload || !receiver.payload(size, payload))
            break;
        const ProtocolAnswer answer = conversation.handle(line, payload);
        if (answer.hangUp || !sendAll(connection.socket, Conversation::format(answer)))
            break;
    }
    const std::lock_guard lock(host_.mutex);
    ::close(connection.socket);
    connection.finished = true;
}

void SocketServer::forgetFinished() {
    std::list<Connection> finished;
    {
        const std::lock_guard lock(host_.mutex);
        for (auto at = connections_.begin(); at != connections_.end();) {
            const auto next = std::next(at);
            if (at->finished)
                finished.splice(finished.end(), connections_, at);
            at = next;
        }
    }
    for (Connection& each : finished)
        each.thread.join();
}

void SocketServer::stop() {
    if (listener_ < 0)
        return;
    ::shutdown(listener_, SHUT_RDWR);
    acceptor_.join();
    ::close(std::exchange(listener_, -1));
    {
        const std::lock_guard lock(host_.mutex);
        for (const Connection& each : connections_) {
            if (!each.finished)
                ::shutdown(each.socket, SHUT_RDWR);
        }
    }
    for (Connection& each : connections_)
        each.thread.join();
    connections_.clear();
}

} // namespace quorvan::simulator
