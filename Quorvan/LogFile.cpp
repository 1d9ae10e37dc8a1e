// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/LogFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvan {
namespace {

bool isAscii(const std::string& text) {
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<signed char>(byte) > 0; });
}

bool makeFolders(const std::filesystem::path& folder) {
    namespace fs = std::filesystem;
    std::error_code error;
    if (fs::exists(folder, error))
        return true;
    fs::create_directories(folder, error);
    if (error)
        std::printf("%s\n", error.message().c_str());
    else
        fs::permissions(folder, fs::perms::owner_all, error);
    return !error;
}

/// Whether what was opened is the user's own file, and nothing that others have put in its place.
bool isOwnFile(int descriptor) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
           status.st_nlink == 1;
}

int openLogFile(const std::string& file) {
    const int descriptor = ::open(
        file.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        std::printf("%s\n", std::strerror(errno));
        return -1;
    }
    if (!isOwnFile(descriptor)) {
        std::printf("%s is not a file of this user\n", file.c_str());
        ::close(descriptor);
        return -1;
    }
    ::fchmod(descriptor, S_IRUSR | S_IWUSR); // left by a version or a copy that was less careful
    return descriptor;
}

void endLastLine(int descriptor) {
    const off_t size = ::lseek(descriptor, 0, SEEK_END);
    char last = '\n';
    if (size > 0 && ::pread(descriptor, &last, 1, size - 1) == 1 && last != '\n') [[maybe_unused]]
        const ssize_t written = ::write(descriptor, "\n", 1);
}

} // namespace

void sendStandardStreamsInto(const std::string& file) {
    if (!makeFolders(std::filesystem::path(file).parent_path()) || !isAscii(file))
        return;
    const int descriptor = openLogFile(file);
    if (descriptor < 0)
        return;
    endLastLine(descriptor);
    std::fflush(stdout);
    for (const int stream : {STDERR_FILENO, STDIN_FILENO, STDOUT_FILENO})
        ::dup2(descriptor, stream);
    ::close(descriptor);
    std::setvbuf(stdout, nullptr, _IOLBF, 0); // lines keep their order among the log's own
}

} // namespace quorvan
