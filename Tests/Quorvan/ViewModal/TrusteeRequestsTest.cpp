// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Texts = std::vector<std::string>;

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
    const Attributes group = {{"dsAttrTypeStandard:RecordType", {"dsRecTypeStandard:Groups"}}};
    world.directory->records["2"] = {std::make_shared<FakeRecord>(group)};
    EXPECT_EQ(initialize(listReply, "ActiveDirectory"), "0");
    EXPECT_EQ(written(), getListAD);
    Texts types;
    for (const auto& row : trustees)
        types.push_back(row->trusteeID + " " + row->trusteeType + " " + row->domainType);
    EXPECT_THAT(types, ElementsAre("1 User ActiveDirectory", "2 Groups ActiveDirectory",
                                   "S-1-1-0 User ActiveDirectory"));
    EXPECT_THAT(world.directory->prefetches, ElementsAre(ElementsAre("1", "2", "S-1-1-0")));
}

TEST_F(TrusteeRequests, ReadNothingFromWhatIsNoListOfTrustees) {
    EXPECT_EQ(initialize("no XML", "Morvane"), "0");
    EXPECT_TRUE(trustees.empty() && filter.uright == 0xFFFF && effective.uright == 0xFFFF);
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
    const std::string change = ADMIN(TRUSTEES(ADD_AD("1")));
    const auto set = [&] {
        return controller.setTrustee({trustee("1", "ADD", "")}, path, "ActiveDirectory");
    };
    const Texts first = {"Add Remove trustee list Request : ", "response.deinitialize setTrustee",
                         "Add or Remove trustee Response: "};
    const auto add = [&](const char* ownType, const char* type) {
        return std::stoll(controller.setTrusteeAdd(*trustee("1", "", ownType), path, type));
    };
    const auto remove = [&](const char* ownType, const char* type) {
        return std::stoll(controller.setTrusteeRemove(*trustee("1", "", ownType), path, type));
    };
    const Texts adding = {"Add trustee Request : ", "response.deinitialize setTrusteeAdd",
                          "Add trustee Response: "};
    const Texts removing = {"Remove trustee Request : ", "response.deinitialize setTrusteeRemove",
                            "Remove trustee Response: "};
    const auto several = [&] {
        return controller.setTrusteeforDir(
            {{trustee("1", "ADD", ""), path}, {trustee("3", "REMOVE", "ActiveDirectory"), "VOL1:\\x"}},
            "Morvane");
    };
    const std::string done =
        "<r><trustees><removeTrustee><result value=\"0\"/></removeTrustee></trustees></r>";
    const struct {
        std::function<std::int64_t()> run;
        std::string reply;
        std::string request;
        std::int64_t status;
        Texts log;
        const char* failure = "";
    } cases[] = {
        {set, "<r><trustees><addTrustee><result value=\"0\"/></addTrustee></trustees></r>", change, 0, first},
        {set,
         "<r><trustees><addTrustee><result value=\"20008\"/></addTrustee><removeTrustee><result value=\"0\"/>"
         "</removeTrustee></trustees></r>",
         change, 20008, first, "Failed to process SetTrustees response 20008"},
        {set, "<r><removeTrustee/></r>", change, 0, first, "Failed to process SetTrustees response 0"},
        {set, "no XML", change, 0, first},
        // One trustee is changed by the identity type of the call alone.
        {[&] { return add("Morvane", "ActiveDirectory"); }, replyWith("5"), change, 5, adding,
         "Failed to process SetTrustees response 5"},
        {[&] { return remove("", "Morvane"); }, done, ADMIN(TRUSTEES(REMOVE_MORVANE("1"))), 0, removing},
        {[&] { return remove("Morvane", ""); }, done, ADMIN(""), 0, removing},
        {several,
         "<r><removeTrustee><result value=\"9\"/></removeTrustee></r>",
         ADMIN(VIRTUAL_IO TRUSTEES(ADD_MORVANE("1") REMOVE_AD("3", "VOL1:\\x"))),
         9,
         {"Add Remove trustee for directory Request : ", "response.deinitialize setTrusteeforDir",
          "Add or Remove trustee for directory Response: "},
         "Failed to process SetTrustees for directory response 9"},
    };
    for (const auto& [run, text, request, status, lines, failure] : cases) {
        world.network->calls.clear();
        reply(text);
        EXPECT_EQ(run(), status) << text;
        EXPECT_EQ(written(), request);
        Texts expected = {lines[0] + request, lines[1], lines[2] + text};
        if (*failure != '\0')
            expected.emplace_back(failure);
        EXPECT_EQ(log.take(), expected);
    }
}

TEST_F(TrusteeRequests, TellTheKindOfUser) {
    for (const auto& [text, kind] : std::map<std::string, std::string>{
             {"<r>MORVANE</r>", "Morvane"}, {"not XML, é, eMorvanes", "Morvane"}, {"", "ActiveDirectory"}}) {
        reply(text);
        EXPECT_EQ(controller.getUserType(), kind) << text;
    }
}

} // namespace
} // namespace quorvan::test
