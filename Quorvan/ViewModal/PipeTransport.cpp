// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include "Common/Fatal.h"
#include "Common/LargePages.h"
#include "Common/Log.h"
#include "Common/ServerDetails.h"
#include "Common/Utf8.h"
#include "Platform/Services.h"
#include "Platform/VolumesFolder.h"
#include "Quorvan/ViewModal/ScopedPipe.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <utility>
#include <vector>

namespace quorvan {
namespace {

const std::string volumes = platform::volumesFolder;

platform::NetworkFileSystem& network() {
    return *platform::services().network;
}

/// The text of a URL or of its scheme-less end; one that can be no URL is fatal.
std::string url(std::string text) {
    const bool fits =
        text.find_first_of(" \"<>\\^`{|}") == std::string::npos &&
        std::none_of(text.begin(), text.end(), [](unsigned char c) { return c < 0x20 || c == 0x7F; });
    require(fits && !text.empty(), "\"%@\" is not a URL", text);
    return text;
}

void logMountError(int error, const std::string& mountUrl) {
    if (error == EEXIST)
        Log("Error mounting.. Force unmount %@ to proceed", mountUrl);
    else if (error == ENOENT)
        Log("Virtual mount volume does not exist.");
    else
        Log("Error mounting virtual volume due to error code %d", error);
}

/// What goes on on the one pipe. Whoever runs an event loop in the middle of an operation could start another
/// one, which would take the descriptor of the first: that ends the process instead.
struct PipeInUse {
    bool isOpen = false;
    bool inExchange = false;
    std::vector<std::function<void()>> whenClosed;
};
PipeInUse inUse;

class ExchangeScope {
public:
    ExchangeScope() {
        require(!inUse.inExchange, "A request was sent in the middle of another exchange");
        inUse.inExchange = true;
    }
    ~ExchangeScope() { inUse.inExchange = false; }
    ExchangeScope(const ExchangeScope&) = delete;
    ExchangeScope& operator=(const ExchangeScope&) = delete;
};

/// Lets a reply grow by leaps. Memory that is reserved and never touched costs nothing, whereas copying a
/// long reply from one place to the next costs as much as reading it. The first leap is the longest for which
/// malloc uses the same memory again.
void makeRoom(std::string& reply) {
    constexpr std::size_t room = 3 * XMLReadWriteController::MEM_SIZE; // a piece of nothing but invalid bytes
    constexpr std::size_t shortReply = 31U << 20U;
    constexpr std::size_t longReply = 128U << 20U;
    if (reply.capacity() - reply.size() >= room)
        return;
    if (reply.empty())
        return reply.reserve(shortReply);
    reply.reserve(std::max(longReply, 4 * reply.size()));
    preferLargePages(reply.data(), reply.capacity());
}

} // namespace

std::int32_t XMLReadWriteController::fileDes = -1;
std::size_t XMLReadWriteController::longestReply = std::size_t{512} << 20U;

std::int32_t XMLReadWriteController::openPipe(const std::string& server, const std::string& share,
                                              const std::string& pipe) {
    require(!inUse.isOpen && !inUse.inExchange, "%@ was to be opened while a pipe is in use", pipe);
    loss_ = 0;
    reading_ = Reading::whole;
    const platform::BusyScope busy(platform::services().busy);
    std::string mountPath;
    const std::int32_t status = mountIPCPipe(server, share, pipe, mountPath);
    if (status != 0)
        return status;
    if (mountPath.empty())
        return -1;
    fileDes = mountShare(server, mountPath, pipe);
    if (fileDes < 1) {
        Log("Unable to mount pipe : err - %d", fileDes);
        return fileDes;
    }
    inUse.isOpen = true;
    return 0;
}

std::int32_t XMLReadWriteController::mountIPCPipe(const std::string& serverAddress,
                                                  const std::string& mountPt, const std::string&,
                                                  std::string& mountPath) {
    const ServerDetails& details = ServerDetails::serverInfo();
    const std::string address = ServerDetails::getIPfromHostname(serverAddress);
    const std::string mountUrl = url("smb://" + serverAddress + mountPt);
    const std::string nameKey = url(serverAddress + mountPt);
    const std::string addressKey = url(address + mountPt);

    Log("Checking for exisitng pipes mapped");
    mountPath = searchMountPathinDict(nameKey);
    if (mountPath.empty() && !address.empty())
        mountPath = searchMountPathinDict(addressKey);
    if (!mountPath.empty()) {
        Log("%@ is mounted at %@", serverAddress, mountPath);
        return 0;
    }

    Log("Mounting pipe for %@", mountUrl);
    if (details.keychainStatus == errSecItemNotFound) {
        Log("Keychain item not found, error returned: %d", errSecItemNotFound);
        return errSecItemNotFound;
    }
    const auto& userName = unwrap(details.username, "There is no user name to mount with");
    const auto& password = unwrap(details.password, "There is no password to mount with");
    const platform::MountResult mounted = network().mount(
        mountUrl, platform::accountOf(details.domain, userName), password, platform::MountOptions{});
    if (mounted.error != 0) {
        logMountError(mounted.error, mountUrl);
        return mounted.error;
    }
    if (mounted.mountPoints.empty())
        return 0;
    const std::string& mountPoint = mounted.mountPoints.front();
    require(mountPoint.size() >= volumes.size(), "The mount point \"%@\" is not below /Volumes", mountPoint);
    mountPath = mountPoint.substr(volumes.size());
    Log("Adding new mount point to dictionary - key : %@ value : %@", addressKey, mountPt);
    DictionaryForMountedPIPE::mountDict().PipeMapDict[addressKey] = mountPath;
    Log("Mounted virtual volume successfully");
    return 0;
}

std::string XMLReadWriteController::searchMountPathinDict(const std::string& url) {
    require(!url.empty(), "A mount cannot be looked up without a URL");
    DictionaryForMountedPIPE& registry = DictionaryForMountedPIPE::mountDict();
    const auto entry = registry.PipeMapDict.find(url);
    if (entry == registry.PipeMapDict.end() || entry->second.empty())
        return "";
    const std::string full = volumes + entry->second;
    const int result = network().stat(full);
    if (result != 0 && errno == ENOENT) {
        // Not the key of the entry, which therefore stays until the next mount writes over it.
        registry.removeValue(full);
        return "";
    }
    Log("%@ is already mounted. Stat status %d", url, result);
    return entry->second;
}

std::int32_t XMLReadWriteController::mountShare(const std::string& server, const std::string& mountPath,
                                                const std::string& pipe) {
    const std::string path = volumes + mountPath + pipe;
    errno = 0;
    const std::int32_t descriptor = network().open(path);
    if (descriptor < 0 && errno != EIO) {
        Log("Could not open pipe - %@ due to %d.", path, errno);
        return descriptor;
    }
    Log("Opened pipe %@ with expected error on server %@ and error id is %d", path, server, errno);
    Log("Registered as managed device on %@ server", server);
    return descriptor;
}

void XMLReadWriteController::closePipe() {
    Log("pipe closed");
    dropPipe();
}

void XMLReadWriteController::dropPipe() {
    network().close(fileDes);
    inUse.isOpen = false;
    for (const auto& report : std::exchange(inUse.whenClosed, {}))
        report();
}

void reportWhenPipeIsClosed(std::function<void()> report) {
    if (inUse.isOpen)
        inUse.whenClosed.push_back(std::move(report));
    else
        report();
}

std::string XMLReadWriteController::exchangeRequest(const std::string& request, const ExchangeLog& log) {
    const ExchangeScope exchange;
    const platform::BusyScope busy(platform::services().busy);
    Log(log.request, request);
    require(response != nullptr, "The controller has no response buffer");
    response->fill('\0');
    const std::int32_t descriptor = fileDes;
    if (descriptor < 0) {
        std::perror("r1");
        std::exit(1);
    }

    platform::NetworkFileSystem& files = network();
    files.disableCaching(descriptor);
    files.seek(descriptor, 0);
    files.write(descriptor, request.data(), std::min(request.find('\0'), request.size()));
    files.seek(descriptor, 0);

    // The server hands out one piece after the other, whatever the offset, and ends with an empty one.
    // Each piece is text on its own, up to its first NUL.
    std::string reply;
    std::array<char, MEM_SIZE> buffer;
    ssize_t length = 0;
    do {
        files.seek(descriptor, 0);
        length = files.read(descriptor, buffer.data(), buffer.size());
        const std::string_view piece(buffer.data(), length > 0 ? static_cast<std::size_t>(length) : 0);
        makeRoom(reply);
        appendRepairedUtf8(reply, piece.substr(0, piece.find('\0')));
    } while (length != 0 && reply.size() <= longestReply);
    Log(log.completion);
    loss_ = length == 0 ? files.lossOn(descriptor) : EOVERFLOW;
    Log(log.response, loss_ == EOVERFLOW ? std::string_view("a reply without end") : std::string_view(reply));
    if (loss_ == 0)
        return reply;
    Log("The connection to the server was lost: %d", loss_);
    return {};
}

} // namespace quorvan
