// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Secret.h"
#include "Common/Format.h"
#include "Common/ServerDetails.h"
#include "Platform/Linux/SecretServiceKeychain.h"
#include "Platform/Linux/SmbCredentials.h"
#include "Tests/Platform/Linux/MarkedSecret.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"
#include "Tests/Support/PrivateKeyring.h"

#include <cstdint>
#include <fstream>
#include <functional>
#include <new>
#include <sstream>

#include <gtest/gtest.h>
#include <malloc.h>

namespace quorvan::test {
std::atomic<int> leftBehind = 0;
}

namespace {

/// Empty, so that what another owner left in it is not found a second time.
void* take(std::size_t size) {
    void* block = std::malloc(size);
    if (block == nullptr)
        throw std::bad_alloc();
    return std::memset(block, 0, ::malloc_usable_size(block));
}

void give(void* block) {
    using quorvan::test::markedSecret;
    if (block != nullptr &&
        ::memmem(block, ::malloc_usable_size(block), markedSecret.data(), markedSecret.size()) != nullptr)
        ++quorvan::test::leftBehind;
    std::free(block);
}

} // namespace

void* operator new(std::size_t size) {
    return take(size);
}
void* operator new[](std::size_t size) {
    return take(size);
}
void operator delete(void* block) noexcept {
    give(block);
}
void operator delete[](void* block) noexcept {
    give(block);
}
void operator delete(void* block, std::size_t) noexcept {
    give(block);
}
void operator delete[](void* block, std::size_t) noexcept {
    give(block);
}

namespace quorvan::test {
namespace {

using platform::Secret;

static_assert(!std::is_copy_constructible_v<Secret> && !std::is_copy_assignable_v<Secret>);
static_assert(!std::is_convertible_v<Secret, std::string_view> &&
              !std::is_convertible_v<Secret, std::string>);
static_assert(!std::is_convertible_v<std::string, Secret> &&
              !std::is_constructible_v<FormatArgument, Secret>);

/// What the system does with the memory at an address, in the two-letter words of smaps.
std::string memoryFlags(const void* address) {
    std::ifstream maps("/proc/self/smaps");
    const auto wanted = reinterpret_cast<std::uintptr_t>(address);
    bool isThere = false;
    for (std::string line; std::getline(maps, line);) {
        std::uintptr_t begin = 0;
        std::uintptr_t end = 0;
        char dash = 0;
        if (std::istringstream(line) >> std::hex >> begin >> dash >> end && dash == '-')
            isThere = begin <= wanted && wanted < end;
        if (isThere && line.starts_with("VmFlags:"))
            return line;
    }
    return "";
}

TEST(SecretTest, LeavesNothingOfItInMemory) {
    const std::pair<std::function<void()>, int> cases[] = {
        {[] { std::string unprotected(markedSecret); }, 1},
        {[] { EXPECT_EQ(Secret(markedSecret).reveal(), markedSecret); }, 0},
        {[] {
             Secret secret(markedSecret);
             Secret other = secret.share();
             EXPECT_EQ(other.reveal().data(), secret.reveal().data());
#ifdef QUORVAN_SANITIZED // which lets nothing be locked
             const auto wanted = {" dd", " wf"};
#else
             const auto wanted = {" dd", " wf", " lo"}; // in no dump, in no child, locked
#endif
             for (const char* kept : wanted)
                 EXPECT_NE(memoryFlags(other.reveal().data()).find(kept), std::string::npos) << kept;
             secret = Secret("x");
             EXPECT_EQ(other.reveal(), markedSecret);
             other = std::move(secret);
             EXPECT_EQ(other.reveal(), "x");
             EXPECT_TRUE(secret.empty()); // NOLINT(bugprone-use-after-move): that it is empty is the point
         },
         0},
    };
    for (const auto& [use, expected] : cases) {
        leftBehind = 0;
        use();
        EXPECT_EQ(leftBehind, expected);
    }
}

TEST(SecretTest, IsForOneServer) {
    EXPECT_EQ(platform::accountOf("MERIDAL", "bob"), "MERIDAL\\bob");
    for (const char* account : {"SALES\\bob", "bob@meridal.example"})
        EXPECT_EQ(platform::accountOf("MERIDAL", account), account);
    EXPECT_EQ(platform::accountOf("", "bob"), "bob");
    const struct {
        const char *account, *host, *given;
    } cases[] = {{"bob", "192.0.2.1", "HERE bob s3cret"},
                 {"bob", "192.0.2.10", "HERE  "},
                 {"bob", "", "HERE  "},
                 {"MERIDAL\\bob", "192.0.2.1", "MERIDAL bob s3cret"},
                 {"MERIDAL\\bob", "192.0.2.10", "HERE  "},
                 {"bob@meridal.example", "192.0.2.1", "HERE bob@meridal.example s3cret"}};
    for (const auto& item : cases) {
        const platform::SmbCredentials credentials("192.0.2.1", item.account, Secret("s3cret"));
        char domain[8] = "HERE";
        char user[32] = "";
        char password[8] = "";
        credentials.answer(item.host, {domain, user, password});
        EXPECT_EQ(std::string(domain) + " " + user + " " + password, item.given) << item.host;
    }
}

TEST(SecretTest, LeavesNothingOfItBetweenTheKeyringAndTheServer) {
    if (const std::string missing = PrivateKeyring::missingProgram(); !missing.empty())
        GTEST_SKIP() << missing << " is not installed";
    const PrivateKeyring keyring;
    PrivateKeyring::store({"server", "127.0.0.1", "user", "bob", "protocol", "smb"}, markedSecret);
    const LogRecorder quiet;
    const FakeWorld world;
    world.defaults->values = {
        {"serverIP", "127.0.0.1"}, {"selectedPath", "/Volumes/bob/a.txt"}, {"mappedPath", "VOL1:\\"}};
    platform::Services services = platform::services();
    services.keychain = std::make_shared<platform::SecretServiceKeychain>();
    const platform::ScopedServices installed(services);
    leftBehind = 0;
    ServerDetails::forget();
    {
        const ServerDetails& details = ServerDetails::serverInfo();
        ASSERT_EQ(details.password.value().reveal(), markedSecret);
        const platform::SmbCredentials session("127.0.0.1", *details.username, details.password->share());
    }
    ServerDetails::forget();
    EXPECT_EQ(leftBehind, 0);
}

} // namespace
} // namespace quorvan::test
