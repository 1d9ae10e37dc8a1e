// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes as the reply to any request: the operation gets them through the pipe, decodes them and comes
// back, or comes to a fatal end on purpose. The first byte says which operation: "A" is the first one for a
// user of the directory tree, "a" the same for one of Active Directory, "b" the second one, and so on.
#include "Tests/Fuzz/Harness.h"

#include <iterator>

using namespace quorvan;

namespace {

using Operation = void (*)(XMLReadWriteController& controller, const std::string& identityType);
const std::string path = "VOL1:\\a";

const Operation operations[] = {
    [](auto& controller, const std::string& type) {
        TrusteeList trustees;
        Rights filter;
        Rights effective;
        controller.initializeTrustees(path, type, trustees, filter, effective);
    },
    [](auto& controller, const std::string& type) { controller.setTrustee({}, path, type); },
    [](auto& controller, const std::string& type) { controller.setTrusteeAdd({}, path, type); },
    [](auto& controller, const std::string& type) { controller.setTrusteeRemove({}, path, type); },
    [](auto& controller, const std::string&) { controller.setInheritedRights(0, path); },
    [](auto& controller, const std::string& type) {
        TrusteeList trustees;
        controller.getEffectiveRightsforPath(path, trustees, type);
    },
    [](auto& controller, const std::string& type) {
        Rights rights;
        controller.getEffectiveRightsforUserOnPath(path, "S-1-1-0", rights, type);
    },
    [](auto& controller, const std::string& type) {
        std::vector<std::string> rights;
        controller.getEffectiveRightsForMappedUser(path, rights, type);
    },
    [](auto& controller, const std::string& type) {
        std::vector<DirectoryRights> rights;
        controller.getIRRequest(path, rights, type);
    },
    [](auto& controller, const std::string& type) {
        std::vector<IdentityFileRights> rights;
        controller.getFSRights(path, {"S-1-1-0", ""}, rights, type);
    },
    [](auto& controller, const std::string& type) {
        OwnerInfo owner;
        controller.getFileInfoOwner(path, owner, type);
    },
    [](auto& controller, const std::string& type) {
        AttributesInfo attributes;
        controller.getAttributes(path, attributes, type);
    },
    [](auto& controller, const std::string& type) {
        DirectoryQuotaInfo quota;
        controller.getDirectoryQuota(path, quota, type);
    },
    [](auto& controller, const std::string& type) {
        UserQuotaList users;
        controller.getUserQuotaInfo(path, users, type);
    },
    [](auto& controller, const std::string& type) { controller.setUserQuotaInfo(path, {}, type); },
    [](auto& controller, const std::string&) {
        std::vector<User> users;
        controller.getMorvaneBrowse("O=org", users);
    },
    [](auto& controller, const std::string&) { controller.getGuid_Morvane("", ""); },
    [](auto& controller, const std::string&) {
        std::vector<Group> groups;
        controller.getGroupMemberShip_Morvane("", groups, "", "");
    },
    [](auto& controller, const std::string&) { controller.getUserType(); },
    [](auto& controller, const std::string&) {
        std::string server;
        std::string target;
        std::string status;
        controller.resolveDFSPath(path, path, server, target, status);
    },
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static test::FuzzWorld world;
    if (size == 0)
        return 0;
    const Operation operation = operations[(data[0] - 'A') % 32U % std::size(operations)];
    const char* identityType = data[0] >= 'a' ? "ActiveDirectory" : "Morvane";
    world.reply(test::textOf(data + 1, size - 1));
    test::survive([&] { operation(*world.controller, identityType); });
    return 0;
}
