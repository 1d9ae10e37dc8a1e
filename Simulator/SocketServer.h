// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Simulator/Conversation.h"

#include <cstdint>
#include <functional>
#include <list>
#include <thread>

namespace quorvan::simulator {

/// Serves a KelpServer on 127.0.0.1 with the line protocol of PROTOCOL.md, one thread per
/// connection.
class SocketServer {
public:
    /// `quit` is called, on another thread, when a client sends "quit".
    explicit SocketServer(
        KelpServer& server, std::function<void()> quit = [] {});
    ~SocketServer() { stop(); }
    SocketServer(const SocketServer&) = delete;
    SocketServer& operator=(const SocketServer&) = delete;

    /// Begins to serve, on a port of the system's choice when `port` is 0. False, with errno set,
    /// when the port cannot be had.
    bool start(std::uint16_t port = 0);

    std::uint16_t port() const { return port_; }

    /// Ends all conversations and waits for them.
    void stop();

private:
    struct Connection {
        int socket = -1;
        bool finished = false; ///< guarded by host_.mutex
        std::thread thread{};
    };

    void acceptConnections();
    void serve(Connection& connection);
    void forgetFinished();

    ConversationHost host_;
    std::list<Connection> connections_;
    std::thread acceptor_;
    int listener_ = -1;
    std::uint16_t port_ = 0;
};

} // namespace quorvan::simulator
