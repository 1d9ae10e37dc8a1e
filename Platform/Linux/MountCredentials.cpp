// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/MountCredentials.h"

#include "Platform/Linux/KerberosTicket.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <mntent.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvan::platform {
namespace {

/// Longer ones do not hold just an account.
constexpr std::size_t longestFile = 4096;

struct TableCloser {
    void operator()(FILE* table) const { endmntent(table); }
};

/// Cuts off and returns what comes before the first `separator`; all where there is none.
std::string_view takeUntil(std::string_view& text, char separator) {
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return part;
}

/// What options and credentials file say of an account, in the words that mount.cifs takes.
struct Account {
    std::string domain;
    std::string user;
    std::string file;
    std::optional<Secret> password;

    void take(std::string_view setting) {
        const std::string_view name = takeUntil(setting, '=');
        if (name == "username" || name == "user")
            user = setting;
        else if (name == "domain" || name == "dom" || name == "workgroup")
            domain = setting;
        else if (name == "password" || name == "pass")
            password.emplace(setting);
        else if (name == "credentials" || name == "cred")
            file = setting;
    }

    /// Takes what the file says, as far as this user may read it.
    void readFile() {
        const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
        if (descriptor < 0)
            return;
        std::array<char, longestFile> bytes;
        struct stat status {};
        ssize_t length = 0;
        if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
            status.st_size <= static_cast<off_t>(bytes.size()))
            length = ::read(descriptor, bytes.data(), bytes.size());
        ::close(descriptor);
        std::string_view text(bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(length, 0)));
        while (!text.empty()) {
            std::string_view line = takeUntil(text, '\n');
            line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
            take(line);
        }
        ::explicit_bzero(bytes.data(), bytes.size());
    }
};

bool isSameHost(const std::string& one, const std::string& other) {
    return ::strcasecmp(one.c_str(), other.c_str()) == 0;
}

/// Whether an entry mounts a share of the server: "//server/share/folder".
bool isOf(const mntent& entry, const std::string& server) {
    const std::string_view kind = entry.mnt_type;
    std::string_view source = entry.mnt_fsname;
    if ((kind != "cifs" && kind != "smb3") || !source.starts_with("//"))
        return false;
    source.remove_prefix(2);
    return isSameHost(std::string(takeUntil(source, '/')), server);
}

/// The account with which the table has a share of the server mounted.
std::optional<KeychainItem> accountInTable(const std::filesystem::path& path, const std::string& server) {
    const std::unique_ptr<FILE, TableCloser> table(::setmntent(path.c_str(), "re"));
    mntent entry{};
    std::array<char, longestFile> line;
    while (table &&
           ::getmntent_r(table.get(), &entry, line.data(), static_cast<int>(line.size())) != nullptr) {
        if (!isOf(entry, server))
            continue;
        Account account;
        for (std::string_view options = entry.mnt_opts; !options.empty();)
            account.take(takeUntil(options, ','));
        if (!account.file.empty())
            account.readFile();
        if (!account.user.empty() && account.password)
            return KeychainItem{account.user, std::move(account.password), account.domain};
    }
    return std::nullopt;
}

/// The account of the user's ticket, where it may have opened a mounted share of the server.
std::optional<KeychainItem> accountOfTicket(const MountPlaces& places, const std::string& server) {
    const std::vector<ShareMount> mounts = shareMounts(places);
    if (std::none_of(mounts.begin(), mounts.end(), [&server](const ShareMount& mount) {
            return mount.triesTicket && isSameHost(mount.server, server);
        }))
        return std::nullopt;
    const std::string owner = ticketOwner();
    return owner.empty() ? std::nullopt : std::optional(KeychainItem{owner, Secret(), {}});
}

} // namespace

MountCredentials::MountCredentials(std::shared_ptr<Keychain> first, std::filesystem::path table,
                                   MountPlaces places)
    : first_(std::move(first))
    , table_(std::move(table))
    , places_(std::move(places)) {}

KeychainResult MountCredentials::findInternetPassword(const std::string& server) {
    KeychainResult kept = first_->findInternetPassword(server);
    if (kept.item && kept.item->account)
        return kept;
    if (auto item = accountInTable(table_, server))
        return {0, std::move(item)};
    if (auto item = accountOfTicket(places_, server))
        return {0, std::move(item)};
    return kept;
}

} // namespace quorvan::platform
