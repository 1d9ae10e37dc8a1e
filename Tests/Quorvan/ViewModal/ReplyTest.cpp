// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

#include <iterator>

namespace quorvan::test {
namespace {

using testing::ElementsAre;

/// Entries in a short notation: "name,id,type,rights" of a trustee, "irf=", "eff=" and "path=".
std::string entriesOf(const ReplyEntries& entries) {
    Texts texts;
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
            texts.push_back(joined({text(entry->trusteeName), text(entry->trusteeID),
                                    text(entry->trusteeType), mask(entry->rights)},
                                   ","));
    }
    return joined(texts);
}

std::string unescaped(std::string text) {
    for (std::size_t at; (at = text.find("\\n")) != std::string::npos;)
        text.replace(at, 2, "\n");
    return text;
}

TEST(ResponseParser, GathersEntriesInTheOrderInWhichTheyClose) {
    for (const auto& [why, reply, entries] : table<3>(R"(
every kind of entry | <r><file><trusteeInfo><name objectClass="User">Zo&#235; &amp; Co</name><id>S-1</id><rights><read/>
    <unknown/><modify/></rights></trusteeInfo><path>V:\a</path></file><inheritedRightsFilter><read/></inheritedRightsFilter>
    <effectiveRights><modify/></effectiveRights></r> | Zoë & Co,S-1,User,129 > path=V:\a > irf=1 > eff=128
the first ID and path and the last name win | <r><accessRights><id>1</id><id>2</id><trustee objectClass="A&amp;B">a</trustee>
    <name>b</name></accessRights><file><path>p</path><path>q</path></file></r> | b,1,A&B,- > path=p
later elements write into an entry that is in the list | <r><trusteeInfo><name>a</name></trusteeInfo><id>late</id><rights>
    <read/></rights><file/><path>p</path></r> | a,late,-,1 > path=p
an inner entry takes the place of the outer one | <r><trusteeInfo><name>a</name><trusteeInfo><name>b</name></trusteeInfo>
    </trusteeInfo></r> | b,-,-,- > b,-,-,-
stray rights go to the next that closes, not to a file | <r><read/><file/><inheritedRightsFilter/><effectiveRights><write/>
    </effectiveRights></r> | -,-,-,- > irf=1 > eff=2
a lone line feed clears the text | <r><trusteeInfo>\n<name>a</name> <id>x<q/>1</id></trusteeInfo><trusteeInfo>b&#10;
    <name>c</name></trusteeInfo></r> | a,1,-,- > c,-,-,-
other white space is part of the next text | <r><trusteeInfo> \n<name> a</name></trusteeInfo></r> |  \n a,-,-,-
CDATA is text | <r><trusteeInfo><name><![CDATA[<a>]]>b</name></trusteeInfo></r> | <a>b,-,-,-
names are taken as written | <r><x:trusteeInfo xmlns:x="u"/><trusteeInfo/></r> | -,-,-,-
an error keeps what was there | <r><trusteeInfo/><file></r> | -,-,-,-
no XML | nothing |
UTF-8 whatever it says | <?xml version="1.0" encoding="ISO-8859-1"?><r><trusteeInfo><name>é</name></trusteeInfo></r> | é,-,-,-
)")) {
        XMLResponseParser parser;
        std::string found = entriesOf(parser.getdictionaryfromXMLData(unescaped(reply)));
        found.erase(0, found.find_first_not_of(' ')); // as a cell of the table
        EXPECT_EQ(found, unescaped(entries)) << why;
    }
}

TEST(ResponseParser, CountsFailures) {
    for (const auto& [reply, addFailed, removeFailed, status] : table<4>(R"(
<r><addTrustee><result value="0"/></addTrustee><removeTrustee><result value="0"/></removeTrustee></r>     | 0 | 0 | 0
<r><removeTrustee><result value="7"/></removeTrustee><addTrustee/><result value="0"/><addTrustee/></r>   | 1 | 1 | 7
<r><addTrustee/></r>                                                                                      | 1 | 0 | 0
<r><result value="3221225506"/><result other="0"/></r>                                           | 0 | 0 | 3221225506
<r><result value="-5"/></r>                                                                               | 0 | 0 | -5
)")) {
        XMLResponseParser parser;
        parser.getdictionaryfromXMLData(reply);
        EXPECT_EQ(std::to_string(parser.nAddFailed), addFailed) << reply;
        EXPECT_EQ(std::to_string(parser.nRemFailed), removeFailed) << reply;
        EXPECT_EQ(std::to_string(parser.xmlReqStatus), status) << reply;
    }
    for (const char* result : {"", " value=\"\"", " value=\"0x1\"", " value=\"99999999999999999999\""})
        EXPECT_DEATH(
            XMLResponseParser().getdictionaryfromXMLData("<r><result" + std::string(result) + "/></r>"),
            "is not a number")
            << result;
}

TEST_F(Session, FindsTheStatusOnTheResultPath) {
    for (const auto& [path, status, reply] : table<3>(R"(
fileInfo result | 20429 | <r><fileInfo><result value="20429"/></fileInfo></r>
result          | 5     | <result><result value="5"><result value="6"/></result></result>
result          | 5     | <r><a/><result value="5"/><result value="6"/></r>
result          | 1     | <r><result description="x" value="1"/></r>
| 9 | <r value="9"/>
result          | 0     | <r><result value="0"/><result code="4"/></r>
status          | 0     | <r><status code="4"/></r>
result          | no element "result" | <r/>
result          | no element "result" | <r><a><result value="1"/></a></r>
result          | no element "result" | <result value="1"/>
a result        | no element "result" | <r><a/><a><result value="1"/></a></r>
status          | no attributes | <r><status/></r>
)")) {
        std::istringstream words(path);
        const ElementPath steps{std::istream_iterator<std::string>(words), {}};
        if (status.starts_with("no "))
            EXPECT_DEATH(controller.getResultValue(reply, steps), status) << reply;
        else
            EXPECT_EQ(controller.getResultValue(reply, steps), status) << reply;
    }
    EXPECT_TRUE(log.lines.empty());
    EXPECT_EQ(controller.getResultValue("<r><trusteeInfo/><result value=\"5\"/>", {"result"}), "0");
    EXPECT_EQ(controller.dictResponse->size(), 1U);
    EXPECT_EQ(controller.getResultValue("busy, try later", {"result"}), "0");
    EXPECT_THAT(log.lines, testing::Each(testing::StartsWith("Error parsing KELP Reply - line 1: ")));
    EXPECT_EQ(log.lines.size(), 2U);
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
