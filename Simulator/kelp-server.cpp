// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/DemoData.h"
#include "Simulator/SocketServer.h"

#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string_view>

#include <unistd.h>

namespace {

struct Options {
    void (*addData)(quorvan::simulator::KelpServer&) = quorvan::simulator::addDemoData;
    std::uint16_t port = 0;
};

/// Null for a name that is none of the three.
auto dataNamed(std::string_view name) -> decltype(Options::addData) {
    if (name == "demo")
        return quorvan::simulator::addDemoData;
    if (name == "second")
        return quorvan::simulator::addSecondDemoData;
    return name == "accounts" ? quorvan::simulator::addDemoAccounts : nullptr;
}

std::optional<Options> parse(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--data" && i + 1 < count) {
            options.addData = dataNamed(arguments[++i]);
            if (options.addData == nullptr)
                return std::nullopt;
        } else if (argument == "--port" && i + 1 < count) {
            const std::string_view text = arguments[++i];
            const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), options.port);
            if (error != std::errc() || end != text.data() + text.size())
                return std::nullopt;
        } else {
            return std::nullopt;
        }
    }
    return options;
}

} // namespace

int main(int argc, char** argv) {
    const auto options = parse(argc, argv);
    if (!options) {
        std::fprintf(stderr, "usage: kelp-server [--data demo|second|accounts] [--port N]\n");
        return 2;
    }
    // Blocked before any thread starts, so that only the sigwait below sees them.
    sigset_t ending;
    sigemptyset(&ending);
    sigaddset(&ending, SIGTERM);
    sigaddset(&ending, SIGINT);
    pthread_sigmask(SIG_BLOCK, &ending, nullptr);

    quorvan::simulator::KelpServer server;
    options->addData(server);
    quorvan::simulator::SocketServer sockets(server, [] { ::kill(::getpid(), SIGTERM); });
    if (!sockets.start(options->port)) {
        std::fprintf(stderr, "kelp-server: cannot listen on 127.0.0.1 port %u: %s\n", unsigned{options->port},
                     std::strerror(errno));
        return 1;
    }
    std::printf("port %u\n", unsigned{sockets.port()});
    std::fflush(stdout);

    int received = 0;
    sigwait(&ending, &received);
    sockets.stop();
    return 0;
}
