// SPDX-License-Identifier: GPL-3.0-or-later
// The SMB adapter in front of Debian's own server, set up in the ways in which a server can be careless.
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Tests/Support/ChildProcess.h"

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

constexpr const char* password = "sm8d-s3cret";

/// smbd with a configuration in a folder of its own, on a port of this test program's.
class Smbd {
public:
    explicit Smbd(const std::string& settings) {
        std::ofstream file(conf);
        file << "[global]\nserver role = standalone\nsmb ports = " << port
             << "\ninterfaces = lo 127.0.0.1/8\nbind interfaces only = yes\nguest account = nobody\n"
                "load printers = no\ndisable spoolss = yes\n"
             << "log file = " << (folder.path / "log").string() << '\n';
        for (const char* name : {"private dir", "lock directory", "state directory", "cache directory",
                                 "pid directory", "ncalrpc dir"})
            file << name << " = " << made(name) << '\n';
        file << settings << "\n[vol1]\npath = " << made("share") << "\nguest ok = yes\nread only = no\n"
             << std::flush;
        const std::string secret = std::string(password) + "\n";
        run({"pdbedit", "-s", conf, "-a", "-t", "root"}, secret + secret);
        server = std::make_unique<ChildProcess>(std::vector<std::string>{"smbd", "-F", "-s", conf});
    }

    std::filesystem::path share() const { return folder.path / "share"; }
    std::string log() const {
        std::stringstream text;
        text << std::ifstream(folder.path / "log").rdbuf();
        return text.str();
    }
    std::string url() const { return "smb://127.0.0.1:" + std::to_string(port) + "/vol1"; }

    /// How the one session is signed, as smbd has it: "-" for not at all.
    std::string signing() const {
        ChildProcess status({"smbstatus", "-s", conf, "-p"});
        status.closeInput();
        std::string line;
        for (int lines = 0; lines < 20 && line.find("(ipv4:127.0.0.1:") == std::string::npos; ++lines)
            line = status.readLine();
        line.erase(line.find_last_not_of(' ') + 1);
        return line.substr(line.rfind(' ') + 1);
    }

private:
    std::string made(const std::string& name) const {
        std::filesystem::create_directory(folder.path / name);
        return (folder.path / name).string();
    }

    TemporaryFolder folder;
    int port = 20000 + ::getpid() % 10000;
    std::string conf = (folder.path / "smb.conf").string();
    std::unique_ptr<ChildProcess> server;
};

/// Mounts the share as root, once smbd listens.
platform::MountResult mount(platform::SmbClientFileSystem& files, const Smbd& smbd, const char* secret,
                            const char* account = "root") {
    platform::MountResult mounted;
    for (int tries = 0; tries < 200; ++tries) {
        mounted = files.mount(smbd.url(), account, platform::Secret(secret), {});
        if (mounted.error != ECONNREFUSED)
            break;
        ::usleep(20'000);
    }
    return mounted;
}

TEST(SmbdTest, IsToldTheDomainOfAnAccountThatHasOne) {
    if (!isInstalled("smbd") || !isInstalled("pdbedit"))
        GTEST_SKIP() << "samba is not installed";
    const Smbd smbd("log level = 1 auth_audit:3");
    platform::SmbClientFileSystem files([](std::string_view) {}, nullptr,
                                        {.silence = std::chrono::seconds(5)});
    EXPECT_EQ(mount(files, smbd, password, "MERIDAL\\root").error, 0);
    EXPECT_NE(smbd.log().find("user [MERIDAL]\\[root]"), std::string::npos) << smbd.log();
}

/// What a request was cut off by is a loss, though writing is not waited for: the answer to it says nothing.
TEST(SmbdTest, TakesARequestThatWasNotWrittenForALoss) {
    if (!isInstalled("smbd") || !isInstalled("pdbedit"))
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
    const platform::MountResult share = mount(files, smbd, password);
    EXPECT_EQ(exchange(share), 0);
    const int locked = ::open(file.c_str(), O_RDWR);
    struct flock beginning = {.l_type = F_WRLCK, .l_whence = SEEK_SET, .l_start = 0, .l_len = 4, .l_pid = 0};
    ASSERT_EQ(::fcntl(locked, F_SETLK, &beginning), 0);
    EXPECT_NE(exchange(share), 0);
    ::close(locked);
}

TEST(SmbdTest, IsLoggedInToByTheUserAndSignedOrNotAtAll) {
    if (!isInstalled("smbd") || !isInstalled("pdbedit"))
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
        const platform::MountResult mounted = mount(files, smbd, item.secret);
        EXPECT_EQ(mounted.error, item.error);
        EXPECT_EQ(mounted.error == 0 ? smbd.signing() : "", item.signing);
    }
}

} // namespace
} // namespace quorvan
