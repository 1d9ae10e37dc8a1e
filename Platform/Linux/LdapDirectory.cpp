// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/LdapDirectory.h"

#include "Platform/Linux/LdapAccounts.h"
#include "Platform/Linux/LdapFilter.h"

#include <cctype>
#include <cerrno>
#include <utility>

namespace quorvan::platform {
namespace {

using TextList = std::vector<std::string>;

std::string nodeNameOf(const std::string& domain) {
    return std::string(activeDirectoryNode) + "/" + domain;
}

/// The names of a domain's own node and of that of its forest.
std::pair<std::string, std::string> nodeNamesOf(const LdapDomain& domain) {
    std::string own = nodeNameOf(domain.name);
    std::string forest = own;
    return {std::move(own), std::move(forest.append(allDomainsNode))};
}

TextList listOf(const std::optional<std::string>& value) {
    return value ? TextList{*value} : TextList();
}

class LdapRecord : public DirectoryRecord {
public:
    LdapRecord(std::shared_ptr<LdapAccounts> accounts, std::shared_ptr<const LdapAccount> account)
        : accounts_(std::move(accounts))
        , account_(std::move(account)) {}

    std::optional<TextList> values(const std::string& attribute) override {
        if (attribute == kODAttributeTypeRecordType)
            return TextList{account_->recordType};
        if (attribute == kODAttributeTypePrimaryNTDomain)
            return account_->domain.empty() ? TextList() : TextList{account_->domain};
        const std::optional<std::string> native = ldapAttribute(attribute);
        if (!native)
            return TextList();
        if (*native == "sAMAccountName")
            return listOf(account_->name);
        if (*native == "objectSid")
            return listOf(account_->sid);
        return accounts_->read(account_->distinguishedName, *native);
    }

    std::optional<std::string> first(const std::string& attribute) override {
        if (attribute == kODAttributeTypePrimaryNTDomain)
            return account_->domain;
        if (attribute == kODAttributeTypeRecordName)
            return account_->name.value_or("");
        return DirectoryRecord::first(attribute);
    }

private:
    std::shared_ptr<LdapAccounts> accounts_;
    std::shared_ptr<const LdapAccount> account_;
};

class LdapNode : public DirectoryNode {
public:
    LdapNode(std::shared_ptr<LdapAccounts> accounts, TextList bases)
        : accounts_(std::move(accounts))
        , bases_(std::move(bases)) {}

    std::optional<DirectoryRecords> query(const DirectoryQuery& query) override {
        const auto found = accounts_->find(bases_, query);
        if (!found)
            return std::nullopt;
        DirectoryRecords records;
        records.reserve(found->size());
        for (const auto& account : *found)
            records.push_back(std::make_shared<LdapRecord>(accounts_, account));
        return records;
    }

private:
    std::shared_ptr<LdapAccounts> accounts_;
    TextList bases_;
};

/// What a domain is called where nobody decided otherwise: the first part of its DNS name, in capitals.
std::string usualName(const std::string& base) {
    const std::size_t begin = base.find('=') + 1;
    std::string name = base.substr(begin, base.find(',') - begin);
    for (char& c : name)
        c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return name;
}

} // namespace

LdapDirectory::LdapDirectory(std::shared_ptr<Keychain> keychain, LogLine log,
                             std::chrono::milliseconds timeLimit)
    : accounts_(
          std::make_shared<LdapAccounts>(LdapConnection(std::move(keychain), std::move(log), timeLimit))) {}

bool LdapDirectory::isReady() const {
    if (!LdapConnection::base().empty())
        return accounts_->load();
    errno = ENOTCONN;
    return false;
}

std::optional<std::map<std::string, std::string>> LdapDirectory::activeDirectoryState() {
    const std::string base = LdapConnection::base();
    if (base.empty())
        return std::nullopt;
    // A server that is down does not unbind the machine.
    const LdapDomain* domain = accounts_->load() ? accounts_->boundDomain() : nullptr;
    return std::map<std::string, std::string>{
        {nodeNameKey, nodeNameOf(domain == nullptr ? usualName(base) : domain->name)}};
}

std::optional<std::vector<std::string>> LdapDirectory::nodeNames() {
    TextList names;
    if (LdapConnection::base().empty())
        return names;
    if (!accounts_->load())
        return std::nullopt;
    for (const LdapDomain& each : accounts_->domains()) {
        auto [own, forest] = nodeNamesOf(each);
        names.push_back(std::move(own));
        names.push_back(std::move(forest));
    }
    return names;
}

std::shared_ptr<DirectoryNode> LdapDirectory::openNode(const std::string& name) {
    if (!isReady())
        return nullptr;
    for (const LdapDomain& each : accounts_->domains()) {
        const auto [own, forest] = nodeNamesOf(each);
        if (each.isHeld && (name == own || name == forest))
            return std::make_shared<LdapNode>(accounts_, TextList{each.base});
    }
    accounts_->connection().report(EHOSTUNREACH, "The directory server of ldap.conf does not hold " + name);
    return nullptr;
}

std::shared_ptr<DirectoryNode> LdapDirectory::openNetworkNode() {
    return isReady() ? std::make_shared<LdapNode>(accounts_, accounts_->bases()) : nullptr;
}

std::optional<std::vector<ManagedIdentity>> LdapDirectory::managedIdentities(IdentityClass identityClass) {
    const LdapDomain* domain = isReady() ? accounts_->boundDomain() : nullptr;
    if (domain == nullptr)
        return std::nullopt;
    DirectoryQuery query;
    query.recordTypes = {identityClass == IdentityClass::group ? kODRecordTypeGroups : kODRecordTypeUsers};
    query.match = DirectoryMatch::any;
    const auto found = accounts_->find({domain->base}, query);
    if (!found)
        return std::nullopt;
    std::vector<ManagedIdentity> identities;
    for (const auto& account : *found) {
        if (account->name)
            identities.push_back({account->name});
    }
    return identities;
}

void LdapDirectory::prefetch(const std::vector<std::string>& sids) {
    if (isReady())
        accounts_->prefetch(sids);
}

} // namespace quorvan::platform
