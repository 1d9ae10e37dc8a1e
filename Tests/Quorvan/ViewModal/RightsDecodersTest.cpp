// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using RightsDecoders = Session;

const std::string allPaths =
    "<rightsReply><result value=\"0\"/>"
    "<file><path>VOL1:\\a</path><rightsInfo><trusteeList>"
    "<trusteeInfo><name>x</name><id>A</id><rights><read/></rights></trusteeInfo>"
    "<trusteeInfo><name>y</name><id>G1</id><rights><read/><fileScan/><unknown/></rights></trusteeInfo>"
    "<trusteeInfo/></trusteeList></rightsInfo></file>"
    "<other><path>VOL1:\\o</path></other>"
    "<file><rightsInfo><trusteeList/></rightsInfo><path>VOL1:\\b</path></file>"
    "<file><path>VOL1:\\c</path><rightsInfo><trusteeList>"
    "<trusteeInfo><rights><write/></rights><id>A</id><name>x</name></trusteeInfo>"
    "<trusteeInfo><id>B</id><id>A</id><name>x</name><rights><create/><erase/><modify/><accessControl/>"
    "<supervisor/><write/></rights></trusteeInfo></trusteeList></rightsInfo></file>"
    "<trusteeInfo><name>z</name><id>Z</id></trusteeInfo></rightsReply>";

TEST_F(RightsDecoders, FindThePathsOfSomeIdentities) {
    const auto found = [](const std::string& text, const std::vector<std::string>& ids) {
        std::vector<IdentityFileRights> rows = {{"before", {}}};
        XMLReadWriteController::decodeFSRInfo(text, ids, rows);
        std::vector<std::string> texts;
        for (const auto& [id, rights] : rows)
            texts.push_back(id + "|" + rights.fpath + "|" + std::to_string(rights.frights));
        return texts;
    };
    // Rights that stand before the ID belong to nobody.
    EXPECT_THAT(found(allPaths, {"A", "G1"}),
                ElementsAre("before||0", "A|VOL1:\\a|1", "G1|VOL1:\\a|65", "A|VOL1:\\c|442"));
    EXPECT_THAT(found(allPaths, {"G1", "a"}), ElementsAre("before||0", "G1|VOL1:\\a|65"));
    EXPECT_THAT(found(allPaths, {}), ElementsAre("before||0"));

    EXPECT_THAT(log.take(), IsEmpty());
    for (const char* file :
         {"<file><path>p</path></file>", "<file><rightsInfo><trusteeList/></rightsInfo></file>",
          "<file><path>p</path><rightsInfo/><rightsInfo><trusteeList/></rightsInfo></file>"}) {
        EXPECT_DEATH(found("<r>" + std::string(file) + "</r>", {"A"}), "no path or no list");
        const std::string broken = allPaths.substr(0, allPaths.size() - 14) + file; // first of all no XML
        EXPECT_THAT(found(broken, {"A"}), ElementsAre("before||0"));
        EXPECT_EQ(log.take().at(0).substr(0, 33), "Error parsing FSR Response : erro");
    }
    reply(allPaths);
    std::vector<IdentityFileRights> rows;
    EXPECT_EQ(controller.getFSRights("VOL1:\\", {"B"}, rows, "Morvane"), "0");
    EXPECT_EQ(controller.dictResponse->size(), 9U);
}

TEST_F(RightsDecoders, PutTheirPathBehindTheTrusteesOfADirectory) {
    reply(allPaths);
    std::vector<DirectoryRights> rows;
    EXPECT_EQ(controller.getIRRequest("VOL1:\\", rows, "Morvane"), "0");
    std::vector<std::string> texts;
    for (const auto& [trustee, where] : rows)
        texts.push_back(trustee->trusteeName + "|" + trustee->trusteeID + "|" +
                        std::to_string(trustee->rights) + "|" + where);
    EXPECT_THAT(texts,
                ElementsAre("x|A|1|VOL1:\\a", "y|G1|65|VOL1:\\a", "x|A|2|VOL1:\\c", "x|B|442|VOL1:\\c"));
    EXPECT_EQ(rows[0].trustee->domainType, "Morvane");
    reply("<r><result value=\"0\"/><trusteeInfo><id>A</id></trusteeInfo></r>");
    EXPECT_DEATH(controller.getIRRequest("VOL1:\\", rows, "Morvane"), "no name or no rights");
}

TEST_F(RightsDecoders, ReadEffectiveRights) {
    TrusteeList trustees;
    reply("<r><fileInfo><getAllEffectiveRights><result value=\"0\"/><accessRights><name>x</name><id>A</id>"
          "<rights><modify/></rights></accessRights></getAllEffectiveRights></fileInfo></r>");
    EXPECT_EQ(controller.getEffectiveRightsforPath("VOL1:\\", trustees, "Morvane"), "0");
    ASSERT_EQ(trustees.size(), 1U);
    EXPECT_EQ(trustees[0]->rights, 0x80);

    Rights rights{0x1234};
    reply("<r><result value=\"7\"/></r>");
    controller.getEffectiveRightsforUserOnPath("VOL1:\\", "A", rights, "Morvane");
    EXPECT_EQ(rights.uright, 0x1234);
    reply("<r><effectiveRights><read/></effectiveRights><result value=\"7\"/></r>");
    controller.getEffectiveRightsforUserOnPath("VOL1:\\", "A", rights, "Morvane");
    EXPECT_EQ(rights.uright, 1);
}

TEST_F(RightsDecoders, NameTheLoggedInUsersRights) {
    using Names = std::vector<std::string>;
    const struct {
        const char* reply;
        const char* status;
        Names names;
        const char* line; ///< "" for none
    } cases[] = {
        {"<r><fileInfo><getFileInfo><result value=\"20429\"/><rightsInfo><effectiveRights><supervisor/><x/>"
         "</effectiveRights></rightsInfo></getFileInfo></fileInfo></r>",
         "20429",
         {"supervisor", "x"},
         ""},
        {"<r><fileInfo><getFileInfo><result/><rightsInfo><effectiveRights/></rightsInfo></getFileInfo>"
         "</fileInfo></r>",
         "",
         {},
         ""},
        {"<r><fileInfo><getFileInfo><result value=\"0\"/></getFileInfo></fileInfo></r>",
         "-1",
         {"before"},
         "Error parsing ownerInfo : error 0"},
        {"", "-1", {"before"}, "Error parsing ownerInfo : error 4"},
    };
    for (const auto& [text, status, expected, line] : cases) {
        Names names = {"before"};
        reply(text);
        EXPECT_EQ(controller.getEffectiveRightsForMappedUser("VOL1:\\", names, "Morvane"), status);
        EXPECT_EQ(names, expected);
        const auto lines = log.take();
        EXPECT_EQ(lines.size() == 4 ? lines[3] : "", line);
    }
    Names names;
    reply("<r><fileInfo><getFileInfo><rightsInfo/></getFileInfo></fileInfo></r>");
    EXPECT_DEATH(controller.getEffectiveRightsForMappedUser("VOL1:\\", names, "Morvane"), "\"result\"");
    EXPECT_DEATH(XMLReadWriteController::parseEffectiveRights(XMLDocument("<e>t</e>").rootElement()), "text");
}

} // namespace
} // namespace quorvan::test
