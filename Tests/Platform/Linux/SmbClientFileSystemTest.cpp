// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Platform/Linux/SmbUrl.h"
#include "Tests/Support/Socket.h"

#include <cerrno>

#include <gtest/gtest.h>

namespace quorvan {
namespace {

using platform::SmbClientFileSystem;
using platform::SmbUrl;

/// On a port of this machine: refused, or, once it listens, accepted in silence.
std::string urlOf(const test::Socket& server) {
    return "smb://127.0.0.1:" + std::to_string(server.port()) + "/IPC$";
}

TEST(SmbUrlTest, TakesShareUrlsApartAndPutsThemTogether) {
    const struct {
        const char *url, *host, *share, *name, *below;
    } cases[] = {
        {"smb://files.example/IPC$", "files.example", "IPC$", "IPC$", "smb://files.example/IPC$/a%20b"},
        {"smb://10.1.2.3:4450/_admin/", "10.1.2.3", "_admin", "_admin", "smb://10.1.2.3:4450/_admin/a%20b"},
        {"smb://[::1]:445/x/y", "::1", "x/y", "y", "smb://[::1]:445/x/y/a%20b"},
        {"smb://h/100%25 %C3%A4;?#@", "h", "100% ä;?#@", "100% ä;?#@",
         "smb://h/100%25%20%C3%A4%3B%3F%23%40/a%20b"},
        {"smb://h/50%/%zz%4", "h", "50%/%zz%4", "%zz%4", "smb://h/50%25/%25zz%254/a%20b"},
    };
    for (const auto& item : cases) {
        const auto url = SmbUrl::parse(item.url);
        ASSERT_TRUE(url) << item.url;
        EXPECT_EQ(url->host(), item.host);
        EXPECT_EQ(url->share, item.share);
        EXPECT_EQ(url->name(), item.name);
        EXPECT_EQ(url->below("/a b"), item.below);
    }
    for (const char* url : {"",
                            "smb://",
                            "smb:///IPC$",
                            "smb://h",
                            "smb://h/",
                            "smb://h//",
                            "cifs://h/x",
                            "//h/x",
                            "smb://user:pw@h/x",
                            "smb://h?port=1/x",
                            "smb://a b/x",
                            "smb://h/a%00b",
                            "smb://:445/x",
                            "smb://[/x",
                            "smb://[::1/x",
                            "smb://[]/x",
                            "smb://a]/x",
                            "smb://[::1]x/x",
                            "smb://h:x/x",
                            "smb://a:b:1/x"})
        EXPECT_FALSE(SmbUrl::parse(url)) << url;
}

TEST(SmbClientFileSystemTest, GivesEachFailedMountItsOwnErrorWithinTheTimeLimit) {
    SmbClientFileSystem network([](std::string_view line) { ADD_FAILURE() << line; }, {},
                                platform::SmbTimeLimits{.silence = std::chrono::milliseconds(300),
                                                        .secondTry = std::chrono::milliseconds(100)});
    const test::Socket refused;
    const test::Socket silent;
    ASSERT_TRUE(refused.bind() && silent.bind());
    silent.listen();
    const struct {
        std::string url, password;
        int error;
    } cases[] = {
        {"not a url", "x", EINVAL},
        {urlOf(refused), std::string(256, 'x'), EINVAL},
        {"smb://no.such.host.invalid/IPC$", "x", EHOSTUNREACH},
        {urlOf(refused), "x", ECONNREFUSED},
        {urlOf(silent), "x", ETIMEDOUT},
    };
    for (const auto& item : cases) {
        const platform::MountResult result =
            network.mount(item.url, "bob", platform::Secret(item.password), {});
        EXPECT_EQ(result.error, item.error) << item.url;
        EXPECT_TRUE(result.mountPoints.empty());
    }
}

TEST(SmbClientFileSystemTest, KnowsNothingBelowVolumesBeforeTheFirstMount) {
    SmbClientFileSystem network([](std::string_view) {});
    for (const char* path : {"/Volumes/IPC$/FilesCmdPipe", "/Volumes", "/etc/passwd", ""}) {
        EXPECT_EQ(network.stat(path), -1) << path;
        EXPECT_EQ(errno, ENOENT);
        EXPECT_EQ(network.open(path), -1);
        EXPECT_EQ(errno, ENOENT);
        EXPECT_EQ(network.unmount(path, true), -1);
        EXPECT_EQ(errno, EINVAL);
    }
    char byte = 0;
    EXPECT_EQ(network.write(1, &byte, 1), -1);
    EXPECT_EQ(errno, EBADF);
    EXPECT_EQ(network.close(1), -1);
    EXPECT_EQ(network.read(1, &byte, 1), 0) << "an error that does not pass must end a read loop";
    const std::pair<const char*, const char*> hosts[] = {
        {"10.1.2.3", "10.1.2.3"}, {"localhost", "127.0.0.1"}, {"::1", ""}, {"", ""}};
    for (const auto& [host, address] : hosts)
        EXPECT_EQ(network.resolve(host), address) << host;
}

} // namespace
} // namespace quorvan
