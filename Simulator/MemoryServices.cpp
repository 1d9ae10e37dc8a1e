// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/MemoryServices.h"

#include <utility>

namespace quorvan::simulator {

namespace {

class MemorySuite : public platform::DefaultsSuite {
public:
    MemorySuite(std::shared_ptr<MemorySharedDefaults::Values> values,
                std::shared_ptr<std::size_t> synchronizations)
        : values_(std::move(values))
        , synchronizations_(std::move(synchronizations)) {}

    void synchronize() override { ++*synchronizations_; }

    std::optional<std::string> string(const std::string& key) override {
        const auto found = values_->find(key);
        return found == values_->end() ? std::nullopt : std::optional(found->second);
    }

    void setString(const std::string& key, const std::string& value) override { (*values_)[key] = value; }

private:
    std::shared_ptr<MemorySharedDefaults::Values> values_;
    std::shared_ptr<std::size_t> synchronizations_;
};

} // namespace

std::unique_ptr<platform::DefaultsSuite> MemorySharedDefaults::openSuite(const std::string& name) {
    if (!available)
        return nullptr;
    values(name);
    return std::make_unique<MemorySuite>(suites_[name], synchronizations_);
}

MemorySharedDefaults::Values& MemorySharedDefaults::values(const std::string& suite) {
    auto& slot = suites_[suite];
    if (!slot)
        slot = std::make_shared<Values>();
    return *slot;
}

platform::KeychainResult MemoryKeychain::findInternetPassword(const std::string& server) {
    if (failure)
        return {*failure, {}};
    const auto found = items.find(server);
    if (found == items.end())
        return {platform::errSecItemNotFound, {}};
    return {0, platform::KeychainItem{found->second.account, platform::Secret(found->second.password)}};
}

void MemoryKeychain::setItem(const std::string& server, const std::string& account,
                             const std::string& password) {
    items[server] = {account, password};
}

} // namespace quorvan::simulator
