// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SecretServiceKeychain.h"
#include "Platform/Linux/MountCredentials.h"
#include "Tests/Support/PrivateKeyring.h"

#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quorvan {
namespace {

using platform::KeychainResult;
using platform::SecretServiceKeychain;

class SecretService : public testing::Test {
protected:
    void SetUp() override {
        if (const std::string missing = test::PrivateKeyring::missingProgram(); !missing.empty())
            GTEST_SKIP() << missing << " is not installed";
        keyring = std::make_unique<test::PrivateKeyring>();
    }

    std::unique_ptr<test::PrivateKeyring> keyring;
    SecretServiceKeychain keychain;
};

TEST_F(SecretService, FindsTheNetworkPasswordOfExactlyThisServer) {
    keyring->store({"server", "files.example", "user", "zoë", "protocol", "smb"}, "pä ss\n word");
    keyring->store({"server", "files.example", "user", "other", "protocol", "sftp"}, "ssh");
    keyring->store({"server", "nameless.example", "protocol", "smb"}, "x");

    const KeychainResult found = keychain.findInternetPassword("files.example");
    ASSERT_TRUE(found.item);
    EXPECT_EQ(found.status, 0);
    EXPECT_EQ(found.item->account, "zoë");
    EXPECT_EQ(found.item->data.value().reveal(), "pä ss\n word");

    const KeychainResult nameless = keychain.findInternetPassword("nameless.example");
    ASSERT_TRUE(nameless.item);
    EXPECT_EQ(nameless.item->account, std::nullopt);
    EXPECT_EQ(nameless.item->data.value().reveal(), "x");

    for (const char* server : {"files", "FILES.example", "files.example.com", "", "\xFF"}) {
        const KeychainResult result = keychain.findInternetPassword(server);
        EXPECT_EQ(result.status, -25300) << server;
        EXPECT_FALSE(result.item) << server;
    }
}

TEST_F(SecretService, PrefersTheItemThatWouldLogIn) {
    const std::vector<std::string> server{"server", "files.example", "protocol", "smb"};
    const auto store = [&](std::vector<std::string> more, const char* secret) {
        more.insert(more.end(), server.begin(), server.end());
        keyring->store(more, secret);
        return keychain.findInternetPassword("files.example").item;
    };
    EXPECT_EQ(store({"user", "", "port", "445"}, "no account")->data->reveal(), "no account");
    EXPECT_EQ(store({"user", "bob", "port", "1445"}, "another service's")->account, "bob");
    EXPECT_EQ(store({"user", "bob", "domain", "MERIDAL", "port", "445"}, "x")->domain, "MERIDAL");
    ::sleep(1); // the keyring knows the second in which an item was written
    EXPECT_EQ(store({"user", "eve@meridal.example", "domain", "MERIDAL"}, "x")->account,
              "eve@meridal.example");
    ::sleep(1);
    EXPECT_EQ(store({"user", "bob", "domain", "MERIDAL", "port", "445"}, "new")->data->reveal(), "new");
}

/// A keychain that holds nothing, or one account.
struct OneAccount : platform::Keychain {
    std::optional<std::string> account;
    KeychainResult findInternetPassword(const std::string&) override {
        if (!account)
            return {platform::errSecItemNotFound, std::nullopt};
        return {0, platform::KeychainItem{account, platform::Secret("kept")}};
    }
};

TEST(MountCredentials, AreThoseWithWhichTheSystemMounts) {
    const test::TemporaryFolder folder;
    const auto write = [&](const char* name, const std::string& content) {
        std::ofstream(folder.path / name) << content;
        return (folder.path / name).string();
    };
    const std::string bob = write("bob", "# of files\n  username=bob\npassword=a=b, c\ndomain=MERIDAL\n");
    const std::string eve = write("eve's", "user=SALES\\eve\npass=x");
    const std::string table =
        write("fstab", "/dev/sda1 / ext4 defaults 0 1\n//nfs.example/a /b nfs credentials=" + bob +
                           "\n//files.example/vol1 /mnt/a\\040b cifs rw,credentials=" + bob +
                           ",uid=1000 0 0\n//files.example/vol2 /mnt/c cifs credentials=" + eve +
                           "\n//B.example/v/w /mnt/d smb3 cred=" + eve +
                           ",noauto\n//c.example/v /e cifs username=c,password=y,domain=D\n"
                           "//gone.example/v /f cifs username=c,credentials=/nonexistent\n"
                           "//folder.example/v /g cifs username=c,credentials=" +
                           folder.path.string() + "\n");
    const auto first = std::make_shared<OneAccount>();
    platform::MountCredentials keychain(first, table);
    for (const auto& [server, account, secret] : {std::tuple{"files.example", "MERIDAL\\bob", "a=b, c"},
                                                  {"b.EXAMPLE", "SALES\\eve", "x"},
                                                  {"c.example", "D\\c", "y"}}) {
        const KeychainResult found = keychain.findInternetPassword(server);
        ASSERT_TRUE(found.item) << server;
        EXPECT_EQ(platform::accountOf(found.item->domain, *found.item->account), account);
        EXPECT_EQ(found.item->data->reveal(), secret);
    }
    for (const char* server : {"nfs.example", "gone.example", "folder.example", "example", ""})
        EXPECT_EQ(keychain.findInternetPassword(server).status, -25300) << server;
    first->account = "kept";
    EXPECT_EQ(keychain.findInternetPassword("files.example").item->account, "kept");
}

TEST_F(SecretService, CountsALockedCollectionAsOneWithoutTheItem) {
    keyring->store({"server", "files.example", "user", "bob", "protocol", "smb"}, "x");
    ASSERT_EQ(keychain.findInternetPassword("files.example").status, 0);
    keyring->lock();
    EXPECT_EQ(keychain.findInternetPassword("files.example").status, -25300);
}

TEST(SecretServiceMissing, GivesNoItem) {
    const test::TemporaryFolder folder;
    const std::string path = (folder.path / "bus").string();
    ::setenv("DBUS_SESSION_BUS_ADDRESS", ("unix:path=" + path).c_str(), 1);
    EXPECT_EQ(SecretServiceKeychain().findInternetPassword("files.example").status, -25300);

    // A bus that accepts connections and never says a word.
    const int listener = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{AF_UNIX, {}};
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(listener, 8), 0);
    SecretServiceKeychain keychain(std::chrono::milliseconds(200));
    EXPECT_EQ(keychain.findInternetPassword("files.example").status, -25300);
    ::close(listener);
}

} // namespace
} // namespace quorvan
