// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of the client provoke faults with, over the line protocol and over the port.
#include "Simulator/Conversation.h"
#include "Simulator/Embedded.h"
#include "Simulator/SocketServer.h"
#include "Tests/Simulator/SmallServer.h"
#include "Tests/Support/Socket.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <regex>
#include <sstream>

namespace quorvan::simulator {
namespace {

using testing::HasSubstr;

struct Protocol : testing::Test {
    Protocol() { addDemoData(server); }

    /// The payload, only its size when that is large, the failure, or "hung up". Words are written with "|"
    /// for the tab.
    std::string ask(std::string line, const std::string& payload = "") {
        std::replace(line.begin(), line.end(), '|', '\t');
        const ProtocolAnswer answer = client.handle(line, payload);
        if (answer.hangUp)
            return "hung up";
        if (answer.error != 0)
            return Conversation::format(answer);
        return answer.payload.size() > 99 ? std::to_string(answer.payload.size()) : answer.payload;
    }

    KelpServer server;
    bool quit = false;
    ConversationHost host{server, [this] { quit = true; }};
    Conversation client{host};
};

TEST_F(Protocol, MisbehavesAsTold) {
    const std::string request = Texts::createGetTrusteesListRequestAD(demo::crowded);
    const std::string whole = "4096 4096 4096 4096 4096 4096 4096 3394";
    const struct {
        std::vector<const char*> wrong;
        std::string answers; ///< of "open", if it fails, or of every "read" up to the empty one
    } cases[] = {
        {{"openError|5"}, "error 5\n"},
        {{"openError|5", "onlyPipe|/RightsCmdPipe"}, whole},
        {{"code|77", "cutAfter|60"}, "<adminReply><fileInfo><getFileInfo><result value=\"77\"><descr"},
        {{"garbage|<x>"}, "<x>"},
        {{"garbage|<x>", "onlyPipe|/RightsCmdPipe"}, whole},
        {{"cutAfter|5000"}, "4096 904"},
        {{"dropAfter|5000"}, "4096 904 hung up"},
        {{"passingReadErrors|2", "cutAfter|3"}, "error 4\n error 4\n <ad"},
    };
    for (const auto& [wrong, answers] : cases) {
        for (const char* each : wrong)
            EXPECT_EQ(ask(std::string("misbehave|") + each), "");
        std::string got = ask("open|ingrid.holm|IPC$|FilesCmdPipe");
        if (got.empty()) {
            ask("write|0|" + std::to_string(request.size()), request);
            for (std::string piece = "x"; !piece.empty() && piece != "hung up";) {
                piece = ask("read|9999");
                got += (got.empty() || piece.empty() ? "" : " ") + piece;
            }
        }
        EXPECT_EQ(got, answers) << testing::PrintToString(wrong);
        EXPECT_EQ(ask("behave"), "");
    }
    ask("misbehave|mountError|17");
    EXPECT_EQ(ask("mount|rvogt|kelp|IPC$"), "error 17\n");
    ask("misbehave|replyMegabytes|3");
    const std::string large = server.handle(filesPipe, demo::supervisor, request);
    EXPECT_EQ(large.size() >> 20, 3U);
    EXPECT_TRUE(large.ends_with("</padding></adminReply>"));
    ask("behave");
    ask("misbehave|delay|20");
    PipeSession session(server, smbPipe, demo::readOnly);
    EXPECT_EQ(session.delay().count(), 0);
    session.write(0, userTypeRequest);
    EXPECT_EQ(session.delay().count(), 20); // before the first piece of a reply only
    session.read(10);
    EXPECT_EQ(session.delay().count(), 0);
    for (int i = 0; i < 1200; ++i)
        server.handle(filesPipe, demo::supervisor, "x");
    EXPECT_GT(server.requestCount(), 1200U);
    EXPECT_LE(server.requests().size(), 1000U) << "the latest are kept, all are counted";
}

TEST(Misbehaviour, ChangesNothingWhereARequestFailsWithItsCode) {
    SmallServer small;
    small.server.misbehaviour.code = 20008;
    small.server.misbehaviour.onlyWith = "<removeTrustee";
    const std::string two = small.ask("boss", changes({add("S-1-5-21-3", 0), remove("S-1-5-21-2")}));
    EXPECT_THAT(two, HasSubstr("<addTrustee><result value=\"20008\">"));
    EXPECT_THAT(two, HasSubstr("<removeTrustee><result value=\"20008\">"));
    EXPECT_EQ(small.state(), SmallServer().state());
    EXPECT_EQ(codeIn(small.ask("boss", changes({add("S-1-5-21-3", 0)}))), "0");
}

TEST_F(Protocol, ShowsAndChangesTheModelAndRefusesWhatItDoesNotKnow) {
    const std::string sid = server.findAccount(demo::readOnly)->identity->id;
    std::istringstream conversation(R"(set-trustee|VOL1:\New|SID|0x41; set-filter|VOL1:\New|256
filter|VOL1:\New = 0x0100 supervisor; rights|VOL1:\New|SID = 0x0041 read fileScan
trustees|VOL1:\New = SID|0x0041|lea.fournier.; remove-trustee|VOL1:\New|SID; trustees|VOL1:\New
set-owner|VOL1:\New|S-1-9; owner|VOL1:\New = S-1-9; set-owner|nowhere|S-1-9 = error 22.
set-attributes|VOL1:\New|hidden archive; attributes|VOL1:\New = hidden archive
set-quota|VOL1:\New|9223372036854775807|512; quota|VOL1:\New = 9223372036854775807 512
set-filter|VOL2:\|0; set-user-quota|VOL2|SID|5|7; user-quotas|VOL2 = SID|5|7|lea.fournier.
mount|rvogt|x|IPC$ = error 13.; open|rvogt|IPC$|Other = error 2.; open|nobody|IPC$|ZelSmbPipe = error 13.
nonsense = error 22.; read = error 22.; read|4096 = error 9.; close = error 9.; trustees|VOL1:\no = error 2.
set-trustee|VOL1:\|S-0|1 = error 2.; set-trustee|no path|S-0|1 = error 22.; set-filter|VOL1:\|65536 = error 22.
set-attributes|VOL1:\|visible = error 22.; misbehave|delay|soon = error 22.; quit)");
    for (std::string line; std::getline(conversation, line);) {
        std::istringstream parts(std::regex_replace(line, std::regex("SID"), sid));
        for (std::string part; std::getline(parts >> std::ws, part, ';');) {
            const std::size_t middle = part.find(" = ");
            const std::string answer = ask(part.substr(0, middle));
            EXPECT_EQ(
                std::regex_replace(std::regex_replace(answer, std::regex("\t"), "|"), std::regex("\n"), "."),
                middle == std::string::npos ? "" : part.substr(middle + 3))
                << part;
        }
    }
    EXPECT_TRUE(quit);
}

TEST_F(Protocol, SurvivesItsClients) {
    SocketServer sockets(server, [] {});
    ASSERT_TRUE(sockets.start());
    const auto answersTo = [port = sockets.port()](const std::string& lines, bool linesEnd) {
        const test::Socket other;
        EXPECT_TRUE(other.connect("127.0.0.1", port) && other.send(lines));
        if (linesEnd)
            other.shutDown(SHUT_WR);
        std::string answers;
        for (std::string some = other.receive(100); !some.empty(); some = other.receive(100))
            answers += some;
        return answers;
    };
    const test::Socket idle;
    EXPECT_TRUE(idle.connect("127.0.0.1", sockets.port()));
    EXPECT_EQ(answersTo("write\t0\t18446744073709551615\n", false), "");
    EXPECT_EQ(answersTo(std::string(200000, 'x'), false), "");
    EXPECT_EQ(answersTo("open\trvogt\tIPC$\tZelSmbPipe\nwrite\t0\t20\n" + userTypeRequest.substr(0, 20) +
                            "write\t20\t22\n" + userTypeRequest.substr(20) + "read\t10\nnonsense\n",
                        true),
              "ok 0\nok 0\nok 0\nok 10\n<zelSmbGeterror 22\n");
    sockets.stop();
    EXPECT_EQ(idle.receive(1), "") << "hung up";
}

TEST(SimulatedFileSystem, LosesAPipeForGood) {
    Embedded world = Embedded::demo();
    platform::NetworkFileSystem& network = *world.network;
    const auto mount = [&](const char* url, const char* password) {
        return network.mount(url, "ingrid.holm", platform::Secret(password), {}).error;
    };
    EXPECT_EQ(mount("smb://192.0.2.10/IPC$", "kelp"), 0);
    EXPECT_EQ(mount("smb://192.0.2.10/IPC$", "Kelp"), EACCES);
    EXPECT_EQ(mount("smb://192.0.2.11/IPC$", "kelp"), EHOSTUNREACH);
    EXPECT_EQ(mount("smb://192.0.2.10/data", "kelp"), ENOENT);
    EXPECT_EQ(network.open("/Volumes/IPC$/Manage_KELP/user.cmd"), -1);
    world.server->misbehaviour.passingReadErrors = 1;
    world.server->misbehaviour.dropAfter = 4;
    const int pipe = network.open("/Volumes/IPC$/ZelSmbPipe");
    network.write(pipe, "discarded", 9);
    network.seek(pipe, 0);
    EXPECT_EQ(network.write(pipe, userTypeRequest.data(), 20), 20);
    EXPECT_EQ(network.write(pipe, userTypeRequest.data() + 20, 22), 22);
    char buffer[100];
    EXPECT_EQ(network.read(pipe, buffer, sizeof buffer), -1);
    EXPECT_EQ(errno, EINTR);
    EXPECT_EQ(network.read(pipe, buffer, sizeof buffer), 4);
    EXPECT_EQ(network.read(pipe, buffer, sizeof buffer), 0);
    EXPECT_EQ(world.server->lastRequest(), userTypeRequest);
    EXPECT_EQ(network.write(pipe, "x", 1), -1);
    EXPECT_EQ(network.close(pipe), 0);
    EXPECT_EQ(network.close(pipe), -1);
}

} // namespace
} // namespace quorvan::simulator
