// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

#include "Common/Utf8.h"

#include <fstream>

#include <unistd.h>

namespace quorvan::test {
namespace {

using HostileReply = Session;

std::string repeated(std::string_view text, std::size_t times) {
    std::string result;
    for (std::size_t time = 0; time < times; ++time)
        result += text;
    return result;
}

TEST_F(HostileReply, MayNestAMillionElements) {
    const std::string nested = repeated("<file>", 1'000'000) + repeated("</file>", 1'000'000);
    EXPECT_EQ(controller.getResultValue("<r>" + nested + "<result value=\"5\"/></r>", {"result"}), "5");
    EXPECT_EQ(controller.dictResponse->size(), 1'000'000U);
    const XMLDocument document(nested);
    ASSERT_FALSE(document.error());
    EXPECT_EQ(document.rootElement().stringValue(), "");
}

TEST_F(HostileReply, MayBeLong) {
    const std::string attribute(8'000'000, 'a');
    const std::string text(12'000'000, 't');
    EXPECT_EQ(controller.getResultValue("<r><result value=\"0\" t=\"" + attribute +
                                            "\"/><trusteeInfo><name objectClass=\"" + attribute + "\">" +
                                            text + "</name></trusteeInfo></r>",
                                        {"result"}),
              "0");
    EXPECT_EQ(controller.dictResponse->at(0)->trusteeType, attribute);
    EXPECT_EQ(controller.dictResponse->at(0)->trusteeName, text);
    EXPECT_TRUE(log.lines.empty());
}

TEST_F(HostileReply, MayHaveAThousandRowsOfNothing) {
    const std::string row = "<user><id>S-1</id></user>";
    UserQuotaList users;
    controller.decodeUserQuotaInfo("<r><userQuota><browse><userList>" + repeated("<a/>", 1'002) + row +
                                       "</userList></browse></userQuota></r>",
                                   users, "Morvane");
    EXPECT_EQ(users.size(), 1'001U);
    EXPECT_EQ(users.back()->SID, "S-1");
    EXPECT_THAT(log.lines, testing::ElementsAre("2 rows of the reply say nothing and are left out"));
}

TEST_F(HostileReply, ExpandsAndFetchesNothing) {
    const std::string secretFile = testing::TempDir() + "quorvan-secret-" + std::to_string(getpid());
    std::ofstream(secretFile) << "secret";
    std::ofstream(secretFile + ".dtd") << "<!ENTITY e \"secret\">";
    const std::string bomb = [] {
        std::string dtd = "<!ENTITY e0 \"lol\">";
        for (int level = 1; level < 40; ++level) {
            const std::string before = "&e" + std::to_string(level - 1) + ";";
            dtd += "<!ENTITY e" + std::to_string(level) + " \"" + repeated(before, 10) + "\">";
        }
        return dtd + "<!ENTITY e \"&e39;\">";
    }();
    const std::vector<std::string> dtds = {" [" + bomb + "]",
                                           " [<!ENTITY e \"" + std::string(1'000'000, 'x') + "\">]",
                                           " [<!ENTITY e SYSTEM \"file://" + secretFile + "\">]",
                                           " SYSTEM \"file://" + secretFile + ".dtd\"",
                                           " [<!ENTITY % p SYSTEM \"file://" + secretFile + ".dtd\"> %p;]",
                                           " [<!ENTITY % p '<!ENTITY e \"secret\">'> %p;]",
                                           " [<!ENTITY e \"&e;\">]"};
    for (const std::string& dtd : dtds) {
        const std::string reply = "<!DOCTYPE r" + dtd +
                                  "><r><result value=\"0\" t=\"&e;\"/><trusteeInfo><name>" +
                                  repeated("&e;", 1000) + "</name></trusteeInfo></r>";
        EXPECT_EQ(controller.getResultValue(reply, {"result"}), "0");
        for (const auto& entry : *controller.dictResponse)
            EXPECT_EQ(entry->trusteeName.value_or(""), "");
    }
    EXPECT_EQ(controller.getResultValue(
                  "<!DOCTYPE r SYSTEM \"http://127.0.0.1:1/x.dtd\"><r><result value=\"5\"/></r>", {"result"}),
              "0");
    unlink(secretFile.c_str());
    unlink((secretFile + ".dtd").c_str());
}

TEST(XMLDocument, RefusesWhatTakesATimeThatGrowsWithItsSquare) {
    std::string attributes = "<r";
    std::string names = "<r>";
    for (int number = 0; number < 20'000; ++number) {
        attributes += " a" + std::to_string(number) + "=\">\"";
        names += "<n" + std::to_string(number) + "/>";
    }
    const std::pair<std::string, std::string> cases[] = {
        {"<!DOCTYPE r><r/>", "the document has a document type"},
        {attributes + "/>", "the document has a tag with too many attributes"},
        {names + "</r>", "the document has too many different names"},
        {"<r><?target?></r>", "the document has a processing instruction"},
        {"<r>" + repeated("a = b, ", 20'000) + "</r>", "the document has a tag with too many attributes"},
    };
    for (const auto& [text, description] : cases) {
        const XMLDocument document(text);
        EXPECT_EQ(document.error() ? document.error()->description : "", description) << text.substr(0, 40);
    }
}

TEST_F(HostileReply, MayBeCutAnywhereOrHoldAnyByte) {
    const std::string sample =
        "<?xml version=\"1.0\"?><fileReply><fileInfo><getFileInfo><trusteeInfo><name "
        "objectClass=\"User\">Zoë &amp; "
        "&#x20AC;</name><id>S-1</id><rights><read/></rights></trusteeInfo><!-- c "
        "--><inheritedRightsFilter><read/>"
        "</inheritedRightsFilter><result value=\"0\"/></getFileInfo></fileInfo></fileReply>";
    TrusteeList trustees;
    Rights filter;
    Rights effective;
    for (std::size_t length = 0; length < sample.size(); ++length) {
        reply(sample.substr(0, length));
        EXPECT_EQ(controller.initializeTrustees("VOL1:\\", "Morvane", trustees, filter, effective), "0");
        EXPECT_EQ(log.lines.back().substr(0, 24), "Error parsing KELP Reply") << length;
    }
    const std::size_t end = sample.find("<id>"); // what stands further on may be fatal on purpose
    for (std::size_t at = 0; at < end; ++at) {
        std::string broken = sample;
        for (const char byte : {'\xFF', '\xC3', '<', '&', '\x01'}) {
            broken[at] = byte;
            XMLResponseParser parser;
            parser.getdictionaryfromXMLData(broken);
            for (const auto& entry : parser.arrStack)
                EXPECT_TRUE(isUtf8(entry->trusteeName.value_or("")));
            EXPECT_EQ(XMLDocument(broken).error(), parser.error);
        }
    }
}

} // namespace
} // namespace quorvan::test
