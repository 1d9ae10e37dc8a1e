// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SecretServiceKeychain.h"
#include "Tests/Support/PrivateKeyring.h"

#include <cstring>
#include <memory>

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>

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
