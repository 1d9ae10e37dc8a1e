// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Conversation.h"
#include "Simulator/DemoData.h"
#include "Simulator/SocketServer.h"
#include "Tests/Simulator/SmallServer.h"
#include "Tests/Support/Socket.h"

#include <gmock/gmock.h>

#include <atomic>
#include <thread>

namespace quorvan::simulator {
namespace {

using testing::HasSubstr;

class Protocol : public testing::Test {
protected:
    Protocol() { addDemoData(server); }

    /// The payload, the failure, or "hung up". Words are written with "|" for the tab.
    static std::string ask(Conversation& client, std::string line, const std::string& payload = "") {
        std::replace(line.begin(), line.end(), '|', '\t');
        const ProtocolAnswer answer = client.handle(line, payload);
        if (answer.hangUp)
            return "hung up";
        return answer.error == 0 ? answer.payload : Conversation::format(answer);
    }
    void expect(const std::vector<std::pair<std::string, const char*>>& conversation) {
        for (const auto& [line, answer] : conversation)
            EXPECT_EQ(ask(client, line), answer) << line;
    }

    KelpServer server;
    bool quit = false;
    ConversationHost host{server, [this] { quit = true; }};
    Conversation client{host};
};

TEST_F(Protocol, CarriesRequestsAndRepliesOfSeveralPipes) {
    Conversation second(host);
    EXPECT_EQ(ask(client, "open|rvogt|ipc$|\\ZelSmbPipe"), "");
    EXPECT_EQ(ask(second, "open|ingrid.holm|_admin|Manage_KELP\\user.cmd"), "");
    EXPECT_EQ(ask(second, "open|ingrid.holm|IPC$|ZelSmbPipe"), ""); // takes the place of the other
    EXPECT_EQ(ask(client, "write|0|20", userTypeRequest.substr(0, 20)), "");
    EXPECT_EQ(ask(second, "write|0|42", userTypeRequest), "");
    EXPECT_EQ(ask(client, "write|20|22", userTypeRequest.substr(20)), "");
    EXPECT_THAT(ask(second, "read|4096"), HasSubstr("<userType>ActiveDirectory<"));
    EXPECT_EQ(ask(client, "read|10"), "<zelSmbGet");
    EXPECT_THAT(ask(client, "read|4096"), HasSubstr("<userType>Morvane<"));
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
            {"misbehave|delay|soon", "error 22\n"},
            {"quit", ""}});
    EXPECT_THAT(ask(client, "user-quotas|VOL1"), HasSubstr(sid + "\t5\t7\tlea.fournier\n"));
    EXPECT_THAT(ask(client, "accounts"), HasSubstr("rvogt\tkelp\tMorvane\n"));
    EXPECT_TRUE(quit);
}

TEST_F(Protocol, Misbehaves) {
    for (const char* field :
         {"openError|5", "mountError|17", "onlyPipe|/FilesCmdPipe", "code|77", "garbage|<x",
          "replyMegabytes|2", "cutAfter|1", "dropAfter|2", "delay|3", "passingReadErrors|4"})
        EXPECT_EQ(ask(client, std::string("misbehave|") + field), "") << field;
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
    ask(client, "write|0|8", "anything");
    expect({{"read|99", "error 4\n"}, {"read|99", "<adminRep"}, {"read|99", "hung up"}});
}

/// All that comes back before the server hangs up, which it does by itself or when the lines end.
std::string answersTo(std::uint16_t port, const std::string& lines, bool linesEnd = true) {
    const test::Socket client;
    EXPECT_TRUE(client.connect("127.0.0.1", port));
    client.send(lines);
    if (linesEnd)
        client.shutDown(SHUT_WR);
    std::string answers;
    for (std::string some = client.receive(100); !some.empty(); some = client.receive(100))
        answers += some;
    return answers;
}

TEST_F(Protocol, ServesManyConnectionsAtOnce) {
    SocketServer sockets(server, [] {});
    ASSERT_TRUE(sockets.start());
    const test::Socket idle;
    EXPECT_TRUE(idle.connect("127.0.0.1", sockets.port()));
    const std::string lines =
        "open\trvogt\tIPC$\tZelSmbPipe\nwrite\t0\t42\n" + userTypeRequest + "read\t10\nnonsense\n";
    std::atomic<int> answered = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&] {
            for (int j = 0; j < 20; ++j)
                answered += answersTo(sockets.port(), lines) == "ok 0\nok 0\nok 10\n<zelSmbGeterror 22\n";
        });
    }
    for (std::thread& each : threads)
        each.join();
    EXPECT_EQ(answered, 160);
    EXPECT_EQ(answersTo(sockets.port(), "write\t0\t18446744073709551615\n", false), "");
    EXPECT_EQ(answersTo(sockets.port(), std::string(200000, 'x'), false), "");
    sockets.stop();
    EXPECT_EQ(idle.receive(1), "") << "hung up";
}

} // namespace
} // namespace quorvan::simulator
