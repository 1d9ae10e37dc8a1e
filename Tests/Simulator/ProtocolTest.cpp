// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoData.h"
#include "Simulator/SocketServer.h"
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvan::simulator {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// One connection to the server.
class Client {
public:
    explicit Client(std::uint16_t port)
        : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(port);
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(::connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    }
    ~Client() { ::close(socket_); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// The payload, or the line itself when it is no "ok"; "hung up" when there is none. Words are
    /// written with "|" for the tab.
    std::string ask(std::string line, const std::string& payload = {}) {
        for (char& c : line) {
            if (c == '|')
                c = '\t';
        }
        send(line + "\n" + payload);
        return answer();
    }

    void send(const std::string& bytes) { ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL); }

    std::string answer() {
        std::string line;
        for (char c = 0; c != '\n'; line += c) {
            if (::recv(socket_, &c, 1, 0) != 1)
                return "hung up";
        }
        if (line.compare(0, 3, "ok ") != 0)
            return line;
        std::string payload(std::stoul(line.substr(3)), '\0');
        if (!payload.empty())
            ::recv(socket_, payload.data(), payload.size(), MSG_WAITALL);
        return payload;
    }

    std::string write(const std::string& bytes, std::size_t offset = 0) {
        return ask("write|" + std::to_string(offset) + "|" + std::to_string(bytes.size()), bytes);
    }

private:
    int socket_;
};

struct Served {
    KelpServer server;
    std::atomic<bool> quit = false;
    SocketServer sockets{server, [this] { quit = true; }};
    Served() {
        addDemoData(server);
        EXPECT_TRUE(sockets.start());
    }
};

TEST(Protocol, CarriesRequestsAndRepliesOfSeveralPipes) {
    Served served;
    Client first(served.sockets.port());
    Client second(served.sockets.port());
    EXPECT_EQ(first.ask("open|rvogt|ipc$|\\ZelSmbPipe"), "");
    EXPECT_EQ(second.ask("open|ingrid.holm|_admin|Manage_KELP\\user.cmd"), "");
    EXPECT_EQ(second.ask("open|ingrid.holm|IPC$|ZelSmbPipe"), ""); // takes the place of the other
    EXPECT_EQ(first.write(userTypeRequest.substr(0, 20)), "");
    EXPECT_EQ(second.write(userTypeRequest), "");
    EXPECT_EQ(first.write(userTypeRequest.substr(20), 20), "");
    EXPECT_THAT(second.ask("read|4096"), HasSubstr("<userType>ActiveDirectory<"));
    EXPECT_EQ(first.ask("read|10"), "<zelSmbGet");
    EXPECT_THAT(first.ask("read|4096"), HasSubstr("<userType>Morvane<"));
    EXPECT_EQ(first.ask("read|4096"), "");
    EXPECT_EQ(first.ask("close"), "");
    EXPECT_EQ(first.ask("close"), "error 9\n");
    EXPECT_EQ(first.ask("requests"), "2");
    EXPECT_EQ(first.ask("last-request"), userTypeRequest);
}

TEST(Protocol, ShowsAndChangesTheModel) {
    Served served;
    Client client(served.sockets.port());
    const std::string sid = served.server.findAccount(demo::readOnly)->identity->id;
    EXPECT_EQ(client.ask("set-trustee|VOL1:\\New Folder|" + sid + "|0x41"), "");
    EXPECT_EQ(client.ask("trustees|VOL1:\\New Folder"), sid + "\t0x0041\tlea.fournier\n");
    EXPECT_EQ(client.ask("set-filter|VOL1:\\New Folder|256"), "");
    EXPECT_EQ(client.ask("filter|VOL1:\\New Folder"), "0x0100 supervisor");
    EXPECT_EQ(client.ask("rights|VOL1:\\New Folder|" + sid), "0x0041 read fileScan");
    EXPECT_EQ(client.ask("remove-trustee|VOL1:\\New Folder|" + sid), "");
    EXPECT_EQ(client.ask("rights|VOL1:\\New Folder|" + sid), "0x0000 ");
    EXPECT_EQ(client.ask("add-many|VOL1:\\New Folder|3"), "");
    EXPECT_EQ(served.server.trustees("VOL1:\\New Folder").size(), 3U);
    const std::pair<std::string, std::string> properties[] = {
        {"set-owner|VOL1:\\Extra|S-1-5-21-9", ""},
        {"owner|VOL1:\\Extra", "S-1-5-21-9"},
        {"set-attributes|VOL1:\\Extra|hidden archive", ""},
        {"attributes|VOL1:\\Extra", "hidden archive"},
        {"set-attributes|VOL1:\\Extra|", ""},
        {"attributes|VOL1:\\Extra", ""},
        {"quota|VOL1:\\Extra", "-1 0"},
        {"set-quota|VOL1:\\Extra|9223372036854775807|512", ""},
        {"quota|VOL1:\\Extra", "9223372036854775807 512"},
        {"set-user-quota|VOL1|" + sid + "|5|7", ""},
        {"set-link|VOL1:\\Away|localhost|DATA|a\\b", ""}};
    for (const auto& [line, expected] : properties)
        EXPECT_EQ(client.ask(line), expected) << line;
    EXPECT_THAT(client.ask("user-quotas|VOL1"), HasSubstr(sid + "\t5\t7\tlea.fournier\n"));
    EXPECT_EQ(served.server.volumes().find("VOL1:\\Away")->link.value().path, "a\\b");
    EXPECT_THAT(client.ask("accounts"), HasSubstr("rvogt\tkelp\tMorvane\n"));
    EXPECT_EQ(client.ask("mount|rvogt|kelp|IPC$"), "");
    EXPECT_EQ(client.ask("mount|rvogt|x|IPC$"), "error 13\n");
    EXPECT_EQ(client.ask("quit"), "");
    EXPECT_TRUE(served.quit);
}

TEST(Protocol, RefusesWhatItDoesNotKnow) {
    Served served;
    Client client(served.sockets.port());
    const std::pair<const char*, const char*> cases[] = {
        {"nonsense", "error 22\n"},
        {"read", "error 22\n"},
        {"read|4096", "error 9\n"},
        {"open|rvogt|IPC$|Other", "error 2\n"},
        {"open|nobody|IPC$|ZelSmbPipe", "error 13\n"},
        {"trustees|VOL1:\\nowhere", "error 2\n"},
        {"set-trustee|VOL1:\\|S-0|1", "error 2\n"},
        {"set-trustee|no path|S-0|1", "error 22\n"},
        {"set-filter|VOL1:\\|65536", "error 22\n"},
        {"misbehave|delay|soon", "error 22\n"},
        {"set-attributes|VOL1:\\|visible", "error 22\n"},
        {"set-quota|VOL1:\\|1|x", "error 22\n"},
        {"quota|VOL1:\\nowhere", "error 2\n"},
        {"user-quotas|VOL9", "error 2\n"},
    };
    for (const auto& [line, expected] : cases)
        EXPECT_EQ(client.ask(line), expected) << line;
    EXPECT_EQ(client.ask("write|0|18446744073709551615"), "hung up");
    Client next(served.sockets.port());
    next.send(std::string(200000, 'x'));
    EXPECT_EQ(next.answer(), "hung up");
}

TEST(Protocol, Misbehaves) {
    Served served;
    Client client(served.sockets.port());
    for (const char* line :
         {"misbehave|openError|5", "misbehave|onlyPipe|/FilesCmdPipe", "open|rvogt|IPC$|ZelSmbPipe"})
        EXPECT_EQ(client.ask(line), "") << line;
    EXPECT_EQ(client.ask("open|rvogt|IPC$|FilesCmdPipe"), "error 5\n");
    for (const char* line : {"behave", "open|rvogt|IPC$|FilesCmdPipe", "misbehave|garbage|<x",
                             "misbehave|cutAfter|1", "misbehave|passingReadErrors|1", "misbehave|delay|1"})
        EXPECT_EQ(client.ask(line), "") << line;
    client.write("anything");
    EXPECT_EQ(client.ask("read|4096"), "error 4\n");
    EXPECT_EQ(client.ask("read|4096"), "<");
    EXPECT_EQ(client.ask("read|4096"), "");
    for (const char* line : {"behave", "misbehave|code|77", "misbehave|replyMegabytes|1",
                             "misbehave|mountError|17", "misbehave|dropAfter|5000"})
        EXPECT_EQ(client.ask(line), "") << line;
    EXPECT_EQ(client.ask("mount|rvogt|kelp|IPC$"), "error 17\n");
    client.write(userTypeRequest);
    EXPECT_THAT(client.ask("read|4096"), StartsWith("<adminReply><result value=\"77\">"));
    EXPECT_EQ(client.ask("read|4096").size(), 904U);
    EXPECT_EQ(client.ask("read|4096"), "hung up");
}

TEST(Protocol, ServesManyConnectionsAtOnce) {
    Served served;
    std::atomic<int> answered = 0;
    std::vector<std::thread> threads;
    threads.reserve(8);
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < 20; ++j) {
                Client client(served.sockets.port());
                client.ask("open|rvogt|IPC$|ZelSmbPipe");
                client.write(userTypeRequest);
                answered += client.ask("read|4096").find("Morvane") != std::string::npos ? 1 : 0;
            }
        });
    }
    for (std::thread& each : threads)
        each.join();
    EXPECT_EQ(answered, 160);
    Client idle(served.sockets.port());
    EXPECT_EQ(idle.ask("requests"), "160");
    served.sockets.stop();
    EXPECT_EQ(idle.ask("requests"), "hung up");
}

} // namespace
} // namespace quorvan::simulator
