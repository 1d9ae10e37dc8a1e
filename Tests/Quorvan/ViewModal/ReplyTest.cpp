// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;

/// Entries in a short notation: "name|id|type|rights" of a trustee, "irf=", "eff=" and "path=".
std::vector<std::string> entriesOf(const ReplyEntries& entries) {
    std::vector<std::string> texts;
    for (const auto& entry : entries) {
        const auto mask = [](const auto& value) { return value ? std::to_string(*value) : "-"; };
        const auto text = [](const auto& value) { return std::string(value.value_or("-")); };
        if (entry->inheritedRightsFilter)
            texts.push_back("irf=" + mask(entry->inheritedRightsFilter));
        else if (entry->effectiveRights)
            texts.push_back("eff=" + mask(entry->effectiveRights));
        else if (entry->path)
            texts.push_back("path=" + text(entry->path));
        else
            texts.push_back(text(entry->trusteeName) + "|" + text(entry->trusteeID) + "|" +
                            text(entry->trusteeType) + "|" + mask(entry->rights));
    }
    return texts;
}

using Texts = std::vector<std::string>;

TEST(ResponseParser, GathersEntriesInTheOrderInWhichTheyClose) {
    const struct {
        const char* why;
        const char* reply;
        Texts entries;
    } cases[] = {
        {"every kind of entry",
         "<r><file><trusteeInfo><name objectClass=\"User\">Zo&#235; &amp; "
         "Co</name><id>S-1</id><rights><read/><write/>"
         "<create/><erase/><accessControl/><fileScan/><modify/><supervisor/><unknown/></rights></trusteeInfo>"
         "<path>VOL1:\\a</path></file><inheritedRightsFilter><read/></inheritedRightsFilter>"
         "<effectiveRights><modify/></effectiveRights></r>",
         {"Zoë & Co|S-1|User|507", "path=VOL1:\\a", "irf=1", "eff=128"}},
        {"the first ID and path and the last name win",
         "<r><accessRights><id>1</id><id>2</id><trustee "
         "objectClass=\"A&amp;B\">a</trustee><name>b</name></accessRights>"
         "<file><path>p</path><path>q</path></file></r>",
         {"b|1|A&B|-", "path=p"}},
        {"later elements write into an entry that is in the list",
         "<r><trusteeInfo><name>a</name></trusteeInfo><id>late</id><rights><read/></rights><file/><path>p</"
         "path></r>",
         {"a|late|-|1", "path=p"}},
        {"an inner entry takes the place of the outer one",
         "<r><trusteeInfo><name>a</name><trusteeInfo><name>b</name></trusteeInfo></trusteeInfo></r>",
         {"b|-|-|-", "b|-|-|-"}},
        {"stray rights go to the next that closes, a file does not take them",
         "<r><read/><file/><inheritedRightsFilter/><effectiveRights><write/></effectiveRights></r>",
         {"-|-|-|-", "irf=1", "eff=2"}},
        {"a lone line feed clears the text, other white space stays",
         "<r><trusteeInfo>\n<name> a</name> "
         "<id>x<q/>1</id></trusteeInfo><trusteeInfo>b&#10;<name>c</name></trusteeInfo></r>",
         {" a|1|-|-", "c|-|-|-"}},
        {"white space before an element is part of its text",
         "<r><trusteeInfo> \n<name>a</name></trusteeInfo></r>",
         {" \na|-|-|-"}},
        {"CDATA is text", "<r><trusteeInfo><name><![CDATA[<a>]]>b</name></trusteeInfo></r>", {"<a>b|-|-|-"}},
        {"names are taken as written", "<r><x:trusteeInfo xmlns:x=\"u\"/><trusteeInfo/></r>", {"-|-|-|-"}},
        {"an error keeps what was there", "<r><trusteeInfo/><file></r>", {"-|-|-|-"}},
        {"no XML", "nothing", {}},
        {"the text is UTF-8 whatever it says",
         "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><r><trusteeInfo><name>é</name></trusteeInfo></r>",
         {"é|-|-|-"}},
    };
    for (const auto& [why, reply, entries] : cases) {
        XMLResponseParser parser;
        EXPECT_EQ(entriesOf(parser.getdictionaryfromXMLData(reply)), entries) << why;
    }
}

TEST(ResponseParser, CountsFailures) {
    const struct {
        const char* reply;
        std::int64_t addFailed, removeFailed, status;
    } cases[] = {
        {"<r><addTrustee><result value=\"0\"/></addTrustee><removeTrustee><result "
         "value=\"0\"/></removeTrustee></r>",
         0, 0, 0},
        {"<r><removeTrustee><result value=\"7\"/></removeTrustee><addTrustee/><result "
         "value=\"0\"/><addTrustee/></r>",
         1, 1, 7},
        {"<r><addTrustee/></r>", 1, 0, 0}, // no result yet
        {"<r><result value=\"3221225506\"/><result other=\"0\"/></r>", 0, 0, 3221225506},
        {"<r><result value=\"-5\"/></r>", 0, 0, -5},
    };
    for (const auto& [reply, addFailed, removeFailed, status] : cases) {
        XMLResponseParser parser;
        parser.getdictionaryfromXMLData(reply);
        EXPECT_EQ(parser.nAddFailed, addFailed) << reply;
        EXPECT_EQ(parser.nRemFailed, removeFailed) << reply;
        EXPECT_EQ(parser.xmlReqStatus, status) << reply;
    }
    for (const char* reply :
         {"<r><result/></r>", "<r><result value=\"\"/></r>", "<r><result value=\"0x1\"/></r>",
          "<r><result value=\"99999999999999999999\"/></r>"})
        EXPECT_DEATH(XMLResponseParser().getdictionaryfromXMLData(reply), "is not a number") << reply;
}

TEST_F(Session, FindsTheStatusOnTheResultPath) {
    const struct {
        const char* reply;
        ElementPath path;
        const char* status;
    } cases[] = {
        {"<r><fileInfo><getFileInfo><result value=\"20429\"/></getFileInfo></fileInfo></r>",
         {"fileInfo", "getFileInfo", "result"},
         "20429"},
        {"<result><result value=\"5\"><result value=\"6\"/></result></result>", {"result"}, "5"},
        {"<r><a/><result value=\"5\"/><result value=\"6\"/></r>", {"result"}, "5"},
        {"<r><result description=\"x\" value=\"1\"/></r>", {"result"}, "1"},
        {"<r value=\"9\"/>", {}, "9"},
    };
    for (const auto& [reply, path, status] : cases)
        EXPECT_EQ(controller.getResultValue(reply, path), status) << reply;
    EXPECT_EQ(controller.getResultValue("<r><result value=\"0\"/><result code=\"4\"/></r>", {"result"}), "0");
    EXPECT_TRUE(log.lines.empty());

    EXPECT_EQ(controller.getResultValue("<r><trusteeInfo/><result value=\"5\"/>", {"result"}), "0");
    EXPECT_EQ(controller.dictResponse->size(), 1U);
    EXPECT_EQ(controller.getResultValue("busy, try later", {"result"}), "0");
    EXPECT_THAT(log.lines, testing::Each(testing::StartsWith("Error parsing KELP Reply - line 1: ")));
    EXPECT_EQ(log.lines.size(), 2U);

    for (const char* reply : {"<r/>", "<r><a><result value=\"1\"/></a></r>", "<result value=\"1\"/>"})
        EXPECT_DEATH(controller.getResultValue(reply, {"result"}), "no element \"result\"") << reply;
    EXPECT_DEATH(controller.getResultValue("<r><a/><a><result value=\"1\"/></a></r>", {"a", "result"}),
                 "no element")
        << "only the first child of a name counts";
    // a result without attributes, outside the elements of the event pass's own
    EXPECT_DEATH(controller.getResultValue("<r><status/></r>", {"status"}), "no attributes");
}

TEST(XMLElement, WalksAReply) {
    const XMLDocument document("<r a=\"1\" b=\"x&amp;y\"><file><path>V<i>O</i>L</path>t<path>2</path></file>"
                               "<file/>tail &lt;<empty/></r>");
    const XMLElement root = document.rootElement();
    EXPECT_EQ(root.attribute("b"), "x&y");
    EXPECT_FALSE(root.attribute("c"));
    Texts children = {std::string(root.name()) + ":" + root.stringValue()};
    for (const XMLElement child : root.children())
        children.push_back(std::string(child.name()) + ":" + child.stringValue());
    EXPECT_THAT(children, ElementsAre("r:VOLt2tail <", "file:VOLt2", "file:", ":tail <", "empty:"));
    EXPECT_EQ(getElement({"file", "path", "i"}, root).stringValue(), "O");
    EXPECT_EQ(getValue("path", getElement({"file"}, root)), "VOL");
    EXPECT_EQ(getValue("none", root), "");
    EXPECT_FALSE(getXMLElement({"file", "none"}, root));
    EXPECT_DEATH(getElement({"file", "none"}, root), "no element \"none\"");
    EXPECT_TRUE(XMLDocument("<r><file></r>").error());
}

} // namespace
} // namespace quorvan::test
