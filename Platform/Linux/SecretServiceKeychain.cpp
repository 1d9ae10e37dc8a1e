// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SecretServiceKeychain.h"

#include <functional>
#include <future>
#include <memory>
#include <string_view>
#include <thread>
#include <tuple>
#include <utility>

#include <strings.h>

#include <libsecret/secret.h>

namespace quorvan::platform {
namespace {

struct ObjectDeleter {
    void operator()(gpointer object) const { g_object_unref(object); }
};
template <class Object>
using ObjectPointer = std::unique_ptr<Object, ObjectDeleter>;

struct ItemsDeleter {
    void operator()(GList* items) const { g_list_free_full(items, g_object_unref); }
};

struct TableDeleter {
    void operator()(GHashTable* table) const { g_hash_table_unref(table); }
};
using Table = std::unique_ptr<GHashTable, TableDeleter>;

struct SecretDeleter {
    void operator()(gpointer secret) const { secret_value_unref(secret); }
};

std::unique_ptr<SecretValue, SecretDeleter> secretOf(SecretItem* item) {
    return std::unique_ptr<SecretValue, SecretDeleter>(secret_item_get_secret(item));
}

/// An attribute of an item; "" where it has none of that name.
std::string attribute(SecretItem* item, const char* name) {
    const Table attributes(secret_item_get_attributes(item));
    const auto* value = static_cast<const char*>(g_hash_table_lookup(attributes.get(), name));
    return value != nullptr ? value : "";
}

/// Which of two items for one server is the better one: one with an account, then one for SMB's own port,
/// then the one that was written last.
auto rank(SecretItem* item) {
    const std::string port = attribute(item, "port");
    return std::tuple(!attribute(item, "user").empty(), port.empty() || port == "0" || port == "445",
                      secret_item_get_modified(item));
}

/// What an item that has a secret holds.
KeychainItem contents(SecretItem* item) {
    const auto secret = secretOf(item);
    KeychainItem found;
    if (const std::string user = attribute(item, "user"); !user.empty())
        found.account = user;
    found.domain = attribute(item, "domain");
    gsize length = 0;
    const char* bytes = secret_value_get(secret.get(), &length);
    found.data.emplace(std::string_view(bytes, length));
    return found;
}

using Service = ObjectPointer<SecretService>;
using Items = std::unique_ptr<GList, ItemsDeleter>;

bool isUtf8(const std::string& text) {
    return g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr) != FALSE;
}

/// The items of SMB servers; of one of them unless `server` is null.
Items search(const char* server, SecretSearchFlags flags, GCancellable* cancellable) {
    const Service service(secret_service_open_sync(SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION,
                                                   cancellable, nullptr));
    if (!service)
        return nullptr;
    const Table attributes(secret_attributes_build(SECRET_SCHEMA_COMPAT_NETWORK, "protocol", "smb",
                                                   server != nullptr ? "server" : nullptr, server, nullptr));
    return Items(secret_service_search_sync(service.get(), SECRET_SCHEMA_COMPAT_NETWORK, attributes.get(),
                                            flags, cancellable, nullptr));
}

KeychainResult find(const std::string& server, GCancellable* cancellable) {
    KeychainResult result{errSecItemNotFound, std::nullopt};
    if (!isUtf8(server))
        return result;
    const Items items =
        search(server.c_str(), static_cast<SecretSearchFlags>(SECRET_SEARCH_ALL | SECRET_SEARCH_LOAD_SECRETS),
               cancellable);
    SecretItem* best = nullptr;
    for (const GList* at = items.get(); at != nullptr; at = at->next) {
        // Without a secret is what cannot be had without asking the user.
        SecretItem* const item = SECRET_ITEM(at->data);
        if (secretOf(item) && (best == nullptr || rank(item) > rank(best)))
            best = item;
    }
    // After the time limit the answer is not waited for, so no password is copied either.
    if (best != nullptr && g_cancellable_is_cancelled(cancellable) == FALSE)
        return {0, contents(best)};
    return result;
}

std::string findSpelling(const std::string& server, GCancellable* cancellable) {
    const Items items = search(nullptr, SECRET_SEARCH_ALL, cancellable);
    std::string found = server;
    for (const GList* at = items.get(); at != nullptr; at = at->next) {
        const std::string name = attribute(SECRET_ITEM(at->data), "server");
        if (name == server)
            return server;
        if (strcasecmp(name.c_str(), server.c_str()) == 0)
            found = name;
    }
    return found;
}

/// Carries a look-up out within a time limit: in a thread of its own, because parts of connecting to a bus
/// cannot be cancelled.
template <class Result>
Result within(std::chrono::milliseconds limit, Result otherwise,
              std::function<Result(GCancellable*)> lookUp) {
    const std::shared_ptr<GCancellable> cancellable(g_cancellable_new(), ObjectDeleter());
    std::packaged_task<Result()> task(
        [lookUp = std::move(lookUp), cancellable] { return lookUp(cancellable.get()); });
    std::future<Result> answer = task.get_future();
    std::thread(std::move(task)).detach();
    if (answer.wait_for(limit) == std::future_status::ready)
        return answer.get();
    g_cancellable_cancel(cancellable.get());
    return otherwise;
}

} // namespace

SecretServiceKeychain::SecretServiceKeychain(std::chrono::milliseconds timeLimit)
    : timeLimit_(timeLimit) {}

KeychainResult SecretServiceKeychain::findInternetPassword(const std::string& server) {
    return within<KeychainResult>(timeLimit_, {errSecItemNotFound, std::nullopt},
                                  [server](GCancellable* cancellable) { return find(server, cancellable); });
}

std::string SecretServiceKeychain::spellingOf(const std::string& server) const {
    return within<std::string>(timeLimit_, server, [server](GCancellable* cancellable) {
        return findSpelling(server, cancellable);
    });
}

} // namespace quorvan::platform
