// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Linux/SmbClientFileSystem.h"
#include "Tests/Support/ChildProcess.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

namespace quorvan::test {

/// Debian's own server with a configuration in a folder of its own, on a port of this test program's.
class Smbd {
public:
    static constexpr const char* password = "sm8d-s3cret"; ///< of root

    static bool isInstalled() { return test::isInstalled("smbd") && test::isInstalled("pdbedit"); }

    explicit Smbd(const std::string& settings) {
        std::ofstream file(conf);
        file << "[global]\nserver role = standalone\nsmb ports = " << port
             << "\ninterfaces = lo 127.0.0.1/8\nbind interfaces only = yes\nguest account = nobody\n"
                "load printers = no\ndisable spoolss = yes\n"
             << "log file = " << (folder.path / "log").string() << '\n';
        for (const char* name : {"private dir", "lock directory", "state directory", "cache directory",
                                 "pid directory", "ncalrpc dir"})
            file << name << " = " << made(name) << '\n';
        file << settings << "\n[vol1]\npath = " << made("share") << "\nguest ok = yes\nread only = no\n"
             << std::flush;
        const std::string secret = std::string(password) + "\n";
        run({"pdbedit", "-s", conf, "-a", "-t", "root"}, secret + secret);
        server = std::make_unique<ChildProcess>(std::vector<std::string>{"smbd", "-F", "-s", conf});
    }

    std::filesystem::path share() const { return folder.path / "share"; }
    std::string log() const {
        std::stringstream text;
        text << std::ifstream(folder.path / "log").rdbuf();
        return text.str();
    }
    std::string url(const std::string& host = "127.0.0.1") const {
        return "smb://" + host + ":" + std::to_string(port) + "/vol1";
    }

    /// How the one session is signed, as smbd has it: "-" for not at all.
    std::string signing() const {
        ChildProcess status({"smbstatus", "-s", conf, "-p"});
        status.closeInput();
        std::string line;
        for (int lines = 0; lines < 20 && line.find("(ipv4:127.0.0.1:") == std::string::npos; ++lines)
            line = status.readLine();
        line.erase(line.find_last_not_of(' ') + 1);
        return line.substr(line.rfind(' ') + 1);
    }

private:
    std::string made(const std::string& name) const {
        std::filesystem::create_directory(folder.path / name);
        return (folder.path / name).string();
    }

    TemporaryFolder folder;
    int port = 20000 + ::getpid() % 10000;
    std::string conf = (folder.path / "smb.conf").string();
    std::unique_ptr<ChildProcess> server;
};

/// Mounts the share, once smbd listens.
inline platform::MountResult mount(platform::SmbClientFileSystem& files, const std::string& url,
                                   const char* secret, const char* account = "root") {
    platform::MountResult mounted;
    for (int tries = 0; tries < 200; ++tries) {
        mounted = files.mount(url, account, platform::Secret(secret), {});
        if (mounted.error != ECONNREFUSED)
            break;
        ::usleep(20'000);
    }
    return mounted;
}

} // namespace quorvan::test
