// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>

namespace quorvan::simulator {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr const char* folder = SmallServer::folder;
constexpr const char* link = "VOL1:\\Dir\\link";

TEST(Requests, SucceedOrFailByRightsPathsAndIdentities) {
    const struct {
        const char* user;
        std::string request;
        const char* code;
        const char* pipe = filesPipe;
    } cases[] = {
        {"boss", changes({add("S-1-5-21-2", right::supervisor)}), "0"},
        {"clerk", changes({add("S-1-5-21-2", right::read | right::write | right::accessControl)}), "0"},
        {"clerk", changes({remove("S-1-5-21-2")}), "0"},
        {"clerk", changes({add("S-1-5-21-2", right::supervisor)}), "20903"},
        {"guest", changes({remove("S-1-5-21-2")}), "20903"},
        {"boss", changes({add("S-1-5-21-99", right::read)}), "20904"},
        {"boss", changes({add("guid-4", right::read)}), "20904"},
        {"boss", changes({add("S-1-5-21-2", right::read, tree)}), "20904"},
        {"boss", changes({remove("S-1-5-21-3")}), "20905"},
        {"boss", changes({add("S-1-5-21-2", 0)}, "VOL1:\\x"), "20902"},
        {"clerk", Texts::createSetIRFRequest(folder, 0), "0"},
        {"guest", Texts::createSetIRFRequest(folder, 0), "20903"},
        {"boss", Texts::createSetOwnerRequest(folder, "S-1-5-21-2", domain), "0"},
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
        {"boss", Texts::createGetUserQuotaRequest("VOL9", domain), "20902", quotaPipe},
        {"boss", Texts::createGetUserEffRightRequest("guid-4", folder, domain), "20904"},
        {"guest", searchTree("O=Other"), "20904", treePipe},
        {"guest", Texts::createGetGuidRequest("O=Meridal\\OU=Hof", "Käthe"), "20904", treePipe},
        {"boss", Texts::createGetTrusteesListRequestAD(link), "20008"},
        {"boss", changes({remove("S-1-5-21-2")}, link), "20008"},
        {"boss", Texts::createSetIRFRequest(link, 0), "20008"},
        {"boss", Texts::createSetOwnerRequest(link, "guid-4", tree), "20008"},
        {"boss", Texts::createGetERRequests(link, domain), "20008"},
        {"boss", Texts::createGetIRRequest(link, domain), "20008", rightsPipe},
        {"boss", Texts::createGetOwnerRequest("VOL1:\\DIR\\link\\x\\y", tree), "20429"},
        {"boss", Texts::createSetDirQuotaRequest("VOL1:\\DIR\\link\\x\\y", "1"), "20429"},
        {"boss", Texts::createGetUserEffRightRequest("guid-4", "VOL1:\\Dir\\link\\x", tree), "20429"},
        {"guest", readLink("VOL1:"), "20156", smbPipe},
        {"guest", readLink("VOL1:\\"), "20156", smbPipe},
        {"guest", readLink(folder), "30005", smbPipe},
        {"guest", readLink("VOL1:\\Dir\\link\\a\\b"), "30006", smbPipe},
        {"guest", readLink("VOL1:\\x"), "20902", smbPipe},
        {"guest", readLink("VOL9:\\"), "20902", smbPipe},
    };
    for (const auto& [user, request, code, pipe] : cases) {
        SmallServer small;
        small.server.volumes().make(link)->link = Link{"srv2.meridal.example", "DATA", "share"};
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
    const char* const warden = "\\MERIDAL-TREE\\O=Meridal\\OU=Haus\\CN=KÄTHE";
    const std::string ok = "<result value=\"0\"><description>success</description></result>";
    EXPECT_EQ(small.ask("boss", changes({add("S-1-5-21-3", right::read), add("S-0", 0), remove("S-1-5-21-2"),
                                         add(warden, right::erase, tree)})),
              "<adminReply><trustees><addTrustee>" + ok +
                  "</addTrustee><addTrustee><result value=\"20904\"><description>unknown identity"
                  "</description></result></addTrustee><removeTrustee>" +
                  ok + "</removeTrustee><addTrustee>" + ok + "</addTrustee></trustees></adminReply>");
    EXPECT_EQ(small.rightsAt(small.guest), right::read);
    EXPECT_EQ(small.rightsAt(small.warden), right::erase);
    // Quotas have one result for all: the first failure. Without a limit there is none to list.
    EXPECT_EQ(codeIn(small.ask("boss",
                               setQuotas({quota("S-1-5-21-2", 1), quota("S-1-5-21-99", 2),
                                          quota("S-1-5-21-1", -3), quota("S-1-5-21-3", unlimited)}),
                               quotaPipe)),
              "20904");
    EXPECT_THAT(small.ask("guest", Texts::createGetUserQuotaRequest("vol1", domain), quotaPipe),
                HasSubstr("<userList><user><id>S-1-5-21-2</id><quota>1</quota><spaceUsed>0</spaceUsed>"
                          "</user></userList>"));
}

TEST(Requests, AreAnsweredWithNamesEscapedOwnersInheritedAndLinksLeftOut) {
    SmallServer small;
    small.server.setTrustee(folder, small.server.identities().addDomainUser("R&D <\"x\">\n", "S-9"), 0);
    small.server.volumes().make(link)->link = Link{"srv2.meridal.example", "DATA", "share"};
    EXPECT_THAT(small.ask("guest", readLink("vol1:\\DIR\\link"), smbPipe),
                HasSubstr("<readLink><junction><server>srv2.meridal.example</server><volumeName>DATA"
                          "</volumeName><pathName>share</pathName></junction></readLink>"));
    EXPECT_THAT(small.ask("guest", Texts::createGetIRRequest("vol1:\\DIR\\", domain), rightsPipe),
                AllOf(HasSubstr("<name>R&amp;D &lt;&quot;x&quot;&gt;\uFFFD</name>"), Not(HasSubstr("link"))));
    const std::string file = std::string(folder) + "\\file";
    small.server.addPath(file);
    small.node().owner = "S-1-5-21-2";
    EXPECT_THAT(small.ask("guest", Texts::createGetOwnerRequest(file, tree)),
                HasSubstr("<creator><name>Zoë</name><id>S-1-5-21-2</id></creator>"));
    small.node().attributes = attribute::archive | attribute::compressed;
    small.node().trustees.set(small.clerk, right::modify); // which is enough for attributes
    EXPECT_EQ(codeIn(small.ask("clerk", setAttributes({"doNotCompress", "readOnly"}))), "0");
    EXPECT_EQ(small.node().attributes,
              attribute::readOnly | attribute::doNotCompress | attribute::compressed);
}

} // namespace
} // namespace quorvan::simulator
