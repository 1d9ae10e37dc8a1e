// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Services.h"

#include <cerrno>
#include <cstring>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// The outside world in memory. Everything is a plain public field: a test says what is there, and
/// reads what was asked.
namespace quorvan::test {

struct FakeSharedDefaults : platform::SharedDefaults {
    std::map<std::string, std::string> values;
    bool available = true;
    std::vector<std::string> openedSuites;

    struct Suite : platform::DefaultsSuite {
        explicit Suite(FakeSharedDefaults& owner)
            : defaults(owner) {}
        void synchronize() override { snapshot = defaults.values; }
        std::optional<std::string> string(const std::string& key) override {
            const auto entry = snapshot.find(key);
            return entry == snapshot.end() ? std::nullopt : std::optional(entry->second);
        }
        void setString(const std::string& key, const std::string& value) override {
            snapshot[key] = defaults.values[key] = value;
        }
        FakeSharedDefaults& defaults;
        std::map<std::string, std::string> snapshot = defaults.values;
    };
    std::unique_ptr<platform::DefaultsSuite> openSuite(const std::string& name) override {
        openedSuites.push_back(name);
        return available ? std::make_unique<Suite>(*this) : nullptr;
    }
};

struct FakeKeychain : platform::Keychain {
    struct Item {
        std::optional<std::string> account, data;
    };
    std::map<std::string, Item> items; ///< by server
    platform::KeychainResult findInternetPassword(const std::string& server) override {
        const auto item = items.find(server);
        if (item == items.end())
            return {platform::errSecItemNotFound, {}};
        platform::KeychainItem found{item->second.account, {}};
        if (item->second.data)
            found.data.emplace(*item->second.data);
        return {0, std::move(found)};
    }
};

/// Shares and one pipe file. What is written is kept; reads hand out `pieces`, then nothing.
struct FakeNetwork : platform::NetworkFileSystem {
    std::vector<std::string> calls; ///< "mount URL USER PASSWORD", "seek 0", "write TEXT", …
    std::map<std::string, std::string> addresses;
    platform::MountResult mountResult{0, {"/Volumes/IPC$"}};
    int contextError = 0;
    int statError = 0;
    int openResult = 7;
    int openError = 0;
    std::deque<std::optional<std::string>> pieces; ///< nothing stands for a read that fails and passes
    int readError = EINTR;
    int loss = 0;

    std::string resolve(const std::string& host) override {
        calls.push_back("resolve " + host);
        return addresses[host];
    }
    int createContext(const std::string& server) override {
        calls.push_back("context " + server);
        return contextError;
    }
    platform::MountResult mount(const std::string& url, const std::string& user,
                                const platform::Secret& password,
                                const platform::MountOptions& options) override {
        calls.push_back("mount " + url + " " + user + " " + std::string(password.reveal()) +
                        (options.noUserInterface ? " NoUI" : "") +
                        (options.allowSubMounts ? " AllowSubMounts" : ""));
        return mountResult;
    }
    int unmount(const std::string& path, bool force) override {
        calls.push_back((force ? "force unmount " : "unmount ") + path);
        return fail(statError);
    }
    int stat(const std::string& path) override {
        calls.push_back("stat " + path);
        return fail(statError);
    }
    int open(const std::string& path) override {
        calls.push_back("open " + path);
        errno = openError;
        return openResult;
    }
    int lossOn(int) const override { return loss; }
    int disableCaching(int descriptor) override {
        calls.push_back("disableCaching " + std::to_string(descriptor));
        return 0;
    }
    off_t seek(int, off_t offset) override {
        calls.push_back("seek " + std::to_string(offset));
        return offset;
    }
    ssize_t read(int, void* buffer, std::size_t size) override {
        calls.push_back("read " + std::to_string(size));
        if (pieces.empty())
            return 0;
        const std::optional<std::string> piece = std::move(pieces.front());
        pieces.pop_front();
        if (!piece)
            return fail(readError);
        std::memcpy(buffer, piece->data(), piece->size());
        return static_cast<ssize_t>(piece->size());
    }
    ssize_t write(int, const void* data, std::size_t size) override {
        calls.push_back("write " + std::string(static_cast<const char*>(data), size));
        return static_cast<ssize_t>(size);
    }
    int close(int descriptor) override {
        calls.push_back("close " + std::to_string(descriptor));
        return 0;
    }

private:
    static int fail(int error) {
        errno = error;
        return error == 0 ? 0 : -1;
    }
};

struct FakeRecord : platform::DirectoryRecord {
    std::map<std::string, std::vector<std::string>> attributes;
    explicit FakeRecord(std::map<std::string, std::vector<std::string>> initial)
        : attributes(std::move(initial)) {}
    std::optional<std::vector<std::string>> values(const std::string& attribute) override {
        const auto entry = attributes.find(attribute);
        return entry == attributes.end() ? std::nullopt
                                         : std::optional(entry->second); // none: the read fails
    }
};

struct FakeDirectory : platform::DirectoryServices {
    std::optional<std::map<std::string, std::string>> state{{{"NodeName", "/Active Directory/KELP"}}};
    std::map<std::string, platform::DirectoryRecords> records; ///< by the value that is asked for
    bool answers = true;
    int stateReads = 0;
    std::vector<std::string> openedNodes; ///< "" is the network node
    std::vector<platform::DirectoryQuery> queries;
    std::vector<std::vector<std::string>> prefetches;

    struct Node : platform::DirectoryNode {
        explicit Node(FakeDirectory& owner)
            : directory(owner) {}
        std::optional<platform::DirectoryRecords> query(const platform::DirectoryQuery& query) override {
            directory.queries.push_back(query);
            return directory.answers ? std::optional(directory.records[query.values.at(0)]) : std::nullopt;
        }
        FakeDirectory& directory;
    };
    std::optional<std::map<std::string, std::string>> activeDirectoryState() override {
        ++stateReads;
        return state;
    }
    std::shared_ptr<platform::DirectoryNode> openNode(const std::string& name) override {
        openedNodes.push_back(name);
        return std::make_shared<Node>(*this);
    }
    std::shared_ptr<platform::DirectoryNode> openNetworkNode() override { return openNode(""); }
    std::optional<std::vector<std::string>> nodeNames() override { return std::nullopt; }
    std::optional<std::vector<platform::ManagedIdentity>>
    managedIdentities(platform::IdentityClass /*identityClass*/) override {
        return std::nullopt;
    }
    void prefetch(const std::vector<std::string>& sids) override { prefetches.push_back(sids); }
};

struct FakeBundle : platform::Bundle {
    std::map<std::string, std::string> texts;
    std::optional<platform::FeatureDictionary> features{{{"enableSettings", true},
                                                         {"MorvaneSupport", true},
                                                         {"multiForest", true},
                                                         {"addBothTrustees", true},
                                                         {"newFileBrowser", true},
                                                         {"bothIdentities", true}}};
    int featureReads = 0;
    std::string localizedString(const std::string& key) override {
        const auto entry = texts.find(key);
        return entry == texts.end() ? key : entry->second;
    }
    std::optional<platform::FeatureDictionary> featureDictionary() override {
        ++featureReads;
        return features;
    }
};

struct RecordingAlerts : platform::Alerts {
    struct Alert {
        std::string windowTitle;
        std::string message;
        platform::AlertStyle style;
        bool operator==(const Alert&) const = default;
    };
    std::vector<Alert> shown;
    void runModal(const std::string& windowTitle, const std::string& message,
                  platform::AlertStyle style) override {
        shown.push_back({windowTitle, message, style});
    }
};

struct CountingBusyIndicator : platform::BusyIndicator {
    int begun = 0;
    int running = 0;
    void begin() override {
        ++begun;
        ++running;
    }
    void end() override { --running; }
};

/// Folders by their paths; what lies in one and has no listing of its own is a file.
struct FakeVolumes : platform::LocalVolumes {
    std::map<std::string, platform::LocalListing> folders;
    std::vector<std::string> listed; ///< the paths that were asked for

    Kind kindOf(const std::string& path) override {
        return folders.contains(path) ? Kind::folder : Kind::nothing;
    }
    platform::LocalListing list(const std::string& path) override {
        listed.push_back(path);
        const auto folder = folders.find(path);
        return folder == folders.end() ? platform::LocalListing{{}, "Not a directory"} : folder->second;
    }
    bool hasEntries(const std::string& path) override { return !list(path).entries.empty(); }
};

/// One of each, installed for the lifetime of this object. A test that needs another implementation of a
/// port installs a changed copy of platform::services() on top.
struct FakeWorld {
    std::shared_ptr<FakeSharedDefaults> defaults = std::make_shared<FakeSharedDefaults>();
    std::shared_ptr<FakeKeychain> keychain = std::make_shared<FakeKeychain>();
    std::shared_ptr<FakeNetwork> network = std::make_shared<FakeNetwork>();
    std::shared_ptr<FakeDirectory> directory = std::make_shared<FakeDirectory>();
    std::shared_ptr<FakeVolumes> volumes = std::make_shared<FakeVolumes>();
    std::shared_ptr<FakeBundle> bundle = std::make_shared<FakeBundle>();
    std::shared_ptr<RecordingAlerts> alerts = std::make_shared<RecordingAlerts>();
    std::shared_ptr<CountingBusyIndicator> busy = std::make_shared<CountingBusyIndicator>();
    platform::ScopedServices installed{
        {defaults, keychain, network, directory, volumes, bundle, alerts, busy}};
};

} // namespace quorvan::test
