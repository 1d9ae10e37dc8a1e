// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbClientFileSystem.h"

#include "Platform/Linux/SmbSession.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include <arpa/inet.h>
#include <netdb.h>

namespace quorvan::platform {
namespace {

constexpr std::string_view root = "/Volumes/";

/// Passing errors end within this many time limits; what lasts longer does not pass.
constexpr int patience = 3;

int fail(int error) {
    errno = error;
    return -1;
}

} // namespace

struct SmbClientFileSystem::OpenFile {
    SmbSession* session;
    SMBCFILE* file;
    std::string path;
    std::optional<std::chrono::steady_clock::time_point> inTrouble; ///< since the first of the latest errors
    bool gone = false;                                              ///< the other end is, and the log says so
};

SmbClientFileSystem::SmbClientFileSystem(LogLine log, std::chrono::milliseconds timeLimit)
    : log_(std::move(log))
    , timeLimit_(timeLimit) {}

SmbClientFileSystem::~SmbClientFileSystem() = default;

std::string SmbClientFileSystem::resolve(const std::string& host) {
    addrinfo hints{};
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (host.empty() || ::getaddrinfo(host.c_str(), nullptr, &hints, &found) != 0)
        return "";
    const std::unique_ptr<addrinfo, void (*)(addrinfo*)> list(found, ::freeaddrinfo);
    sockaddr_in address{};
    std::memcpy(&address, found->ai_addr, std::min<std::size_t>(sizeof address, found->ai_addrlen));
    char text[INET_ADDRSTRLEN] = "";
    ::inet_ntop(AF_INET, &address.sin_addr, text, sizeof text);
    return text;
}

std::string SmbClientFileSystem::freeMountPoint(const std::string& name) const {
    const std::string wanted = std::string(root) + name;
    std::string mountPoint = wanted;
    for (int number = 1; sessions_.count(mountPoint) > 0; ++number)
        mountPoint = wanted + "-" + std::to_string(number);
    return mountPoint;
}

int SmbClientFileSystem::createContext(const std::string&) {
    return 0;
}

MountResult SmbClientFileSystem::mount(const std::string& url, const std::string& user,
                                       const std::string& password, const MountOptions&) {
    const std::optional<SmbUrl> share = SmbUrl::parse(url);
    if (!share)
        return {EINVAL, {}};
    auto session = std::make_unique<SmbSession>(*share, user, password, timeLimit_);
    if (const int error = session->connect(); error != 0)
        return {error, {}};
    const std::string mountPoint = freeMountPoint(share->name());
    sessions_.emplace(mountPoint, std::move(session));
    return {0, {mountPoint}};
}

int SmbClientFileSystem::unmount(const std::string& path, bool force) {
    const auto session = sessions_.find(path);
    if (session == sessions_.end())
        return fail(EINVAL);
    const auto isOnIt = [&session](const auto& file) {
        return file.second->session == session->second.get();
    };
    if (!force && std::any_of(files_.begin(), files_.end(), isOnIt))
        return fail(EBUSY);
    std::erase_if(files_, isOnIt);
    sessions_.erase(session);
    return 0;
}

int SmbClientFileSystem::stat(const std::string& path) {
    const Place place = locate(path);
    if (place.session == nullptr)
        return fail(ENOENT);
    return place.rest.empty() ? 0 : place.session->stat(place.rest);
}

int SmbClientFileSystem::open(const std::string& path) {
    const Place place = locate(path);
    if (place.session == nullptr)
        return fail(ENOENT);
    if (place.rest.empty())
        return fail(EISDIR);
    SMBCFILE* file = place.session->open(place.rest);
    if (file == nullptr)
        return -1;
    const int descriptor = files_.empty() ? 1 : files_.rbegin()->first + 1;
    files_.emplace(descriptor, std::make_unique<OpenFile>(OpenFile{place.session, file, path, {}, false}));
    return descriptor;
}

int SmbClientFileSystem::disableCaching(int descriptor) {
    return find(descriptor) == nullptr ? fail(EBADF) : 0; // the library has no cache
}

off_t SmbClientFileSystem::seek(int descriptor, off_t offset) {
    const OpenFile* file = find(descriptor);
    return file == nullptr ? fail(EBADF) : file->session->seek(file->file, offset);
}

ssize_t SmbClientFileSystem::read(int descriptor, void* buffer, std::size_t size) {
    OpenFile* file = find(descriptor);
    if (file == nullptr || file->gone)
        return 0;
    const ssize_t count = file->session->read(file->file, buffer, size);
    if (count >= 0) {
        file->inTrouble.reset();
        return count;
    }
    const int error = errno;
    const auto now = std::chrono::steady_clock::now();
    if (!file->inTrouble)
        file->inTrouble = now;
    const bool passing =
        error == EINTR || error == EAGAIN || (error == ETIMEDOUT && file->session->isAlive());
    if (passing && now - *file->inTrouble < patience * timeLimit_)
        return fail(error);
    file->gone = true;
    log_("Lost the server while reading " + file->path + ": " + std::generic_category().message(error));
    return 0;
}

ssize_t SmbClientFileSystem::write(int descriptor, const void* data, std::size_t size) {
    const OpenFile* file = find(descriptor);
    return file == nullptr ? fail(EBADF) : file->session->write(file->file, data, size);
}

int SmbClientFileSystem::close(int descriptor) {
    const OpenFile* file = find(descriptor);
    if (file == nullptr)
        return fail(EBADF);
    const int result = file->session->close(file->file);
    files_.erase(descriptor);
    return result;
}

SmbClientFileSystem::Place SmbClientFileSystem::locate(const std::string& path) const {
    if (path.compare(0, root.size(), root) != 0)
        return {};
    const std::size_t end = std::min(path.find('/', root.size()), path.size());
    const auto session = sessions_.find(path.substr(0, end));
    if (session == sessions_.end())
        return {};
    return {session->second.get(), path.substr(end)};
}

SmbClientFileSystem::OpenFile* SmbClientFileSystem::find(int descriptor) const {
    const auto file = files_.find(descriptor);
    return file == files_.end() ? nullptr : file->second.get();
}

} // namespace quorvan::platform
