// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Services.h"
#include "Simulator/DemoData.h"
#include "Simulator/KelpServer.h"
#include "Simulator/MemoryDirectory.h"
#include "Simulator/MemoryServices.h"
#include "Simulator/MirroredVolumes.h"
#include "Simulator/SimulatedFileSystem.h"

#include <memory>
#include <string>

namespace quorvan::simulator {

/// A whole small world inside the process: a server, the network to it, the user's keychain, the
/// shared defaults with the selection, and Active Directory.
///
///     auto world = Embedded::demo();
///     platform::Services services = world.services();
///     services.bundle = …; services.alerts = …; services.busy = …;
///     platform::ScopedServices installed(services);
///
/// The parts are open to change at any time, before and after the hand-over.
class Embedded {
public:
    /// An empty server, known on the network by `host` and `address`; nothing handed over, no
    /// keychain item.
    explicit Embedded(std::string host = demo::host, std::string address = demo::address);

    /// The demo data on two servers, `user` (one of demo::accounts) with the mounted volume VOL1, and `path`
    /// of it (VOL1:\dir\file) selected.
    static Embedded demo(const std::string& user = demo::supervisor,
                         const std::string& path = demo::selection);

    /// Puts the account into the keychain, as a mount of a share of this server does.
    void logIn(const std::string& user, const std::string& password);

    /// Writes the selection as the file manager does: `localPath` below /Volumes, and the server
    /// path VOLUME:\dir that its share's root stands for.
    void handOver(const std::string& localPath, const std::string& mappedPath);

    /// Everything but bundle, alerts and busy, which belong to the caller.
    platform::Services services() const;

    std::string host;
    std::string address;
    std::shared_ptr<Identities> identities;
    std::shared_ptr<KelpServer> server;
    std::shared_ptr<KelpServer> secondServer; ///< where links of the demo data lead; null without it
    std::shared_ptr<SimulatedFileSystem> network;
    std::shared_ptr<MemorySharedDefaults> sharedDefaults;
    std::shared_ptr<MemoryKeychain> keychain;
    std::shared_ptr<MemoryDirectory> directory;
    std::shared_ptr<MirroredVolumes> volumes; ///< of the first server
};

} // namespace quorvan::simulator
