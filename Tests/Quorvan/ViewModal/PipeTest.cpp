// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Pipe = Session;
using Strings = std::vector<std::string>;

std::map<std::string, std::string>& mounts() {
    return DictionaryForMountedPIPE::mountDict().PipeMapDict;
}

TEST_F(Pipe, MountsAShareAndOpensItsPipeFile) {
    EXPECT_EQ(controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe"), 0);
    EXPECT_EQ(XMLReadWriteController::fileDes, 7);
    EXPECT_THAT(world.network->calls,
                ElementsAre("resolve srv1", "mount smb://srv1/IPC$ bob secret NoUI AllowSubMounts",
                            "open /Volumes/IPC$/FilesCmdPipe"));
    EXPECT_THAT(log.lines,
                ElementsAre("Getting ip of mapped server - srv1", "Resolved srv1 to 10.1.2.3",
                            "Checking for exisitng pipes mapped", "Mounting pipe for smb://srv1/IPC$",
                            "Adding new mount point to dictionary - key : 10.1.2.3/IPC$ value : /IPC$",
                            "Mounted virtual volume successfully",
                            "Opened pipe /Volumes/IPC$/FilesCmdPipe with expected error on server srv1 and "
                            "error id is 0",
                            "Registered as managed device on srv1 server"));
    EXPECT_THAT(mounts(), ElementsAre(testing::Pair("10.1.2.3/IPC$", "/IPC$")));
    EXPECT_EQ(world.busy->begun, 1);
    EXPECT_EQ(world.busy->running, 0);
}

TEST_F(Pipe, FindsTheMountAgainAndMountsAnewWhatIsGone) {
    world.network->mountResult.mountPoints = {"/Volumes/IPC$-1"};
    controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe");
    XMLReadWriteController::closePipe();
    world.network->calls.clear();
    log.take();
    EXPECT_EQ(controller.openPipe("srv1", "/IPC$", "/ZelSmbPipe"), 0);
    EXPECT_THAT(world.network->calls,
                ElementsAre("resolve srv1", "stat /Volumes/IPC$-1", "open /Volumes/IPC$-1/ZelSmbPipe"));
    EXPECT_THAT(Strings(log.lines.begin() + 2, log.lines.begin() + 5),
                ElementsAre("Checking for exisitng pipes mapped",
                            "10.1.2.3/IPC$ is already mounted. Stat status 0", "srv1 is mounted at /IPC$-1"));
    XMLReadWriteController::closePipe();
    world.network->statError = EACCES; // whatever else is wrong, the mount is there
    EXPECT_EQ(controller.searchMountPathinDict("10.1.2.3/IPC$"), "/IPC$-1");
    EXPECT_EQ(log.take().back(), "10.1.2.3/IPC$ is already mounted. Stat status -1");

    world.network->statError = ENOENT;
    EXPECT_EQ(controller.searchMountPathinDict("10.1.2.3/IPC$"), "");
    EXPECT_THAT(log.lines, IsEmpty());
    EXPECT_EQ(mounts().size(), 1U) << "the stale entry stays until then";
    world.network->mountResult.mountPoints = {"/Volumes/IPC$-2"};
    EXPECT_EQ(controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe"), 0);
    EXPECT_THAT(mounts(), ElementsAre(testing::Pair("10.1.2.3/IPC$", "/IPC$-2")));
    XMLReadWriteController::closePipe();

    mounts() = {{"/IPC$", "/someone-else's"}}; // what a host without address must not be taken for
    EXPECT_EQ(controller.openPipe("gone", "/IPC$", "/FilesCmdPipe"), 0);
    EXPECT_THAT(world.network->calls,
                testing::Contains("mount smb://gone/IPC$ bob secret NoUI AllowSubMounts"));
}

TEST_F(Pipe, ReportsAMountThatFails) {
    const std::map<int, std::string> messages = {
        {EEXIST, "Error mounting.. Force unmount smb://srv1/IPC$ to proceed"},
        {ENOENT, "Virtual mount volume does not exist."},
        {EACCES, "Error mounting virtual volume due to error code 13"}};
    for (const auto& [error, message] : messages) {
        world.network->mountResult = {error, {}};
        EXPECT_EQ(controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe"), error);
        EXPECT_EQ(log.lines.back(), message);
    }
    world.network->mountResult = {0, {}};
    EXPECT_EQ(controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe"), -1);
    EXPECT_EQ(log.lines.back(), "Mounting pipe for smb://srv1/IPC$");
    EXPECT_THAT(mounts(), IsEmpty());
    world.network->mountResult = {0, {"/mnt"}};
    EXPECT_DEATH(controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe"), "not below /Volumes");
    EXPECT_DEATH(controller.openPipe("two words", "/IPC$", "/FilesCmdPipe"), "not a URL");
    EXPECT_DEATH(controller.searchMountPathinDict(""), "without a URL");
}

TEST_F(Pipe, DoesNotMountWithoutCredentials) {
    ServerDetails::serverInfo().keychainStatus = -25300;
    EXPECT_EQ(controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe"), -25300);
    EXPECT_THAT(world.network->calls, ElementsAre("resolve srv1"));
    EXPECT_EQ(log.lines.back(), "Keychain item not found, error returned: -25300");
    ServerDetails::serverInfo().keychainStatus.reset(); // does not stop the mount; the missing name does
    ServerDetails::serverInfo().username.reset();
    EXPECT_DEATH(controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe"), "no user name");
}

TEST_F(Pipe, ReportsAPipeFileThatDoesNotOpen) {
    world.network->openResult = -1;
    world.network->openError = EACCES;
    EXPECT_EQ(controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe"), -1);
    EXPECT_THAT(Strings(log.lines.end() - 2, log.lines.end()),
                ElementsAre("Could not open pipe - /Volumes/IPC$/FilesCmdPipe due to 13.",
                            "Unable to mount pipe : err - -1"));
    world.network->openError = EIO; // what the server is expected to answer, and yet no pipe
    EXPECT_EQ(controller.openPipe("srv1", "/IPC$", "/FilesCmdPipe"), -1);
    EXPECT_THAT(
        Strings(log.lines.end() - 3, log.lines.end()),
        ElementsAre(
            "Opened pipe /Volumes/IPC$/FilesCmdPipe with expected error on server srv1 and error id is 5",
            "Registered as managed device on srv1 server", "Unable to mount pipe : err - -1"));
}

TEST_F(Pipe, ExchangesOneRequestForOneReply) {
    const std::string first = std::string(4095, 'a') + "\xC3"; // é, cut in two
    world.network->pieces = {first, std::nullopt,
                             "\xA9"
                             "b",
                             std::string("c\0hidden", 8)};
    const std::string reply = controller.exchangeRequest(
        std::string("<a>ä</a>\0cut", 13), {"X Request : %@", "response.deinitialize x", "X Response: %@"});
    EXPECT_EQ(reply, std::string(4095, 'a') + "��bc");
    EXPECT_THAT(world.network->calls, ElementsAre("disableCaching 7", "seek 0", "write <a>ä</a>", "seek 0",
                                                  "seek 0", "read 4096", "seek 0", "read 4096", "seek 0",
                                                  "read 4096", "seek 0", "read 4096", "seek 0", "read 4096"));
    EXPECT_THAT(log.lines, ElementsAre("X Request : <a>ä</a>\\u{0}cut", "response.deinitialize x",
                                       "X Response: " + reply));
    EXPECT_EQ(world.busy->begun, 1);
    EXPECT_EQ(world.busy->running, 0);
}

TEST_F(Pipe, EndsTheProcessWithoutAPipeToExchangeOn) {
    const ExchangeLog texts{"%@", "response.deinitialize", "%@"};
    { const XMLReadWriteController another; }
    EXPECT_THAT(log.lines, ElementsAre("init", "response.deallocate"));
    XMLReadWriteController::fileDes = -1;
    EXPECT_EXIT(controller.exchangeRequest("<a/>", texts), testing::ExitedWithCode(1), "^r1: ");
    XMLReadWriteController::fileDes = 7;
    controller.response.reset();
    EXPECT_EXIT(controller.exchangeRequest("<a/>", texts), testing::KilledBySignal(SIGABRT),
                "no response buffer");
}

TEST_F(Pipe, ClosesAndUnmounts) {
    XMLReadWriteController::closePipe();
    mounts() = {{"10.1.2.3/IPC$", "/IPC$"}, {"10.1.2.3/_admin", "/_admin"}};
    world.network->statError = EBUSY;
    DictionaryForMountedPIPE::mountDict().unmountAll();
    EXPECT_THAT(world.network->calls,
                ElementsAre("close 7", "force unmount /Volumes/IPC$", "force unmount /Volumes/_admin"));
    EXPECT_THAT(log.lines, ElementsAre("pipe closed", "unmount 10.1.2.3/IPC$'s - /IPC$ : -1",
                                       "unmount 10.1.2.3/_admin's - /_admin : -1"));
}

} // namespace
} // namespace quorvan::test
