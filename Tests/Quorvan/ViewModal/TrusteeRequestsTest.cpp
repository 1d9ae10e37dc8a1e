// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

#define VIRTUAL_IO "<virtualIO><datastream name=\"command\"/></virtualIO>"
#define ADMIN(inner) "<adminRequest>" VIRTUAL_IO inner "</adminRequest>"
#define TRUSTEES(elements) "<fileRequest><trustees>" elements "</trustees></fileRequest>"

const std::string path = "VOL1:\\Cafe\xCC\x81"; // sent with é as one character
const std::string getListAD = ADMIN(
    "<fileRequest><fileInfo><getFileInfo><adOnly/><fileName>VOL1:\\Café</fileName><symLink/><nameSpace>LONG"
    "</nameSpace><typeOfInfo><rightsInfo/></typeOfInfo></getFileInfo></fileInfo></fileRequest>");
const std::string getListMorvane =
    ADMIN("<fileRequest><fileInfo><getFileInfo><fileName>VOL1:\\Café</fileName><symLink/><nameSpace>LONG</"
          "nameSpace>"
          "<typeOfInfo><rightsInfo/><objectClass/></typeOfInfo></getFileInfo></fileInfo></fileRequest>");
#define ADD_AD(id)                                                                                           \
    "<addTrustee type=\"adID\"><adUser/><userID>" id                                                         \
    "</userID><rights><read/><fileScan/></rights><fileName>"                                                 \
    "VOL1:\\Café</fileName><nameSpace>LONG</nameSpace><symLink/></addTrustee>"
#define ADD_MORVANE(id)                                                                                       \
    "<addTrustee><userID>" id "</userID><rights><read/><fileScan/></rights><fileName>VOL1:\\Café</fileName>" \
    "<nameSpace>LONG</nameSpace><symLink/></addTrustee>"
#define REMOVE_AD(id, path)                                                                                  \
    "<removeTrustee type=\"adID\"><adUser/><userID>" id "</userID><symLink/><fileName>" path "</fileName>"   \
    "<nameSpace>LONG</nameSpace></removeTrustee>"
#define REMOVE_MORVANE(id)                                                                                   \
    "<removeTrustee><userID>" id                                                                             \
    "</userID><symLink/><fileName>VOL1:\\Café</fileName><nameSpace>LONG</nameSpace>"                        \
    "</removeTrustee>"

std::shared_ptr<Trustees> trustee(const char* id, const char* status, const char* domainType) {
    return std::make_shared<Trustees>("Name", id, std::uint16_t{0x41}, status, "", domainType);
}

class TrusteeRequests : public Session {
protected:
    std::string initialize(const std::string& text, const std::string& identityType) {
        world.network->calls.clear();
        reply(text);
        return controller.initializeTrustees(path, identityType, trustees, filter, effective);
    }
    TrusteeList trustees;
    Rights filter{0xFFFF};
    Rights effective{0xFFFF};
};

const std::string listReply =
    "<r><fileInfo><getFileInfo><trusteeInfo><name "
    "objectClass=\"User\">a</name><id>1</id><rights><read/></rights>"
    "</trusteeInfo><trusteeInfo><name>b</name><id>2</id></trusteeInfo><trusteeInfo><id>S-1-1-0</id><name>c</"
    "name>"
    "<rights><supervisor/></rights></trusteeInfo><inheritedRightsFilter><read/></inheritedRightsFilter>"
    "<inheritedRightsFilter><write/></inheritedRightsFilter><effectiveRights><modify/></effectiveRights>"
    "<result value=\"0\"/></getFileInfo></fileInfo></r>";

TEST_F(TrusteeRequests, ReadATrusteeList) {
    trustees = {trustee("0", "", "")};
    EXPECT_EQ(initialize(listReply, "Morvane"), "0");
    EXPECT_EQ(written(), getListMorvane);
    EXPECT_THAT(log.lines, ElementsAre("Get trustee list Request : " + getListMorvane,
                                       "response.deinitialize getTrusteeList",
                                       "Get trustee list Response: " + listReply));
    std::vector<std::string> rows;
    for (const auto& row : trustees)
        rows.push_back(row->trusteeName + "|" + row->trusteeID + "|" + row->trusteeType + "|" +
                       std::to_string(row->rights) + "|" + row->status + "|" + row->domainType);
    // "b" has the rights of "a", and both it and "c" its type: what an entry does not say carries over.
    EXPECT_THAT(rows, ElementsAre("Name|0||65||", "a|1|User|1||Morvane", "b|2|User|1||Morvane",
                                  "c|S-1-1-0|User|256||Morvane"));
    EXPECT_EQ(filter.uright, 0x02);
    EXPECT_EQ(effective.uright, 0x80);
    EXPECT_THAT(world.directory->prefetches, IsEmpty());
    EXPECT_EQ(world.directory->stateReads, 0);

    initialize(listReply, "");
    EXPECT_EQ(written(), getListMorvane) << "a type that is neither";
}

TEST_F(TrusteeRequests, LookUpTheTypesOfActiveDirectoryTrustees) {
    using Attributes = std::map<std::string, std::vector<std::string>>;
    const Attributes user = {{"dsAttrTypeStandard:RecordType", {"dsRecTypeStandard:Users"}}};
    world.directory->records["1"] = {std::make_shared<FakeRecord>(user)};
    EXPECT_EQ(initialize("no XML", "Morvane"), "0");
    EXPECT_THAT(trustees, IsEmpty());
    EXPECT_EQ(filter.uright, 0xFFFF);
    EXPECT_EQ(effective.uright, 0xFFFF);
    for (const char* entry : {"<id>1</id><rights/>", "<name>a</name><id>1</id>"})
        EXPECT_DEATH(initialize("<r><fileInfo><getFileInfo><trusteeInfo>" + std::string(entry) +
                                    "</trusteeInfo><result value=\"0\"/></getFileInfo></fileInfo></r>",
                                "Morvane"),
                     "has no name or no rights")
            << entry;
}

TEST_F(TrusteeRequests, WriteRightsInTheirOwnOrder) {
    EXPECT_EQ(XMLReadWriteController::createRightsForXML(0x01FB),
              "<read/><write/><create/><modify/><erase/><fileScan/><accessControl/><supervisor/>");
    EXPECT_EQ(XMLReadWriteController::createRightsForXML(0xFE04), "");
    EXPECT_EQ(XMLReadWriteController::createAddTrusteeRequest("S-1", 0x41, path), ADD_AD("S-1"));
    EXPECT_EQ(XMLReadWriteController::createAddTrusteeRequestMorvane("%@", 0x41, path), ADD_MORVANE("%@"));
}

TEST_F(TrusteeRequests, SendAllPendingChangesOfAPath) {
    const TrusteeList changes = {trustee("1", "ADD", "Morvane"),  trustee("2", "REMOVE", "ActiveDirectory"),
                                 trustee("3", "", "Morvane"),     trustee("4", "ADD", ""),
                                 trustee("5", "REMOVE", "other"), trustee("6", "ADD", "ActiveDirectory")};
    EXPECT_EQ(XMLReadWriteController::createAddRemoveTrusteeRequest(changes, path, "ActiveDirectory"),
              ADMIN(TRUSTEES(ADD_MORVANE("1") REMOVE_AD("2", "VOL1:\\Café") ADD_AD("4")
                                 REMOVE_AD("5", "VOL1:\\Café") ADD_AD("6"))));
    EXPECT_THAT(log.take(), ElementsAre("skipping user: "));
    EXPECT_EQ(XMLReadWriteController::createAddRemoveTrusteeRequest(changes, path, "Morvane"),
              ADMIN(TRUSTEES(ADD_MORVANE("1") REMOVE_AD("2", "VOL1:\\Café") ADD_MORVANE("4")
                                 REMOVE_MORVANE("5") ADD_AD("6"))));
    EXPECT_EQ(XMLReadWriteController::createAddRemoveTrusteeRequest({trustee("4", "ADD", "")}, path, ""),
              ADMIN(TRUSTEES("")));
}

TEST_F(TrusteeRequests, ReportWhatAChangeCameTo) {
    const struct {
        const char* reply;
        std::int64_t status;
        std::vector<std::string> failure;
    } cases[] = {
        {"<r><trustees><addTrustee><result value=\"0\"/></addTrustee></trustees></r>", 0, {}},
        {"<r><trustees><addTrustee><result value=\"20008\"/></addTrustee><removeTrustee><result value=\"0\"/>"
         "</removeTrustee></trustees></r>",
         20008,
         {"Failed to process SetTrustees response 20008"}},
        {"<r><removeTrustee/></r>", 0, {"Failed to process SetTrustees response 0"}},
        {"no XML", 0, {}},
    };
    const std::string request = ADMIN(TRUSTEES(ADD_AD("1")));
    for (const auto& [text, status, failure] : cases) {
        reply(text);
        EXPECT_EQ(controller.setTrustee({trustee("1", "ADD", "")}, path, "ActiveDirectory"), status);
        std::vector<std::string> lines = {"Add Remove trustee list Request : " + request,
                                          "response.deinitialize setTrustee",
                                          "Add or Remove trustee Response: " + std::string(text)};
        lines.insert(lines.end(), failure.begin(), failure.end());
        EXPECT_EQ(log.take(), lines);
    }
}

TEST_F(TrusteeRequests, ChangeOneTrusteeByTheIdentityTypeOfTheCallAlone) {
    const std::string failed = "<r><trustees><addTrustee><result value=\"5\"/></addTrustee></trustees></r>";
    reply(failed);
    EXPECT_EQ(controller.setTrusteeAdd(*trustee("1", "", "Morvane"), path, "ActiveDirectory"), "5");
    const std::string request = ADMIN(TRUSTEES(ADD_AD("1")));
    EXPECT_EQ(written(), request);
    EXPECT_THAT(log.take(),
                ElementsAre("Add trustee Request : " + request, "response.deinitialize setTrusteeAdd",
                            "Add trustee Response: " + failed, "Failed to process SetTrustees response 5"));

    world.network->calls.clear();
    const std::string done =
        "<r><trustees><removeTrustee><result value=\"0\"/></removeTrustee></trustees></r>";
    reply(done);
    EXPECT_EQ(controller.setTrusteeRemove(*trustee("1", "", ""), path, "Morvane"), "0");
    EXPECT_EQ(written(), ADMIN(TRUSTEES(REMOVE_MORVANE("1"))));
    EXPECT_THAT(log.take(),
                ElementsAre("Remove trustee Request : " + written(), "response.deinitialize setTrusteeRemove",
                            "Remove trustee Response: " + done));

    world.network->calls.clear();
    reply(done);
    controller.setTrusteeRemove(*trustee("1", "", "Morvane"), path, "");
    EXPECT_EQ(written(), ADMIN(""));
}

TEST_F(TrusteeRequests, ChangeSeveralPathsBehindADoubledPrefix) {
    reply("<r><removeTrustee><result value=\"9\"/></removeTrustee></r>");
    EXPECT_EQ(controller.setTrusteeforDir({{trustee("1", "ADD", ""), path},
                                           {trustee("2", "", ""), path},
                                           {trustee("3", "REMOVE", "ActiveDirectory"), "VOL1:\\x"}},
                                          "Morvane"),
              9);
    EXPECT_EQ(written(), ADMIN(VIRTUAL_IO TRUSTEES(ADD_MORVANE("1") REMOVE_AD("3", "VOL1:\\x"))));
    EXPECT_THAT(log.lines,
                ElementsAre("skipping user: ", "Add Remove trustee for directory Request : " + written(),
                            "response.deinitialize setTrusteeforDir",
                            "Add or Remove trustee for directory Response: <r><removeTrustee><result "
                            "value=\"9\"/></removeTrustee></r>",
                            "Failed to process SetTrustees for directory response 9"));
}

TEST_F(TrusteeRequests, TellTheKindOfUser) {
    for (const auto& [text, kind] : std::map<std::string, std::string>{{"<r>MORVANE</r>", "Morvane"},
                                                                       {"not XML, é, eMorvanes", "Morvane"},
                                                                       {"<r>AD</r>", "ActiveDirectory"},
                                                                       {"", "ActiveDirectory"}}) {
        world.network->calls.clear();
        reply(text);
        EXPECT_EQ(controller.getUserType(), kind) << text;
        EXPECT_EQ(written(), "<zelSmbGetInfo><userType/></zelSmbGetInfo>");
        EXPECT_THAT(log.take(),
                    ElementsAre("Get userType Request : <zelSmbGetInfo><userType/></zelSmbGetInfo>",
                                "response.deinitialize", "Get userType Response: " + text));
    }
}

TEST_F(TrusteeRequests, KeepTheListWhenThePipeDoesNotOpen) {
    std::string server = "srv1";
    std::string selected = path;
    std::string mapped = "VOL1:\\";
    trustees = {trustee("0", "ADD", "")};
    ServerDetails::serverInfo().keychainStatus = -25300;
    EXPECT_EQ(controller.initializeTrusteesHandleDFS(server, trustees, selected, filter, effective, mapped,
                                                     "Morvane"),
              -25300);
    EXPECT_EQ(trustees.size(), 1U);
}

} // namespace
} // namespace quorvan::test
