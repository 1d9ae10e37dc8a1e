// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Embedded.h"
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>

#include <cerrno>

namespace quorvan::simulator {
namespace {

using testing::ElementsAre;

/// The demo world with its management share mounted.
class DemoWorld : public testing::Test {
protected:
    DemoWorld() {
        network.mount("smb://192.0.2.10/IPC$", demo::supervisor, platform::Secret(demo::password), {});
    }

    int send(int descriptor, const std::string& request) {
        network.seek(descriptor, 0);
        return static_cast<int>(network.write(descriptor, request.data(), request.size()));
    }

    /// The sizes of the pieces, the empty one included, and the whole text.
    std::pair<std::vector<ssize_t>, std::string> receive(int descriptor, std::size_t size = 4096) {
        std::pair<std::vector<ssize_t>, std::string> received;
        std::string buffer(size, '\0');
        do {
            network.seek(descriptor, 0);
            received.first.push_back(network.read(descriptor, buffer.data(), size));
            received.second.append(buffer, 0, static_cast<std::size_t>(received.first.back()));
        } while (received.first.back() > 0);
        return received;
    }

    Embedded world = Embedded::demo();
    SimulatedFileSystem& network = *world.network;
    Misbehaviour& wrong = world.server->misbehaviour;
    const std::string crowdedList = Texts::createGetTrusteesListRequestAD(demo::crowded);
};

TEST_F(DemoWorld, MountsUnderFreeNames) {
    const struct {
        const char *url, *user, *password;
        int error;
        const char* mountPoint;
    } cases[] = {
        {"smb://192.0.2.10/IPC$", "INGRID.HOLM", "kelp", 0, "/Volumes/IPC$-1"},
        {"smb://FILES.meridal.example/_admin", "rvogt", "kelp", 0, "/Volumes/_admin"},
        {"smb://192.0.2.10/IPC$", "ingrid.holm", "Kelp", EACCES, ""},
        {"smb://192.0.2.10/IPC$", "nobody", "kelp", EACCES, ""},
        {"smb://192.0.2.11/IPC$", "ingrid.holm", "kelp", EHOSTUNREACH, ""},
        {"smb://192.0.2.10/data", "ingrid.holm", "kelp", ENOENT, ""},
        {"nfs://192.0.2.10/IPC$", "ingrid.holm", "kelp", EHOSTUNREACH, ""},
    };
    for (const auto& [url, user, password, error, mountPoint] : cases) {
        const platform::MountResult result = network.mount(url, user, platform::Secret(password), {});
        EXPECT_EQ(result.error, error) << url << user;
        EXPECT_EQ(result.mountPoints.empty() ? "" : result.mountPoints[0], mountPoint) << url;
    }
    EXPECT_EQ(network.stat("/Volumes/IPC$-1"), 0);
    EXPECT_EQ(network.unmount("/Volumes/IPC$", true), 0);
    EXPECT_EQ(network.unmount("/Volumes/IPC$", true), -1);
    network.unmountBehindTheBack("/Volumes/IPC$-1");
    EXPECT_EQ(network.stat("/Volumes/IPC$-1"), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_THAT(network.mountedPaths(), ElementsAre("/Volumes/_admin"));
}

TEST_F(DemoWorld, OpensPipeFilesOnly) {
    wrong.openError = EIO;
    wrong.onlyPipe = rightsPipe;
    for (const auto& [path, error] :
         std::map<std::string, int>{{"/Volumes/IPC$/Other", ENOENT},
                                    {"/Volumes/IPC$/Manage_KELP/user.cmd", ENOENT},
                                    {"/Volumes/IPC$-1/FilesCmdPipe", ENOENT},
                                    {"/Volumes/IPC$", EISDIR},
                                    {"/Volumes/IPC$/RightsCmdPipe", EIO}}) {
        EXPECT_EQ(network.open(path), -1) << path;
        EXPECT_EQ(errno, error) << path;
    }
    const int first = network.open("/Volumes/IPC$/FilesCmdPipe");
    EXPECT_GT(network.open("/Volumes/IPC$/ZelSmbPipe"), first);
    EXPECT_EQ(network.close(first), 0);
    EXPECT_EQ(network.close(first), -1);
    EXPECT_EQ(errno, EBADF);
    EXPECT_EQ(network.read(first, nullptr, 0), -1);
    EXPECT_EQ(network.openDescriptors(), 1U);
}

TEST_F(DemoWorld, HandsOutRepliesInPiecesWhateverTheOffset) {
    const int pipe = network.open("/Volumes/IPC$/FilesCmdPipe");
    send(pipe, "");
    EXPECT_THAT(receive(pipe).first, ElementsAre(0)); // nothing asked, nothing answered
    EXPECT_EQ(world.server->requestCount(), 0U);

    send(pipe, crowdedList);
    auto [pieces, text] = receive(pipe, 100000);
    ASSERT_GT(pieces.size(), 3U);
    pieces.resize(pieces.size() - 2);
    EXPECT_THAT(pieces, testing::Each(4096));
    EXPECT_EQ(text, world.server->handle(filesPipe, demo::supervisor, crowdedList));
    EXPECT_THAT(receive(pipe).first, ElementsAre(0));

    // A request that arrives in two writes is one request; the next one begins at offset 0 again.
    send(pipe, "discarded");
    send(pipe, crowdedList.substr(0, 100));
    network.write(pipe, crowdedList.data() + 100, crowdedList.size() - 100);
    EXPECT_EQ(receive(pipe, 10).second, text);
}

TEST_F(DemoWorld, BreaksRepliesAsTold) {
    const int pipe = network.open("/Volumes/IPC$/FilesCmdPipe");
    wrong.cutAfter = 5000;
    wrong.passingReadErrors = 2;
    send(pipe, crowdedList);
    char buffer[4096];
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(network.read(pipe, buffer, sizeof buffer), -1);
        EXPECT_EQ(errno, EINTR);
    }
    EXPECT_THAT(receive(pipe).first, ElementsAre(4096, 904, 0));

    wrong = {};
    wrong.dropAfter = 4100;
    send(pipe, crowdedList);
    EXPECT_THAT(receive(pipe).first, ElementsAre(4096, 4, 0));
    wrong = {};
    EXPECT_EQ(send(pipe, crowdedList), -1); // that connection is gone for good
    const int next = network.open("/Volumes/IPC$/FilesCmdPipe");
    send(next, crowdedList);
    EXPECT_GT(receive(next).first.size(), 3U);

    wrong.delay = std::chrono::milliseconds(20);
    PipeSession session(*world.server, smbPipe, demo::readOnly);
    EXPECT_EQ(session.delay().count(), 0);
    session.write(0, userTypeRequest);
    EXPECT_EQ(session.delay().count(), 20); // before the first piece of a reply only
    session.read(10);
    EXPECT_EQ(session.delay().count(), 0);
}

TEST_F(DemoWorld, GivesItsAccountsWhatTheirNamesSay) {
    const std::pair<const char*, Mask> expected[] = {
        {demo::supervisor, 0x1FB},     {demo::accessControl, 0x0FB},     {demo::readOnly, 0x041},
        {demo::supervisorTree, 0x1FB}, {demo::accessControlTree, 0x0FB}, {demo::readOnlyTree, 0x041}};
    for (const auto& [user, rights] : expected) {
        const Identity& identity = *world.server->findAccount(user)->identity;
        for (const char* path : {"VOL1:\\", demo::selection, demo::crowded})
            EXPECT_EQ(world.server->rightsOf(path, identity), rights) << path << user;
        EXPECT_EQ(world.secondServer->rightsOf(demo::linkTarget, identity), rights) << user;
    }
    KelpServer alone; // the second server by itself has the same identities
    addSecondDemoData(alone);
    for (const Identity& each : alone.identities().all())
        EXPECT_EQ(world.identities->findById(each.id)->groups.size(), each.groups.size()) << each.name;
}

} // namespace
} // namespace quorvan::simulator
