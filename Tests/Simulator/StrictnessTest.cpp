// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/RequestReader.h"
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace quorvan::simulator {
namespace {

/// The request with one element renamed, given an attribute, taken away, doubled, or changed over
/// with the one after it. Changes may come in any number and order, and those of trustees behind a
/// doubled prefix; so these are only renamed and given an attribute.
std::vector<std::string> mutations(const std::string& text) {
    std::vector<std::size_t> open;
    std::vector<std::pair<std::size_t, std::size_t>> elements; // begin and end
    for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
        const std::size_t end = text.find('>', at) + 1;
        if (text[at + 1] != '/')
            open.push_back(at);
        if (text[at + 1] == '/' || text[end - 2] == '/') {
            elements.emplace_back(open.back(), end);
            open.pop_back();
        }
    }
    std::vector<std::string> mutated;
    for (const auto& [from, to] : elements) {
        const auto put = [&, start = text.substr(0, from)](const std::string& instead, std::size_t rest) {
            mutated.push_back(start + instead + text.substr(rest));
        };
        const std::string element = text.substr(from, to - from);
        const std::string name = element.substr(1, element.find_first_of(" />") - 1);
        const std::string inside = element.substr(1 + name.size());
        const std::size_t endTag = inside.rfind("</" + name + ">");
        put("<other" + inside.substr(0, endTag) + (endTag == std::string::npos ? "" : "</other>"), to);
        put("<" + name + " x=\"1\"" + inside, to);
        if (std::set<std::string>{"addTrustee", "removeTrustee", "modifyInheritedRightsFilter", "set"}
                .contains(name))
            continue;
        put("", to);
        if (name != "virtualIO" || text.find("addTrustee") == std::string::npos)
            put(element + element, to);
        for (const auto& [nextFrom, nextTo] : elements)
            if (const std::string next = text.substr(nextFrom, nextTo - nextFrom);
                nextFrom == to && next != element)
                put(next + element, nextTo);
    }
    return mutated;
}

using Request = std::pair<std::string, const char*>; ///< with its pipe file

std::vector<Request> validRequests() {
    const char* const folder = SmallServer::folder;
    const quorvan::TrusteeList some = {add("S-1-5-21-3", 0), remove("S-1-5-21-2"), add("guid-4", 0, tree)};
    std::string severalPaths = changes(some);
    severalPaths.replace(severalPaths.rfind(folder), std::string_view(folder).size(), "VOL1:\\Dir");
    severalPaths.insert(severalPaths.find(commandStream), commandStream);
    std::vector<Request> requests = {
        {Texts::createGetTrusteesListRequestAD(folder), filesPipe},
        {Texts::createGetTrusteesListRequestMorvane(folder), filesPipe},
        {changes(some), filesPipe},
        {severalPaths, filesPipe},
        {Texts::createSetIRFRequest(folder, 0), filesPipe},
        {setAttributes({"hidden"}), filesPipe},
        {Texts::createSetDirQuotaRequest(folder, "2048"), filesPipe},
        {setQuotas({quota("S-1-5-21-2", 1), quota("guid-4", 2, tree)}), quotaPipe},
        {setQuotas({}), quotaPipe},
        {searchTree("O=Meridal"), treePipe},
        {Texts::createGetGuidRequest("O=Meridal\\OU=Haus", "Käthe"), treePipe},
        {readLink(folder), smbPipe},
        {userTypeRequest, smbPipe}};
    for (const char* type : {domain, tree}) {
        const std::string id = type == tree ? "guid-4" : "S-1-5-21-2";
        requests.emplace_back(Texts::createGetERRequests(folder, type), filesPipe);
        requests.emplace_back(Texts::createGetUserEffRightRequest(id, folder, type), filesPipe);
        requests.emplace_back(Texts::createGetIRRequest(folder, type), rightsPipe);
        requests.emplace_back(Texts::createGetOwnerRequest(folder, type), filesPipe);
        requests.emplace_back(Texts::createGetAttributesRequest(folder, type), filesPipe);
        requests.emplace_back(Texts::createGetDirQuotaRequest(folder, type), filesPipe);
        requests.emplace_back(Texts::createSetOwnerRequest(folder, id, type), filesPipe);
        requests.emplace_back(Texts::createGetUserQuotaRequest("VOL1", type), quotaPipe);
    }
    return requests;
}

TEST(Strictness, RefusesEveryRequestThatDiffersByOneElement) {
    const std::vector<Request> valid = validRequests();
    const std::string before = SmallServer().state();
    for (const auto& [text, pipe] : valid) {
        SmallServer small;
        for (const PipeFile& other : pipeFiles)
            EXPECT_EQ(codeIn(small.ask("boss", text, other.file)) == "20901", other.file != std::string(pipe))
                << text;
        for (const std::string& mutated : mutations(text)) {
            // Some variants differ by a single element, and one is not a mutation of the other.
            if (std::find(valid.begin(), valid.end(), Request(mutated, pipe)) != valid.end())
                continue;
            SmallServer fresh;
            EXPECT_EQ(codeIn(fresh.ask("boss", mutated, pipe)), "20901") << mutated;
            EXPECT_EQ(fresh.state(), before) << mutated;
        }
    }
}

TEST(Strictness, RefusesOtherContents) {
    const std::string trustees = changes({add("S-1-5-21-3", right::read), remove("S-1-5-21-2")});
    const char* const folder = SmallServer::folder;
    const std::string directoryQuota = Texts::createSetDirQuotaRequest(folder, "2048");
    const std::string oneQuota = setQuotas({quota("S-1-5-21-2", 1)});
    const std::string tooMany = setQuotas(UserQuotaList(301, quota("S-1-5-21-2", 1)));
    const std::string hidden = "<hidden enabled=\"yes\"/>";
    const struct {
        std::string valid, from, to;
        const char* pipe = filesPipe;
    } cases[] = {
        {trustees, ">LONG<", ">long<"},
        {trustees, "name=\"command\"", "name=\"data\""},
        {trustees, " type=\"adID\"", ""},
        {trustees, "type=\"adID\"", "type = \"adID\""},
        {trustees, "<adUser/>", "<adUser>x</adUser>"},
        {trustees, "<symLink/>", "<symLink/> "},
        {trustees, "<read/>", "<read/><read/>"},
        {trustees, "<read/>", "<write/><read/>"},
        {trustees, "\\Dir\\Sub<", "\\Dir\\Su\u0301b<"}, // two characters where NFC has one
        {trustees, "\\Dir\\Sub<", "\\Dir<"},            // another path without the doubled prefix
        {trustees, "\\Dir\\Sub<", "\\Dir\\\xC3<"},      // ill-formed UTF-8
        {trustees, "<adminRequest>", "<?xml version=\"1.0\"?><adminRequest>"},
        {trustees, "<trustees>",
         "<trustees><modifyInheritedRightsFilter><fileName>VOL1:\\Dir\\Sub</fileName>"
         "<symLink/><inheritedRightsFilter/></modifyInheritedRightsFilter>"},
        {Texts::createSetIRFRequest(folder, 0), commandStream, commandStream + commandStream},
        {Texts::createSetOwnerRequest(folder, "S-1-5-21-2", domain), " type = ", " type="},
        {Texts::createGetOwnerRequest(folder, domain), "<idInfo/>", "<rightsInfo/>"},
        {Texts::createGetUserEffRightRequest("guid-4", folder, tree), commandStream + commandStream,
         commandStream},
        {setAttributes({"hidden"}), "enabled=\"no\"", "enabled=\"off\""},
        {setAttributes({"hidden"}), hidden, ""},                // on, but not announced
        {setAttributes({"hidden"}), hidden, hidden + hidden},   // announced twice
        {setAttributes({}), "<readOnly", hidden + "<readOnly"}, // announced, but not on
        {setAttributes({}), "<readOnly", "<compressed"},
        {directoryQuota, ">2048<", ">2 GB<"},
        {directoryQuota, ">2048<", ">9223372036854775808<"},
        {Texts::createGetIRRequest("VOL1:\\", domain), ">ss<", ">home<", rightsPipe},
        {readLink("VOL1:\\"), "VOL1", "VO\u0308L1", smbPipe},
        {Texts::createGetUserQuotaRequest("VOL1", tree), "VOL1", "VO\u0308L1", quotaPipe},
        {oneQuota, ">1<", ">1.5<", quotaPipe},
        {oneQuota, "</set>", "</set><set><volumeName>V</volumeName><id>guid-4</id><quota>1</quota></set>",
         quotaPipe},
        {oneQuota, oneQuota, tooMany, quotaPipe},
    };
    for (const auto& [valid, from, to, pipe] : cases) {
        SmallServer small;
        const std::string before = small.state();
        std::string text = valid;
        ASSERT_NE(text.find(from), std::string::npos) << from;
        text.replace(text.find(from), from.size(), to);
        EXPECT_EQ(codeIn(small.ask("boss", text, pipe)), "20901") << text.substr(0, 500);
        EXPECT_EQ(small.state(), before) << text.substr(0, 500);
        EXPECT_NE(codeIn(small.ask("boss", valid, pipe)), "20901") << valid;
    }
}

TEST(RequestReader, ReadsTextAndReferences) {
    const auto holder = readRequest("<a b=\"1&quot;\" c=\"\">x &lt;&#233;&#x20AC;&gt; y</a><d e = \"2\"/>");
    const RequestElement& first = holder.value().children.at(0);
    EXPECT_EQ(first.attributes, (decltype(first.attributes){{"b", "1\""}, {"c", ""}}));
    EXPECT_EQ(first.text, "x <é€> y");
    EXPECT_EQ(holder->children.at(1).attributes, (decltype(first.attributes){{"e ", "2"}}));
    std::string deep;
    for (int i = 0; i < 100000; ++i)
        deep += "<a>";
    for (const std::string bad :
         {"<a b=\"1\" b=\"2\"/>", "<a b='1'/>", "<a>x<b/></a>", "<a><b/>x</a>", "<a>&nbsp;</a>", "<a>R&D</a>",
          "<a>&#0;</a>", "<a>&#xD800;</a>", "<a>&#99999999999;</a>", "<a></b>", "<a>", "<1/>",
          "<a b= \"1\"/>", "<a b =\"1\"/>", "<a/> <b/>", "<a/>\n", "", deep.c_str()})
        EXPECT_FALSE(readRequest(bad)) << bad.substr(0, 100);
}

} // namespace
} // namespace quorvan::simulator
