// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Embedded.h"
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>

namespace quorvan::simulator {
namespace {

using testing::ElementsAre;

const std::string crowdedList = listInDomain(demo::crowded);

/// The demo world with its management share mounted.
struct MountedWorld {
    Embedded world = Embedded::demo();
    SimulatedFileSystem& network = *world.network;
    MountedWorld() { network.mount("smb://192.0.2.10/IPC$", demo::supervisor, demo::password, {}); }

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
            received.second.append(buffer, 0,
                                   static_cast<std::size_t>(std::max<ssize_t>(0, received.first.back())));
        } while (received.first.back() > 0);
        return received;
    }
};

TEST(SimulatedFileSystem, MountsUnderFreeNames) {
    Embedded world = Embedded::demo();
    SimulatedFileSystem& network = *world.network;
    const auto mount = [&](const char* url, const char* user, const char* password) {
        const auto result = network.mount(url, user, password, {});
        return result.error != 0 ? std::to_string(result.error) : testing::PrintToString(result.mountPoints);
    };
    EXPECT_EQ(mount("smb://files.meridal.example/IPC$", "ingrid.holm", "kelp"), "{ \"/Volumes/IPC$\" }");
    EXPECT_EQ(mount("smb://192.0.2.10/IPC$", "INGRID.HOLM", "kelp"), "{ \"/Volumes/IPC$-1\" }");
    EXPECT_EQ(mount("smb://FILES.meridal.example/_admin", "rvogt", "kelp"), "{ \"/Volumes/_admin\" }");
    EXPECT_EQ(mount("smb://192.0.2.10/IPC$", "ingrid.holm", "Kelp"), std::to_string(EACCES));
    EXPECT_EQ(mount("smb://192.0.2.10/IPC$", "nobody", "kelp"), std::to_string(EACCES));
    EXPECT_EQ(mount("smb://192.0.2.11/IPC$", "ingrid.holm", "kelp"), std::to_string(EHOSTUNREACH));
    EXPECT_EQ(mount("smb://192.0.2.10/data", "ingrid.holm", "kelp"), std::to_string(ENOENT));
    EXPECT_EQ(mount("nfs://192.0.2.10/IPC$", "ingrid.holm", "kelp"), std::to_string(EHOSTUNREACH));
    world.server->misbehaviour.mountError = EEXIST;
    EXPECT_EQ(mount("smb://192.0.2.10/IPC$", "ingrid.holm", "kelp"), std::to_string(EEXIST));

    EXPECT_EQ(network.stat("/Volumes/IPC$-1"), 0);
    EXPECT_EQ(network.unmount("/Volumes/IPC$", true), 0);
    EXPECT_EQ(network.unmount("/Volumes/IPC$", true), -1);
    network.unmountBehindTheBack("/Volumes/IPC$-1");
    EXPECT_EQ(network.stat("/Volumes/IPC$-1"), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_THAT(network.mountedPaths(), ElementsAre("/Volumes/_admin"));
    EXPECT_EQ(network.count("mount"), 9U);
    EXPECT_EQ(network.calls.front(), "mount smb://files.meridal.example/IPC$ ingrid.holm");
    EXPECT_EQ(network.resolve("FILES.meridal.example"), "192.0.2.10");
    EXPECT_EQ(network.resolve("other"), "");
}

TEST(SimulatedFileSystem, OpensPipeFilesOnly) {
    MountedWorld mounted;
    SimulatedFileSystem& network = mounted.network;
    const int first = network.open("/Volumes/IPC$/FilesCmdPipe");
    const int second = network.open("/Volumes/IPC$/ZelSmbPipe");
    EXPECT_GT(first, 0);
    EXPECT_GT(second, first);
    const std::pair<const char*, int> failures[] = {{"/Volumes/IPC$/Other", ENOENT},
                                                    {"/Volumes/IPC$/Manage_KELP/user.cmd", ENOENT},
                                                    {"/Volumes/IPC$-1/FilesCmdPipe", ENOENT},
                                                    {"/Volumes/IPC$", EISDIR}};
    for (const auto& [path, error] : failures) {
        EXPECT_EQ(network.open(path), -1) << path;
        EXPECT_EQ(errno, error) << path;
    }
    mounted.world.server->misbehaviour.openError = EIO;
    mounted.world.server->misbehaviour.onlyPipe = "/FilesCmdPipe";
    EXPECT_EQ(network.open("/Volumes/IPC$/FilesCmdPipe"), -1);
    EXPECT_EQ(errno, EIO);
    EXPECT_GT(network.open("/Volumes/IPC$/ZelSmbPipe"), second);
    EXPECT_EQ(network.close(first), 0);
    EXPECT_EQ(network.close(first), -1);
    EXPECT_EQ(errno, EBADF);
    EXPECT_EQ(network.read(first, nullptr, 0), -1);
    EXPECT_EQ(network.openDescriptors(), 2U);
}

TEST(SimulatedFileSystem, HandsOutRepliesInPiecesWhateverTheOffset) {
    MountedWorld mounted;
    const int pipe = mounted.network.open("/Volumes/IPC$/FilesCmdPipe");
    EXPECT_THAT(mounted.receive(pipe).first, ElementsAre(0)); // nothing asked, nothing answered
    mounted.send(pipe, "");
    EXPECT_THAT(mounted.receive(pipe).first, ElementsAre(0));
    EXPECT_EQ(mounted.world.server->requestCount(), 0U);

    mounted.send(pipe, crowdedList);
    auto [pieces, text] = mounted.receive(pipe, 100000);
    ASSERT_GT(pieces.size(), 3U);
    EXPECT_EQ(pieces.back(), 0);
    pieces.resize(pieces.size() - 2);
    EXPECT_THAT(pieces, testing::Each(4096));
    EXPECT_EQ(text, mounted.world.server->handle("/FilesCmdPipe", demo::supervisor, crowdedList));
    EXPECT_THAT(mounted.receive(pipe).first, ElementsAre(0));

    // A request that arrives in two writes is one request; the next one begins at offset 0 again.
    mounted.send(pipe, crowdedList.substr(0, 100));
    mounted.network.write(pipe, crowdedList.data() + 100, crowdedList.size() - 100);
    EXPECT_EQ(mounted.receive(pipe, 10).second, text);
    mounted.send(pipe, "discarded");
    mounted.send(pipe, crowdedList);
    EXPECT_EQ(mounted.receive(pipe).second, text);
}

TEST(SimulatedFileSystem, BreaksRepliesAsTold) {
    MountedWorld mounted;
    Misbehaviour& wrong = mounted.world.server->misbehaviour;
    const int pipe = mounted.network.open("/Volumes/IPC$/FilesCmdPipe");
    wrong.cutAfter = 5000;
    wrong.passingReadErrors = 2;
    mounted.send(pipe, crowdedList);
    char buffer[4096];
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(mounted.network.read(pipe, buffer, sizeof buffer), -1);
        EXPECT_EQ(errno, EINTR);
    }
    EXPECT_THAT(mounted.receive(pipe).first, ElementsAre(4096, 904, 0));

    wrong = {};
    wrong.dropAfter = 4100;
    mounted.send(pipe, crowdedList);
    EXPECT_THAT(mounted.receive(pipe).first, ElementsAre(4096, 4, 0));
    EXPECT_EQ(mounted.send(pipe, crowdedList), -1); // that connection is gone for good
    wrong = {};
    const int next = mounted.network.open("/Volumes/IPC$/FilesCmdPipe");
    mounted.send(next, crowdedList);
    EXPECT_GT(mounted.receive(next).first.size(), 3U);
}

TEST(PipeSession, DelaysOnlyTheFirstPieceOfAReply) {
    SmallServer small;
    small.server.misbehaviour.delay = std::chrono::milliseconds(20);
    PipeSession session(small.server, "/ZelSmbPipe", "boss");
    EXPECT_EQ(session.delay().count(), 0);
    session.write(0, userTypeRequest);
    EXPECT_EQ(session.delay().count(), 20);
    session.read(10);
    EXPECT_EQ(session.delay().count(), 0);
}

TEST(SimulatedFileSystem, TellsServersApart) {
    Embedded world = Embedded::demo();
    const auto other = std::make_shared<KelpServer>(world.identities);
    other->addAccount("rvogt", "second", *world.server->findAccount("rvogt")->identity);
    world.network->addServer(other, "backup.meridal.example", "192.0.2.11");
    EXPECT_EQ(world.network->mount("smb://192.0.2.11/IPC$", "rvogt", "kelp", {}).error, EACCES);
    world.network->reportMountPoints({});
    EXPECT_TRUE(world.network->mount("smb://192.0.2.11/IPC$", "rvogt", "second", {}).mountPoints.empty());
    world.network->mount("smb://192.0.2.11/IPC$", "rvogt", "second", {});
    const int pipe = world.network->open("/Volumes/IPC$/ZelSmbPipe");
    world.network->write(pipe, userTypeRequest.data(), userTypeRequest.size());
    char buffer[4096];
    world.network->read(pipe, buffer, sizeof buffer);
    EXPECT_EQ(other->requestCount(), 1U);
    EXPECT_EQ(world.server->requestCount(), 0U);
}

TEST(SimulatedFileSystem, FindsServersByTheFirstLabelOfTheirName) {
    Embedded world = Embedded::demo();
    EXPECT_EQ(world.network->resolve("files2"), demo::secondAddress);
    EXPECT_EQ(world.network->resolve("FILES"), demo::address);
    for (const char* none : {"192", "meridal", "files3", ""})
        EXPECT_EQ(world.network->resolve(none), "") << none;
}

TEST(Embedded, HandsOverSelectionAndCredentials) {
    Embedded world = Embedded::demo(demo::readOnlyTree, "VOL1:\\Archiv\\Größere Formate");
    const platform::Services services = world.services();
    const auto suite = services.sharedDefaults->openSuite("group.tarnix.common");
    suite->synchronize();
    EXPECT_EQ(suite->string("serverIP"), "files.meridal.example");
    EXPECT_EQ(suite->string("selectedPath"), "/Volumes/VOL1/Archiv/Größere Formate");
    EXPECT_EQ(suite->string("mappedPath"), "VOL1:\\");
    EXPECT_EQ(suite->string("loggedUserType"), std::nullopt);
    suite->setString("loggedUserType", "Morvane");
    EXPECT_EQ(services.sharedDefaults->openSuite("group.tarnix.common")->string("loggedUserType"), "Morvane");
    EXPECT_EQ(services.sharedDefaults->openSuite("other")->string("loggedUserType"), std::nullopt);
    EXPECT_EQ(world.sharedDefaults->synchronizations(), 1U);
    world.sharedDefaults->available = false;
    EXPECT_EQ(services.sharedDefaults->openSuite("other"), nullptr);

    const auto found = services.keychain->findInternetPassword("files.meridal.example");
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.item.value().account, "zmarchetti");
    EXPECT_EQ(found.item.value().data, "kelp");
    EXPECT_EQ(services.keychain->findInternetPassword("Files.meridal.example").status, -25300);
    world.keychain->failure = -25293;
    EXPECT_EQ(services.keychain->findInternetPassword("files.meridal.example").status, -25293);
    EXPECT_EQ(services.bundle, nullptr);
}

TEST(DemoData, GivesItsAccountsWhatTheirNamesSay) {
    Embedded world = Embedded::demo();
    for (const char* path : {"VOL1:\\", demo::selection, demo::crowded}) {
        const std::pair<const char*, Mask> expected[] = {
            {demo::supervisor, 0x1FB},     {demo::accessControl, 0x0FB},     {demo::readOnly, 0x041},
            {demo::supervisorTree, 0x1FB}, {demo::accessControlTree, 0x0FB}, {demo::readOnlyTree, 0x041}};
        for (const auto& [user, rights] : expected)
            EXPECT_EQ(world.server->rightsOf(path, *world.server->findAccount(user)->identity), rights)
                << path << user;
    }
    EXPECT_EQ(world.server->trustees(demo::crowded).size(), 400U);
    EXPECT_EQ(world.secondServer->rightsOf(demo::linkTarget,
                                           *world.secondServer->findAccount(demo::readOnly)->identity),
              0x041);
    addManyTrustees(*world.server, "VOL1:\\Many", 100000);
    const std::string many = "VOL1:\\Many";
    EXPECT_EQ(world.server->trustees(many).size(), 100000U);
    EXPECT_NE(world.server->trustees(many)[99999].identity->id, world.server->trustees(many)[0].identity->id);
}

TEST(DemoData, HasEveryKindOfOwnerAttributeAndQuota) {
    Embedded world = Embedded::demo();
    Volumes& volumes = world.server->volumes();
    EXPECT_EQ(world.identities->findById(ownerOf(*volumes.find(demo::fileOfNobody))), nullptr);
    EXPECT_EQ(ownerOf(*volumes.find("VOL1:\\Public")),
              world.server->findAccount(demo::supervisor)->identity->id);
    EXPECT_NE(volumes.find(demo::compressedFile)->attributes & attribute::compressed, 0);
    const DirectoryQuota& limited = volumes.find(demo::limitedFolder)->quota;
    EXPECT_GT(limited.limit, limited.used);
    EXPECT_EQ(volumes.find(demo::unlimitedFolder)->quota.limit, unlimited);
    EXPECT_EQ(volumes.find(demo::folderWithoutQuota)->quota.limit, DirectoryQuota::notSet);

    const auto& quotas = volumes.userQuotas("VOL1")->entries();
    const auto count = [&](auto&& matches) { return std::count_if(quotas.begin(), quotas.end(), matches); };
    EXPECT_EQ(count([](const UserQuota& each) { return each.limit != unlimited; }), 150);
    EXPECT_EQ(count([](const UserQuota& each) { return each.user->kind == IdentityKind::morvane; }), 75);
    EXPECT_GE(count([](const UserQuota& each) { return each.used > each.limit; }), 10);

    KelpServer alone; // the second server by itself has the same identities
    addSecondDemoData(alone);
    for (const Identity& each : alone.identities().all())
        EXPECT_EQ(world.identities->findById(each.id)->groups.size(), each.groups.size()) << each.name;
}

} // namespace
} // namespace quorvan::simulator
