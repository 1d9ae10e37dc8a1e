// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tests/Support/ChildProcess.h"

#include <memory>
#include <sstream>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace quorvan::test {

/// A conversation with kelp-server (Simulator/PROTOCOL.md).
class KelpConversation {
public:
    explicit KelpConversation(int port) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = ::htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = ::htonl(INADDR_LOOPBACK);
        if (::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            throw std::runtime_error("kelp-server does not listen");
    }
    ~KelpConversation() { ::close(socket_); }
    KelpConversation(const KelpConversation&) = delete;
    KelpConversation& operator=(const KelpConversation&) = delete;

    /// The payload of the answer to a command whose words are separated by tabs.
    std::string ask(const std::string& command) {
        const std::string line = command + "\n";
        if (::send(socket_, line.data(), line.size(), MSG_NOSIGNAL) != static_cast<ssize_t>(line.size()))
            throw std::runtime_error("kelp-server has gone");
        std::string answer;
        while (answer.empty() || answer.back() != '\n')
            answer += receive(1);
        if (answer.rfind("ok ", 0) != 0)
            throw std::runtime_error(command + ": " + answer);
        std::string payload;
        for (std::size_t length = std::stoul(answer.substr(3)); payload.size() < length;)
            payload += receive(length - payload.size());
        return payload;
    }

private:
    std::string receive(std::size_t size) {
        std::string bytes(size, '\0');
        const ssize_t count = ::recv(socket_, bytes.data(), size, 0);
        if (count <= 0)
            throw std::runtime_error("kelp-server has hung up");
        bytes.resize(static_cast<std::size_t>(count));
        return bytes;
    }

    int socket_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

/// kelp-server behind an SMB server that nobody here wrote, on a loopback address of its own.
class RealServer {
public:
    static constexpr const char* user = "ingrid.holm";
    static constexpr const char* password = "pl3nty-0f-s3crets";

    /// Why it cannot run here; "" when it can.
    static std::string obstacle() {
        if (run({"/usr/bin/python3", "-c", "import impacket.smbserver"}) != 0)
            return "python3-impacket is not installed";
        const int probe = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const int yes = 1; // connections of an earlier test may still be winding down
        ::setsockopt(probe, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
        sockaddr_in where{};
        where.sin_family = AF_INET;
        where.sin_port = ::htons(445);
        ::inet_pton(AF_INET, loopbackAddress().c_str(), &where.sin_addr);
        const int bound = ::bind(probe, reinterpret_cast<const sockaddr*>(&where), sizeof where);
        ::close(probe);
        return bound == 0 ? "" : "port 445 of " + loopbackAddress() + " cannot be opened (needs root)";
    }

    RealServer() {
        if (front->readLine() != "ready")
            throw std::runtime_error("the SMB server does not start");
    }

    std::string url(const std::string& share) const { return "smb://" + address + "/" + share; }

    /// "LOGINS FILES" once it is `expected`, or after two seconds whatever it then is: the server
    /// notices the end of a connection a moment later than the client.
    std::string sessions(const std::string& expected) const {
        std::string answer;
        for (int tries = 0; tries < 100 && (answer = front->ask("sessions")) != expected; ++tries)
            ::usleep(20'000);
        return answer;
    }

    std::string address = loopbackAddress();
    ChildProcess kelpServer{{KELP_SERVER}};
    std::string kelpPort = kelpServer.readLine().substr(sizeof "port");
    KelpConversation kelp{std::stoi(kelpPort)};
    /// Reset to take the server down.
    std::unique_ptr<ChildProcess> front = std::make_unique<ChildProcess>(
        std::vector<std::string>{"/usr/bin/python3", SMB_FRONT, "--address", address, "--password", password,
                                 "--kelp-port", kelpPort});

private:
    /// Test programs run side by side.
    static std::string loopbackAddress() {
        const auto number = static_cast<unsigned>(::getpid());
        std::ostringstream text;
        text << "127." << 1 + number / 62500 % 250 << '.' << number / 250 % 250 << '.' << 2 + number % 250;
        return text.str();
    }
};

} // namespace quorvan::test
