// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvan::simulator {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

const std::string success = "<result value=\"0\"><description>success</description></result>";
const std::string largest = "9223372036854775807";

std::string inFileInfo(const std::string& operation, const std::string& content) {
    return "<adminReply><fileInfo><" + operation + ">" + success + content + "</" + operation +
           "></fileInfo></adminReply>";
}

/// The value of the last "result" element of a reply.
std::string codeIn(const std::string& reply) {
    const std::string start = "<result value=\"";
    const std::size_t at = reply.rfind(start);
    return at == std::string::npos ? "none" : std::to_string(std::stoi(reply.substr(at + start.size())));
}

TEST(EffectiveRightsRequests, AnswerForAllTrusteesThatReachThePathAndForOne) {
    SmallServer small;
    EXPECT_EQ(
        small.ask("guest", allEffectiveRights(true)),
        inFileInfo("getAllEffectiveRights",
                   "<accessRights><trustee>Zoë</trustee><id>S-1-5-21-2</id>"
                   "<rights><read/><accessControl/></rights></accessRights>"
                   "<accessRights><trustee>boss</trustee><id>S-1-5-21-1</id><rights><read/><write/><create/>"
                   "<modify/><erase/><fileScan/><accessControl/><supervisor/></rights></accessRights>"));
    EXPECT_EQ(
        small.ask("guest", allEffectiveRights(false)),
        inFileInfo("getAllEffectiveRights",
                   "<accessRights><trustee objectClass=\"inetOrgPerson\">CN=Käthe.OU=Haus.O=Meridal</trustee>"
                   "<id>guid-4</id><rights><read/><write/><fileScan/></rights></accessRights>"));
    const std::string one =
        inFileInfo("getEffectiveRightsByID", "<effectiveRights><read/><write/><fileScan/></effectiveRights>");
    for (const char* id :
         {"guid-4", "CN=käthe.OU=Haus.O=Meridal", "\\MERIDAL-TREE\\O=Meridal\\OU=Haus\\CN=Käthe"})
        EXPECT_EQ(small.ask("guest", effectiveRightsOf(id, false)), one) << id;
    EXPECT_THAT(small.ask("guest", effectiveRightsOf("S-1-5-21-3")),
                HasSubstr("<effectiveRights></effectiveRights>"));
    for (const auto& [id, inDomain] :
         {std::pair("guid-4", true), {"S-1-5-21-2", false}, {"S-1-5-21-99", true}})
        EXPECT_EQ(codeIn(small.ask("boss", effectiveRightsOf(id, inDomain))), "20904") << id;
}

TEST(EffectiveRights, ComeFromTheContainersOfTheTreeAsWell) {
    SmallServer small;
    const Identity* const organization = small.server.identities().findByDistinguishedName("O=Meridal");
    ASSERT_NE(organization, nullptr);
    small.server.setTrustee("VOL1:\\", *organization, right::create | right::fileScan);
    EXPECT_EQ(small.server.rightsOf("VOL1:\\Dir", small.warden), right::create | right::fileScan);
    EXPECT_EQ(small.server.rightsOf("VOL1:\\Dir", small.guest), 0);
}

TEST(AllPathsRequest, AnswersThePathAndWhatLiesBelow) {
    SmallServer small;
    small.server.addPath("VOL1:\\Dir\\R&D");
    small.server.volumes().find("VOL1:\\Dir")->attributes = attribute::hidden | attribute::compressed;
    small.server.volumes().make("VOL1:\\Dir\\Away")->link = Link{"other", "VOL1", ""};
    const auto file = [](const std::string& path, const std::string& trustees,
                         const std::string& attributes) {
        return "<file><rightsInfo><trusteeList>" + trustees +
               "</trusteeList></rightsInfo><standardInfo><attributes>" + attributes +
               "</attributes></standardInfo><path>" + path + "</path></file>";
    };
    const std::string zoe = "<trusteeInfo><name>Zoë</name><id>S-1-5-21-2</id>"
                            "<rights><read/><accessControl/></rights></trusteeInfo>";
    EXPECT_EQ(small.ask("guest", rightsOfAllPaths("vol1:\\DIR\\"), "/RightsCmdPipe"),
              "<adminReply>" + success + file("VOL1:\\Dir", "", "<hidden/><compressed/>") +
                  file("VOL1:\\Dir\\R&amp;D", "", "") + file("VOL1:\\Dir\\Sub", zoe, "") + "</adminReply>");
    const std::string whole = small.ask("guest", rightsOfAllPaths("VOL1:", false), "/RightsCmdPipe");
    EXPECT_THAT(whole, HasSubstr("<path>VOL1:\\</path></file><file>"));
    EXPECT_THAT(whole, HasSubstr("<name objectClass=\"inetOrgPerson\">CN=Käthe.OU=Haus.O=Meridal</name>"));
    EXPECT_THAT(small.ask("guest", rightsOfAllPaths("VOL1:\\x"), "/RightsCmdPipe"),
                StartsWith("<adminReply><result value=\"20902\">"));
}

TEST(OwnerRequests, AnswerAndChangeTheOwner) {
    SmallServer small;
    const auto creator = [](const std::string& inside) {
        return inFileInfo("getFileInfo", "<idInfo><creator>" + inside + "</creator></idInfo>");
    };
    EXPECT_EQ(small.ask("guest", getInfo("idInfo")), creator(""));
    EXPECT_EQ(codeIn(small.ask("clerk", setOwner("S-1-5-21-2"))), "20903");
    EXPECT_EQ(codeIn(small.ask("boss", setOwner("guid-4"))), "20904");
    EXPECT_EQ(small.ask("boss", setOwner("S-1-5-21-2")), inFileInfo("setFileInfo", ""));
    small.server.addPath(std::string(SmallServer::folder) + "\\file");
    const std::string zoe = creator("<name>Zoë</name><id>S-1-5-21-2</id>");
    EXPECT_EQ(small.ask("guest", getInfo("idInfo")), zoe);
    EXPECT_EQ(small.ask("guest", getInfo("idInfo", false, std::string(SmallServer::folder) + "\\file")), zoe)
        << "what has no owner of its own has its folder's";

    small.ask("boss", setOwner("CN=Käthe.OU=Haus.O=Meridal", false));
    EXPECT_EQ(small.ask("guest", getInfo("idInfo", false)),
              creator("<name>CN=Käthe.OU=Haus.O=Meridal</name><id>guid-4</id>"));
    EXPECT_EQ(small.ask("guest", getInfo("idInfo")), creator("")) << "Active Directory only";
    small.server.volumes().find(SmallServer::folder)->owner = "S-1-5-21-99";
    EXPECT_EQ(small.ask("guest", getInfo("idInfo")), creator("<id>S-1-5-21-99</id>")) << "gone";
}

TEST(AttributeRequests, AnswerAndChangeTheAttributes) {
    SmallServer small;
    Node& folder = *small.server.volumes().find(SmallServer::folder);
    folder.attributes = attribute::archive | attribute::compressed;
    const auto attributes = [](const std::string& inside) {
        return inFileInfo("getFileInfo",
                          "<standardInfo><attributes>" + inside + "</attributes></standardInfo>");
    };
    EXPECT_EQ(small.ask("guest", getInfo("standardInfo")), attributes("<archive/><compressed/>"));
    EXPECT_EQ(codeIn(small.ask("clerk", setAttributes({}))), "20903");
    folder.trustees.set(small.clerk, right::modify);
    EXPECT_EQ(small.ask("clerk", setAttributes({"doNotCompress", "readOnly", "hidden"})),
              inFileInfo("setFileInfo", ""));
    EXPECT_EQ(small.ask("guest", getInfo("standardInfo", false)),
              attributes("<readOnly/><hidden/><doNotCompress/><compressed/>"));
    small.ask("clerk", setAttributes({}));
    EXPECT_EQ(small.ask("guest", getInfo("standardInfo")), attributes("<compressed/>"));
}

TEST(DirectoryQuotaRequests, AnswerAndChangeTheLimit) {
    SmallServer small;
    small.server.volumes().find(SmallServer::folder)->quota.used = 700;
    const auto quota = [](const std::string& limit) {
        return inFileInfo("getFileInfo", "<quotaInfo><quotaAmount>" + limit +
                                             "</quotaAmount><usedAmount>700</usedAmount></quotaInfo>");
    };
    EXPECT_EQ(small.ask("guest", getInfo("directoryQuotaInfo")), quota("-1"));
    EXPECT_EQ(small.ask("boss", setDirectoryQuota("2048")), "<adminReply><directoryQuotas><addQuota>" +
                                                                success +
                                                                "</addQuota></directoryQuotas></adminReply>");
    EXPECT_EQ(codeIn(small.ask("boss", setDirectoryQuota("-1"))), "20906");
    EXPECT_EQ(codeIn(small.ask("clerk", setDirectoryQuota("1"))), "20903");
    EXPECT_EQ(small.ask("guest", getInfo("directoryQuotaInfo", false)), quota("2048"));
    small.ask("boss", setDirectoryQuota(largest));
    EXPECT_EQ(small.ask("guest", getInfo("directoryQuotaInfo")), quota(largest));
}

TEST(UserQuotaRequests, AnswerAndChangeTheQuotasOfAVolume) {
    SmallServer small;
    const auto ask = [&](const char* user, const std::string& request) {
        return small.ask(user, request, quotaPipe);
    };
    const auto list = [](const std::string& users) {
        return "<adminReply><userQuota><browse>" + success + "<userList>" + users +
               "</userList></browse></userQuota></adminReply>";
    };
    const std::string done = "<adminReply><userQuota><set>" + success + "</set></userQuota></adminReply>";
    EXPECT_EQ(ask("guest", browseQuotas(true)), list(""));
    EXPECT_EQ(ask("boss", userQuotaRequest("")), done);
    EXPECT_EQ(ask("boss", userQuotaRequest(setQuota("S-1-5-21-3", "4096") + setQuota("guid-4", "0", false))),
              done);
    small.server.volumes().userQuotas("vol1")->of(small.guest).used = 5000;
    EXPECT_EQ(ask("guest", browseQuotas(true)),
              list("<user><id>S-1-5-21-3</id><quota>4096</quota><spaceUsed>5000</spaceUsed></user>"));
    EXPECT_EQ(ask("guest", browseQuotas(false, "vol1")),
              list("<user><id>guid-4</id><quota>0</quota><spaceUsed>0</spaceUsed>"
                   "<userName>CN=Käthe.OU=Haus.O=Meridal</userName></user>"));

    // One result for all: the first failure. The others are set all the same.
    EXPECT_EQ(
        codeIn(ask("boss", userQuotaRequest(setQuota("S-1-5-21-2", "1") + setQuota("S-1-5-21-99", "2") +
                                            setQuota("S-1-5-21-1", "-3") + setQuota("S-1-5-21-3", largest)))),
        "20904");
    EXPECT_EQ(ask("guest", browseQuotas(true)),
              list("<user><id>S-1-5-21-2</id><quota>1</quota><spaceUsed>0</spaceUsed></user>"))
        << "without a limit there is no quota to list";
    const std::pair<std::string, const char*> refused[] = {
        {setQuota("S-1-5-21-3", "-3"), "20906"},
        {setQuota("guid-4", "1"), "20904"},
        {setQuota("S-1-5-21-3", "1", true, "VOL9"), "20902"}};
    for (const auto& [element, code] : refused)
        EXPECT_EQ(codeIn(ask("boss", userQuotaRequest(element))), code) << element;
    EXPECT_EQ(codeIn(ask("clerk", userQuotaRequest(setQuota("S-1-5-21-3", "1")))), "20903");
    EXPECT_THAT(ask("boss", browseQuotas(true, "VOL9")), HasSubstr("</result><userList/></browse>"))
        << "the client looks for the list before the result";
}

TEST(TreeRequests, SearchBelowABase) {
    SmallServer small;
    small.server.identities().addTreeGroup("Crew", "Hof", "guid-5");
    const auto names = [&](const std::string& base) {
        const std::string reply = small.ask("guest", searchTree(base), treePipe);
        EXPECT_THAT(reply, StartsWith("<adminReply><result value=\"0\"></result><trellObject><trellSearch>"))
            << base;
        std::string found = codeIn(reply);
        for (std::size_t at = 0; (at = reply.find("<dn>", at)) != std::string::npos; ++at)
            found += " " + reply.substr(at + 4, reply.find('.', at) - at - 4);
        return found;
    };
    const std::string inside = "0 OU=Haus CN=Käthe OU=Hof CN=Crew";
    for (const char* base :
         {".O=Meridal.T=meridal-tree.", "o=MERIDAL", ".O=Meridal.MERIDAL-TREE", "\\MERIDAL-TREE\\O=Meridal"})
        EXPECT_EQ(names(base), inside) << base;
    for (const char* base : {"T=MERIDAL-TREE", ".MERIDAL-TREE.", "\\MERIDAL-TREE", "."})
        EXPECT_THAT(names(base), HasSubstr("CN=Crew")) << base;
    EXPECT_EQ(names("OU=Hof.O=Meridal"), "0 CN=Crew");
    EXPECT_EQ(names("CN=Crew.OU=Hof.O=Meridal"), "0");
    EXPECT_EQ(names("O=Other"), "20904");
    EXPECT_THAT(
        small.ask("guest", searchTree("OU=Hof.O=Meridal"), treePipe),
        HasSubstr(
            "<trellSearch><result value=\"0\"></result><trellEntry><dn>CN=Crew.OU=Hof.O=Meridal</dn>"
            "<objectClass>groupOfNames</objectClass><userID>guid-5</userID></trellEntry></trellSearch>"));
    EXPECT_THAT(small.ask("guest", searchTree("T=MERIDAL-TREE"), treePipe),
                HasSubstr("<dn>O=Meridal</dn><objectClass>organization</objectClass>"));
}

TEST(TreeRequests, AnswerAttributesOfAnObject) {
    SmallServer small;
    Identities& identities = small.server.identities();
    const Identity& crew = identities.addTreeGroup("Crew", "Hof", "guid-5");
    identities.addTreeUser("Jan", "Hof", "guid-6").groups = {&crew};
    const auto ask = [&](const char* name, const char* context, const char* attribute) {
        return small.ask("guest", getAttribute(name, context, attribute), treePipe);
    };
    const auto reply = [](const std::string& inside) {
        return "<adminReply><result value=\"0\"></result><trellObject><getAttribute><result "
               "value=\"0\"></result>"
               "<trellAttribute>" +
               inside + "</trellAttribute></getAttribute></trellObject></adminReply>";
    };
    for (const char* context :
         {"\\MERIDAL-TREE\\O=Meridal\\OU=Hof", "O=Meridal\\OU=hof", "\\T=MERIDAL-TREE\\O=Meridal\\OU=Hof"})
        EXPECT_EQ(ask("JAN", context, "guid"), reply("<value>guid-6</value>")) << context;
    EXPECT_EQ(ask("Jan", "O=Meridal\\OU=Hof", "group membership"),
              reply("<value>\\MERIDAL-TREE\\O=Meridal\\OU=Hof\\CN=Crew</value>"));
    EXPECT_EQ(ask("Crew", "O=Meridal\\OU=Hof", "group membership"), reply(""));
    EXPECT_EQ(codeIn(ask("Jan", "O=Meridal\\OU=Haus", "guid")), "20904");
    EXPECT_EQ(codeIn(ask("Jan", "O=Meridal\\OU=Hof", "surname")), "20907");
    EXPECT_EQ(ask("Haus", "O=Meridal", "guid").find("20904"), std::string::npos)
        << "containers have one, too";
}

/// A server with links, and what lies around them.
struct LinkedServer : SmallServer {
    LinkedServer() {
        server.volumes().make("VOL1:\\dfs\\link")->link = Link{"srv2.meridal.example", "DATA", "share\\deep"};
        server.volumes().make("VOL1:\\Away")->link = Link{"SRV3", "VOL1", ""};
        server.addPath("VOL1:\\dfs\\plain");
    }
};

TEST(Links, AreReadAndLookedFor) {
    LinkedServer linked;
    const auto ask = [&](const char* path) { return linked.ask("guest", readLink(path), "/ZelSmbPipe"); };
    EXPECT_EQ(ask("vol1:\\DFS\\link"),
              "<zelSmbGetInfo>" + success +
                  "<readLink><junction><server>srv2.meridal.example</server><volumeName>DATA</volumeName>"
                  "<pathName>share\\deep</pathName></junction></readLink></zelSmbGetInfo>");
    EXPECT_THAT(ask("VOL1:\\Away"), HasSubstr("<volumeName>VOL1</volumeName><pathName></pathName>"));
    const std::pair<const char*, const char*> codes[] = {{"VOL1:", "20156"},
                                                         {"VOL1:\\", "20156"},
                                                         {"VOL1:\\dfs", "30005"},
                                                         {"VOL1:\\dfs\\plain", "30005"},
                                                         {"VOL1:\\dfs\\link\\a", "30006"},
                                                         {"VOL1:\\dfs\\link\\a\\b", "30006"},
                                                         {"VOL1:\\x", "20902"},
                                                         {"VOL9:\\", "20902"}};
    for (const auto& [path, code] : codes)
        EXPECT_EQ(codeIn(ask(path)), code) << path;
}

TEST(Links, KeepRequestsFromWhatLiesElsewhere) {
    LinkedServer linked;
    const std::pair<const char*, const char*> cases[] = {{"VOL1:\\dfs\\link", "20008"},
                                                         {"VOL1:\\Away", "20008"},
                                                         {"VOL1:\\dfs\\link\\a", "20429"},
                                                         {"VOL1:\\away\\x\\y", "20429"}};
    for (const auto& [path, code] : cases) {
        for (std::string request :
             {listInDomain(), listInTree(), filterRequest(""), getInfo("idInfo"), getInfo("standardInfo"),
              getInfo("directoryQuotaInfo"), setOwner("S-1-5-21-2"), setAttributes({}),
              setDirectoryQuota("1"), allEffectiveRights(true), effectiveRightsOf("S-1-5-21-2"),
              changes(add("S-1-5-21-3", "")), changes(remove("S-1-5-21-2"))}) {
            request.replace(request.find(SmallServer::folder), std::string_view(SmallServer::folder).size(),
                            path);
            EXPECT_EQ(codeIn(linked.ask("boss", request)), code) << request;
        }
        EXPECT_EQ(codeIn(linked.ask("boss", rightsOfAllPaths(path), "/RightsCmdPipe")), code) << path;
    }
    EXPECT_EQ(codeIn(linked.ask("boss", listInDomain("VOL1:\\dfs"))), "0");
}

TEST(Misbehaviour, PutsItsCodeWhereEachClientLooks) {
    SmallServer small;
    small.server.misbehaviour.code = 77;
    const struct {
        std::string request;
        const char* pipe;
        const char* start;
    } cases[] = {
        {allEffectiveRights(true), "/FilesCmdPipe",
         "<adminReply><fileInfo><getAllEffectiveRights><result value=\"77\">"},
        {effectiveRightsOf("S-1-5-21-2"), "/FilesCmdPipe",
         "<adminReply><fileInfo><getEffectiveRightsByID><result value=\"77\">"},
        {setDirectoryQuota("1"), "/FilesCmdPipe",
         "<adminReply><directoryQuotas><addQuota><result value=\"77\">"},
        {rightsOfAllPaths("VOL1:\\"), "/RightsCmdPipe", "<adminReply><result value=\"77\">"},
        {readLink("VOL1:\\"), "/ZelSmbPipe", "<adminReply><result value=\"77\">"},
        {searchTree("O=Meridal"), treePipe, "<adminReply><result value=\"77\">"},
        {browseQuotas(true), quotaPipe, "<adminReply><userQuota><browse><result value=\"77\">"},
        {userQuotaRequest(setQuota("S-1-5-21-2", "1")), quotaPipe,
         "<adminReply><userQuota><set><result value=\"77\">"},
        {userQuotaRequest(""), quotaPipe, "<adminReply><userQuota><set><result value=\"77\">"},
    };
    for (const auto& each : cases)
        EXPECT_THAT(small.ask("boss", each.request, each.pipe), StartsWith(each.start));
    EXPECT_THAT(small.ask("boss", getAttribute("Käthe", "O=Meridal", "guid"), treePipe),
                HasSubstr("<trellObject><getAttribute><result value=\"77\">"));
}

} // namespace
} // namespace quorvan::simulator
