// SPDX-License-Identifier: GPL-3.0-or-later
#include "Handover/Handover.h"

#include "Common/ServerDetails.h"
#include "Platform/Linux/PlistSharedDefaults.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/Fakes.h"

#include <algorithm>
#include <fstream>

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace quorvan::test {
namespace {

namespace fs = std::filesystem;

struct HandoverTest : testing::Test {
    HandoverTest() {
        fs::create_directories(at("mnt"));
        std::ofstream(at("shares.conf")) << "[files.example.org]\nbob = VOL1:\\users\\bob\nbare=VOL2:\n"
                                         << "odd = users\\bob\n[*]\nMüsik = VOL4:\\music\n";
    }
    std::string at(const std::string& path) const { return (top.path / path).native(); }
    std::string made(const std::string& path) const {
        fs::create_directories(at(path));
        return at(path);
    }
    /// "SERVER, selectedPath, mappedPath, server path", or the key of the refusal.
    std::string handOver(const std::string& selection) {
        const auto found = handoverOf(selection, {at("mountinfo"), top.path},
                                      platform::ShareTable({at("shares.conf"), at("no such file")}));
        if (const auto* refusal = std::get_if<Refusal>(&found))
            return refusal->key;
        const auto& [server, selected, mapped] = std::get<Handover>(found);
        world.defaults->values = {{"serverIP", server}, {"selectedPath", selected}, {"mappedPath", mapped}};
        world.keychain->items[server] = {"bob", "secret"};
        ServerDetails::forget();
        const std::string path = ServerDetails::serverInfo().selectedPathName.value_or("");
        ServerDetails::forget();
        return server + ", " + selected + ", " + mapped + ", " + path;
    }

    TemporaryFolder top;
    FakeWorld world;
};

TEST_F(HandoverTest, FindsTheServerPathOfWhatWasChosen) {
    const std::string mnt = at("mnt");
    std::ofstream(at("mountinfo")) << "36 21 0:41 / " << mnt
                                   << "/big\\040disk rw - cifs //Files.Example.ORG/VOL1 rw\n"
                                   << "37 21 0:42 /a/Team " << mnt
                                   << "/team rw - smb3 //files.example.org/DATA/a/Team rw\n"
                                   << "38 21 0:43 /part " << mnt
                                   << "/bound rw - cifs //files.example.org/BOB rw\n"
                                   << "39 21 0:44 / " << mnt
                                   << "/big\\040disk/inner rw - cifs //other/VOL9 rw\n"
                                   << "40 21 8:1 / " << mnt << "/local rw - ext4 /dev/sda1 rw\n"
                                   << "41 36 8:2 / " << mnt << "/big\\040disk/own rw - ext4 /dev/sda2 rw\n";
    const struct {
        std::string path; ///< made below the folder of the test
        const char* expected;
    } cases[] = {
        {"mnt/big disk", "Files.Example.ORG, /Volumes/VOL1, VOL1:\\, VOL1:\\"},
        {"mnt/big disk/100 % #1: x\ny/\xC3\xBC u\xCC\x88",
         "Files.Example.ORG, /Volumes/VOL1/100 % #1: x\ny/\xC3\xBC u\xCC\x88, VOL1:\\, "
         "VOL1:\\100 % #1: x\ny\\\xC3\xBC u\xCC\x88"},
        {"mnt/big disk/inner/b", "other, /Volumes/VOL9/b, VOL9:\\, VOL9:\\b"},
        {"mnt/team", "files.example.org, /Volumes/DATA/a/Team, DATA:\\a\\Team, DATA:\\a\\Team"},
        {"mnt/team/x", "files.example.org, /Volumes/DATA/a/Team/x, DATA:\\a\\Team, DATA:\\a\\Team\\x"},
        // A part that occurs in the mapped path must not get lost.
        {"mnt/bound/b/users", "files.example.org, /Volumes/VOL1/users/bob/part/b/users, "
                              "VOL1:\\users\\bob\\part, VOL1:\\users\\bob\\part\\b\\users"},
        {"gvfs/smb-share:domain=X,server=files.example.org,share=vol%203,user=b/d",
         "files.example.org, /Volumes/VOL 3/d, VOL 3:\\, VOL 3:\\d"},
        {"gvfs/smb-share:server=nas,share=m\xC3\xBCsik",
         "nas, /Volumes/VOL4/music, VOL4:\\music, VOL4:\\music"},
        {"kio-fuse-Ab/smb/bob@files.example.org/bare/x",
         "files.example.org, /Volumes/VOL2/x, VOL2:\\, VOL2:\\x"},
        {"gvfs/smb-share:server=files.example.org,share=odd", "Handover_Unknown_Share_Label"},
        {"mnt/big disk/my Volumes/x", "Handover_Odd_Name_Label"},
        {"mnt/big disk/back\\slash", "Handover_Odd_Name_Label"},
        {"mnt/local/x", "Handover_No_Share_Label"},
        {"mnt/big disk/own/x", "Handover_No_Share_Label"}, // mounted within the share
        {"gvfs/sftp:host=files", "Handover_No_Share_Label"},
        {"gvfs/smb-share:port=1445,server=nas,share=vol1", "Handover_No_Share_Label"}, // another server
        {"kio-fuse-Ab/smb/nas:1445/vol1", "Handover_No_Share_Label"},
        {"mnt/big disk/latin-\xFC", "Handover_Odd_Name_Label"},
    };
    for (const auto& each : cases)
        EXPECT_EQ(handOver(made(each.path)), each.expected) << each.path;
    EXPECT_EQ(handOver(at("mnt/big disk/gone")), "Handover_Gone_Label");
    EXPECT_EQ(handOver("file://" + at("mnt/big%20disk/inner")), "other, /Volumes/VOL9, VOL9:\\, VOL9:\\");
    fs::create_directory_symlink(at("mnt/big disk/inner"), at("link"));
    EXPECT_EQ(handOver(at("link/b")), "other, /Volumes/VOL9/b, VOL9:\\, VOL9:\\b");

    for (const auto& [address, expected] : {std::pair{"smb://b%40x@files.example.org:445/bob/a%20b/",
                                                      "files.example.org, /Volumes/VOL1/users/bob/a b, "
                                                      "VOL1:\\users\\bob, VOL1:\\users\\bob\\a b"},
                                            {"smb://nas/vol1", "nas, /Volumes/VOL1, VOL1:\\, VOL1:\\"},
                                            {"smb://nas:1445/vol1", "Handover_No_Share_Label"},
                                            {"smb://[fe80::1]/vol1", "Handover_No_Share_Label"},
                                            {"smb://nas", "Handover_No_Share_Label"},
                                            {"smb:///share/x", "Handover_No_Share_Label"},
                                            {"smb://nas/vol1/a/../../x", "Handover_Odd_Name_Label"}})
        EXPECT_EQ(handOver(address), expected) << address;
}

TEST_F(HandoverTest, TheProgramHandsOverAndStartsWhatLiesBesideIt) {
    fs::copy_file(HANDOVER_PROGRAM, at("quorvan-handover"));
    std::ofstream(at("quorvan")) << "#!/bin/sh\necho started > \"$XDG_CONFIG_HOME/started.txt\"\n";
    fs::permissions(at("quorvan"), fs::perms::owner_all);
    const std::string config = made("config");
    const auto call = [&](const std::vector<std::string>& arguments) {
        std::vector<std::string> command = {"/usr/bin/env",
                                            "-u",
                                            "DISPLAY",
                                            "-u",
                                            "WAYLAND_DISPLAY",
                                            "XDG_RUNTIME_DIR=" + top.path.native(),
                                            "XDG_CONFIG_HOME=" + config,
                                            "DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent",
                                            "/bin/sh",
                                            "-c",
                                            "exec \"$0\" \"$@\" 2>&1",
                                            at("quorvan-handover")};
        command.insert(command.end(), arguments.begin(), arguments.end());
        ChildProcess program(command);
        program.closeInput();
        const std::string said = program.readLine();
        return std::to_string(program.wait()) + ' ' + said;
    };
    const std::string chosen = made("gvfs/smb-share:server=nas,share=vol1/a b");
    EXPECT_EQ(call({}),
              "1 quorvan-handover: Choose a file or folder of a mounted share in the file manager, and "
              "take “Manage Rights…” from its menu.");
    EXPECT_EQ(call({chosen, chosen}), "1 quorvan-handover: Quorvan works on one file or folder at a time.");
    EXPECT_EQ(call({"/etc"}), "1 quorvan-handover: “/etc” is not on a mounted SMB share.");
    EXPECT_FALSE(fs::exists(config + "/group.tarnix.common.plist"));

    {
        const auto before =
            platform::PlistSharedDefaults([](std::string_view) {}, config).openSuite("group.tarnix.common");
        before->setString("loggedUserType", "Morvane");
        before->setString("selectedPath", "/Volumes/OLD");
        before->synchronize();
    }
    EXPECT_EQ(call({chosen}), "0 ");
    const std::string file = config + "/group.tarnix.common.plist";
    const auto suite =
        platform::PlistSharedDefaults([](std::string_view) {}, config).openSuite("group.tarnix.common");
    EXPECT_EQ(suite->string("serverIP"), "nas");
    EXPECT_EQ(suite->string("selectedPath"), "/Volumes/VOL1/a b");
    EXPECT_EQ(suite->string("mappedPath"), "VOL1:\\");
    EXPECT_EQ(suite->string("loggedUserType"), "Morvane");
    struct stat state {};
    ASSERT_EQ(::stat(file.c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777U, 0600U);
    for (int tries = 0; tries < 500 && !fs::exists(config + "/started.txt"); ++tries)
        ::usleep(10000);
    EXPECT_TRUE(fs::exists(config + "/started.txt"));

    std::ofstream(file, std::ios::trunc) << "no property list"; // which is not ours to overwrite
    EXPECT_THAT(call({chosen}),
                testing::StartsWith("1 quorvan-handover: The selection could not be handed over"));
}

} // namespace
} // namespace quorvan::test
