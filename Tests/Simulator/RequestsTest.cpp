// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>

namespace quorvan::simulator {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr const char* folder = SmallServer::folder;

TEST(Requests, SucceedOrFailByRightsPathsAndIdentities) {
    const struct {
        const char* user;
        std::string request;
        const char* code;
        const char* pipe = filesPipe;
    } cases[] = {
        {"boss", changes({add("S-1-5-21-2", right::supervisor)}), "0"},
        {"clerk", changes({add("S-1-5-21-2", right::read | right::write | right::accessControl)}), "0"},
        {"clerk", changes({add("S-1-5-21-2", 0)}), "0"}, // it may even take its own rights away
        {"clerk", changes({remove("S-1-5-21-2")}), "0"},
        {"clerk", changes({add("S-1-5-21-2", right::supervisor)}), "20903"},
        {"guest", changes({remove("S-1-5-21-2")}), "20903"},
        {"warden", changes({add("S-1-5-21-2", 0)}), "20903"},
        {"boss", changes({add("S-1-5-21-99", right::read)}), "20904"},
        {"boss", changes({add("guid-4", right::read)}), "20904"},
        {"boss", changes({add("S-1-5-21-2", right::read, tree)}), "20904"},
        {"boss", changes({remove("S-1-5-21-3")}), "20905"},
        {"boss", changes({add("S-1-5-21-2", 0)}, "VOL1:\\x"), "20902"},
        {"clerk", Texts::createSetIRFRequest(folder, 0), "0"},
        {"guest", Texts::createSetIRFRequest(folder, 0), "20903"},
        {"boss", Texts::createSetOwnerRequest(folder, "S-1-5-21-2", domain), "0"},
        {"boss", Texts::createSetOwnerRequest(folder, "guid-4", domain), "20904"},
        {"clerk", Texts::createSetOwnerRequest(folder, "S-1-5-21-2", domain), "20903"},
        {"clerk", setAttributes({"hidden"}), "20903"},
        {"boss", Texts::createSetDirQuotaRequest(folder, "9223372036854775807"), "0"},
        {"boss", Texts::createSetDirQuotaRequest(folder, "-1"), "20906"},
        {"clerk", Texts::createSetDirQuotaRequest(folder, "1"), "20903"},
        {"boss", setQuotas({quota("guid-4", 0, tree)}), "0", quotaPipe},
        {"boss", setQuotas({quota("S-1-5-21-3", -3)}), "20906", quotaPipe},
        {"boss", setQuotas({quota("guid-4", 1)}), "20904", quotaPipe},
        {"boss", setQuotas({quota("S-1-5-21-3", 1)}, "VOL9"), "20902", quotaPipe},
        {"clerk", setQuotas({quota("S-1-5-21-3", 1)}), "20903", quotaPipe},
        {"nobody", Texts::createGetTrusteesListRequestAD(folder), "20904"},
        {"boss", Texts::createGetTrusteesListRequestAD("VOL1:\\nowhere"), "20902"},
        {"boss", Texts::createGetIRRequest("VOL1:\\nowhere", tree), "20902", rightsPipe},
        {"boss", Texts::createGetUserQuotaRequest("VOL9", domain), "20902", quotaPipe},
        {"boss", Texts::createGetUserEffRightRequest("guid-4", folder, domain), "20904"},
        {"boss", Texts::createGetUserEffRightRequest("S-1-5-21-2", folder, tree), "20904"},
        {"guest", searchTree("O=Other"), "20904", treePipe},
        {"guest", Texts::createGetGuidRequest("O=Meridal\\OU=Hof", "Käthe"), "20904", treePipe},
    };
    for (const auto& [user, request, code, pipe] : cases) {
        SmallServer small;
        const std::string before = small.state();
        EXPECT_EQ(codeIn(small.ask(user, request, pipe)), code) << user << request;
        EXPECT_EQ(small.state() == before, code != std::string("0")) << user << request;
    }
}

TEST(Requests, LeaveTheSupervisorRightToSupervisors) {
    SmallServer small;
    small.server.setTrustee(folder, small.guest, right::supervisor);
    // Keeping the right while another changes is not granting it.
    const Mask both = right::read | right::supervisor;
    EXPECT_EQ(codeIn(small.ask("clerk", changes({add("S-1-5-21-3", both)}))), "0");
    EXPECT_EQ(codeIn(small.ask("clerk", changes({add("S-1-5-21-3", right::read)}))), "20903");
    EXPECT_EQ(codeIn(small.ask("clerk", changes({remove("S-1-5-21-3")}))), "20903");
    EXPECT_EQ(small.rightsAt(small.guest), both);
    EXPECT_EQ(codeIn(small.ask("boss", changes({remove("S-1-5-21-3")}))), "0");
}

TEST(Requests, ChangeWhatTheyCanOfSeveral) {
    SmallServer small;
    const char* const katherine = "\\MERIDAL-TREE\\O=Meridal\\OU=Haus\\CN=KÄTHE";
    EXPECT_EQ(small.ask("boss", changes({add("S-1-5-21-3", right::read), add("S-0", 0), remove("S-1-5-21-2"),
                                         add(katherine, right::erase, tree)})),
              "<adminReply><trustees>"
              "<addTrustee><result value=\"0\"><description>success</description></result></addTrustee>"
              "<addTrustee><result value=\"20904\"><description>unknown "
              "identity</description></result></addTrustee>"
              "<removeTrustee><result value=\"0\"><description>success</description></result></removeTrustee>"
              "<addTrustee><result value=\"0\"><description>success</description></result></addTrustee>"
              "</trustees></adminReply>");
    EXPECT_EQ(small.rightsAt(small.guest), right::read);
    EXPECT_EQ(small.rightsAt(small.warden), right::erase);

    // Quotas have one result for all: the first failure.
    const UserQuotaList users = {quota("S-1-5-21-2", 1), quota("S-1-5-21-99", 2), quota("S-1-5-21-1", -3),
                                 quota("S-1-5-21-3", unlimited)};
    EXPECT_EQ(codeIn(small.ask("boss", setQuotas(users), quotaPipe)), "20904");
    const auto list = small.ask("guest", Texts::createGetUserQuotaRequest("vol1", domain), quotaPipe);
    EXPECT_THAT(list, HasSubstr("<userList><user><id>S-1-5-21-2</id><quota>1</quota>"
                                "<spaceUsed>0</spaceUsed></user></userList>"))
        << "without a limit there is no quota to list";
}

TEST(Requests, AnswerRightsOfAllWhoReachAPath) {
    SmallServer small;
    const auto all = small.ask("guest", Texts::createGetERRequests(folder, domain));
    EXPECT_THAT(all, HasSubstr("<trustee>Zoë</trustee><id>S-1-5-21-2</id><rights><read/><accessControl/>"
                               "</rights></accessRights><accessRights><trustee>boss<"));
    for (const char* id :
         {"guid-4", "CN=käthe.OU=Haus.O=Meridal", "\\MERIDAL-TREE\\O=Meridal\\OU=Haus\\CN=Käthe"})
        EXPECT_THAT(small.ask("guest", Texts::createGetUserEffRightRequest(id, folder, tree)),
                    HasSubstr("<effectiveRights><read/><write/><fileScan/></effectiveRights>"));

    const Identity& odd = small.server.identities().addDomainUser("R&D <\"x\">\n", "S-9");
    small.server.setTrustee(folder, odd, 0);
    small.server.volumes().find("VOL1:\\Dir")->attributes = attribute::hidden | attribute::compressed;
    small.server.volumes().make("VOL1:\\Dir\\Away")->link = Link{"other", "VOL1", ""};
    const auto below = small.ask("guest", Texts::createGetIRRequest("vol1:\\DIR\\", domain), rightsPipe);
    EXPECT_THAT(below, HasSubstr("<name>R&amp;D &lt;&quot;x&quot;&gt;\uFFFD</name>"));
    EXPECT_THAT(below, HasSubstr("<file><rightsInfo><trusteeList></trusteeList></rightsInfo><standardInfo>"
                                 "<attributes><hidden/><compressed/></attributes></standardInfo>"
                                 "<path>VOL1:\\Dir</path></file><file>"));
    EXPECT_THAT(below, Not(HasSubstr("Away")));
    EXPECT_THAT(small.ask("guest", Texts::createGetIRRequest("VOL1:", tree), rightsPipe),
                HasSubstr("<path>VOL1:\\</path></file><file>"));
}

TEST(Requests, AnswerTheOwnerOfTheRightDirectory) {
    SmallServer small;
    const std::string file = std::string(folder) + "\\file";
    small.server.addPath(file);
    const auto expectCreator = [&](const char* type, const std::string& creator) {
        EXPECT_THAT(small.ask("guest", Texts::createGetOwnerRequest(file, type)),
                    HasSubstr("<creator>" + creator + "</creator>"));
    };
    expectCreator(tree, "");
    small.node().owner = "S-1-5-21-2"; // what has no owner of its own has its folder's
    expectCreator(domain, "<name>Zoë</name><id>S-1-5-21-2</id>");
    expectCreator(tree, "<name>Zoë</name><id>S-1-5-21-2</id>");
    small.ask("boss", Texts::createSetOwnerRequest(file, "CN=Käthe.OU=Haus.O=Meridal", tree));
    expectCreator(tree, "<name>CN=Käthe.OU=Haus.O=Meridal</name><id>guid-4</id>");
    expectCreator(domain, "");
    small.server.volumes().find(file)->owner = "S-1-5-21-99"; // an identity that is gone
    expectCreator(domain, "<id>S-1-5-21-99</id>");
}

TEST(Requests, ChangeAttributesWithTheModifyRightAndOnlyThoseThatCanBe) {
    SmallServer small;
    small.node().attributes = attribute::archive | attribute::compressed;
    small.node().trustees.set(small.clerk, right::modify);
    EXPECT_EQ(codeIn(small.ask("clerk", setAttributes({"doNotCompress", "readOnly"}))), "0");
    EXPECT_THAT(small.ask("guest", Texts::createGetAttributesRequest(folder, domain)),
                HasSubstr("<attributes><readOnly/><doNotCompress/><compressed/></attributes>"));
}

TEST(Requests, FindObjectsOfTheTreeHoweverTheyAreSpelled) {
    SmallServer small;
    small.server.identities().addTreeUser("Jan", "Hof", "guid-6");
    const std::string jan = "<trellEntry><dn>CN=Jan.OU=Hof.O=Meridal</dn>";
    for (const char* base : {".O=Meridal.T=meridal-tree.", "o=MERIDAL", ".O=Meridal.MERIDAL-TREE",
                             "\\MERIDAL-TREE\\O=Meridal", "T=MERIDAL-TREE", ".MERIDAL-TREE.", "."})
        EXPECT_THAT(small.ask("guest", searchTree(base), treePipe), HasSubstr(jan)) << base;
    const std::string below = small.ask("guest", searchTree("OU=Haus.O=Meridal"), treePipe);
    EXPECT_THAT(below,
                HasSubstr("<result value=\"0\"></result><trellEntry><dn>CN=Käthe.OU=Haus.O=Meridal</dn>"
                          "<objectClass>inetOrgPerson</objectClass><userID>guid-4</userID>"
                          "</trellEntry></trellSearch>"));
    for (const char* context :
         {"\\MERIDAL-TREE\\O=Meridal\\OU=Hof", "O=Meridal\\OU=hof", "\\T=MERIDAL-TREE\\O=Meridal\\OU=Hof"})
        EXPECT_THAT(small.ask("guest", Texts::createGetGuidRequest(context, "JAN"), treePipe),
                    HasSubstr("<trellAttribute><value>guid-6</value></trellAttribute>"));
    std::string surname = Texts::createGetGuidRequest("O=Meridal", "Hof"); // a container
    EXPECT_EQ(codeIn(small.ask("guest", surname, treePipe)), "0");
    surname.replace(surname.find(">guid<"), 6, ">surname<");
    EXPECT_EQ(codeIn(small.ask("guest", surname, treePipe)), "20907");
}

TEST(Requests, StopAtLinks) {
    SmallServer small;
    small.server.volumes().make("VOL1:\\dfs\\link")->link = Link{"srv2.meridal.example", "DATA", "share"};
    small.server.addPath("VOL1:\\dfs\\plain");
    EXPECT_THAT(small.ask("guest", readLink("vol1:\\DFS\\link"), smbPipe),
                HasSubstr("<readLink><junction><server>srv2.meridal.example</server><volumeName>DATA"
                          "</volumeName><pathName>share</pathName></junction></readLink>"));
    for (const auto& [path, code] : std::map<std::string, const char*>{{"VOL1:", "20156"},
                                                                       {"VOL1:\\", "20156"},
                                                                       {"VOL1:\\dfs\\plain", "30005"},
                                                                       {"VOL1:\\dfs\\link\\a\\b", "30006"},
                                                                       {"VOL1:\\x", "20902"},
                                                                       {"VOL9:\\", "20902"}})
        EXPECT_EQ(codeIn(small.ask("guest", readLink(path), smbPipe)), code) << path;

    for (const auto& [path, code] : {std::pair<std::string, const char*>("VOL1:\\dfs\\link", "20008"),
                                     {"VOL1:\\DFS\\link\\x\\y", "20429"}}) {
        for (const std::string& request :
             {Texts::createGetTrusteesListRequestAD(path), Texts::createSetIRFRequest(path, 0),
              Texts::createGetOwnerRequest(path, tree), Texts::createSetOwnerRequest(path, "guid-4", tree),
              Texts::createSetDirQuotaRequest(path, "1"), Texts::createGetERRequests(path, domain),
              Texts::createGetUserEffRightRequest("guid-4", path, tree),
              changes({add("S-1-5-21-3", 0)}, path), changes({remove("S-1-5-21-2")}, path)})
            EXPECT_EQ(codeIn(small.ask("boss", request)), code) << request;
        EXPECT_EQ(codeIn(small.ask("boss", Texts::createGetIRRequest(path, domain), rightsPipe)), code);
    }
}

TEST(Misbehaviour, ReplacesTheReplyOnThePipesItIsFor) {
    SmallServer small;
    small.server.misbehaviour.code = 20008;
    const std::string two = small.ask("boss", changes({add("S-1-5-21-3", 0), remove("S-1-5-21-2")}));
    EXPECT_THAT(two, HasSubstr("<addTrustee><result value=\"20008\">"));
    EXPECT_THAT(two, HasSubstr("<removeTrustee><result value=\"20008\">"));
    EXPECT_EQ(small.state(), SmallServer().state());

    small.server.misbehaviour = {};
    small.server.misbehaviour.garbage = "<<<";
    small.server.misbehaviour.onlyPipe = filesPipe;
    EXPECT_EQ(small.ask("boss", Texts::createGetTrusteesListRequestAD(folder)), "<<<");
    EXPECT_THAT(small.ask("boss", userTypeRequest, smbPipe), HasSubstr("<userType>ActiveDirectory<"));

    small.server.misbehaviour = {};
    small.server.misbehaviour.replyMegabytes = 3;
    const std::string large = small.ask("boss", Texts::createGetTrusteesListRequestAD(folder));
    EXPECT_EQ(large.size() >> 20, 3U);
    EXPECT_TRUE(large.ends_with("</padding></adminReply>"));

    small.server.misbehaviour = {};
    for (int i = 0; i < 1200; ++i)
        small.ask("boss", "x");
    EXPECT_EQ(small.server.requestCount(), 1204U);
    EXPECT_LE(small.server.requests().size(), 1000U) << "the latest are kept, all are counted";
}

} // namespace
} // namespace quorvan::simulator
