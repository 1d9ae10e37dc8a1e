// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoData.h"
#include "Simulator/SocketServer.h"
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace quorvan::simulator {
namespace {

using testing::HasSubstr;

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
        std::replace(line.begin(), line.end(), '|', '\t');
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

class Protocol : public testing::Test {
protected:
    Protocol() {
        addDemoData(server);
        EXPECT_TRUE(sockets.start());
        client.emplace(sockets.port());
    }

    void expect(const std::vector<std::pair<std::string, const char*>>& conversation) {
        for (const auto& [line, answer] : conversation)
            EXPECT_EQ(client->ask(line), answer) << line;
    }

    KelpServer server;
    std::atomic<bool> quit = false;
    SocketServer sockets{server, [this] { quit = true; }};
    std::optional<Client> client;
};

TEST_F(Protocol, CarriesRequestsAndRepliesOfSeveralPipes) {
    Client second(sockets.port());
    EXPECT_EQ(client->ask("open|rvogt|ipc$|\\ZelSmbPipe"), "");
    EXPECT_EQ(second.ask("open|ingrid.holm|_admin|Manage_KELP\\user.cmd"), "");
    EXPECT_EQ(second.ask("open|ingrid.holm|IPC$|ZelSmbPipe"), ""); // takes the place of the other
    EXPECT_EQ(client->write(userTypeRequest.substr(0, 20)), "");
    EXPECT_EQ(second.write(userTypeRequest), "");
    EXPECT_EQ(client->write(userTypeRequest.substr(20), 20), "");
    EXPECT_THAT(second.ask("read|4096"), HasSubstr("<userType>ActiveDirectory<"));
    EXPECT_EQ(client->ask("read|10"), "<zelSmbGet");
    EXPECT_THAT(client->ask("read|4096"), HasSubstr("<userType>Morvane<"));
    expect({{"read|4096", ""}, {"close", ""}, {"close", "error 9\n"}, {"requests", "2"}});
}

TEST_F(Protocol, ShowsAndChangesTheModelAndRefusesWhatItDoesNotKnow) {
    const std::string sid = server.findAccount(demo::readOnly)->identity->id;
    expect({{"set-trustee|VOL1:\\New|" + sid + "|0x41", ""},
            {"set-filter|VOL1:\\New|256", ""},
            {"filter|VOL1:\\New", "0x0100 supervisor"},
            {"rights|VOL1:\\New|" + sid, "0x0041 read fileScan"},
            {"trustees|VOL1:\\New", (sid + "\t0x0041\tlea.fournier\n").c_str()},
            {"remove-trustee|VOL1:\\New|" + sid, ""},
            {"rights|VOL1:\\New|" + sid, "0x0000 "},
            {"set-owner|VOL1:\\Extra|S-1-5-21-9", ""},
            {"owner|VOL1:\\Extra", "S-1-5-21-9"},
            {"set-attributes|VOL1:\\Extra|hidden archive", ""},
            {"attributes|VOL1:\\Extra", "hidden archive"},
            {"set-quota|VOL1:\\Extra|9223372036854775807|512", ""},
            {"quota|VOL1:\\Extra", "9223372036854775807 512"},
            {"set-user-quota|VOL1|" + sid + "|5|7", ""},
            {"mount|rvogt|x|IPC$", "error 13\n"},
            {"nonsense", "error 22\n"},
            {"read", "error 22\n"},
            {"read|4096", "error 9\n"},
            {"open|rvogt|IPC$|Other", "error 2\n"},
            {"open|nobody|IPC$|ZelSmbPipe", "error 13\n"},
            {"trustees|VOL1:\\nowhere", "error 2\n"},
            {"set-trustee|VOL1:\\|S-0|1", "error 2\n"},
            {"set-trustee|no path|S-0|1", "error 22\n"},
            {"set-filter|VOL1:\\|65536", "error 22\n"},
            {"set-attributes|VOL1:\\|visible", "error 22\n"},
            {"misbehave|delay|soon", "error 22\n"}});
    EXPECT_THAT(client->ask("user-quotas|VOL1"), HasSubstr(sid + "\t5\t7\tlea.fournier\n"));
    EXPECT_THAT(client->ask("accounts"), HasSubstr("rvogt\tkelp\tMorvane\n"));
    expect({{"quit", ""}, {"write|0|18446744073709551615", "hung up"}});
    EXPECT_TRUE(quit);
    Client endless(sockets.port());
    endless.send(std::string(200000, 'x'));
    EXPECT_EQ(endless.answer(), "hung up");
}

TEST_F(Protocol, Misbehaves) {
    for (const char* line :
         {"openError|5", "mountError|17", "onlyPipe|/FilesCmdPipe", "code|77", "garbage|<x",
          "replyMegabytes|2", "cutAfter|1", "dropAfter|2", "delay|3", "passingReadErrors|4"})
        EXPECT_EQ(client->ask(std::string("misbehave|") + line), "") << line;
    const Misbehaviour& wrong = server.misbehaviour;
    EXPECT_EQ(wrong.code, 77);
    EXPECT_EQ(wrong.garbage, "<x");
    EXPECT_EQ(wrong.replyMegabytes, 2U);
    EXPECT_EQ(wrong.cutAfter, 1U);
    EXPECT_EQ(wrong.delay.count(), 3);
    expect({{"open|rvogt|IPC$|ZelSmbPipe", ""},
            {"open|rvogt|IPC$|FilesCmdPipe", "error 5\n"},
            {"mount|rvogt|kelp|IPC$", "error 17\n"},
            {"behave", ""},
            {"open|rvogt|IPC$|FilesCmdPipe", ""},
            {"misbehave|delay|1", ""},
            {"misbehave|passingReadErrors|1", ""},
            {"misbehave|dropAfter|9", ""}});
    client->write("anything");
    expect({{"read|99", "error 4\n"}, {"read|99", "<adminRep"}, {"read|99", "hung up"}});
}

TEST_F(Protocol, ServesManyConnectionsAtOnce) {
    std::atomic<int> answered = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < 20; ++j) {
                Client each(sockets.port());
                each.ask("open|rvogt|IPC$|ZelSmbPipe");
                each.write(userTypeRequest);
                answered += each.ask("read|4096").find("Morvane") != std::string::npos ? 1 : 0;
            }
        });
    }
    for (std::thread& each : threads)
        each.join();
    EXPECT_EQ(answered, 160);
    sockets.stop();
    EXPECT_EQ(client->ask("requests"), "hung up");
}

} // namespace
} // namespace quorvan::simulator
