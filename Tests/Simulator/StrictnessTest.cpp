// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/RequestReader.h"
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace quorvan::simulator {
namespace {

using testing::HasSubstr;

/// One element in a request text.
struct Span {
    std::string name;
    std::size_t from = 0;
    std::size_t to = 0;
};

/// Every element of a well-formed text, in the order in which they end.
std::vector<Span> elements(const std::string& text) {
    std::vector<Span> open;
    std::vector<Span> all;
    for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
        const std::size_t end = text.find('>', at) + 1;
        if (text[at + 1] != '/')
            open.push_back({text.substr(at + 1, text.find_first_of(" />", at) - at - 1), at, 0});
        if (text[at + 1] == '/' || text[end - 2] == '/') {
            open.back().to = end;
            all.push_back(open.back());
            open.pop_back();
        }
    }
    return all;
}

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const std::string_view part : parts)
        text += part;
    return text;
}

/// The request with one element renamed, given an attribute, taken away, doubled, or changed over
/// with the one after it. Changes may come in any number and order, and those of trustees behind a
/// doubled prefix; so these are only renamed and given an attribute.
std::vector<std::string> mutations(const std::string& text) {
    std::vector<std::string> mutated;
    const std::vector<Span> all = elements(text);
    for (const Span& each : all) {
        const std::string_view element = std::string_view(text).substr(each.from, each.to - each.from);
        const std::string_view before = std::string_view(text).substr(0, each.from);
        const std::string_view after = std::string_view(text).substr(each.to);
        const std::string_view inside = element.substr(1 + each.name.size());
        const std::size_t endTag = inside.rfind(joined({"</", each.name, ">"}));
        mutated.push_back(joined({before, "<other", inside.substr(0, endTag),
                                  endTag == std::string_view::npos ? "" : "</other>", after}));
        mutated.push_back(joined({before, "<", each.name, " x=\"1\"", inside, after}));
        if (each.name == "addTrustee" || each.name == "removeTrustee" ||
            each.name == "modifyInheritedRightsFilter" || each.name == "set")
            continue;
        mutated.push_back(joined({before, after}));
        if (each.name != "virtualIO" || text.find("addTrustee") == std::string::npos)
            mutated.push_back(joined({before, element, element, after}));
        for (const Span& next : all) {
            const std::string_view other = std::string_view(text).substr(next.from, next.to - next.from);
            if (next.from == each.to && other != element)
                mutated.push_back(joined({before, other, element, after.substr(other.size())}));
        }
    }
    return mutated;
}

struct ValidRequest {
    const char* what;
    std::string text;
    const char* pipe = "/FilesCmdPipe";
};

std::vector<ValidRequest> validRequests() {
    const std::string severalPaths = admin(commandStream + "<fileRequest><trustees>" + add("S-1-5-21-3", "") +
                                           remove("S-1-5-21-2", "VOL1:\\Dir") + "</trustees></fileRequest>");
    return {
        {"list, Active Directory", listInDomain()},
        {"list, Morvane", listInTree()},
        {"set of several", changes(add("S-1-5-21-3", "") + remove("S-1-5-21-2") + addInTree("guid-4", ""))},
        {"several paths", severalPaths},
        {"filter", filterRequest("")},
        {"all effective rights, Active Directory", allEffectiveRights(true)},
        {"all effective rights, Morvane", allEffectiveRights(false)},
        {"effective rights of one, Active Directory", effectiveRightsOf("S-1-5-21-2")},
        {"effective rights of one, Morvane", effectiveRightsOf("guid-4", false)},
        {"all paths, Active Directory", rightsOfAllPaths(SmallServer::folder), "/RightsCmdPipe"},
        {"all paths, Morvane", rightsOfAllPaths(SmallServer::folder, false), "/RightsCmdPipe"},
        {"owner, Active Directory", getInfo("idInfo")},
        {"owner, Morvane", getInfo("idInfo", false)},
        {"attributes, Active Directory", getInfo("standardInfo")},
        {"attributes, Morvane", getInfo("standardInfo", false)},
        {"directory quota, Active Directory", getInfo("directoryQuotaInfo")},
        {"directory quota, Morvane", getInfo("directoryQuotaInfo", false)},
        {"set owner, Active Directory", setOwner("S-1-5-21-2")},
        {"set owner, Morvane", setOwner("guid-4", false)},
        {"set attributes", setAttributes({"hidden"})},
        {"set directory quota", setDirectoryQuota("2048")},
        {"user quotas, Active Directory", browseQuotas(true), quotaPipe},
        {"user quotas, Morvane", browseQuotas(false), quotaPipe},
        {"set user quotas", userQuotaRequest(setQuota("S-1-5-21-2", "1") + setQuota("guid-4", "2", false)),
         quotaPipe},
        {"set no user quotas", userQuotaRequest(""), quotaPipe},
        {"tree search", searchTree("O=Meridal"), treePipe},
        {"tree attribute", getAttribute("Käthe", "O=Meridal\\OU=Haus", "guid"), treePipe},
        {"link", readLink(SmallServer::folder), "/ZelSmbPipe"},
        {"user type", userTypeRequest, "/ZelSmbPipe"}};
}

/// Some variants differ by a single element, and one is not a mutation of the other.
bool isValid(const std::string& text) {
    const std::vector<ValidRequest> all = validRequests();
    return std::any_of(all.begin(), all.end(), [&](const ValidRequest& each) { return each.text == text; });
}

/// What a request could have changed.
std::string stateOf(SmallServer& small) {
    const Node& folder = *small.server.volumes().find(SmallServer::folder);
    std::string state = folder.owner + " " + std::to_string(folder.attributes) + " " +
                        std::to_string(folder.quota.limit) + " " + std::to_string(folder.filter);
    for (const TrusteeEntry& each : folder.trustees.entries())
        state += " " + each.identity->id + "=" + std::to_string(each.rights);
    return state + " " + std::to_string(small.server.volumes().userQuotas("VOL1")->entries().size());
}

TEST(Strictness, RefusesEveryRequestThatDiffersByOneElement) {
    for (const ValidRequest& each : validRequests()) {
        SmallServer small;
        EXPECT_THAT(small.ask("boss", each.text, each.pipe), testing::Not(HasSubstr("\"20901\"")))
            << each.what;
        SmallServer untouched;
        const std::string before = stateOf(untouched);
        for (const std::string& mutated : mutations(each.text)) {
            if (isValid(mutated))
                continue;
            SmallServer fresh;
            EXPECT_THAT(fresh.ask("boss", mutated, each.pipe), HasSubstr("\"20901\""))
                << each.what << ": " << mutated;
            EXPECT_EQ(stateOf(fresh), before) << mutated;
        }
        for (const PipeFile& other : pipeFiles) {
            if (other.file != std::string_view(each.pipe)) {
                EXPECT_THAT(small.ask("boss", each.text, other.file), HasSubstr("\"20901\"")) << each.what;
            }
        }
    }
}

TEST(Strictness, RefusesOtherContents) {
    const std::string valid = changes(add("S-1-5-21-3", "<read/>") + remove("S-1-5-21-2"));
    const std::pair<const char*, const char*> replacements[] = {
        {">LONG<", ">DOS<"},
        {">LONG<", ">long<"},
        {"name=\"command\"", "name=\"data\""},
        {"name=\"command\"", "name='command'"},
        {"type=\"adID\"", "type=\"ADID\""},
        {" type=\"adID\"", ""},
        {"type=\"adID\"", "type = \"adID\""},
        {"<adUser/>", "<adUser>x</adUser>"},
        {"<symLink/>", "<symLink/> "},
        {"<read/>", "<read/><read/>"},
        {"<read/>", "<write/><read/>"},
        {"<read/>", "<modify/><create/>"},
        {"<read/>", "read"},
        {"\\Dir\\Sub<", "\\Dir\\Su\u0301b<"}, // two characters where NFC has one
        {"\\Dir\\Sub<", "\\Dir<"},            // another path without the doubled prefix
        {"\\Dir\\Sub<", "\\Dir\\R&D<"},       // a bare ampersand
        {"\\Dir\\Sub<", "\\Dir\\\xC3<"},      // ill-formed UTF-8
        {"<adminRequest>", "<?xml version=\"1.0\"?><adminRequest>"},
        {"</adminRequest>", "</adminRequest>\n"},
        {"</adminRequest>", "</adminRequest><x/>"},
        {"</adminRequest>", ""},
        {"</adminRequest>", "<!-- --></adminRequest>"},
    };
    for (const auto& [from, to] : replacements) {
        SmallServer small;
        std::string text = valid;
        const std::size_t at = text.find(from);
        ASSERT_NE(at, std::string::npos) << from;
        text.replace(at, std::string_view(from).size(), to);
        EXPECT_THAT(small.ask("boss", text), HasSubstr("\"20901\"")) << text;
        EXPECT_EQ(small.rightsAt(small.guest), 0xFFFF) << text;
    }
    SmallServer small;
    const std::string whole = filterRequest("");
    const std::size_t from = whole.find("<modify");
    const std::string filterElement = whole.substr(from, whole.find("</trustees>") - from);
    for (const std::string& text :
         {std::string(), std::string(100000, '<'), admin(""), commandStream, changes("x"),
          changes(filterElement + filterElement), changes(filterElement + add("S-1-5-21-3", ""))})
        EXPECT_THAT(small.ask("boss", text), HasSubstr("\"20901\"")) << text.substr(0, 100);
}

TEST(Strictness, RefusesOtherContentsOfEachKind) {
    std::string tooMany;
    for (int i = 0; i <= 300; ++i)
        tooMany += setQuota("S-1-5-21-2", "1");
    const std::string hidden = "<hidden enabled=\"yes\"/>";
    const struct {
        std::string valid, from, to;
        const char* pipe = "/FilesCmdPipe";
    } cases[] = {
        {setOwner("S-1-5-21-2"), " type = ", " type="},
        {setOwner("S-1-5-21-2"), "S-1-5-21-2", "<x/>"},
        {effectiveRightsOf("S-1-5-21-2"), "\"adID\"", "\"adid\""},
        {setAttributes({"hidden"}), "enabled=\"no\"", "enabled=\"off\""},
        {setAttributes({"hidden"}), hidden, ""},                // on, but not announced
        {setAttributes({"hidden"}), hidden, hidden + hidden},   // announced twice
        {setAttributes({}), "<readOnly", hidden + "<readOnly"}, // announced, but not on
        {setAttributes({}), "<readOnly", "<compressed"},
        {setDirectoryQuota("2048"), ">2048<", "><"},
        {setDirectoryQuota("2048"), ">2048<", ">2 GB<"},
        {setDirectoryQuota("2048"), ">2048<", ">9223372036854775808<"},
        {getInfo("idInfo"), "<idInfo/>", "<rightsInfo/>"},
        {getInfo("idInfo"), "\\Dir\\Sub<", "\\Dir\\Su\u0301b<"},
        {rightsOfAllPaths("VOL1:\\"), ">ss<", ">home<", "/RightsCmdPipe"},
        {readLink("VOL1:\\"), "VOL1", "VO\u0308L1", "/ZelSmbPipe"},
        {browseQuotas(false), "VOL1", "VO\u0308L1", quotaPipe},
        {userQuotaRequest(setQuota("S-1-5-21-2", "1")), ">1<", ">1.5<", quotaPipe},
        {userQuotaRequest(setQuota("S-1-5-21-2", "1")), "</set>",
         "</set>" + setQuota("S-1-5-21-3", "1", true, "VOL2"), quotaPipe},
        {userQuotaRequest(""), "<userQuota>", "<userQuota>" + tooMany, quotaPipe},
    };
    for (const auto& each : cases) {
        SmallServer small;
        const std::string before = stateOf(small);
        std::string text = each.valid;
        const std::size_t at = text.find(each.from);
        ASSERT_NE(at, std::string::npos) << each.from;
        text.replace(at, each.from.size(), each.to);
        EXPECT_THAT(small.ask("boss", text, each.pipe), HasSubstr("\"20901\"")) << text;
        EXPECT_EQ(stateOf(small), before) << text;
        EXPECT_THAT(small.ask("boss", each.valid, each.pipe), testing::Not(HasSubstr("\"20901\"")))
            << each.valid;
    }
}

TEST(RequestReader, ReadsTextAndReferences) {
    const auto holder =
        readRequest("<a b=\"1&quot;\" c=\"\"><d>x &lt;&#233;&#x20AC;&gt; y</d><e/></a><d e = \"2\"/>");
    ASSERT_TRUE(holder);
    ASSERT_EQ(holder->children.size(), 2U);
    const RequestElement& first = holder->children[0];
    EXPECT_EQ(first.attributes, (decltype(first.attributes){{"b", "1\""}, {"c", ""}}));
    EXPECT_EQ(first.children.at(0).text, "x <é€> y");
    EXPECT_EQ(holder->children[1].attributes, (decltype(first.attributes){{"e ", "2"}}));
    for (const char* bad : {"<a b=\"1\" b=\"2\"/>", "<a>x<b/></a>", "<a><b/>x</a>", "<a>&nbsp;</a>",
                            "<a>&#0;</a>", "<a>&#xD800;</a>", "<a>&#99999999999;</a>", "<a></b>", "<a",
                            "<1/>", "<a b= \"1\"/>", "<a b =\"1\"/>", "<a b  =  \"1\"/>", "<a/> <b/>", ""})
        EXPECT_FALSE(readRequest(bad)) << bad;
    std::string deep;
    for (int i = 0; i < 100000; ++i)
        deep += "<a>";
    EXPECT_FALSE(readRequest(deep));
}

} // namespace
} // namespace quorvan::simulator
