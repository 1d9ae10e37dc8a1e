// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/ViewModal/RightsWay.h"

#include "Platform/Services.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/DistinguishedName.h"
#include "Quorvan/Modal/ParentPaths.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/ViewModal/LinkFollowing.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace quorvan {

using platform::kODAttributeTypeRecordName;
using platform::kODAttributeTypeSMBSID;
using platform::kODRecordTypeGroups;
using platform::kODRecordTypeUsers;

namespace {

/// A directory that names more is in a circle or hostile.
constexpr std::size_t mostHolders = 1000;

/// Adds a holder that is not there yet, as far as there is room.
void add(std::vector<RightsHolder>& holders, std::string id, std::string name) {
    if (!id.empty() && holders.size() < mostHolders &&
        std::ranges::find(holders, id, &RightsHolder::id) == holders.end())
        holders.push_back({std::move(id), std::move(name)});
}

/// Adds an object of the tree. A number is the status with which the server has none.
void addOfTheTree(std::vector<RightsHolder>& holders, XMLReadWriteController& controller,
                  const std::string& distinguishedName) {
    std::string context;
    std::string name;
    convertDntoContextAndNameRootLeft(distinguishedName, context, name);
    std::string guid = controller.getGuid_Morvane(context, name);
    if (!decimalNumber(guid))
        add(holders, std::move(guid), distinguishedName);
}

} // namespace

std::vector<FolderOnWay> readRightsWay(XMLReadWriteController& controller, const std::string& path,
                                       const std::string& identityType) {
    std::vector<std::string> paths = getParentPaths(path);
    std::ranges::reverse(paths);
    std::vector<FolderOnWay> way;
    for (const std::string& folder : paths) {
        if (folder.find('\\') == std::string::npos) // the volume is there with a backslash, too
            continue;
        TrusteeList trustees;
        Rights filter{0xFFFF};
        Rights own;
        const std::string status = controller.initializeTrustees(folder, identityType, trustees, filter, own);
        if (controller.loss() != 0)
            break;
        FolderOnWay step{folder, {}, filter.uright, status == "0", liesBelowLink(status)};
        for (const auto& trustee : trustees)
            step.assignments.push_back({trustee->trusteeID, trustee->rights, trustee->trusteeName});
        way.push_back(std::move(step));
    }
    return way;
}

std::optional<Rights> rightsOfUser(XMLReadWriteController& controller, const std::string& path,
                                   const std::string& id, const std::string& identityType) {
    constexpr std::uint16_t unread = 0x8000; // no right; a mask in the reply takes its place
    Rights rights{unread};
    controller.getEffectiveRightsforUserOnPath(path, id, rights, identityType);
    return rights.uright == unread ? std::nullopt : std::optional(rights);
}

std::vector<RightsHolder> holdersOfActiveDirectory(const RightsHolder& account) {
    std::vector<RightsHolder> holders = {account};
    const auto node = platform::services().directory->openNetworkNode();
    if (!node)
        return holders;
    const platform::BusyScope busy(platform::services().busy);
    const auto recordsWith = [&node](const std::string& attribute, std::vector<std::string> values) {
        return node
            ->query({{kODRecordTypeUsers, kODRecordTypeGroups},
                     attribute,
                     platform::DirectoryMatch::equalTo,
                     std::move(values)})
            .value_or(platform::DirectoryRecords());
    };
    for (std::size_t at = 0; at < holders.size(); ++at)
        for (const auto& member : recordsWith(kODAttributeTypeSMBSID, {holders[at].id})) {
            auto groups = member->values(platform::nativeMemberOf).value_or(std::vector<std::string>());
            if (groups.empty())
                continue;
            for (const auto& group : recordsWith(platform::nativeDistinguishedName, std::move(groups)))
                add(holders, group->first(kODAttributeTypeSMBSID).value_or(""),
                    group->first(kODAttributeTypeRecordName).value_or(""));
        }
    return holders;
}

std::vector<RightsHolder> holdersOfTheTree(XMLReadWriteController& controller, const RightsHolder& object) {
    std::vector<RightsHolder> holders = {object};
    for (std::size_t at = 0; at < holders.size() && controller.loss() == 0; ++at) {
        std::string context;
        std::string name;
        convertDntoContextAndNameRootLeft(holders[at].name, context, name);
        std::vector<Group> groups;
        controller.getGroupMemberShip_Morvane("", groups, context, name);
        for (const Group& group : groups)
            addOfTheTree(holders, controller, group.groupName);
        if (at == 0)
            while (!context.empty() && controller.loss() == 0) {
                addOfTheTree(holders, controller, context);
                context.resize(context.find('\\') == std::string::npos ? 0 : context.rfind('\\'));
            }
    }
    return holders;
}

} // namespace quorvan
