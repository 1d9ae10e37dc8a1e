// SPDX-License-Identifier: GPL-3.0-or-later
// The SMB adapter in front of Debian's own server, set up in the ways in which a server can be careless.
#include "Tests/System/Smbd.h"

#include <fcntl.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace quorvan {
namespace {

using namespace test;

constexpr const char* password = Smbd::password;

TEST(SmbdTest, IsToldTheDomainOfAnAccountThatHasOne) {
    if (!Smbd::isInstalled())
        GTEST_SKIP() << "samba is not installed";
    const Smbd smbd("log level = 1 auth_audit:3");
    platform::SmbClientFileSystem files([](std::string_view) {}, nullptr,
                                        {.silence = std::chrono::seconds(5)});
    EXPECT_EQ(mount(files, smbd.url(), password, "MERIDAL\\root").error, 0);
    EXPECT_NE(smbd.log().find("user [MERIDAL]\\[root]"), std::string::npos) << smbd.log();
}

/// What a request was cut off by is a loss, though writing is not waited for: the answer to it says nothing.
TEST(SmbdTest, TakesARequestThatWasNotWrittenForALoss) {
    if (!Smbd::isInstalled())
        GTEST_SKIP() << "samba is not installed";
    const Smbd smbd("strict locking = yes");
    platform::SmbClientFileSystem files([](std::string_view) {}, nullptr,
                                        {.silence = std::chrono::seconds(5)});
    const std::string file = smbd.share() / "pipe";
    std::ofstream(file) << "an answer";
    const auto exchange = [&](const platform::MountResult& share) {
        const int descriptor = files.open(share.mountPoints.at(0) + "/pipe");
        EXPECT_GE(descriptor, 0);
        char buffer[64];
        files.write(descriptor, "a request", 9);
        files.seek(descriptor, 0);
        while (files.read(descriptor, buffer, sizeof(buffer)) > 0)
            continue;
        const int loss = files.lossOn(descriptor);
        files.close(descriptor);
        return loss;
    };
    const platform::MountResult share = mount(files, smbd.url(), password);
    EXPECT_EQ(exchange(share), 0);
    const int locked = ::open(file.c_str(), O_RDWR);
    struct flock beginning = {.l_type = F_WRLCK, .l_whence = SEEK_SET, .l_start = 0, .l_len = 4, .l_pid = 0};
    ASSERT_EQ(::fcntl(locked, F_SETLK, &beginning), 0);
    EXPECT_NE(exchange(share), 0);
    ::close(locked);
}

TEST(SmbdTest, IsLoggedInToByTheUserAndSignedOrNotAtAll) {
    if (!Smbd::isInstalled())
        GTEST_SKIP() << "samba is not installed";
    // What the library reads of the user's must not weaken a login; smbd refuses the older NTLM.
    const TemporaryFolder home;
    std::filesystem::create_directory(home.path / ".smb");
    std::ofstream(home.path / ".smb" / "smb.conf") << "[global]\nclient ntlmv2 auth = no\n";
    ::setenv("HOME", home.path.c_str(), 1);
    const struct {
        const char *settings, *secret;
        int error;
        const char* signing;
    } cases[] = {
        {"", password, 0, "AES-128-GMAC"},
        {"", "wrong", EACCES, ""},
        {"map to guest = bad password", "wrong", EACCES, ""},
        {"server signing = disabled", password, 0, "AES-128-GMAC"},
        {"server max protocol = SMB2_02", password, 0, "HMAC-SHA256"},
        {"server smb encrypt = required", password, 0, "AES-128-GMAC"},
        {"server min protocol = NT1\nserver max protocol = NT1", password, ECONNRESET, ""},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(std::string(item.settings) + " / " + item.secret);
        const Smbd smbd(item.settings);
        platform::SmbClientFileSystem files([](std::string_view) {}, nullptr,
                                            {.silence = std::chrono::seconds(5)});
        const platform::MountResult mounted = mount(files, smbd.url(), item.secret);
        EXPECT_EQ(mounted.error, item.error);
        EXPECT_EQ(mounted.error == 0 ? smbd.signing() : "", item.signing);
    }
}

} // namespace
} // namespace quorvan
