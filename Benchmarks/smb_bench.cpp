// SPDX-License-Identifier: GPL-3.0-or-later
//
// What opening a page costs over SMB beside the same calls of the SMB library, in time that passes. The
// server is the one of the system tests, on a loopback address.
#include "Benchmarks/Measure.h"
#include "Common/ServerDetails.h"
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Platform/Linux/SmbConfiguration.h"
#include "Quorvan/ViewModal/RightsWay.h"
#include "Quorvan/ViewModal/ScopedPipe.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/ChildProcess.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/Socket.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <fcntl.h>
#include <libsmbclient.h>

namespace quorvan {
namespace {

constexpr const char* address = "127.0.0.77";
constexpr const char* user = "ingrid.holm";
constexpr const char* password = "pl3nty-0f-s3crets";
const std::string path = "VOL1:\\Projects\\Aurora";

double passedSeconds() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// kelp-server behind the SMB server of the system tests, with so many more trustees on the path.
class Server {
public:
    static bool isPossible() {
        return test::run({"/usr/bin/python3", "-c", "import impacket.smbserver"}) == 0 &&
               test::Socket().bind(address, 445);
    }
    Server(const std::vector<std::string>& paths, std::int64_t trustees)
        : kelp_({KELP_SERVER})
        , port_(kelp_.readLine().substr(std::strlen("port ")))
        , front_({"/usr/bin/python3", SMB_FRONT, "--address", address, "--password", password, "--kelp-port",
                  port_}) {
        socket_.connect("127.0.0.1", std::stoi(port_));
        for (const std::string& each : paths)
            if (ask("add-many\t" + each + "\t" + std::to_string(trustees)) != "ok 0\n")
                std::abort();
        if (front_.readLine() != "ready")
            std::abort();
    }

    /// How many requests have come.
    int requests() const {
        const std::string answer = ask("requests"); // "ok LENGTH\nNUMBER"
        return std::stoi(answer.substr(answer.find('\n') + 1));
    }

private:
    std::string ask(const std::string& command) const {
        socket_.send(command + "\n");
        return socket_.receive(64);
    }

    test::Socket socket_;
    test::ChildProcess kelp_;
    std::string port_;
    test::ChildProcess front_;
};

/// The SMB library and nothing else.
class Bare {
public:
    Bare()
        : context_(platform::newSmbContext()) {
        smbc_setPort(context_, 445);
        smbc_setFunctionAuthDataWithContext(context_, [](SMBCCTX*, const char*, const char*, char*, int,
                                                         char* name, int nameSize, char* secret, int size) {
            std::strncpy(name, user, static_cast<std::size_t>(nameSize));
            std::strncpy(secret, password, static_cast<std::size_t>(size));
        });
        smbc_setOptionNoAutoAnonymousLogin(context_, 1);
        smbc_setOptionSmbEncryptionLevel(context_, SMBC_ENCRYPTLEVEL_REQUEST);
        if (smbc_init_context(context_) == nullptr ||
            smbc_setOptionProtocols(context_, "SMB2_02", "SMB3") == 0)
            std::abort();
    }
    ~Bare() { smbc_free_context(context_, 1); }
    Bare(const Bare&) = delete;
    Bare& operator=(const Bare&) = delete;

    /// One request after the other on one open pipe; the bytes of the replies.
    std::size_t exchange(const std::vector<std::string>& requests) const {
        const std::string url = std::string("smb://") + address + "/IPC$/FilesCmdPipe";
        SMBCFILE* const file = smbc_getFunctionOpen(context_)(context_, url.c_str(), O_RDWR, 0);
        if (file == nullptr)
            std::abort();
        const auto toStart = [&] { smbc_getFunctionLseek(context_)(context_, file, 0, SEEK_SET); };
        std::string replies;
        for (const std::string& request : requests) {
            toStart();
            smbc_getFunctionWrite(context_)(context_, file, request.data(), request.size());
            std::array<char, XMLReadWriteController::MEM_SIZE> piece;
            ssize_t size = 0;
            do {
                toStart();
                size = smbc_getFunctionRead(context_)(context_, file, piece.data(), piece.size());
                replies.append(piece.data(), static_cast<std::size_t>(std::max(size, ssize_t{0})));
            } while (size > 0);
        }
        smbc_getFunctionClose(context_)(context_, file);
        return replies.size();
    }

private:
    SMBCCTX* context_;
};

/// Our own, as a page uses it.
class Page {
public:
    Page() {
        world_.defaults->values = {{"serverIP", address},
                                   {"selectedPath", "/Volumes/VOL1/Projects/Aurora"},
                                   {"mappedPath", "VOL1:\\"}};
        world_.keychain->items[address] = {user, password};
        platform::Services services = platform::services();
        services.network = std::make_shared<platform::SmbClientFileSystem>([](std::string_view) {});
        installed_ = std::make_unique<platform::ScopedServices>(services);
        ServerDetails::forget();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    }
    std::size_t open() {
        XMLReadWriteController controller;
        TrusteeList trustees;
        Rights filter;
        Rights own;
        std::string server = address;
        std::string selected = path;
        std::string mapped = "VOL1:\\";
        if (controller.initializeTrusteesHandleDFS(server, trustees, selected, filter, own, mapped,
                                                   "ActiveDirectory") != 0)
            std::abort();
        return trustees.size();
    }
    /// What "Why…" reads of the folders above `folder`.
    std::size_t readWay(const std::string& folder) {
        XMLReadWriteController controller;
        ScopedPipe pipe(controller, address, pipes::files);
        if (!pipe.isOpen())
            std::abort();
        return readRightsWay(controller, folder, "ActiveDirectory").size();
    }

private:
    test::FakeWorld world_;
    std::unique_ptr<platform::ScopedServices> installed_;
};

/// Lets the pipe be closed, for which a page does not wait: the library is not for two threads at once.
struct Pause {
    ~Pause() { ::usleep(10'000); }
};

/// A page on a share that is mounted, with so many trustees.
void page(benchmark::State& state) {
    if (!Server::isPossible())
        return state.SkipWithError("needs python3-impacket and port 445");
    const Server server({path}, state.range(0));
    const benchmarks::QuietLog quiet;
    Page ours;
    const Bare bare;
    const std::string request = XMLReadWriteController::createGetTrusteesListRequestAD(path);
    ours.open();
    { const Pause closes; }
    const std::size_t size = bare.exchange({request});
    benchmarks::compare(
        state, size, [&] { bare.exchange({request}); },
        [&] {
            ours.open();
            return std::make_unique<Pause>();
        },
        passedSeconds);
}
BENCHMARK(page)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(200);

/// The same with the login before it.
void login(benchmark::State& state) {
    if (!Server::isPossible())
        return state.SkipWithError("needs python3-impacket and port 445");
    const Server server({path}, 0);
    const benchmarks::QuietLog quiet;
    const std::string request = XMLReadWriteController::createGetTrusteesListRequestAD(path);
    benchmarks::compare(
        state, Bare().exchange({request}), [&] { Bare().exchange({request}); }, [] { Page().open(); },
        passedSeconds);
}
BENCHMARK(login)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(50);

/// The folders above a path of ten, with so many trustees on each.
void way(benchmark::State& state) {
    if (!Server::isPossible())
        return state.SkipWithError("needs python3-impacket and port 445");
    std::vector<std::string> folders = {"VOL1:\\"};
    for (const char name : std::string("abcdefghi"))
        folders.push_back(folders.size() == 1 ? folders[0] + name : folders.back() + '\\' + name);
    const Server server(folders, state.range(0));
    const benchmarks::QuietLog quiet;
    Page ours;
    const Bare bare;
    std::vector<std::string> requests;
    requests.reserve(folders.size());
    for (const std::string& folder : folders)
        requests.push_back(XMLReadWriteController::createGetTrusteesListRequestAD(folder));
    ours.open();
    const int before = server.requests();
    if (ours.readWay(folders.back()) != folders.size())
        std::abort();
    state.counters["requests"] = server.requests() - before;
    { const Pause closes; }
    const std::size_t size = bare.exchange(requests);
    benchmarks::compare(
        state, size, [&] { bare.exchange(requests); },
        [&] {
            ours.readWay(folders.back());
            return std::make_unique<Pause>();
        },
        passedSeconds);
}
BENCHMARK(way)->Arg(200)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(30);

} // namespace
} // namespace quorvan

BENCHMARK_MAIN();
