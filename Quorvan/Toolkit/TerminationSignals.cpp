// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/TerminationSignals.h"

#include "Common/Fatal.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <string_view>
#include <utility>

#include <fcntl.h>
#include <sys/time.h>
#include <unistd.h>

namespace quorvan {
namespace {

constexpr int handledSignals[] = {SIGTERM, SIGINT, SIGHUP};
constexpr itimerval toTheEventLoop{{0, 0}, {0, 700'000}}; ///< within a second
constexpr unsigned secondsToTheEnd = 3;                   ///< from there, with servers to log off from
int writeEnd = -1;

/// Whatever the program is waiting for, its sessions end with it.
void endAtOnce(int) {
    constexpr std::string_view line = "Ended while waiting for a server\n";
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, line.data(), line.size());
    ::_exit(0);
}

void tellTheEventLoop(int) {
    const int savedErrno = errno;
    setitimer(ITIMER_REAL, &toTheEventLoop, nullptr);
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(writeEnd, &byte, 1);
    errno = savedErrno;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> quit, QObject* parent)
    : QObject(parent) {
    int ends[2];
    require(pipe2(ends, O_CLOEXEC | O_NONBLOCK) == 0, "No pipe for signals");
    readEnd_ = ends[0];
    writeEnd = ends[1];
    auto* notifier = new QSocketNotifier(readEnd_, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [notifier, quit = std::move(quit)] {
        notifier->setEnabled(false);
        alarm(secondsToTheEnd);
        quit();
    });
    struct sigaction action {};
    action.sa_handler = endAtOnce;
    sigaction(SIGALRM, &action, nullptr);
    action.sa_handler = tellTheEventLoop;
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int signal : handledSignals)
        sigaction(signal, &action, nullptr);
}

TerminationSignals::~TerminationSignals() {
    alarm(0);
    std::signal(SIGALRM, SIG_DFL);
    for (const int signal : handledSignals)
        std::signal(signal, SIG_DFL);
    ::close(readEnd_);
    ::close(std::exchange(writeEnd, -1));
}

} // namespace quorvan
