// SPDX-License-Identifier: GPL-3.0-or-later
// The SMB adapter in front of a real SMB server that forwards the pipe files of kelp-server.
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/Socket.h"

#include <cerrno>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvan::test {
namespace {

using platform::SmbClientFileSystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* password = "pl3nty-0f-s3crets";
const std::string request = "<zelSmbGetInfo><userType/></zelSmbGetInfo>";

struct Adapter : testing::Test {
    void SetUp() override {
        if (run({"/usr/bin/python3", "-c", "import impacket.smbserver"}) != 0)
            GTEST_SKIP() << "python3-impacket is not installed";
        if (!Socket().bind(address, 445))
            GTEST_SKIP() << "port 445 of " << address << " cannot be opened (needs root)";
        kelpServer = std::make_unique<ChildProcess>(std::vector<std::string>{KELP_SERVER});
        const std::string port = kelpServer->readLine().substr(sizeof "port");
        ASSERT_TRUE(kelp.connect("127.0.0.1", std::stoi(port)));
        front = std::make_unique<ChildProcess>(std::vector<std::string>{"/usr/bin/python3", SMB_FRONT,
                                                                        "--address", address, "--password",
                                                                        password, "--kelp-port", port});
        ASSERT_EQ(front->readLine(), "ready");
    }
    void TearDown() override { EXPECT_THAT(log, Not(HasSubstr(password))); }

    void misbehave(const std::vector<std::string>& how) const {
        std::vector<std::string> commands{"behave"};
        for (const std::string& each : how)
            commands.push_back("misbehave\t" + each);
        for (const std::string& each : commands)
            EXPECT_TRUE(kelp.send(each + "\n") && kelp.receive(5) == "ok 0\n") << each;
    }
    /// "LOGINS FILES" once it is `expected`, or after two seconds whatever it then is: the server
    /// notices the end of a connection a moment later than the client.
    std::string sessions(const std::string& expected) const {
        std::string answer;
        for (int tries = 0; tries < 100 && (answer = front->ask("sessions")) != expected; ++tries)
            ::usleep(20'000);
        return answer;
    }
    platform::MountResult mount(const char* share = "IPC$", const char* secret = password) {
        return files.mount("smb://" + address + "/" + share, "ingrid.holm", platform::Secret(secret), {});
    }
    /// Asks a question as the client does, and returns all pieces of the answer.
    std::string exchange(int file) {
        files.seek(file, 0);
        files.write(file, request.data(), request.size());
        std::string reply;
        std::string piece(4096, '\0');
        for (ssize_t size = -1; size != 0;
             reply.append(piece, 0, static_cast<std::size_t>(std::max(size, ssize_t{0})))) {
            files.seek(file, 0);
            size = files.read(file, piece.data(), piece.size());
        }
        return reply;
    }

    const std::string address =
        "127.1." + std::to_string(::getpid() / 250 % 250) + "." + std::to_string(2 + ::getpid() % 250);
    std::unique_ptr<ChildProcess> kelpServer;
    Socket kelp;
    std::unique_ptr<ChildProcess> front; ///< reset to take the server down
    std::string log;
    SmbClientFileSystem files{[this](std::string_view line) { log.append(line).append("\n"); },
                              nullptr,
                              {.silence = std::chrono::seconds(2), .secondTry = std::chrono::seconds(1)}};
};

TEST_F(Adapter, GivesEachMountAFreeNameAndLogsOutAfterFailures) {
    EXPECT_EQ(mount("IPC$", "wrong").error, EACCES);
    EXPECT_EQ(mount("nowhere").error, ENOENT);
    EXPECT_EQ(sessions("0 0"), "0 0");
    EXPECT_THAT(mount().mountPoints, ElementsAre("/Volumes/IPC$"));
    EXPECT_THAT(mount().mountPoints, ElementsAre("/Volumes/IPC$-1"));
    EXPECT_THAT(mount("_admin").mountPoints, ElementsAre("/Volumes/_admin"));
    const int file = files.open("/Volumes/IPC$-1/ZelSmbPipe");
    EXPECT_GT(file, 0);
    EXPECT_EQ(files.open("/Volumes/IPC$/NoSuchPipe"), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(sessions("3 1"), "3 1");

    EXPECT_EQ(files.unmount("/Volumes/IPC$-1", false), -1);
    EXPECT_EQ(errno, EBUSY);
    EXPECT_EQ(files.unmount("/Volumes/IPC$-1", true), 0);
    EXPECT_EQ(files.stat("/Volumes/IPC$-1"), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(files.close(file), -1);
    EXPECT_EQ(sessions("2 0"), "2 0");
    EXPECT_EQ(files.stat("/Volumes/IPC$"), 0);
    EXPECT_THAT(mount().mountPoints, ElementsAre("/Volumes/IPC$-1"));
    for (const char* path : {"/Volumes/IPC$", "/Volumes/IPC$-1", "/Volumes/_admin"})
        EXPECT_EQ(files.unmount(path, false), 0);
    EXPECT_EQ(sessions("0 0"), "0 0");
}

TEST_F(Adapter, EndsAnExchangeWhoseServerGoesAndNoOther) {
    const struct {
        std::vector<std::string> how;
        std::size_t least, most; ///< bytes of the reply
        const char* logged;
    } cases[] = {
        {{"cutAfter\t0"}, 0, 0, ""},
        {{"passingReadErrors\t3"}, 100, 200, ""},
        {{"passingReadErrors\t1000000"}, 0, 0, "Lost the server at /Volumes/IPC$/ZelSmbPipe: "},
        {{"replyMegabytes\t20"}, 20U << 20U, 21U << 20U, ""},
        {{"delay\t4000"}, 100, 200, ""}, // slower than the time limit, but a second connection is answered
        {{"replyMegabytes\t1", "dropAfter\t8192"},
         8192,
         8192,
         "Lost the server at /Volumes/IPC$/ZelSmbPipe: "},
    };
    ASSERT_EQ(mount().error, 0);
    for (const auto& [how, least, most, logged] : cases) {
        SCOPED_TRACE(testing::PrintToString(how));
        misbehave(how);
        log.clear();
        const int file = files.open("/Volumes/IPC$/ZelSmbPipe"); // which connects anew after the drop
        ASSERT_GT(file, 0);
        const std::size_t size = exchange(file).size();
        EXPECT_TRUE(size >= least && size <= most) << size;
        EXPECT_THAT(log, StartsWith(logged));
        EXPECT_EQ(log.size() > 0, *logged != '\0') << log;
        EXPECT_EQ(files.lossOn(file) != 0, *logged != '\0');
        files.close(file);
    }
    misbehave({});
    log.clear();
    const int file = files.open("/Volumes/IPC$/ZelSmbPipe");
    EXPECT_THAT(exchange(file), HasSubstr("<userType>ActiveDirectory<"));
    front.reset();
    EXPECT_THAT(exchange(file), IsEmpty());
    EXPECT_THAT(log, StartsWith("Lost the server at /Volumes/IPC$/ZelSmbPipe: "));
    EXPECT_EQ(files.open("/Volumes/IPC$/ZelSmbPipe"), -1);
}

} // namespace
} // namespace quorvan::test
