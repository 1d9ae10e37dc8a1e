// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/PlistSharedDefaults.h"

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <plist/plist.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvan::platform {
namespace {

/// A hand-over is a few hundred bytes; a file beyond this is not one. The library descends by calling itself,
/// and with more levels than fit in here it would run out of stack.
constexpr std::size_t largestFile = 64U << 10U;

struct PlistDeleter {
    void operator()(void* node) const { plist_free(node); }
};
using Plist = std::unique_ptr<void, PlistDeleter>;

class Descriptor {
public:
    explicit Descriptor(int value)
        : value_(value) {}
    ~Descriptor() { release(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return value_; }
    int release() { return value_ < 0 ? 0 : ::close(std::exchange(value_, -1)); }

private:
    int value_;
};

std::string lastError() {
    return std::generic_category().message(errno);
}

/// The bytes of a regular file; on failure nothing, and `problem` says why.
std::optional<std::string> readFile(const std::filesystem::path& file, std::string& problem) {
    // Not waiting: a named pipe in this place must not stop the program.
    const Descriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (descriptor.get() < 0 || ::fstat(descriptor.get(), &status) != 0) {
        problem = lastError();
        return std::nullopt;
    }
    if (!S_ISREG(status.st_mode)) {
        problem = "Not a regular file";
        return std::nullopt;
    }
    std::string bytes;
    char piece[4096];
    ssize_t count = 0;
    while ((count = ::read(descriptor.get(), piece, sizeof piece)) > 0 && bytes.size() <= largestFile)
        bytes.append(piece, static_cast<std::size_t>(count));
    if (count < 0) {
        problem = lastError();
        return std::nullopt;
    }
    return bytes;
}

/// The dictionary that a file holds; on failure null, and `problem` says why.
Plist readDictionary(const std::filesystem::path& file, std::string& problem) {
    const std::optional<std::string> bytes = readFile(file, problem);
    if (!bytes)
        return nullptr;
    plist_t node = nullptr;
    if (bytes->size() <= largestFile)
        plist_from_memory(bytes->data(), static_cast<std::uint32_t>(bytes->size()), &node);
    Plist root(node);
    if (!root) {
        problem = "Not a property list";
    } else if (plist_get_node_type(root.get()) != PLIST_DICT) {
        problem = "Not a dictionary";
        root.reset();
    }
    return root;
}

bool writeAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(descriptor, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

/// Puts `bytes` in the place of the file, all or nothing; false with errno set when that failed.
bool replaceFile(const std::filesystem::path& file, std::string_view bytes) {
    std::error_code ignored; // the next call fails when the folder is still not there
    std::filesystem::create_directories(file.parent_path(), ignored);
    std::string temporary = file.string() + ".XXXXXX";
    Descriptor descriptor(::mkostemp(temporary.data(), O_CLOEXEC)); // mode 0600
    if (descriptor.get() < 0)
        return false;
    if (writeAll(descriptor.get(), bytes) && ::fsync(descriptor.get()) == 0 && descriptor.release() == 0 &&
        ::rename(temporary.c_str(), file.c_str()) == 0)
        return true;
    const int error = errno;
    ::unlink(temporary.c_str());
    errno = error;
    return false;
}

class PlistSuite : public DefaultsSuite {
public:
    PlistSuite(std::shared_ptr<PlistSharedDefaults::Store> store, LogLine log)
        : store_(std::move(store))
        , log_(std::move(log)) {}

    void synchronize() override {
        if (!store_->unwritten.empty())
            write();
        read();
    }

    std::optional<std::string> string(const std::string& key) override {
        if (const auto set = store_->unwritten.find(key); set != store_->unwritten.end())
            return set->second;
        if (!wasRead_)
            read();
        const plist_t node = root_ ? plist_dict_get_item(root_.get(), key.c_str()) : nullptr;
        if (node == nullptr || plist_get_node_type(node) != PLIST_STRING)
            return std::nullopt;
        std::uint64_t length = 0;
        const char* text = plist_get_string_ptr(node, &length);
        return text == nullptr ? std::string() : std::string(text, length);
    }

    void setString(const std::string& key, const std::string& value) override {
        store_->unwritten[key] = value;
    }

private:
    void read() {
        std::string problem;
        root_ = readDictionary(store_->file, problem);
        wasRead_ = true;
        report(problem);
    }

    void write() {
        std::string problem;
        Plist root = readDictionary(store_->file, problem); // others may have written in the meantime
        if (!root) {
            std::error_code failure;
            if (std::filesystem::exists(store_->file, failure) || failure)
                return; // not ours to overwrite; the read that follows reports it
            root.reset(plist_new_dict());
        }
        for (const auto& [key, value] : store_->unwritten)
            plist_dict_set_item(root.get(), key.c_str(), plist_new_string(value.c_str()));
        char* xml = nullptr;
        std::uint32_t length = 0;
        plist_to_xml(root.get(), &xml, &length);
        if (xml == nullptr)
            return;
        if (replaceFile(store_->file, {xml, length}))
            store_->unwritten.clear();
        else
            log_("Shared defaults " + store_->file.string() + " not written: " + lastError());
        plist_to_xml_free(xml);
    }

    void report(const std::string& problem) {
        if (!problem.empty() && problem != store_->lastProblem)
            log_("Shared defaults " + store_->file.string() + ": " + problem);
        store_->lastProblem = problem;
    }

    std::shared_ptr<PlistSharedDefaults::Store> store_;
    LogLine log_;
    Plist root_;
    bool wasRead_ = false;
};

} // namespace

PlistSharedDefaults::PlistSharedDefaults(LogLine log, std::filesystem::path folder)
    : log_(std::move(log))
    , folder_(std::move(folder)) {}

std::unique_ptr<DefaultsSuite> PlistSharedDefaults::openSuite(const std::string& name) {
    const bool plainName = !name.empty() && name.front() != '.' && name.find('/') == std::string::npos &&
                           name.find('\0') == std::string::npos;
    if (!plainName || folder_.empty())
        return nullptr;
    std::shared_ptr<Store>& store = stores_[name];
    if (!store)
        store = std::make_shared<Store>(Store{folder_ / (name + ".plist"), {}, {}});
    return std::make_unique<PlistSuite>(store, log_);
}

std::filesystem::path PlistSharedDefaults::userConfigurationFolder() {
    // A relative path counts as none, as the desktops agreed for this variable.
    if (const char* folder = std::getenv("XDG_CONFIG_HOME"); folder != nullptr && *folder == '/')
        return folder;
    if (const char* home = std::getenv("HOME"); home != nullptr && *home == '/')
        return std::filesystem::path(home) / ".config";
    if (const passwd* user = ::getpwuid(::getuid()); user != nullptr && user->pw_dir != nullptr)
        return std::filesystem::path(user->pw_dir) / ".config";
    return {};
}

} // namespace quorvan::platform
