// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbConfiguration.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <system_error>

namespace quorvan::platform {
namespace {

// The library has no call for these. What stands later in a file counts.
constexpr const char* safeSettings = "\n[global]\n"
                                     "client ntlmv2 auth = yes\n"
                                     "client lanman auth = no\n"
                                     "client plaintext auth = no\n"
                                     "client use spnego = yes\n";

/// The file that the library would read by itself.
std::string usualConfiguration(const std::string& home) {
    const std::string own = home + "/.smb/smb.conf";
    std::error_code error;
    return std::filesystem::exists(own, error) ? own : "/etc/samba/smb.conf";
}

/// A home directory whose smb.conf is the usual one and then the safe settings. The library finds its
/// configuration by this way alone.
class SafeHome {
public:
    explicit SafeHome(const std::string& home)
        : folder_((std::filesystem::temp_directory_path() / "quorvan-XXXXXX").string()) {
        if (::mkdtemp(folder_.data()) == nullptr)
            return;
        std::filesystem::create_directory(folder_ + "/.smb");
        std::ofstream(folder_ + "/.smb/smb.conf") << "include = " << usualConfiguration(home) << safeSettings;
        ::setenv("HOME", folder_.c_str(), 1);
    }
    ~SafeHome() {
        std::error_code error;
        std::filesystem::remove_all(folder_, error);
    }
    SafeHome(const SafeHome&) = delete;
    SafeHome& operator=(const SafeHome&) = delete;

private:
    std::string folder_;
};

} // namespace

SMBCCTX* newSmbContext() {
    const char* const variable = std::getenv("HOME");
    const std::string home = variable == nullptr ? "/" : variable;
    const SafeHome safe(home);
    SMBCCTX* const context = smbc_new_context();
    ::setenv("HOME", home.c_str(), 1);
    return context;
}

} // namespace quorvan::platform
