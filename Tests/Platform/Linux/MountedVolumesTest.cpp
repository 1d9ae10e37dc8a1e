// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/MountedVolumes.h"
#include "Tests/Support/ChildProcess.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvan {
namespace {

namespace fs = std::filesystem;
using Kind = platform::LocalVolumes::Kind;

TEST(MountedVolumes, FindsAShareAmongTheMountsWhereverItLies) {
    const test::TemporaryFolder top;
    const auto make = [&top](const char* path) {
        fs::create_directories(top.path / path);
        std::ofstream(top.path / path / "in.txt");
    };
    make("Volumes/VOL1");
    make("mnt/big disk");
    make("mnt/other");
    make("mnt/whole/a"); // of the share that "other" is a part of
    make("gvfs/smb-share:server=files,share=vol 3%2cx,user=ingrid");
    make("gvfs/smb-share:server=FILES,share=gone");
    make("kio-fuse-x1/smb/ingrid@files/team space");
    make("kio-fuse-x1/smb/files/VOL6");
    const std::string mnt = (top.path / "mnt").native();
    std::ofstream(top.path / "mountinfo")
        << "21 1 8:1 / / rw,relatime shared:1 - ext4 //files/VOL4 rw\n"
        << "36 21 0:41 / " << mnt << "/big\\040disk rw shared:9 master:2 - cifs //files/VOL2 rw,vers=3.1.1\n"
        << "37 21 0:42 /a/Team " << mnt << "/other rw - smb3 //files/data/a/Team rw\n"
        << "37 21 0:42 / " << mnt << "/whole rw - smb3 //files/data rw\n"
        << "38 21 0:43 /part " << mnt << "/other rw - cifs //files/VOL5 rw\n"
        << "broken\n";
    std::ofstream(top.path / "shares.conf") << "[Files]\nTeam Space = VOL7:\\teams\\space\n[*]\ngone = \n";
    platform::MountedVolumes volumes({top.path / "Volumes",
                                      {top.path / "mountinfo", top.path},
                                      platform::ShareTable({top.path / "shares.conf"})});
    for (const char* there : {"/Volumes/VOL1", "/Volumes/VOL2", "/Volumes/vol2", "/Volumes/VOL 3,X",
                              "/Volumes/Team", "/Volumes/data/a/Team", "/Volumes/VOL5/part",
                              "/Volumes/vol7/Teams/space", "/Volumes/VOL6", "/Volumes/VOL2/"}) {
        EXPECT_EQ(volumes.kindOf(there), Kind::folder) << there;
        EXPECT_EQ(volumes.kindOf(std::string(there) + "/in.txt"), Kind::file) << there;
    }
    // What leads to a mount is a folder with nothing else in it.
    for (const auto& [way, on] : {std::pair{"/Volumes/data", "a"}, {"/Volumes/VOL7", "teams"}}) {
        EXPECT_EQ(volumes.kindOf(way), Kind::folder);
        ASSERT_EQ(volumes.list(way).entries.size(), 1U) << way;
        EXPECT_EQ(volumes.list(way).entries[0].name, on);
    }
    for (const char* nowhere : {"/Volumes/VOL4", "/Volumes/gone", "/Volumes/VOL7/others", "/Volumes/",
                                "/Volumes", "/Volumes/..", "/Volumes/VOL1/../VOL1", "/etc", ""}) {
        EXPECT_EQ(volumes.kindOf(nowhere), Kind::nothing) << nowhere;
        EXPECT_FALSE(volumes.list(nowhere).error.empty()) << nowhere;
    }
}

TEST(MountedVolumes, ListsWhatExistsAndOnlyThat) {
    const test::TemporaryFolder top;
    const fs::path volume = top.path / "VOL1";
    fs::create_directories(volume / "folder");
    fs::create_directories(volume / "empty");
    fs::create_directory_symlink("folder", volume / "link");
    fs::create_symlink("nowhere", volume / "dangling");
    fs::create_symlink("loop", volume / "loop");
    fs::create_symlink("nowhere", volume / "empty" / "dangling");
    for (const char* file : {".hidden", "100 % #1 \xC3\xBC.txt", "latin-\xFC.txt"})
        std::ofstream(volume / file);
    platform::MountedVolumes volumes(
        {top.path, {"/nonexistent", "/nonexistent"}, platform::ShareTable(std::vector<fs::path>())});

    std::vector<std::string> found;
    for (const auto& entry : volumes.list("/Volumes/VOL1").entries)
        found.push_back(entry.name + (entry.isFolder ? "/" : ""));
    EXPECT_THAT(found, testing::UnorderedElementsAre("folder/", "empty/", "link/", ".hidden",
                                                     "100 % #1 \xC3\xBC.txt", "latin-\xFC.txt"));
    EXPECT_TRUE(volumes.hasEntries("/Volumes/VOL1"));
    EXPECT_FALSE(volumes.hasEntries("/Volumes/VOL1/empty"));
    EXPECT_FALSE(volumes.list("/Volumes/VOL1/.hidden").error.empty());
    EXPECT_EQ(volumes.kindOf("/Volumes/VOL1/dangling"), Kind::nothing);
}

} // namespace
} // namespace quorvan
