// SPDX-License-Identifier: GPL-3.0-or-later
//
// What opening a page costs over SMB beside the same calls of the SMB library, in time that passes. The
// server is the one of the system tests, on a loopback address.
#include "Benchmarks/Measure.h"
#include "Common/ServerDetails.h"
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Platform/Linux/SmbConfiguration.h"
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
    explicit Server(std::int64_t trustees)
        : kelp_({KELP_SERVER})
        , port_(kelp_.readLine().substr(std::strlen("port ")))
        , front_({"/usr/bin/python3", SMB_FRONT, "--address", address, "--password", password, "--kelp-port",
                  port_}) {
        const test::Socket socket;
        socket.connect("127.0.0.1", std::stoi(port_));
        socket.send("add-many\t" + path + "\t" + std::to_string(trustees) + "\n");
        if (socket.receive(64) != "ok 0\n" || front_.readLine() != "ready")
            std::abort();
    }

private:
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

    std::size_t exchange(const std::string& request) const {
        const std::string url = std::string("smb://") + address + "/IPC$/FilesCmdPipe";
        SMBCFILE* const file = smbc_getFunctionOpen(context_)(context_, url.c_str(), O_RDWR, 0);
        if (file == nullptr)
            std::abort();
        const auto toStart = [&] { smbc_getFunctionLseek(context_)(context_, file, 0, SEEK_SET); };
        toStart();
        smbc_getFunctionWrite(context_)(context_, file, request.data(), request.size());
        std::string reply;
        std::array<char, XMLReadWriteController::MEM_SIZE> piece;
        ssize_t size = 0;
        do {
            toStart();
            size = smbc_getFunctionRead(context_)(context_, file, piece.data(), piece.size());
            reply.append(piece.data(), static_cast<std::size_t>(std::max(size, ssize_t{0})));
        } while (size > 0);
        smbc_getFunctionClose(context_)(context_, file);
        return reply.size();
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
    const Server server(state.range(0));
    const benchmarks::QuietLog quiet;
    Page ours;
    const Bare bare;
    const std::string request = XMLReadWriteController::createGetTrusteesListRequestAD(path);
    ours.open();
    { const Pause closes; }
    const std::size_t size = bare.exchange(request);
    benchmarks::compare(
        state, size, [&] { bare.exchange(request); },
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
    const Server server(0);
    const benchmarks::QuietLog quiet;
    const std::string request = XMLReadWriteController::createGetTrusteesListRequestAD(path);
    benchmarks::compare(
        state, Bare().exchange(request), [&] { Bare().exchange(request); }, [] { Page().open(); },
        passedSeconds);
}
BENCHMARK(login)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(50);

} // namespace
} // namespace quorvan

BENCHMARK_MAIN();
