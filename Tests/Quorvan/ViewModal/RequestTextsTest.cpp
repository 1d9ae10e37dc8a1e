// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using Controller = XMLReadWriteController;

#define VIRTUAL_IO "<virtualIO><datastream name=\"command\"/></virtualIO>"
#define ADMIN(inner) "<adminRequest>" VIRTUAL_IO inner "</adminRequest>"
#define FILE_INFO(inner) ADMIN("<fileRequest><fileInfo>" inner "</fileInfo></fileRequest>")
#define CAFE "<fileName>VOL1:\\Café</fileName>"

const std::string path = "VOL1:\\Cafe\xCC\x81"; // sent with é as one character
const std::string decomposedVolume = "VOLE\xCC\x81";

TEST(RequestTexts, DifferByIdentityTypeAndAreEmptyForAnyOther) {
    const struct {
        std::function<std::string(const std::string& identityType)> create;
        const char* activeDirectory;
        const char* morvane;
    } cases[] = {
        {[](auto& type) { return Controller::createGetERRequests(path, type); },
         FILE_INFO("<getAllEffectiveRights><adOnly/>" CAFE "<symLink/></getAllEffectiveRights>"),
         FILE_INFO("<getAllEffectiveRights>" CAFE "<symLink/><objectClass/></getAllEffectiveRights>")},
        {[](auto& type) { return Controller::createGetUserEffRightRequest("%@e\xCC\x81", path, type); },
         ADMIN(VIRTUAL_IO "<fileRequest><fileInfo><getEffectiveRightsByID type=\"adID\"><adOnly/><idOnly/>"
                          "<userID>%@e\xCC\x81</userID>" CAFE "<nameSpace>LONG</nameSpace><symLink/>"
                          "</getEffectiveRightsByID></fileInfo></fileRequest>"),
         ADMIN(VIRTUAL_IO "<fileRequest><fileInfo><getEffectiveRightsByID><userID>%@e\xCC\x81</userID>" CAFE
                          "<nameSpace>LONG</nameSpace><symLink/></getEffectiveRightsByID></fileInfo>"
                          "</fileRequest>")},
        {[](auto& type) { return Controller::createGetIRRequest(path, type); },
         ADMIN("<rightsRequest><adOnly/>" CAFE "<sharePath>ss</sharePath><shareName>ss</shareName><allPaths/>"
               "<nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/><standardInfo/></typeOfInfo>"
               "</rightsRequest>"),
         ADMIN("<rightsRequest>" CAFE "<sharePath>ss</sharePath><shareName>ss</shareName><allPaths/>"
               "<nameSpace>LONG</nameSpace><typeOfInfo><rightsInfo/><standardInfo/><objectClass/>"
               "</typeOfInfo></rightsRequest>")},
        {[](auto& type) { return Controller::createGetOwnerRequest(path, type); },
         FILE_INFO("<getFileInfo><adOnly/><idOnly/>" CAFE "<symLink/><nameSpace>LONG</nameSpace>"
                   "<typeOfInfo><idInfo/></typeOfInfo></getFileInfo>"),
         FILE_INFO("<getFileInfo><idOnly/>" CAFE "<symLink/><nameSpace>LONG</nameSpace>"
                   "<typeOfInfo><idInfo/></typeOfInfo></getFileInfo>")},
        {[](auto& type) { return Controller::createGetAttributesRequest(path, type); },
         FILE_INFO("<getFileInfo><adOnly/><idOnly/>" CAFE "<symLink/><nameSpace>LONG</nameSpace>"
                   "<typeOfInfo><standardInfo/></typeOfInfo></getFileInfo>"),
         FILE_INFO("<getFileInfo><idOnly/>" CAFE "<symLink/><nameSpace>LONG</nameSpace>"
                   "<typeOfInfo><standardInfo/></typeOfInfo></getFileInfo>")},
        {[](auto& type) { return Controller::createGetDirQuotaRequest(path, type); },
         FILE_INFO("<getFileInfo><adOnly/><idOnly/>" CAFE "<symLink/><nameSpace>LONG</nameSpace>"
                   "<typeOfInfo><directoryQuotaInfo/></typeOfInfo></getFileInfo>"),
         FILE_INFO("<getFileInfo><idOnly/>" CAFE "<symLink/><nameSpace>LONG</nameSpace>"
                   "<typeOfInfo><directoryQuotaInfo/></typeOfInfo></getFileInfo>")},
        {[](auto& type) { return Controller::createSetOwnerRequest(path, "S-1", type); },
         FILE_INFO("<setFileInfo><nameSpace>LONG</nameSpace>" CAFE "<symLink/><idInfo>"
                   "<creatorID type = \"adID\">S-1</creatorID></idInfo></setFileInfo>"),
         FILE_INFO("<setFileInfo><nameSpace>LONG</nameSpace>" CAFE "<symLink/><idInfo>"
                   "<creatorID>S-1</creatorID></idInfo></setFileInfo>")},
        {[](auto& type) { return Controller::createGetUserQuotaRequest(decomposedVolume, type); },
         ADMIN("<userRequest><userQuota><browse><adOnly/><idOnly/><volumeName>VOLÉ</volumeName></browse>"
               "</userQuota></userRequest>"),
         ADMIN("<userRequest><userQuota><browse><volumeName>VOLÉ</volumeName></browse></userQuota>"
               "</userRequest>")},
    };
    for (const auto& [create, activeDirectory, morvane] : cases) {
        EXPECT_EQ(create("ActiveDirectory"), activeDirectory);
        EXPECT_EQ(create("Morvane"), morvane);
        EXPECT_EQ(create(""), "");
        EXPECT_EQ(create("morvane"), "");
    }
}

TEST(RequestTexts, AreTheSameForEveryIdentityType) {
    const std::pair<std::string, const char*> cases[] = {
        {Controller::createSetIRFRequest(path, 0),
         ADMIN("<fileRequest><trustees><modifyInheritedRightsFilter>" CAFE "<symLink/><inheritedRightsFilter>"
               "</inheritedRightsFilter></modifyInheritedRightsFilter></trustees></fileRequest>")},
        {Controller::createSetIRFRequest(path, 0x01FF),
         ADMIN("<fileRequest><trustees><modifyInheritedRightsFilter>" CAFE "<symLink/><inheritedRightsFilter>"
               "<read/><write/><create/><modify/><erase/><fileScan/><accessControl/><supervisor/>"
               "</inheritedRightsFilter></modifyInheritedRightsFilter></trustees></fileRequest>")},
        {Controller::createSetAttributesRequest(path, "<hidden enabled=\"no\"/>"),
         FILE_INFO("<setFileInfo><nameSpace>LONG</nameSpace>" CAFE "<symLink/><attributes>"
                   "<hidden enabled=\"no\"/></attributes></setFileInfo>")},
        {Controller::createSetDirQuotaRequest(path, "2048"),
         ADMIN("<fileRequest><directoryQuotas><addQuota>" CAFE "<quotaAmount>2048</quotaAmount></addQuota>"
               "</directoryQuotas></fileRequest>")},
        {Controller::createGetGuidRequest("\\TREE", "e\xCC\x81"),
         ADMIN("<trellRequest><trellObject><getAttribute><name>e\xCC\x81</name><context>\\TREE</context>"
               "<attributeName>guid</attributeName></getAttribute></trellObject></trellRequest>")},
        {Controller::createGetGroupMembershipRequest("\\TREE", "%@"),
         ADMIN("<trellRequest><trellObject><getAttribute><name>%@</name><context>\\TREE</context>"
               "<attributeName>group membership</attributeName></getAttribute></trellObject>"
               "</trellRequest>")},
    };
    for (const auto& [request, text] : cases)
        EXPECT_EQ(request, text);
}

class Exchanges : public Session {};

/// Each operation sends its request, frames it in the log with its own words, and reads its own result.
TEST_F(Exchanges, HaveTheirOwnTextsAndResults) {
    Rights rights;
    TrusteeList trustees;
    std::vector<std::string> names;
    std::vector<DirectoryRights> directories;
    std::vector<IdentityFileRights> files;
    OwnerInfo owner;
    AttributesInfo attributes;
    DirectoryQuotaInfo quota;
    UserQuotaList users;
    std::vector<User> entries;
    std::vector<Group> groups;
    const std::string AD = "ActiveDirectory";
    const std::string fileFailed =
        "<r><fileInfo><getFileInfo><result value=\"7\"/></getFileInfo></fileInfo></r>";
    const std::string failed = "<r><result value=\"7\"/></r>";
    const struct {
        std::function<std::string()> run;
        std::string reply;
        std::string request;
        std::string status;
        std::vector<std::string> log; ///< before, between and before the reply
    } cases[] = {
        {[&] { return std::to_string(controller.setInheritedRights(1, path)); },
         failed,
         Controller::createSetIRFRequest(path, 1),
         "7",
         {"Set inherited rights Request : " + Controller::createSetIRFRequest(path, 1),
          "response.deinitialize setInheritedRights", "Set inherited rights Response: "}},
        {[&] { return controller.getEffectiveRightsforPath(path, trustees, AD); },
         "<r><fileInfo><getAllEffectiveRights><result value=\"7\"/></getAllEffectiveRights></fileInfo></r>",
         Controller::createGetERRequests(path, AD),
         "7",
         {"Get effective rights Request : " + Controller::createGetERRequests(path, AD),
          "response.deinitialize getEffectiveRightsforPath", "Get effective rights Response: "}},
        {[&] { return controller.getEffectiveRightsforUserOnPath(path, "1", rights, AD); },
         failed,
         Controller::createGetUserEffRightRequest("1", path, AD),
         "0",
         {"Get effective rights for user on path Request : " +
              Controller::createGetUserEffRightRequest("1", path, AD),
          "response.deinitialize getEffectiveRightsforUserOnPath",
          "Get effective rights for user on path Response: "}},
        {[&] { return controller.getIRRequest(path, directories, AD); },
         failed,
         Controller::createGetIRRequest(path, AD),
         "7",
         {"Get IR rights Request : " + Controller::createGetIRRequest(path, AD),
          "response.deinitialize getIRRequest", "Get IR rights Response: "}},
        {[&] { return controller.getFSRights(path, {"1"}, files, AD); },
         failed,
         Controller::createGetIRRequest(path, AD),
         "0",
         {"Get FSR Request : " + Controller::createGetIRRequest(path, AD),
          "response.deinitialize getIRRequest", "Get FSR Response: "}},
        {[&] { return controller.getIRRequest(path, directories, ""); },
         failed,
         "",
         "7",
         {"Get IR rights Request : ", "response.deinitialize getIRRequest", "Get IR rights Response: "}},
        {[&] { return controller.getFileInfoOwner(path, owner, AD); },
         fileFailed,
         Controller::createGetOwnerRequest(path, AD),
         "7",
         {"Get file info owner Request", "response.deinitialize get file info owner Reply",
          "Get file info owner Reply: "}},
        {[&] { return controller.getAttributes(path, attributes, AD); },
         fileFailed,
         Controller::createGetAttributesRequest(path, AD),
         "7",
         {"Get Attributes Request : " + Controller::createGetAttributesRequest(path, AD),
          "response.deinitialize Get File Attributes Request", "Get Attributes Request: "}},
        {[&] { return controller.getDirectoryQuota(path, quota, AD); },
         fileFailed,
         Controller::createGetDirQuotaRequest(path, AD),
         "7",
         {"Get Directory Quota Request", "response.deinitialize Get Directory Quota Request",
          "Get Directory Quota Request: "}},
        {[&] { return controller.setFileInfoOwner(path, "1", AD), ""; },
         failed,
         Controller::createSetOwnerRequest(path, "1", AD),
         "",
         {"Set file info owner Request", "response.deinitialize set file info owner Request",
          "Set file info owner Request: "}},
        {[&] { return controller.setAttributes(path, "<a/>"), ""; },
         failed,
         Controller::createSetAttributesRequest(path, "<a/>"),
         "",
         {"Set Attributes Request : " + Controller::createSetAttributesRequest(path, "<a/>"),
          "response.deinitialize Set File Attributes Request", "Set Attributes Reply: "}},
        {[&] { return controller.setDirectoryQuota(path, "1"), ""; },
         failed,
         Controller::createSetDirQuotaRequest(path, "1"),
         "",
         {"Set Directory Quota Request", "response.deinitialize Set Directory Quota Request",
          "Set Directory Quota Request: "}},
        {[&] { return controller.getUserQuotaInfo("V:\\", users, AD); },
         "<r><userQuota><browse><userList/><result value=\"7\"/></browse></userQuota></r>",
         Controller::createGetUserQuotaRequest("V", AD),
         "7",
         {"Get User Quota Request: " + Controller::createGetUserQuotaRequest("V", AD),
          "response.deinitialize Get User Quota Request", "Get User Quota Reply: "}},
        {[&] { return controller.getMorvaneBrowse("O=e\xCC\x81", entries); },
         failed,
         VIRTUAL_IO "<trellRequest><trellObject><trellSearch><trellBaseDN>O=e\xCC\x81</trellBaseDN>"
                    "</trellSearch></trellObject></trellRequest>",
         "7",
         {"Get Morvane browse request : " VIRTUAL_IO "<trellRequest><trellObject><trellSearch><trellBaseDN>"
          "O=e\xCC\x81</trellBaseDN></trellSearch></trellObject></trellRequest>",
          "response.deinitialize getDFSPath", "Get Morvane browse Response: "}},
        {[&] { return controller.getGuid_Morvane("\\T", "o"); },
         failed,
         Controller::createGetGuidRequest("\\T", "o"),
         "7",
         {"Get Guid Request : " + Controller::createGetGuidRequest("\\T", "o"),
          "response.deinitialize getDFSPath", "Get Morvane GUID Response: "}},
        {[&] { return controller.getGroupMemberShip_Morvane("ignored", groups, "\\T", "o"); },
         failed,
         Controller::createGetGroupMembershipRequest("\\T", "o"),
         "7",
         {"Get GroupMembership Request : " + Controller::createGetGroupMembershipRequest("\\T", "o"),
          "response.deinitialize getDFSPath", "Get Morvane Groups Response: "}},
        {[&] { return controller.getDFSPath(path); },
         failed,
         "<zelSmbGetInfo><readLink><pathName>VOL1:\\Café</pathName></readLink></zelSmbGetInfo>",
         failed,
         {"Get DFS Path Request : <zelSmbGetInfo><readLink><pathName>VOL1:\\Café</pathName></readLink>"
          "</zelSmbGetInfo>",
          "response.deinitialize getDFSPath", "Get DFS Path Response: "}},
    };
    for (const auto& [run, text, request, status, lines] : cases) {
        world.network->calls.clear();
        reply(text);
        EXPECT_EQ(run(), status) << lines[1];
        EXPECT_EQ(written(), request);
        EXPECT_EQ(log.take(), (std::vector{lines[0], lines[1], lines[2] + text}));
    }
    EXPECT_TRUE(trustees.empty() && directories.empty() && !owner.result && !attributes.result &&
                !quota.result);
}

} // namespace
} // namespace quorvan::test
