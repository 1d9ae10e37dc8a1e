// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/Log.h"
#include "Platform/Linux/LdapDirectory.h"
#include "Platform/Linux/MountCredentials.h"
#include "Platform/Linux/MountedVolumes.h"
#include "Platform/Linux/PlistSharedDefaults.h"
#include "Platform/Linux/SecretServiceKeychain.h"
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Platform/Qt/QtAlerts.h"
#include "Platform/Qt/QtBundle.h"
#include "Platform/Qt/QtWaitCursor.h"
#include "Platform/Services.h"
#include "Quorvan/AppDelegate.h"
#include "Quorvan/Application.h"
#include "Quorvan/Controller/Shell/MainStoryboard.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <QIcon>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>
#include <string_view>

#include <sys/prctl.h>
#include <sys/resource.h>

namespace {

/// What --help prints; there is an application, and no service as yet.
QByteArray helpText() {
    quorvan::platform::Services services;
    services.bundle = std::make_shared<quorvan::platform::QtBundle>();
    const quorvan::platform::ScopedServices installed(services);
    return (quorvan::L("Quorvan_Help_Label") + '\n').toLocal8Bit();
}

bool isGiven(int count, char** arguments, std::string_view shortForm, std::string_view longForm) {
    return std::any_of(arguments + 1, arguments + count, [&](std::string_view argument) {
        return argument == shortForm || argument == longForm;
    });
}

/// The password of the share lies in this process's memory; it must not end up in a core dump, nor be
/// read by the user's other programs.
void keepMemoryPrivate() {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
#ifndef QUORVAN_SANITIZED // the leak check traces the process from within
    prctl(PR_SET_DUMPABLE, 0);
#endif
}

#ifdef QUORVAN_SHORT_LIMITS // the program that tests leave waiting
constexpr quorvan::platform::SmbTimeLimits limits{.silence = std::chrono::seconds(2),
                                                  .secondTry = std::chrono::seconds(1),
                                                  .computing = std::chrono::seconds(6),
                                                  .pause = std::chrono::seconds(1),
                                                  .resolving = std::chrono::seconds(2)};
#else
constexpr quorvan::platform::SmbTimeLimits limits;
#endif

quorvan::platform::Services platformServices() {
    using namespace quorvan::platform;
    const LogLine log = [](std::string_view text) { quorvan::Log("%@", text); };
    Services services;
    services.sharedDefaults = std::make_shared<PlistSharedDefaults>(log);
    services.keychain = std::make_shared<MountCredentials>(std::make_shared<SecretServiceKeychain>());
    services.busy = std::make_shared<QtWaitCursor>(
        [](std::chrono::seconds soFar) { return quorvan::L("Waiting_Label").arg(soFar.count()); });
    services.network = std::make_shared<SmbClientFileSystem>(
        log, [busy = services.busy](std::chrono::seconds soFar) { busy->waiting(soFar); }, limits);
    services.directory = std::make_shared<LdapDirectory>(services.keychain, log);
    services.volumes = std::make_shared<MountedVolumes>();
    services.bundle = std::make_shared<QtBundle>();
    services.alerts = std::make_shared<QtAlerts>();
    return services;
}

} // namespace

int main(int argc, char** argv) {
    if (isGiven(argc, argv, "-h", "--help")) {
        const QCoreApplication application(argc, argv);
        std::fputs(helpText().constData(), stdout);
        return 0;
    }
    if (isGiven(argc, argv, "-v", "--version")) {
        std::puts("quorvan " QUORVAN_VERSION);
        return 0;
    }
    keepMemoryPrivate();
    quorvan::Application application(argc, argv);
    if (argc > 1) { // Qt has taken out what it understands
        std::fprintf(stderr, "quorvan: unknown argument: %s\n%s", argv[1], helpText().constData());
        return 2;
    }
#ifdef QUORVAN_SHORT_LIMITS
    quorvan::XMLReadWriteController::longestReply = std::size_t{2} << 20U;
#endif
    QApplication::setApplicationVersion(QUORVAN_VERSION);
    QApplication::setDesktopFileName("org.tarnix.Quorvan");
    QApplication::setWindowIcon(QIcon(":/icons/quorvan.svg"));

    const quorvan::platform::ScopedServices installed(platformServices());
    return quorvan::Application::run([] {
        quorvan::fillMainStoryboard();
        quorvan::AppDelegate delegate;
        return delegate.run();
    });
}
