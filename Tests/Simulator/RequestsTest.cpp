// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Simulator/SmallServer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvan::simulator {
namespace {

using testing::HasSubstr;

TEST(TrusteeListRequest, AnswersEachDirectoryByItself) {
    SmallServer small;
    EXPECT_EQ(
        small.ask("clerk", listInDomain()),
        "<adminReply><fileInfo><getFileInfo><result value=\"0\"><description>success</description></result>"
        "<rightsInfo><trusteeList>"
        "<trusteeInfo><name>Zoë</name><id>S-1-5-21-2</id><rights><read/><accessControl/></rights></"
        "trusteeInfo>"
        "</trusteeList><inheritedRightsFilter><fileScan/></inheritedRightsFilter>"
        "<effectiveRights><read/><accessControl/></effectiveRights></rightsInfo>"
        "</getFileInfo></fileInfo></adminReply>");
    EXPECT_EQ(
        small.ask("warden", listInTree()),
        "<adminReply><fileInfo><getFileInfo><result value=\"0\"><description>success</description></result>"
        "<rightsInfo><trusteeList>"
        "<trusteeInfo><name objectClass=\"inetOrgPerson\">CN=Käthe.OU=Haus.O=Meridal</name><id>guid-4</id>"
        "<rights><read/><write/><fileScan/></rights></trusteeInfo>"
        "</trusteeList><inheritedRightsFilter><fileScan/></inheritedRightsFilter>"
        "<effectiveRights><read/><write/><fileScan/></effectiveRights></rightsInfo>"
        "</getFileInfo></fileInfo></adminReply>");
}

TEST(TrusteeListRequest, EscapesWhatItAnswers) {
    SmallServer small;
    const Identity& odd = small.server.identities().addDomainUser("R&D <\"x\">\n", "S-9");
    small.server.setTrustee(SmallServer::folder, odd, 0);
    EXPECT_THAT(small.ask("boss", listInDomain()),
                HasSubstr("<name>R&amp;D &lt;&quot;x&quot;&gt;\uFFFD</name>"));
}

TEST(TrusteeListRequest, FailsWhereTheClientReadsTheResult) {
    SmallServer small;
    EXPECT_EQ(
        small.ask("boss", listInDomain("VOL1:\\nowhere")),
        "<adminReply><fileInfo><getFileInfo><result value=\"20902\"><description>no such path</description>"
        "</result></getFileInfo></fileInfo></adminReply>");
    EXPECT_THAT(small.ask("nobody", listInDomain()), HasSubstr("<getFileInfo><result value=\"20904\">"));
}

struct ChangeCase {
    const char* what;
    const char* user;
    std::string request;
    const char* result; ///< what the reply must hold
    Mask clerk;         ///< the clerk's own entry afterwards; 0xFFFF for none
};

TEST(ChangeRequest, DependsOnTheUsersRightsThere) {
    constexpr Mask before = right::read | right::accessControl;
    const ChangeCase cases[] = {
        {"supervisor grants supervisor", "boss", changes(add("S-1-5-21-2", "<supervisor/>")), "\"0\"", 0x100},
        {"access control grants the rest", "clerk",
         changes(add("S-1-5-21-2", "<read/><write/><accessControl/>")), "\"0\"", 0x023},
        {"access control does not grant supervisor", "clerk",
         changes(add("S-1-5-21-2", "<read/><supervisor/>")), "\"20903\"", before},
        {"access control empties its own entry", "clerk", changes(add("S-1-5-21-2", "")), "\"0\"", 0},
        {"access control removes", "clerk", changes(remove("S-1-5-21-2")), "\"0\"", 0xFFFF},
        {"neither right", "guest", changes(remove("S-1-5-21-2")), "\"20903\"", before},
        {"a tree user with neither right", "warden", changes(add("S-1-5-21-2", "")), "\"20903\"", before},
        {"no filter without the right", "guest", filterRequest(""), "\"20903\"", before},
        {"unknown SID", "boss", changes(add("S-1-5-21-99", "<read/>")), "\"20904\"", before},
        {"tree identity in the domain's form", "boss", changes(add("guid-4", "<read/>")), "\"20904\"",
         before},
        {"domain identity in the tree's form", "boss", changes(addInTree("S-1-5-21-2", "<read/>")),
         "\"20904\"", before},
        {"not a trustee", "boss", changes(remove("S-1-5-21-3")), "\"20905\"", before},
        {"no such path", "boss", changes(add("S-1-5-21-2", "", "VOL1:\\x")), "\"20902\"", before},
    };
    for (const ChangeCase& each : cases) {
        SmallServer small;
        EXPECT_THAT(small.ask(each.user, each.request),
                    HasSubstr(std::string("<result value=") + each.result))
            << each.what;
        EXPECT_EQ(small.rightsAt(small.clerk), each.clerk) << each.what;
    }
}

TEST(ChangeRequest, LeavesTheSupervisorRightToSupervisors) {
    SmallServer small;
    small.server.setTrustee(SmallServer::folder, small.guest, right::supervisor);
    // Keeping the right while another changes is not granting it.
    EXPECT_THAT(small.ask("clerk", changes(add("S-1-5-21-3", "<read/><supervisor/>"))), HasSubstr("\"0\""));
    EXPECT_EQ(small.rightsAt(small.guest), 0x101);
    EXPECT_THAT(small.ask("clerk", changes(add("S-1-5-21-3", "<read/>"))), HasSubstr("\"20903\""));
    EXPECT_THAT(small.ask("clerk", changes(remove("S-1-5-21-3"))), HasSubstr("\"20903\""));
    EXPECT_EQ(small.rightsAt(small.guest), 0x101);
    EXPECT_THAT(small.ask("boss", changes(remove("S-1-5-21-3"))), HasSubstr("\"0\""));
}

TEST(ChangeRequest, AnswersEveryElementInOrder) {
    SmallServer small;
    EXPECT_EQ(
        small.ask("boss", changes(add("S-1-5-21-3", "<read/>") + add("S-0", "") + remove("S-1-5-21-2") +
                                  addInTree("\\MERIDAL-TREE\\O=Meridal\\OU=Haus\\CN=KÄTHE", "<erase/>"))),
        "<adminReply><trustees>"
        "<addTrustee><result value=\"0\"><description>success</description></result></addTrustee>"
        "<addTrustee><result value=\"20904\"><description>unknown "
        "identity</description></result></addTrustee>"
        "<removeTrustee><result value=\"0\"><description>success</description></result></removeTrustee>"
        "<addTrustee><result value=\"0\"><description>success</description></result></addTrustee>"
        "</trustees></adminReply>");
    EXPECT_EQ(small.rightsAt(small.guest), right::read);
    EXPECT_EQ(small.rightsAt(small.warden), right::erase);
    EXPECT_EQ(small.ask("boss", changes("")), "<adminReply><trustees></trustees></adminReply>");
}

TEST(FilterRequest, SetsTheFilter) {
    SmallServer small;
    EXPECT_EQ(small.ask("clerk", filterRequest("<read/><create/><supervisor/>")),
              "<adminReply><trustees><modifyInheritedRightsFilter><result value=\"0\"><description>success"
              "</description></result></modifyInheritedRightsFilter></trustees></adminReply>");
    EXPECT_EQ(small.server.filter(SmallServer::folder), 0x109);
}

TEST(UserTypeRequest, NamesTheDirectoryOfTheUser) {
    SmallServer small;
    EXPECT_THAT(small.ask("warden", userTypeRequest, "/ZelSmbPipe"),
                HasSubstr("<userType>Morvane</userType>"));
    EXPECT_THAT(small.ask("clerk", userTypeRequest, "/ZelSmbPipe"),
                HasSubstr("<userType>ActiveDirectory</userType>"));
    EXPECT_THAT(small.ask("clerk", userTypeRequest, "/FilesCmdPipe"), HasSubstr("\"20901\""));
}

TEST(Misbehaviour, ReplacesTheReplyOnThePipesItIsFor) {
    SmallServer small;
    small.server.misbehaviour.code = 20008;
    const std::string two = small.ask("boss", changes(add("S-1-5-21-3", "") + remove("S-1-5-21-2")));
    EXPECT_THAT(two, HasSubstr("<addTrustee><result value=\"20008\">"));
    EXPECT_THAT(two, HasSubstr("<removeTrustee><result value=\"20008\">"));
    EXPECT_EQ(small.rightsAt(small.guest), 0xFFFF);

    small.server.misbehaviour = {};
    small.server.misbehaviour.garbage = "<<<";
    small.server.misbehaviour.onlyPipe = "/FilesCmdPipe";
    EXPECT_EQ(small.ask("boss", listInDomain()), "<<<");
    EXPECT_THAT(small.ask("boss", userTypeRequest, "/ZelSmbPipe"), HasSubstr("ActiveDirectory"));

    small.server.misbehaviour = {};
    small.server.misbehaviour.replyMegabytes = 3;
    const std::string large = small.ask("boss", listInDomain());
    EXPECT_GE(large.size(), 3U << 20);
    EXPECT_LT(large.size(), 4U << 20);
    EXPECT_THAT(large.substr(large.size() - 24), HasSubstr("</padding></adminReply>"));
}

TEST(Recording, KeepsTheLatestRequestsAndCountsAll) {
    SmallServer small;
    for (int i = 0; i < 1200; ++i)
        small.ask("boss", userTypeRequest, "/ZelSmbPipe");
    small.ask("clerk", "last");
    EXPECT_EQ(small.server.requestCount(), 1201U);
    EXPECT_LE(small.server.requests().size(), 1000U);
    EXPECT_EQ(small.server.lastRequest(), "last");
}

} // namespace
} // namespace quorvan::simulator
