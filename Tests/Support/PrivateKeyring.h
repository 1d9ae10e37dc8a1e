// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Tests/Support/ChildProcess.h"

#include <memory>

namespace quorvan::test {

/// A session bus of this process alone, with an unlocked keyring on it. Both live in a temporary home
/// folder that the environment of this process then names.
class PrivateKeyring {
public:
    /// The first program that is missing for this; "" when all are there.
    static std::string missingProgram() {
        for (const char* program : {"dbus-daemon", "dbus-send", "gnome-keyring-daemon", "secret-tool"}) {
            if (!isInstalled(program))
                return program;
        }
        return "";
    }

    PrivateKeyring() {
        for (const char* variable : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
            ::setenv(variable, home.path.c_str(), 1);
        ::setenv("LC_ALL", "C.UTF-8", 1); // in which secret-tool reads its arguments
        bus_ = std::make_unique<ChildProcess>(
            std::vector<std::string>{"dbus-daemon", "--session", "--nofork", "--print-address"});
        ::setenv("DBUS_SESSION_BUS_ADDRESS", bus_->readLine().c_str(), 1);
        if (run({"gnome-keyring-daemon", "--unlock", "--components=secrets"}, "keyring") != 0)
            throw std::runtime_error("gnome-keyring-daemon does not start");
    }

    /// Stores a network password as the file manager does; attributes as NAME, VALUE, NAME, VALUE, …
    static void store(const std::vector<std::string>& attributes, std::string_view secret) {
        std::vector<std::string> command{"secret-tool", "store", "--label=x", "xdg:schema",
                                         "org.gnome.keyring.NetworkPassword"};
        command.insert(command.end(), attributes.begin(), attributes.end());
        if (run(command, secret) != 0)
            throw std::runtime_error("secret-tool does not store");
    }

    static void lock() {
        if (run({"dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.secrets",
                 "/org/freedesktop/secrets", "org.freedesktop.Secret.Service.Lock",
                 "array:objpath:/org/freedesktop/secrets/collection/login"}) != 0)
            throw std::runtime_error("the keyring does not lock");
    }

    TemporaryFolder home;

private:
    std::unique_ptr<ChildProcess> bus_;
};

} // namespace quorvan::test
