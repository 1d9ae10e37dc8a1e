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
    bool empty = false;
    std::uint16_t port = 0;
};

std::optional<Options> parse(int count, char** arguments) {
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--empty") {
            options.empty = true;
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
        std::fprintf(stderr, "usage: kelp-server [--empty] [--port N]\n");
        return 2;
    }
    // Blocked before any thread starts, so that only the sigwait below sees them.
    sigset_t ending;
    sigemptyset(&ending);
    sigaddset(&ending, SIGTERM);
    sigaddset(&ending, SIGINT);
    pthread_sigmask(SIG_BLOCK, &ending, nullptr);

    quorvan::simulator::KelpServer server;
    if (options->empty)
        addDemoAccounts(server);
    else
        addDemoData(server);
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
