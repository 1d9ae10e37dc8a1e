// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Alerts.h"
#include "Platform/Bundle.h"
#include "Platform/BusyIndicator.h"
#include "Platform/DirectoryServices.h"
#include "Platform/Keychain.h"
#include "Platform/LocalVolumes.h"
#include "Platform/NetworkFileSystem.h"
#include "Platform/SharedDefaults.h"

#include <cstdlib>
#include <memory>
#include <utility>

namespace quorvan::platform {

/// The outside world, as one value: the composition root fills it and installs it once.
struct Services {
    std::shared_ptr<SharedDefaults> sharedDefaults;
    std::shared_ptr<Keychain> keychain;
    std::shared_ptr<NetworkFileSystem> network;
    std::shared_ptr<DirectoryServices> directory;
    std::shared_ptr<LocalVolumes> volumes;
    std::shared_ptr<Bundle> bundle;
    std::shared_ptr<Alerts> alerts;
    std::shared_ptr<BusyIndicator> busy;
};

namespace detail {
inline Services* installedServices = nullptr;
}

/// The services that are installed now. Asking before any are is a mistake of the composition root.
inline Services& services() {
    if (detail::installedServices == nullptr)
        std::abort();
    return *detail::installedServices;
}

/// Installs services for its own lifetime and puts back what was there before.
class ScopedServices {
public:
    explicit ScopedServices(Services services)
        : services_(std::move(services))
        , previous_(std::exchange(detail::installedServices, &services_)) {}
    ~ScopedServices() { detail::installedServices = previous_; }
    ScopedServices(const ScopedServices&) = delete;
    ScopedServices& operator=(const ScopedServices&) = delete;

private:
    Services services_;
    Services* previous_;
};

} // namespace quorvan::platform
