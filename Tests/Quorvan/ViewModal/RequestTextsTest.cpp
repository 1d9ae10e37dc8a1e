// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

#define VIRTUAL_IO "<virtualIO><datastream name=\"command\"/></virtualIO>"
#define ADMIN(inner) "<adminRequest>" VIRTUAL_IO inner "</adminRequest>"
#define FILE_INFO(inner) ADMIN("<fileRequest><fileInfo>" inner "</fileInfo></fileRequest>")
#define CAFE "<fileName>VOL1:\\Café</fileName>"
#define GET_INFO(only, type)                                                                                 \
    FILE_INFO("<getFileInfo>" only "<idOnly/>" CAFE                                                          \
              "<symLink/><nameSpace>LONG</nameSpace><typeOfInfo><" type "/></typeOfInfo></getFileInfo>")
#define SET_INFO(change)                                                                                     \
    FILE_INFO("<setFileInfo><nameSpace>LONG</nameSpace>" CAFE "<symLink/>" change "</setFileInfo>")
#define ALL_PATHS(only, classes)                                                                             \
    ADMIN("<rightsRequest>" only CAFE "<sharePath>ss</sharePath><shareName>ss</shareName><allPaths/>"        \
          "<nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/><standardInfo/>" classes "</typeOfInfo>"      \
          "</rightsRequest>")
#define GET_ATTRIBUTE(name, attribute)                                                                       \
    ADMIN("<trellRequest><trellObject><getAttribute><name>" name "</name><context>\\TREE</context>"          \
          "<attributeName>" attribute "</attributeName></getAttribute></trellObject></trellRequest>")

const std::string path = "VOL1:\\Cafe\xCC\x81"; // sent with é as one character

class Exchanges : public Session {};

/// Each operation sends its request, frames it in the log with its own words, and reads its own result. Most
/// requests differ by identity type, and are empty for any other.
TEST_F(Exchanges, HaveTheirOwnTextsAndResults) {
    Rights rights;
    TrusteeList trustees;
    std::vector<DirectoryRights> directories;
    std::vector<IdentityFileRights> files;
    OwnerInfo owner;
    AttributesInfo attributes;
    DirectoryQuotaInfo quota;
    UserQuotaList users;
    std::vector<User> entries;
    std::vector<Group> groups;
    const std::string failed = replyWith("7");
    const struct {
        std::function<std::string(const std::string& identityType)> run;
        const char* activeDirectory;
        const char* morvane; ///< null where the type does not matter
        std::string status;
        std::string before; ///< in the log; behind a colon stands the request
        const char* between;
        const char* after; ///< with the reply behind it
    } cases[] = {
        {[&](auto& type) { return controller.getEffectiveRightsforPath(path, trustees, type); },
         FILE_INFO("<getAllEffectiveRights><adOnly/>" CAFE "<symLink/></getAllEffectiveRights>"),
         FILE_INFO("<getAllEffectiveRights>" CAFE "<symLink/><objectClass/></getAllEffectiveRights>"), "7",
         "Get effective rights Request : ", "response.deinitialize getEffectiveRightsforPath",
         "Get effective rights Response: "},
        {[&](auto& type) {
             return controller.getEffectiveRightsforUserOnPath(path, "%@e\xCC\x81", rights, type);
         },
         ADMIN(VIRTUAL_IO "<fileRequest><fileInfo><getEffectiveRightsByID type=\"adID\"><adOnly/><idOnly/>"
                          "<userID>%@e\xCC\x81</userID>" CAFE "<nameSpace>LONG</nameSpace><symLink/>"
                          "</getEffectiveRightsByID></fileInfo></fileRequest>"),
         ADMIN(VIRTUAL_IO "<fileRequest><fileInfo><getEffectiveRightsByID><userID>%@e\xCC\x81</userID>" CAFE
                          "<nameSpace>LONG</nameSpace><symLink/></getEffectiveRightsByID></fileInfo>"
                          "</fileRequest>"),
         "0", "Get effective rights for user on path Request : ",
         "response.deinitialize getEffectiveRightsforUserOnPath",
         "Get effective rights for user on path Response: "},
        {[&](auto& type) { return controller.getIRRequest(path, directories, type); },
         ALL_PATHS("<adOnly/>", ""), ALL_PATHS("", "<objectClass/>"), "7",
         "Get IR rights Request : ", "response.deinitialize getIRRequest", "Get IR rights Response: "},
        {[&](auto& type) { return controller.getFSRights(path, {"1"}, files, type); },
         ALL_PATHS("<adOnly/>", ""), ALL_PATHS("", "<objectClass/>"), "0",
         "Get FSR Request : ", "response.deinitialize getIRRequest", "Get FSR Response: "},
        {[&](auto& type) { return controller.getFileInfoOwner(path, owner, type); },
         GET_INFO("<adOnly/>", "idInfo"), GET_INFO("", "idInfo"), "7", "Get file info owner Request",
         "response.deinitialize get file info owner Reply", "Get file info owner Reply: "},
        {[&](auto& type) { return controller.getAttributes(path, attributes, type); },
         GET_INFO("<adOnly/>", "standardInfo"), GET_INFO("", "standardInfo"), "7",
         "Get Attributes Request : ", "response.deinitialize Get File Attributes Request",
         "Get Attributes Request: "},
        {[&](auto& type) { return controller.getDirectoryQuota(path, quota, type); },
         GET_INFO("<adOnly/>", "directoryQuotaInfo"), GET_INFO("", "directoryQuotaInfo"), "7",
         "Get Directory Quota Request", "response.deinitialize Get Directory Quota Request",
         "Get Directory Quota Request: "},
        {[&](auto& type) { return controller.setFileInfoOwner(path, "S-1", type), ""; },
         SET_INFO("<idInfo><creatorID type = \"adID\">S-1</creatorID></idInfo>"),
         SET_INFO("<idInfo><creatorID>S-1</creatorID></idInfo>"), "", "Set file info owner Request",
         "response.deinitialize set file info owner Request", "Set file info owner Request: "},
        {[&](auto& type) { return controller.getUserQuotaInfo("VOLE\xCC\x81:\\", users, type); },
         ADMIN("<userRequest><userQuota><browse><adOnly/><idOnly/><volumeName>VOLÉ</volumeName></browse>"
               "</userQuota></userRequest>"),
         ADMIN("<userRequest><userQuota><browse><volumeName>VOLÉ</volumeName></browse></userQuota>"
               "</userRequest>"),
         "7", "Get User Quota Request: ", "response.deinitialize Get User Quota Request",
         "Get User Quota Reply: "},
        {[&](auto&) { return std::to_string(controller.setInheritedRights(0x01FF, path)); },
         ADMIN("<fileRequest><trustees><modifyInheritedRightsFilter>" CAFE "<symLink/><inheritedRightsFilter>"
               "<read/><write/><create/><modify/><erase/><fileScan/><accessControl/><supervisor/>"
               "</inheritedRightsFilter></modifyInheritedRightsFilter></trustees></fileRequest>"),
         nullptr, "7", "Set inherited rights Request : ", "response.deinitialize setInheritedRights",
         "Set inherited rights Response: "},
        {[&](auto&) { return controller.setAttributes(path, "<hidden enabled=\"no\"/>"), ""; },
         SET_INFO("<attributes><hidden enabled=\"no\"/></attributes>"), nullptr, "",
         "Set Attributes Request : ", "response.deinitialize Set File Attributes Request",
         "Set Attributes Reply: "},
        {[&](auto&) { return controller.setDirectoryQuota(path, "2048"), ""; },
         ADMIN("<fileRequest><directoryQuotas><addQuota>" CAFE "<quotaAmount>2048</quotaAmount></addQuota>"
               "</directoryQuotas></fileRequest>"),
         nullptr, "", "Set Directory Quota Request", "response.deinitialize Set Directory Quota Request",
         "Set Directory Quota Request: "},
        {[&](auto&) { return controller.getMorvaneBrowse("O=e\xCC\x81", entries); },
         VIRTUAL_IO "<trellRequest><trellObject><trellSearch><trellBaseDN>O=e\xCC\x81</trellBaseDN>"
                    "</trellSearch></trellObject></trellRequest>",
         nullptr, "7", "Get Morvane browse request : ", "response.deinitialize getDFSPath",
         "Get Morvane browse Response: "},
        {[&](auto&) { return controller.getGuid_Morvane("\\TREE", "e\xCC\x81"); },
         GET_ATTRIBUTE("e\xCC\x81", "guid"), nullptr, "7",
         "Get Guid Request : ", "response.deinitialize getDFSPath", "Get Morvane GUID Response: "},
        {[&](auto&) { return controller.getGroupMemberShip_Morvane("ignored", groups, "\\TREE", "%@"); },
         GET_ATTRIBUTE("%@", "group membership"), nullptr, "7", "Get GroupMembership Request : ",
         "response.deinitialize getDFSPath", "Get Morvane Groups Response: "},
        {[&](auto&) { return controller.getDFSPath(path); },
         "<zelSmbGetInfo><readLink><pathName>VOL1:\\Café</pathName></readLink></zelSmbGetInfo>", nullptr,
         failed, "Get DFS Path Request : ", "response.deinitialize getDFSPath", "Get DFS Path Response: "},
        {[&](auto&) { return controller.getUserType(); }, "<zelSmbGetInfo><userType/></zelSmbGetInfo>",
         nullptr, "ActiveDirectory", "Get userType Request : ", "response.deinitialize",
         "Get userType Response: "},
    };
    for (const auto& [run, activeDirectory, morvane, status, before, between, after] : cases) {
        for (const auto& [type, request] : std::map<std::string, const char*>{
                 {"ActiveDirectory", activeDirectory}, {"Morvane", morvane}, {"morvane", ""}}) {
            world.network->calls.clear();
            reply(failed);
            EXPECT_EQ(run(type), status) << between;
            const char* const expected = morvane == nullptr ? activeDirectory : request;
            EXPECT_EQ(written(), expected);
            const std::string first = before + (before.ends_with(' ') ? expected : "");
            EXPECT_THAT(log.take(), testing::ElementsAre(first, between, after + failed));
        }
    }
    EXPECT_TRUE(trustees.empty() && directories.empty() && !owner.result && !attributes.result &&
                !quota.result);
}

} // namespace
} // namespace quorvan::test
