// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SecretServiceKeychain.h"

#include <future>
#include <memory>
#include <string_view>
#include <thread>

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

/// What an item holds; nothing when its secret cannot be had without asking the user.
std::optional<KeychainItem> contents(SecretItem* item) {
    const std::unique_ptr<SecretValue, SecretDeleter> secret(secret_item_get_secret(item));
    if (!secret)
        return std::nullopt;
    KeychainItem found;
    const Table attributes(secret_item_get_attributes(item));
    if (const auto* user = static_cast<const char*>(g_hash_table_lookup(attributes.get(), "user")))
        found.account = user;
    gsize length = 0;
    const char* bytes = secret_value_get(secret.get(), &length);
    found.data.emplace(std::string_view(bytes, length));
    return found;
}

KeychainResult find(const std::string& server, GCancellable* cancellable) {
    KeychainResult result{errSecItemNotFound, std::nullopt};
    if (g_utf8_validate(server.data(), static_cast<gssize>(server.size()), nullptr) == FALSE)
        return result;
    const ObjectPointer<SecretService> service(secret_service_open_sync(
        SECRET_TYPE_SERVICE, nullptr, SECRET_SERVICE_OPEN_SESSION, cancellable, nullptr));
    if (!service)
        return result;
    const Table attributes(secret_attributes_build(SECRET_SCHEMA_COMPAT_NETWORK, "server", server.c_str(),
                                                   "protocol", "smb", nullptr));
    const std::unique_ptr<GList, ItemsDeleter> items(secret_service_search_sync(
        service.get(), SECRET_SCHEMA_COMPAT_NETWORK, attributes.get(),
        static_cast<SecretSearchFlags>(SECRET_SEARCH_ALL | SECRET_SEARCH_LOAD_SECRETS), cancellable,
        nullptr));
    // After the time limit the answer is not waited for, so no password is copied either.
    for (const GList* at = items.get(); at != nullptr && g_cancellable_is_cancelled(cancellable) == FALSE;
         at = at->next) {
        if (auto item = contents(SECRET_ITEM(at->data)))
            return {0, std::move(item)};
    }
    return result;
}

} // namespace

SecretServiceKeychain::SecretServiceKeychain(std::chrono::milliseconds timeLimit)
    : timeLimit_(timeLimit) {}

KeychainResult SecretServiceKeychain::findInternetPassword(const std::string& server) {
    // In a thread of its own, because parts of connecting to a bus cannot be cancelled.
    const std::shared_ptr<GCancellable> cancellable(g_cancellable_new(), ObjectDeleter());
    std::packaged_task<KeychainResult()> search(
        [server, cancellable] { return find(server, cancellable.get()); });
    std::future<KeychainResult> answer = search.get_future();
    std::thread(std::move(search)).detach();
    if (answer.wait_for(timeLimit_) == std::future_status::ready)
        return answer.get();
    g_cancellable_cancel(cancellable.get());
    return {errSecItemNotFound, std::nullopt};
}

} // namespace quorvan::platform
