// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/UsersViewModal.h"

#include "Common/Error.h"
#include "Common/Features.h"
#include "Common/Log.h"
#include "Platform/Services.h"

#include <map>

namespace quorvan {

struct DirectoryLookup::Surroundings {
    std::optional<std::map<std::string, std::string>> state =
        platform::services().directory->activeDirectoryState();
    bool multiForest = featureEnabled("multiForest");

    /// Where to search. A node that could not be opened is tried again by the next look-up.
    platform::DirectoryNode* node() {
        platform::DirectoryServices& directory = *platform::services().directory;
        if (!node_)
            node_ = multiForest ? directory.openNetworkNode()
                                : directory.openNode((*state)["NodeName"] + "/All Domains");
        return node_.get();
    }

private:
    std::shared_ptr<platform::DirectoryNode> node_;
};

DirectoryLookup::DirectoryLookup() = default;
DirectoryLookup::~DirectoryLookup() = default;

platform::DirectoryRecords
DirectoryLookup::getUserGroupInfo(const std::string& strToQuery, const std::optional<std::string>& recType,
                                  const std::optional<std::string>& attribute) const {
    if (!surroundings_)
        surroundings_ = std::make_unique<Surroundings>();
    if (!surroundings_->state) {
        Log("Could not find a Active Directory on the server");
        return {};
    }
    platform::DirectoryQuery query;
    query.recordTypes = recType
                            ? std::vector{*recType}
                            : std::vector<std::string>{"dsRecTypeStandard:Users", "dsRecTypeStandard:Groups"};
    query.attribute = attribute.value_or("dsAttrTypeStandard:RecordName");
    query.values = {strToQuery};
    platform::DirectoryNode* node = surroundings_->node();
    auto records = node != nullptr ? node->query(query) : std::nullopt;
    if (!records) {
        Log("Error in Open Directory Session");
        displayWarningMsg(errorCode::adConnect);
        return {};
    }
    return *std::move(records);
}

std::string DirectoryLookup::lookupAttrValueFromID(const std::string& objectID,
                                                   const std::string& attributeType) const {
    std::string result = "Unknown";
    for (const auto& record : getUserGroupInfo(objectID, {}, kODAttributeTypeSMBSID)) {
        const auto values = record->values(attributeType);
        if (!values) {
            Log("Error in Opening Session");
            return result;
        }
        const std::string first = values->empty() ? "" : values->front();
        result = first.substr(0, first.find(':'));
        if (result.empty())
            result = "Unknown";
    }
    return result;
}

void DirectoryLookup::setTrusteeTypeforTrustee(Trustees& trustee) const {
    for (const auto& record : getUserGroupInfo(trustee.trusteeID, {}, kODAttributeTypeSMBSID)) {
        const auto values = record->values("dsAttrTypeStandard:RecordType");
        if (!values || values->empty()) {
            Log("Error in Open Directory Session");
            displayWarningMsg(errorCode::adConnect);
            return;
        }
        const std::string& recordType = values->front();
        const std::size_t colon = recordType.find(':');
        require(colon != std::string::npos, "The record type \"%@\" has no second part", recordType);
        trustee.trusteeType = recordType.substr(colon + 1, recordType.find(':', colon + 1) - colon - 1);
    }
}

platform::DirectoryRecords getUserGroupInfo(const std::string& strToQuery,
                                            const std::optional<std::string>& recType,
                                            const std::optional<std::string>& attribute) {
    return DirectoryLookup().getUserGroupInfo(strToQuery, recType, attribute);
}

std::string lookupAttrValueFromID(const std::string& objectID, const std::string& attributeType) {
    return DirectoryLookup().lookupAttrValueFromID(objectID, attributeType);
}

void setTrusteeTypeforTrustee(Trustees& trustee) {
    DirectoryLookup().setTrusteeTypeforTrustee(trustee);
}

} // namespace quorvan
