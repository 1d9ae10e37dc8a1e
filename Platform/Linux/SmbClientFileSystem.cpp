// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbClientFileSystem.h"

#include "Platform/Linux/SmbProbe.h"
#include "Platform/Linux/SmbSession.h"
#include "Platform/Linux/SmbSockets.h"
#include "Platform/VolumesFolder.h"

#include <algorithm>
#include <cerrno>
#include <deque>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace quorvan::platform {
namespace {

const std::string root = volumesFolder + std::string("/");

int fail(int error) {
    errno = error;
    return -1;
}

} // namespace

/// What one read has brought.
struct SmbClientFileSystem::Piece {
    ssize_t count; ///< -1 for an error
    int error;     ///< errno of that
    std::string bytes;
};

struct SmbClientFileSystem::OpenFile {
    SmbSession* session;
    SMBCFILE* file;
    std::string path;
    off_t offset = 0;
    int loss = 0;                                    ///< errno
    int writeError = 0;                              ///< errno of the latest write, for the read after it
    std::deque<Piece> ahead{};                       ///< of the reply, not asked for yet
    std::optional<Clock::time_point> troubleBegin{}; ///< of the latest errors without a success between them
    std::optional<Clock::time_point> stretchBegin{}; ///< nothing before the reply begins
    std::size_t stretch = 0;                         ///< bytes of the reply since then
};

SmbClientFileSystem::SmbClientFileSystem(LogLine log, Waiting waiting, const SmbTimeLimits& limits)
    : log_(std::move(log))
    , waiting_(std::move(waiting))
    , limits_(limits)
    , resolver_(limits.resolving, [this](Clock::time_point since) { tell(since); }) {}

SmbClientFileSystem::~SmbClientFileSystem() {
    while (!sessions_.empty())
        SmbClientFileSystem::unmount(sessions_.begin()->first, true);
}

std::string SmbClientFileSystem::resolve(const std::string& host) {
    return resolver_.resolve(host).v4;
}

std::string SmbClientFileSystem::freeMountPoint(const std::string& name) const {
    const std::string wanted = root + name;
    std::string mountPoint = wanted;
    for (int number = 1; sessions_.count(mountPoint) > 0; ++number)
        mountPoint = wanted + "-" + std::to_string(number);
    return mountPoint;
}

int SmbClientFileSystem::createContext(const std::string&) {
    return 0;
}

/// Tells how long a call has been waiting since a moment, once a second.
void SmbClientFileSystem::tell(Clock::time_point since) {
    const auto now = Clock::now();
    if (!waiting_ || now - std::max(since, told_) < std::chrono::seconds(1))
        return;
    told_ = now;
    waiting_(std::chrono::duration_cast<std::chrono::seconds>(now - since));
}

bool SmbClientFileSystem::isPausing(const ServerAddress& server) const {
    const auto silent = silentSince_.find(server);
    return silent != silentSince_.end() && Clock::now() - silent->second < limits_.pause;
}

/// Asks for the protocol before the library connects, which would wait longer for a server that is not there;
/// 0 or an errno value.
int SmbClientFileSystem::probe(const ServerAddress& server) {
    const auto begin = Clock::now();
    SmbProbe probe(server);
    while (probe.state(CallThread::interval) == SmbProbe::State::waiting) {
        if (Clock::now() - begin >= limits_.silence) {
            silentSince_[server] = Clock::now();
            return ETIMEDOUT;
        }
        tell(begin);
    }
    return probe.state() == SmbProbe::State::answered ? 0 : probe.error();
}

/// Tells a reply that drips within one call of the library from a server that computes: the library asks
/// again until a whole piece has come.
class SmbClientFileSystem::Drip {
public:
    explicit Drip(const SmbTimeLimits& limits)
        : limits_(limits) {}

    /// Whether less came than must, after so many bytes in all.
    bool goesOnWith(std::int64_t bytes, Clock::time_point now) {
        constexpr std::int64_t interimAnswer = 256; // "still at work": no part of a reply
        if (!begin_)
            begin_ = bytes;
        if (!stretchBegin_ && bytes - *begin_ <= interimAnswer)
            return false;
        const bool isOver = stretchBegin_ && now - *stretchBegin_ >= limits_.silence;
        const bool isTooLittle =
            isOver && bytes - stretchBytes_ < static_cast<std::int64_t>(limits_.leastProgress);
        if (isOver || !stretchBegin_) {
            stretchBegin_ = now;
            stretchBytes_ = bytes;
        }
        return isTooLittle;
    }

private:
    const SmbTimeLimits& limits_;
    std::optional<std::int64_t> begin_;
    std::optional<Clock::time_point> stretchBegin_;
    std::int64_t stretchBytes_ = 0;
};

/// Runs a library call about a server; false, and ETIMEDOUT, when it had to be ended.
bool SmbClientFileSystem::attend(const ServerAddress& server, const std::function<void()>& call,
                                 const OpenFile* file) {
    const auto begin = Clock::now();
    auto answered = begin; // when the server was last seen to answer elsewhere
    bool isEnded = false;
    std::optional<SmbProbe> second;
    Drip drip(limits_);
    library_.run(call, [&] {
        const auto now = Clock::now();
        tell(begin);
        const auto heard = heardFrom(server, second ? second->descriptor() : -1);
        auto silence = std::chrono::duration_cast<std::chrono::milliseconds>(now - answered);
        if (heard)
            silence = std::min(silence, heard->ago);
        if (silence < limits_.silence - limits_.secondTry) {
            second.reset();
        } else {
            if (!second)
                second.emplace(server);
            if (second->state() == SmbProbe::State::answered) {
                second.reset();
                answered = now;
                silence = {};
            }
        }
        const bool isGone = silence >= limits_.silence;
        if (isGone)
            silentSince_[server] = now;
        const bool drips =
            file != nullptr && (isTooSlow(*file) || (heard && drip.goesOnWith(heard->bytes, now)));
        isEnded = isEnded || isGone || drips || now - begin >= limits_.computing;
        if (isEnded)
            endConnections(server);
    });
    if (isEnded)
        errno = ETIMEDOUT;
    return !isEnded;
}

MountResult SmbClientFileSystem::mount(const std::string& url, const std::string& user,
                                       const Secret& password, const MountOptions&) {
    const std::optional<SmbUrl> share = SmbUrl::parse(url);
    if (!share || !SmbCredentials::canUse(user, password))
        return {EINVAL, {}};
    const ServerAddress server{resolver_.resolve(share->host()).any, share->port()};
    if (server.host.empty())
        return {EHOSTUNREACH, {}};
    if (const auto refused = refused_.find(share->server);
        refused != refused_.end() && refused->second.user == user &&
        refused->second.password.reveal() == password.reveal())
        return {EACCES, {}};
    if (isPausing(server))
        return {ETIMEDOUT, {}};
    if (const int error = probe(server); error != 0)
        return {error, {}};
    auto session =
        std::make_unique<SmbSession>(*share, server, user, password, limits_.computing + limits_.silence);
    int error = 0;
    if (!attend(server, [&] { error = session->connect(); }))
        error = ETIMEDOUT;
    if (error != 0) {
        if (error == EACCES)
            refused_[share->server] = {user, password.share()};
        attend(server, [&] { session.reset(); });
        return {error, {}};
    }
    const std::string mountPoint = freeMountPoint(share->name());
    sessions_.emplace(mountPoint, std::move(session));
    return {0, {mountPoint}};
}

void SmbClientFileSystem::forgetRefusals() {
    refused_.clear();
    silentSince_.clear();
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
    const ServerAddress server = session->second->server();
    attend(server, [&] { session->second.reset(); });
    sessions_.erase(session);
    return 0;
}

int SmbClientFileSystem::stat(const std::string& path) {
    const Place place = locate(path);
    if (place.session == nullptr)
        return fail(ENOENT);
    if (place.rest.empty())
        return 0;
    int result = -1;
    const bool stayed = attend(place.session->server(), [&] { result = place.session->stat(place.rest); });
    return stayed ? result : -1;
}

int SmbClientFileSystem::open(const std::string& path) {
    const Place place = locate(path);
    if (place.session == nullptr)
        return fail(ENOENT);
    if (place.rest.empty())
        return fail(EISDIR);
    if (isPausing(place.session->server()))
        return fail(ETIMEDOUT);
    SMBCFILE* file = nullptr;
    const bool stayed = attend(place.session->server(), [&] { file = place.session->open(place.rest); });
    if (file == nullptr || !stayed)
        return -1;
    const int descriptor = files_.empty() ? 1 : files_.rbegin()->first + 1;
    files_.emplace(descriptor, std::make_shared<OpenFile>(OpenFile{place.session, file, path}));
    return descriptor;
}

int SmbClientFileSystem::disableCaching(int descriptor) {
    return find(descriptor) == nullptr ? fail(EBADF) : 0; // the library has no cache
}

/// Takes effect with the next read or write, in the same call of the library's thread.
off_t SmbClientFileSystem::seek(int descriptor, off_t offset) {
    OpenFile* file = find(descriptor);
    if (file == nullptr)
        return fail(EBADF);
    return file->offset = offset;
}

bool SmbClientFileSystem::isTooSlow(const OpenFile& file) const {
    return file.stretchBegin && Clock::now() - *file.stretchBegin >= limits_.silence &&
           file.stretch < limits_.leastProgress;
}

/// Whatever becomes of the reply, closing the file must not wait for the server once more.
void SmbClientFileSystem::lose(OpenFile& file, int error) {
    file.loss = error;
    endConnections(file.session->server());
    log_("Lost the server at " + file.path + ": " + std::generic_category().message(error));
}

/// Reads pieces until the reply ends, in one go of the library's thread as long as they come without delay:
/// waking a thread for each costs as much as a near server's answer.
void SmbClientFileSystem::readAhead(OpenFile& file, std::size_t size) {
    constexpr std::size_t most = 16;
    const auto end = Clock::now() + CallThread::interval;
    do {
        Piece piece{-1, file.writeError, std::string(size, '\0')};
        if (piece.error == 0) {
            piece.count = file.session->read(file.file, file.offset, piece.bytes.data(), size);
            piece.error = errno;
        }
        file.ahead.push_back(std::move(piece));
    } while (file.ahead.back().count > 0 && file.ahead.size() < most && Clock::now() < end);
}

ssize_t SmbClientFileSystem::read(int descriptor, void* buffer, std::size_t size) {
    OpenFile* file = find(descriptor);
    if (file == nullptr || file->loss != 0)
        return 0;
    if (file->ahead.empty() && !attend(
                                   file->session->server(), [&] { readAhead(*file, size); }, file)) {
        lose(*file, ETIMEDOUT);
        return 0;
    }
    const Piece piece = std::move(file->ahead.front());
    file->ahead.pop_front();
    const auto now = Clock::now();
    if (piece.count >= 0) {
        const auto count = std::min(static_cast<std::size_t>(piece.count), size);
        piece.bytes.copy(static_cast<char*>(buffer), count);
        return progress(*file, count, now);
    }
    file->troubleBegin = file->troubleBegin.value_or(now);
    if ((piece.error == EINTR || piece.error == EAGAIN) && now - *file->troubleBegin < limits_.silence)
        return fail(piece.error);
    lose(*file, piece.error);
    return 0;
}

/// Takes note of a piece of a reply; its size, or 0 when the reply drips.
ssize_t SmbClientFileSystem::progress(OpenFile& file, std::size_t count, Clock::time_point now) {
    file.troubleBegin.reset();
    file.stretch += count;
    file.offset += static_cast<off_t>(count);
    if (count > 0 && !file.stretchBegin)
        file.stretchBegin = now;
    if (count > 0 && isTooSlow(file)) {
        lose(file, ETIMEDOUT);
        return 0;
    }
    if (count == 0 || now - *file.stretchBegin >= limits_.silence) {
        file.stretchBegin.reset();
        file.stretch = 0;
    }
    return static_cast<ssize_t>(count);
}

/// Is waited for with the read that follows, which fails where this does.
ssize_t SmbClientFileSystem::write(int descriptor, const void* data, std::size_t size) {
    const auto entry = files_.find(descriptor);
    if (entry == files_.end())
        return fail(EBADF);
    entry->second->ahead.clear();
    library_.post([file = entry->second, text = std::string(static_cast<const char*>(data), size),
                   offset = entry->second->offset] {
        errno = 0;
        const ssize_t count = file->session->write(file->file, offset, text.data(), text.size());
        const bool isWhole = count == static_cast<ssize_t>(text.size());
        file->writeError = isWhole ? 0 : count < 0 && errno != 0 ? errno : EIO;
    });
    entry->second->offset += static_cast<off_t>(size);
    return static_cast<ssize_t>(size);
}

int SmbClientFileSystem::lossOn(int descriptor) const {
    const OpenFile* file = find(descriptor);
    return file == nullptr ? 0 : file->loss;
}

/// Is not waited for: what is to be known of an exchange is known by then.
int SmbClientFileSystem::close(int descriptor) {
    const auto entry = files_.find(descriptor);
    if (entry == files_.end())
        return fail(EBADF);
    library_.post([file = std::move(entry->second)] { file->session->close(file->file); });
    files_.erase(entry);
    return 0;
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
