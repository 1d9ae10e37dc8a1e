// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/LdapSetting.h"
#include "Tests/Support/Socket.h"

#include <atomic>
#include <fstream>
#include <functional>
#include <memory>

#include <poll.h>

namespace quorvan::test {

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
        for (int tries = 0; !Socket().connect(address, 636); ++tries) {
            if (tries == 1200)
                throw std::runtime_error("the domain controller does not start");
            ::usleep(100'000);
        }
    }
};

/// Passes one TCP connection after the other on to a port, and does something in the middle.
class Relay {
public:
    Relay(const std::string& address, int port)
        : uri("ldaps://" + address + ":")
        , server_([=, this](const Socket& client) { pass(client, address, port); }, address) {
        uri += std::to_string(server_.port());
    }
    ~Relay() {
        refuse();
        drop();
    }
    Relay(const Relay&) = delete;
    Relay& operator=(const Relay&) = delete;

    /// Lets no further client in.
    void refuse() const { server_.refuse(); }
    /// Ends the connection there is.
    void drop() { ::shutdown(client_.exchange(-1), SHUT_RDWR); }

    std::string uri;
    /// Bytes from the server, of all connections.
    std::atomic<std::size_t> received{0};
    /// What happens, once, when that many have been passed on.
    std::atomic<std::size_t> limit{SIZE_MAX};
    std::function<void()> atLimit;

private:
    void pass(const Socket& client, const std::string& address, int port) {
        const Socket server;
        client_ = client.descriptor();
        pollfd ends[] = {{client.descriptor(), POLLIN, 0}, {server.descriptor(), POLLIN, 0}};
        for (bool open = server.connect(address, port); open;) {
            ::poll(ends, 2, -1);
            const bool fromServer = ends[1].revents != 0;
            const std::string bytes = (fromServer ? server : client).receive(65536);
            open = !bytes.empty() && (fromServer ? client : server).send(bytes);
            if (fromServer && (received += bytes.size()) >= limit) {
                limit = SIZE_MAX;
                atLimit();
            }
        }
        client_ = -1;
    }

    std::atomic<int> client_{-1};
    TestServer server_; ///< last, so that it ends first
};

} // namespace quorvan::test
