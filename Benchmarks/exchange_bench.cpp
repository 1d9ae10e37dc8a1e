// SPDX-License-Identifier: GPL-3.0-or-later
//
// How much the exchange adds to reading the pieces of a long reply: decoding and assembling them against
// a bare loop that appends them to a string whose size it knows. Both read from the same source, a socket on
// which another thread plays the server, and take turns in one run. A loop that throws the pieces away is
// measured as well; what it saves is the first touch of the reply's memory.
#include "Benchmarks/Measure.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/Fakes.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <thread>

namespace quorvan {
namespace {

constexpr std::size_t pieceSize = XMLReadWriteController::MEM_SIZE;

/// The open pipe: one end of a socket that keeps the bounds of messages, as a pipe of the server does.
struct SocketFile : test::FakeNetwork {
    explicit SocketFile(int descriptor)
        : socket(descriptor) {}
    int disableCaching(int) override { return 0; }
    off_t seek(int, off_t offset) override { return offset; }
    ssize_t write(int, const void*, std::size_t size) override { return static_cast<ssize_t>(size); }
    ssize_t read(int, void* buffer, std::size_t size) override { return ::read(socket, buffer, size); }
    int socket;
};

/// Hands out `reply` in pieces and then an empty one while it lives.
class Server {
public:
    explicit Server(const std::string& reply) {
        if (socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends_.data()) != 0)
            std::abort();
        thread_ = std::thread([this, &reply] {
            for (std::size_t at = 0; at < reply.size(); at += pieceSize) {
                const std::size_t size = std::min(pieceSize, reply.size() - at);
                if (::send(ends_[1], reply.data() + at, size, 0) != static_cast<ssize_t>(size))
                    std::abort();
            }
            ::close(ends_[1]);
        });
    }
    ~Server() {
        thread_.join();
        ::close(ends_[0]);
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    int socket() const { return ends_[0]; }

private:
    std::array<int, 2> ends_{};
    std::thread thread_;
};

/// Reads all pieces and hands each to `take`.
template <class Take>
void readBare(SocketFile& file, Take&& take) {
    std::array<char, pieceSize> buffer;
    ssize_t length = 0;
    do {
        file.seek(1, 0);
        length = file.read(1, buffer.data(), pieceSize);
        take(std::string_view(buffer.data(), static_cast<std::size_t>(length)));
    } while (length > 0);
}

/// `text` is repeated up to the length of the reply.
void exchange(benchmark::State& state, const std::string& text, bool baselineKeeps) {
    const auto size = static_cast<std::size_t>(state.range(0)) << 20U;
    std::string reply;
    while (reply.size() < size)
        reply += text;
    reply.resize(size / text.size() * text.size());

    test::FakeWorld world;
    const benchmarks::QuietLog quiet;
    XMLReadWriteController controller;
    XMLReadWriteController::fileDes = 1;
    benchmarks::compare(
        state, reply.size(),
        [&] {
            const Server server(reply);
            SocketFile file(server.socket());
            std::string kept;
            if (baselineKeeps) {
                kept.reserve(reply.size());
                readBare(file, [&kept](std::string_view piece) { kept += piece; });
            } else {
                readBare(file, [](std::string_view piece) { benchmark::DoNotOptimize(piece); });
            }
            benchmark::DoNotOptimize(kept);
        },
        [&] {
            const Server server(reply);
            platform::Services services = platform::services();
            services.network = std::make_shared<SocketFile>(server.socket());
            const platform::ScopedServices installed(services);
            if (controller.exchangeRequest("<a/>", {"%@", "", "%@"}).size() < reply.size())
                std::abort();
        });
}

const char* const ascii = "<trusteeInfo><name>user</name><id>S-1-5-21-1-2-3-1000</id></trusteeInfo>";
const char* const accented = "<trusteeInfo><name>Zoë Müller</name><id>S-1-5-21-1-2-3-1000</id></trusteeInfo>";

/// Megabytes of the reply.
void sizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->Arg(64)->Unit(benchmark::kMillisecond)->UseManualTime();
}
BENCHMARK_CAPTURE(exchange, ascii, ascii, true)->Apply(sizes);
BENCHMARK_CAPTURE(exchange, accented, accented, true)->Apply(sizes);
BENCHMARK_CAPTURE(exchange, ascii_against_discarding, ascii, false)->Apply(sizes);

} // namespace
} // namespace quorvan

BENCHMARK_MAIN();
