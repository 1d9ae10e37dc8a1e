// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/LdapSetting.h"

#include <atomic>
#include <fstream>
#include <functional>
#include <memory>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>

namespace quorvan::test {

inline sockaddr_in socketAddress(const std::string& address, int port) {
    sockaddr_in where{};
    where.sin_family = AF_INET;
    where.sin_port = ::htons(static_cast<std::uint16_t>(port));
    ::inet_pton(AF_INET, address.c_str(), &where.sin_addr);
    return where;
}

/// A domain controller with 2,500 users on a loopback address of its own; the settings of this process's
/// LDAP and Kerberos clients lead to it.
class DomainController {
public:
    static constexpr const char* administrator = "administrator";
    static constexpr const char* password = "Pl3nty-0f-s3crets";

    /// Why it cannot run here; "" when it can.
    static std::string obstacle() {
        return ChildProcess({"/usr/bin/python3", "-B", ACTIVE_DIRECTORY, "--obstacle"}).readLine();
    }

    DomainController() {
        writeClientSettings();
        server = std::make_unique<ChildProcess>(
            std::vector<std::string>{"/usr/bin/python3", "-B", ACTIVE_DIRECTORY, folder.path, address});
        if (server->readLine() != "filled")
            throw std::runtime_error("the domain controller cannot be provisioned");
        waitUntilItAnswers();
    }

    std::string file(const char* name) const { return folder.path / name; }
    std::string uri(const std::string& scheme) const { return scheme + "://" + address; }

    void start() {
        server = std::make_unique<ChildProcess>(std::vector<std::string>{
            "samba", "-F", "-M", "single", "--no-process-group", "-s", file("etc/smb.conf")});
        waitUntilItAnswers();
    }

    TemporaryFolder folder;
    std::string address =
        "127.3." + std::to_string(::getpid() / 250 % 250) + "." + std::to_string(2 + ::getpid() % 250);
    std::unique_ptr<ChildProcess> server; ///< reset to stop it

private:
    void writeClientSettings() const {
        std::ofstream(file("ldap.conf")) << "URI " << uri("ldaps") << "\nBASE dc=quorvan,dc=test\nTLS_CACERT "
                                         << file("ca.pem") << "\nTLS_REQCERT never\nSASL_NOCANON on\n";
        std::ofstream(file("krb5.conf"))
            << "[libdefaults]\ndefault_realm = QUORVAN.TEST\ndns_lookup_kdc = false\nrdns = false\n"
            << "dns_canonicalize_hostname = false\n[realms]\nQUORVAN.TEST = {\n kdc = " << address << "\n}\n";
        ::setenv("LDAPCONF", file("ldap.conf").c_str(), 1);
        ::setenv("KRB5_CONFIG", file("krb5.conf").c_str(), 1);
        ::setenv("KRB5CCNAME", file("tickets").c_str(), 1);
    }

    void waitUntilItAnswers() const {
        const sockaddr_in where = socketAddress(address, 636);
        for (int tries = 0; tries < 1200; ++tries) {
            const int probe = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
            const int failed = ::connect(probe, reinterpret_cast<const sockaddr*>(&where), sizeof where);
            ::close(probe);
            if (failed == 0)
                return;
            ::usleep(100'000);
        }
        throw std::runtime_error("the domain controller does not start");
    }
};

/// Passes one TCP connection after the other on to a port, and does something in the middle.
class Relay {
public:
    Relay(std::string address, int port)
        : address_(std::move(address))
        , target_(socketAddress(address_, port)) {
        sockaddr_in own = socketAddress(address_, 0);
        socklen_t size = sizeof own;
        ::bind(listener_, reinterpret_cast<const sockaddr*>(&own), size);
        ::listen(listener_, 8);
        ::getsockname(listener_, reinterpret_cast<sockaddr*>(&own), &size);
        port_ = ::ntohs(own.sin_port);
        thread_ = std::thread([this] { serve(); });
    }
    ~Relay() {
        refuse();
        drop();
        thread_.join();
        ::close(listener_);
    }
    Relay(const Relay&) = delete;
    Relay& operator=(const Relay&) = delete;

    std::string uri(const std::string& scheme) const {
        return scheme + "://" + address_ + ":" + std::to_string(port_);
    }

    /// Lets nobody in any more.
    void refuse() { ::shutdown(listener_, SHUT_RDWR); }

    /// Ends the connection there is.
    void drop() { ::shutdown(client_.exchange(-1), SHUT_RDWR); }

    /// How long everything from the server is on its way, in microseconds.
    std::atomic<unsigned> delay{0};
    /// Bytes from the server, of all connections.
    std::atomic<std::size_t> received{0};
    /// What happens, once, when that many have been passed on.
    std::atomic<std::size_t> limit{SIZE_MAX};
    std::function<void()> atLimit;

private:
    void serve() {
        for (int client = 0; (client = ::accept(listener_, nullptr, nullptr)) >= 0;) {
            const int server = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
            client_ = client;
            if (::connect(server, reinterpret_cast<const sockaddr*>(&target_), sizeof target_) == 0)
                pass(client, server);
            client_ = -1;
            ::close(client);
            ::close(server);
        }
    }
    void pass(int client, int server) {
        pollfd ends[] = {{client, POLLIN, 0}, {server, POLLIN, 0}};
        char buffer[65536];
        while (::poll(ends, 2, -1) > 0) {
            const bool fromServer = ends[1].revents != 0;
            ::usleep(fromServer ? delay.load() : 0);
            const ssize_t size = ::recv(fromServer ? server : client, buffer, sizeof buffer, 0);
            if (size <= 0 || ::send(fromServer ? client : server, buffer, static_cast<std::size_t>(size),
                                    MSG_NOSIGNAL) != size)
                return;
            if (fromServer && (received += static_cast<std::size_t>(size)) >= limit) {
                limit = SIZE_MAX;
                atLimit();
            }
        }
    }

    std::string address_;
    sockaddr_in target_;
    int listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    int port_ = 0;
    std::atomic<int> client_{-1};
    std::thread thread_;
};

} // namespace quorvan::test
