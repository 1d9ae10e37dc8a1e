// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;

class Pipe : public Session {
protected:
    std::int32_t open(const std::string& server = "srv1") {
        world.network->calls.clear();
        log.take();
        const std::int32_t status = controller.openPipe(server, "/IPC$", "/FilesCmdPipe");
        calls = joined(world.network->calls);
        lines = joined(log.take());
        XMLReadWriteController::closePipe();
        return status;
    }
    std::string calls; ///< what opening asked of the network
    std::string lines; ///< what it logged
    std::map<std::string, std::string>& mounts = DictionaryForMountedPIPE::mountDict().PipeMapDict;
};

TEST_F(Pipe, IsOpenedOnANewMount) {
    XMLReadWriteController::fileDes = -1;
    EXPECT_EQ(open(), 0);
    EXPECT_EQ(XMLReadWriteController::fileDes, 7);
    EXPECT_EQ(lines, "Getting ip of mapped server - srv1 > Resolved srv1 to 10.1.2.3 > Checking for exisitng "
                     "pipes mapped > Mounting pipe for smb://srv1/IPC$ > Adding new mount point to "
                     "dictionary - key : 10.1.2.3/IPC$ value : /IPC$ > Mounted virtual volume successfully > "
                     "Opened pipe /Volumes/IPC$/FilesCmdPipe with expected error on server srv1 and error id "
                     "is 0 > Registered as managed device on srv1 server");
    EXPECT_EQ(world.busy->begun, 1);
    EXPECT_EQ(world.busy->running, 0);
}

TEST_F(Pipe, FindsAMountAgainAndMountsAnewWhatIsGone) {
    world.network->mountResult.mountPoints = {"/Volumes/new", "/Volumes/other"};
    for (const auto& [server, key, value, statError, network, logged, keyAfter] : table<7>(R"(
srv1 | srv1/_admin   | /I | 0  | mount smb://srv1/IPC$ bob secret NoUI AllowSubMounts > open /Volumes/new
    | key : 10.1.2.3/IPC$ value : /IPC$ | 10.1.2.3/IPC$
srv1 | 10.1.2.3/IPC$ | /I | 0  | stat /Volumes/I > open /Volumes/I
    | 10.1.2.3/IPC$ is already mounted. Stat status 0 > srv1 is mounted at /I > Opened | 10.1.2.3/IPC$
gone | gone/IPC$     | /I | 13 | stat /Volumes/I > open /Volumes/I
    | gone/IPC$ is already mounted. Stat status -1 > gone is mounted at /I > Opened | gone/IPC$
srv1 | 10.1.2.3/IPC$ | /I | 2  | stat /Volumes/I > mount smb://srv1/IPC$ bob secret NoUI AllowSubMounts >
    open /Volumes/new | Checking for exisitng pipes mapped > Mounting pipe for | 10.1.2.3/IPC$
srv1 | 10.1.2.3/IPC$ |    | 0  | mount smb://srv1/IPC$ bob secret NoUI AllowSubMounts > open /Volumes/new
    | Mounting pipe for smb://srv1/IPC$ | 10.1.2.3/IPC$
gone | /IPC$         | /I | 0  | mount smb://gone/IPC$ bob secret NoUI AllowSubMounts > open /Volumes/new
    | Mounting pipe for smb://gone/IPC$ > Adding new mount point | /IPC$
)")) {
        mounts = {{key, value}};
        world.network->statError = std::stoi(statError);
        EXPECT_EQ(open(server), 0);
        EXPECT_EQ(calls, "resolve " + server + " > " + network + "/FilesCmdPipe");
        EXPECT_THAT(lines, HasSubstr(logged));
        EXPECT_EQ(mounts[keyAfter], calls.ends_with("/new/FilesCmdPipe") ? "/new" : "/I");
        EXPECT_EQ(mounts.size(), key == keyAfter ? 1U : 2U);
    }
    world.network->statError = ENOENT;
    mounts = {{"10.1.2.3/IPC$", "/I"}, {"/Volumes/I", "/J"}};
    EXPECT_EQ(controller.searchMountPathinDict("10.1.2.3/IPC$"), "");
    EXPECT_THAT(mounts, ElementsAre(testing::Pair("10.1.2.3/IPC$", "/I"))) << "the path is no key of it";
    ServerDetails::serverInfo().domain = "MERIDAL";
    mounts.clear();
    EXPECT_EQ(open("srv1"), 0);
    EXPECT_THAT(calls, HasSubstr("mount smb://srv1/IPC$ MERIDAL\\bob secret"));
}

TEST_F(Pipe, TellsWhyItCannotBeOpened) {
    for (const auto& [mountError, mountPoint, descriptor, openError, status, end] : table<6>(R"(
17 |               | 7  | 0  | 17 | Error mounting.. Force unmount smb://srv1/IPC$ to proceed
2  |               | 7  | 0  | 2  | Virtual mount volume does not exist.
13 |               | 7  | 0  | 13 | Error mounting virtual volume due to error code 13
0  |               | 7  | 0  | -1 | > Mounting pipe for smb://srv1/IPC$
0  | /Volumes/IPC$ | -1 | 13 | -1 | successfully > Could not open pipe - /Volumes/IPC$/FilesCmdPipe due to 13. >
    Unable to mount pipe : err - -1
0  | /Volumes/IPC$ | -1 | 5  | -1 | error id is 5 > Registered as managed device on srv1 server >
    Unable to mount pipe : err - -1
0  | /Volumes/IPC$ | 0  | 0  | 0  | Unable to mount pipe : err - 0
)")) {
        mounts.clear();
        world.network->mountResult = {std::stoi(mountError), {}};
        if (!mountPoint.empty())
            world.network->mountResult.mountPoints = {mountPoint};
        world.network->openResult = std::stoi(descriptor);
        world.network->openError = std::stoi(openError);
        EXPECT_EQ(open(), std::stoi(status));
        EXPECT_THAT(lines, EndsWith(end));
        EXPECT_EQ(mounts.empty(), mountPoint.empty());
    }
    mounts.clear();
    world.network->mountResult = {0, {"/mnt"}};
    EXPECT_DEATH(open(), "not below /Volumes");
    EXPECT_DEATH(open("two words"), "not a URL");
    EXPECT_DEATH(controller.searchMountPathinDict(""), "without a URL");
}

TEST_F(Pipe, NeedsCredentialsToMount) {
    ServerDetails& details = ServerDetails::serverInfo();
    details.keychainStatus = -25300;
    EXPECT_EQ(open(), -25300);
    EXPECT_EQ(calls, "resolve srv1") << "neither mounted nor opened";
    EXPECT_THAT(lines, EndsWith(" > Keychain item not found, error returned: -25300"));
    EXPECT_TRUE(mounts.empty());
    mounts = {{"10.1.2.3/IPC$", "/IPC$"}};
    EXPECT_EQ(open(), 0) << "what is mounted needs none";
    mounts.clear();
    details.keychainStatus.reset();
    EXPECT_EQ(open(), 0) << "a keychain that was not read stops nothing by itself";
    mounts.clear();
    details.username.reset();
    EXPECT_DEATH(open(), "no user name");
    details.username = "";
    details.password.reset();
    EXPECT_DEATH(open(), "no password");
}

TEST_F(Pipe, ExchangesOneRequestForOneReply) {
    world.network->pieces = {std::string(4095, 'a') + "\xC3", "\xA9", std::string("c\0hidden", 8)}; // é, cut
    const std::string reply = controller.exchangeRequest(
        std::string("<a>ä</a>\0cut", 13), {"X Request : %@", "response.deinitialize x", "X Response: %@"});
    EXPECT_EQ(reply, std::string(4095, 'a') + "��c");
    EXPECT_EQ(
        joined(world.network->calls),
        "disableCaching 7 > seek 0 > write <a>ä</a> > seek 0 > seek 0 > read 4096 > seek 0 > read 4096 > "
        "seek 0 > read 4096 > seek 0 > read 4096");
    EXPECT_THAT(log.lines, ElementsAre("X Request : <a>ä</a>\\u{0}cut", "response.deinitialize x",
                                       "X Response: " + reply));
    EXPECT_EQ(world.busy->begun, 1);
    EXPECT_EQ(world.busy->running, 0);
}

TEST_F(Pipe, EndsAnExchangeAtTheEmptyReadAndNowhereElse) {
    auto& pieces = world.network->pieces;
    for (const int error : {EINTR, EAGAIN, EIO, EBADF}) {
        world.network->readError = error;
        pieces.assign(40, std::nullopt);
        for (const auto* piece : {"one ", "-", "-", "two", "-", "", "next"})
            pieces.push_back(*piece == '-' ? std::nullopt : std::optional<std::string>(piece));
        EXPECT_EQ(controller.exchangeRequest("<a/>", {"", "", ""}), "one two") << error;
        EXPECT_EQ(pieces.size(), 1U) << "what follows the empty read is another reply";
    }
}

TEST_F(Pipe, EndsTheProcessWithoutAPipeToExchangeOn) {
    { const XMLReadWriteController another; }
    EXPECT_THAT(log.lines, ElementsAre("init", "response.deallocate"));
    XMLReadWriteController::fileDes = -1;
    EXPECT_EXIT(controller.exchangeRequest("<a/>", {"", "", ""}), testing::ExitedWithCode(1), "^r1: ");
    XMLReadWriteController::fileDes = 7;
    controller.response.reset();
    EXPECT_DEATH(controller.exchangeRequest("<a/>", {"", "", ""}), "no response buffer");
}

TEST_F(Pipe, ClosesAndUnmounts) {
    XMLReadWriteController::closePipe();
    mounts = {{"10.1.2.3/IPC$", "/IPC$"}, {"10.1.2.3/_admin", "/_admin"}};
    world.network->statError = EBUSY;
    DictionaryForMountedPIPE::mountDict().unmountAll();
    EXPECT_EQ(joined(world.network->calls),
              "close 7 > force unmount /Volumes/IPC$ > force unmount /Volumes/_admin");
    EXPECT_THAT(log.lines, ElementsAre("pipe closed", "unmount 10.1.2.3/IPC$'s - /IPC$ : -1",
                                       "unmount 10.1.2.3/_admin's - /_admin : -1"));
}

} // namespace
} // namespace quorvan::test
