// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/Embedded.h"

#include <utility>

namespace quorvan::simulator {

namespace {

constexpr const char* selectionSuite = "group.tarnix.common";

/// Where a path VOL1:\dir\file lies locally when the whole volume is mounted: /Volumes/VOL1/dir/file.
std::string localPathOf(std::string path) {
    path.erase(path.find(':'), 1);
    for (char& c : path) {
        if (c == '\\')
            c = '/';
    }
    return "/Volumes/" + path;
}

} // namespace

Embedded::Embedded(std::string serverHost, std::string serverAddress)
    : host(std::move(serverHost))
    , address(std::move(serverAddress))
    , identities(std::make_shared<Identities>())
    , server(std::make_shared<KelpServer>(identities))
    , network(std::make_shared<SimulatedFileSystem>())
    , sharedDefaults(std::make_shared<MemorySharedDefaults>())
    , keychain(std::make_shared<MemoryKeychain>())
    , directory(std::make_shared<MemoryDirectory>(identities))
    , volumes(std::make_shared<MirroredVolumes>(server)) {
    network->addServer(server, host, address);
}

Embedded Embedded::demo(const std::string& user, const std::string& path) {
    Embedded world;
    addDemoData(*world.server);
    world.secondServer = std::make_shared<KelpServer>(world.identities);
    addSecondDemoData(*world.secondServer);
    world.network->addServer(world.secondServer, demo::secondHost, demo::secondAddress);
    addDemoForest(*world.identities);
    world.directory->state().unreachable = {demo::unreachableDomain};
    world.logIn(user, demo::password);
    world.handOver(localPathOf(path), path.substr(0, path.find(':')) + ":\\");
    return world;
}

void Embedded::logIn(const std::string& user, const std::string& password) {
    keychain->setItem(host, user, password);
}

void Embedded::handOver(const std::string& localPath, const std::string& mappedPath) {
    auto& values = sharedDefaults->values(selectionSuite);
    values["serverIP"] = host;
    values["selectedPath"] = localPath;
    values["mappedPath"] = mappedPath;
}

platform::Services Embedded::services() const {
    platform::Services services;
    services.sharedDefaults = sharedDefaults;
    services.keychain = keychain;
    services.network = network;
    services.directory = directory;
    services.volumes = volumes;
    return services;
}

} // namespace quorvan::simulator
