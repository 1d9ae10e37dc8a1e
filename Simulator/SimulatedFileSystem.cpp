// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/SimulatedFileSystem.h"

#include "Simulator/Text.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <thread>
#include <utility>

namespace quorvan::simulator {

namespace {

int failWith(int error) {
    errno = error;
    return -1;
}

/// The host and the share of "smb://host/share"; two empty texts for anything else.
std::pair<std::string, std::string> hostAndShare(std::string_view url) {
    constexpr std::string_view scheme = "smb://";
    if (url.substr(0, scheme.size()) != scheme)
        return {};
    url.remove_prefix(scheme.size());
    const std::size_t slash = url.find('/');
    if (slash == std::string_view::npos || slash + 1 == url.size())
        return {};
    return {std::string(url.substr(0, slash)), std::string(url.substr(slash + 1))};
}

} // namespace

void SimulatedFileSystem::addServer(std::shared_ptr<KelpServer> server, const std::string& host,
                                    const std::string& address) {
    servers_.push_back({std::move(server), host, address});
}

const SimulatedFileSystem::Server* SimulatedFileSystem::findServer(std::string_view name) const {
    const std::string folded = fold(name);
    for (const Server& each : servers_) {
        const std::string host = fold(each.host);
        if (each.address == name || host == folded || host.substr(0, host.find('.')) == folded)
            return &each;
    }
    return nullptr;
}

std::string SimulatedFileSystem::resolve(const std::string& host) {
    calls.push_back("resolve " + host);
    const Server* server = findServer(host);
    return server == nullptr ? std::string() : server->address;
}

int SimulatedFileSystem::createContext(const std::string& server) {
    calls.push_back("context " + server);
    return 0;
}

std::string SimulatedFileSystem::freeMountPoint(const std::string& share) const {
    std::string path = "/Volumes/" + share;
    for (int number = 1; mounts_.count(path) != 0; ++number)
        path = "/Volumes/" + share + "-" + std::to_string(number);
    return path;
}

platform::MountResult SimulatedFileSystem::mount(const std::string& url, const std::string& user,
                                                 const platform::Secret& password,
                                                 const platform::MountOptions&) {
    calls.push_back("mount " + url + " " + user);
    const auto [host, share] = hostAndShare(url);
    const Server* at = findServer(host);
    if (at == nullptr)
        return {EHOSTUNREACH, {}};
    if (const int error = at->server->checkMount({user, password.reveal()}, share); error != 0)
        return {error, {}};
    const std::string mountPoint = freeMountPoint(share);
    mounts_[mountPoint] = {at->server, share, user};
    return {0, {mountPoint}};
}

int SimulatedFileSystem::unmount(const std::string& path, bool force) {
    calls.push_back("unmount " + path + (force ? " force" : ""));
    return mounts_.erase(path) != 0 ? 0 : failWith(EINVAL);
}

const SimulatedFileSystem::Mount* SimulatedFileSystem::findMount(const std::string& path,
                                                                 std::string& rest) const {
    for (const auto& [point, mount] : mounts_) {
        if (path.compare(0, point.size(), point) == 0 &&
            (path.size() == point.size() || path[point.size()] == '/')) {
            rest = path.substr(point.size());
            return &mount;
        }
    }
    return nullptr;
}

int SimulatedFileSystem::stat(const std::string& path) {
    calls.push_back("stat " + path);
    std::string rest;
    const Mount* mount = findMount(path, rest);
    if (mount == nullptr || (!rest.empty() && findPipeFile(mount->share, rest) == nullptr))
        return failWith(ENOENT);
    return 0;
}

int SimulatedFileSystem::open(const std::string& path) {
    calls.push_back("open " + path);
    std::string rest;
    const Mount* mount = findMount(path, rest);
    if (mount == nullptr || rest.empty())
        return failWith(mount == nullptr ? ENOENT : EISDIR);
    const PipeFile* file = findPipeFile(mount->share, rest);
    if (file == nullptr)
        return failWith(ENOENT);
    if (const int error = mount->server->checkOpen(file->file); error != 0)
        return failWith(error);
    files_.emplace(nextDescriptor_,
                   OpenFile{mount->server, PipeSession(*mount->server, file->file, mount->user)});
    return nextDescriptor_++;
}

SimulatedFileSystem::OpenFile* SimulatedFileSystem::findFile(int descriptor) {
    const auto found = files_.find(descriptor);
    if (found == files_.end()) {
        errno = EBADF;
        return nullptr;
    }
    return &found->second;
}

int SimulatedFileSystem::disableCaching(int descriptor) {
    calls.push_back("nocache " + std::to_string(descriptor));
    return findFile(descriptor) == nullptr ? -1 : 0;
}

off_t SimulatedFileSystem::seek(int descriptor, off_t offset) {
    calls.push_back("seek " + std::to_string(descriptor) + " " + std::to_string(offset));
    OpenFile* file = findFile(descriptor);
    if (file == nullptr)
        return -1;
    if (offset < 0)
        return failWith(EINVAL);
    return file->offset = offset;
}

ssize_t SimulatedFileSystem::write(int descriptor, const void* data, std::size_t size) {
    calls.push_back("write " + std::to_string(descriptor) + " " + std::to_string(size));
    OpenFile* file = findFile(descriptor);
    if (file == nullptr)
        return -1;
    if (file->session.dropped())
        return failWith(EIO);
    file->session.write(static_cast<std::uint64_t>(file->offset), {static_cast<const char*>(data), size});
    file->offset += static_cast<off_t>(size);
    return static_cast<ssize_t>(size);
}

ssize_t SimulatedFileSystem::read(int descriptor, void* buffer, std::size_t size) {
    calls.push_back("read " + std::to_string(descriptor) + " " + std::to_string(size));
    OpenFile* file = findFile(descriptor);
    if (file == nullptr)
        return -1;
    if (const auto delay = file->session.delay(); delay.count() > 0)
        std::this_thread::sleep_for(delay);
    const PipeSession::Piece piece = file->session.read(size);
    if (piece.outcome == PipeSession::Read::passingError)
        return failWith(EINTR);
    if (!piece.bytes.empty())
        std::memcpy(buffer, piece.bytes.data(), piece.bytes.size());
    file->offset += static_cast<off_t>(piece.bytes.size());
    return static_cast<ssize_t>(piece.bytes.size());
}

int SimulatedFileSystem::close(int descriptor) {
    calls.push_back("close " + std::to_string(descriptor));
    return files_.erase(descriptor) != 0 ? 0 : failWith(EBADF);
}

int SimulatedFileSystem::lossOn(int descriptor) const {
    const auto file = files_.find(descriptor);
    return file != files_.end() && file->second.session.dropped() ? ECONNRESET : 0;
}

std::vector<std::string> SimulatedFileSystem::mountedPaths() const {
    std::vector<std::string> paths;
    for (const auto& [path, mount] : mounts_)
        paths.push_back(path);
    return paths;
}

std::size_t SimulatedFileSystem::count(std::string_view word) const {
    const std::string start = std::string(word) + " ";
    return static_cast<std::size_t>(std::count_if(calls.begin(), calls.end(), [&](const std::string& call) {
        return call.compare(0, start.size(), start) == 0;
    }));
}

} // namespace quorvan::simulator
