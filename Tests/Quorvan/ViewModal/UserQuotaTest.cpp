// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class UserQuota : public Session {
protected:
    static std::shared_ptr<UserQuotaData> row(const char* action, std::optional<std::string> type,
                                              const char* id = "1234") {
        auto user = std::make_shared<UserQuotaData>("", id, "Users", 1048576, 0, "");
        user->action = action;
        user->domainIdentity = std::move(type);
        return user;
    }
    std::vector<std::string> read(const std::string& users, const char* type, const char* status = "0") {
        reply("<r><userQuota><browse><userList>" + users + "</userList><result value=\"" + status +
              "\"/></browse></userQuota></r>");
        UserQuotaList rows;
        EXPECT_EQ(controller.getUserQuotaInfo(":VOL1:\\a", rows, type), status);
        std::vector<std::string> texts;
        for (const auto& row : rows)
            texts.push_back(*row->displayName + "|" + *row->SID + "|" + *row->userType + "|" + *row->action +
                            "|" + std::to_string(*row->quotaLimit) + "|" + std::to_string(*row->quotaUsed) +
                            "|" + std::to_string(*row->quotaAvailable) + "|" + *row->domainIdentity);
        return texts;
    }
};

const std::string users =
    "<user><id>S-1</id><userName>.bob.</userName><quota>9223372036854775807</quota><spaceUsed>-5</spaceUsed>"
    "</user><user><quota>9223372036854775808</quota><spaceUsed>12x</spaceUsed></user>";

TEST_F(UserQuota, ListsTheUsersOfAVolumeWhateverTheStatus) {
    EXPECT_THAT(
        read(users, "Morvane", "7"),
        ElementsAre(".bob.|S-1|Users|NONE|9223372036854775807|-5|0|Morvane", "||Users|NONE|0|0|0|Morvane"));
    EXPECT_THAT(written(), testing::HasSubstr("<volumeName>VOL1</volumeName>"));
    EXPECT_THAT(read(users, ""), IsEmpty());

    UserQuotaList rows = {row("NONE", "")};
    reply("<r><userQuota><browse><userList><user><id>1</id></user></userList>");
    log.take();
    EXPECT_EQ(controller.getUserQuotaInfo("VOL1:\\", rows, "Morvane"), "0");
    EXPECT_EQ(rows.size(), 1U);
    EXPECT_TRUE(log.lines.at(3).starts_with("Error parsing UserQuota Response : error "));
    EXPECT_TRUE(log.lines.at(4).starts_with("Error parsing KELP Reply - "));
    reply("<r><userQuota><browse><result value=\"0\"/></browse></userQuota></r>");
    EXPECT_DEATH(controller.getUserQuotaInfo("VOL1:\\", rows, "Morvane"), "\"userList\"");
    EXPECT_DEATH(controller.getUserQuotaInfo("::", rows, "Morvane"), "names no volume");
}

TEST_F(UserQuota, TakesNamesFromActiveDirectory) {
    world.directory->records["S-1"] = {
        std::make_shared<FakeRecord>(std::map<std::string, std::vector<std::string>>{
            {"dsAttrTypeStandard:PrimaryNTDomain", {"KELP"}}, {"dsAttrTypeStandard:RecordName", {"bob:x"}}})};
    EXPECT_THAT(read(users, "ActiveDirectory"),
                ElementsAre("KELP\\bob|S-1|Users|NONE|9223372036854775807|-5|0|ActiveDirectory",
                            "Unknown\\Unknown||Users|NONE|0|0|0|ActiveDirectory"));
    EXPECT_THAT(world.directory->prefetches, ElementsAre(ElementsAre("S-1", "")));
    EXPECT_EQ(world.directory->queries.size(), 3U) << "one for a user who is known";
    EXPECT_EQ(world.directory->stateReads, 1);
    EXPECT_EQ(world.bundle->featureReads, 1);
}

TEST_F(UserQuota, WritesRowsByTheirActionAndTheirOwnType) {
    const UserQuotaList rows = {row("REMOVE", "Morvane"), row("MODIFY", "ActiveDirectory", "S-1"),
                                row("ADD", "Morvane"),    row("MODIFY", {}),
                                row("ADD", "other"),      row("NONE", "Morvane")};
    EXPECT_EQ(XMLReadWriteController::createSetUserQuotaRequest("VOLE\xCC\x81", rows, "ignored"),
              "<adminRequest><virtualIO><datastream name=\"command\"/></virtualIO><userRequest><userQuota>"
              "<set><volumeName>VOLÉ</volumeName><id>1234</id><quota>9223372036854775807</quota></set>"
              "<set type=\"adID\"><volumeName>VOLÉ</volumeName><id>S-1</id><quota>1048576</quota></set>"
              "<set><volumeName>VOLÉ</volumeName><id>1234</id><quota>1048576</quota></set>"
              "</userQuota></userRequest></adminRequest>");
    EXPECT_THAT(log.take(), ElementsAre("skipping user: "));
    const auto nobody = row("ADD", "Morvane");
    nobody->SID.reset();
    nobody->action.reset();
    EXPECT_EQ(XMLReadWriteController::createXMLforUsers("V", std::vector{nobody}, ""), "");
    nobody->action = "ADD";
    EXPECT_DEATH(XMLReadWriteController::createXMLforUsers("V", std::vector{nobody}, ""), "has no user");
}

TEST_F(UserQuota, SendsBatchesOfThreeHundredAndOneThatIsNotFull) {
    const std::pair<std::size_t, std::vector<std::size_t>> cases[] = {
        {0, {0}}, {299, {299}}, {300, {300, 0}}, {301, {300, 1}}, {600, {300, 300, 0}}};
    for (const auto& [count, batches] : cases) {
        log.take();
        world.network->calls.clear();
        EXPECT_EQ(controller.setUserQuotaInfo("VOL1:\\", UserQuotaList(count, row("ADD", "Morvane")), ""),
                  "0");
        std::vector<std::size_t> sent;
        for (const std::string& call : world.network->calls) {
            if (!call.starts_with("write "))
                continue;
            sent.push_back(0);
            for (std::size_t at = 0; (at = call.find("<set>", at + 1)) != std::string::npos;)
                ++sent.back();
        }
        EXPECT_EQ(sent, batches) << count;
        EXPECT_EQ(log.lines.size(), batches.size() * 4) << "no XML: one line more for each reply";
        EXPECT_TRUE(log.lines[0].starts_with("Set User Quota Request: <adminRequest>"));
        EXPECT_EQ(log.lines[1], "response.deinitialize Set User Quota Request");
        EXPECT_EQ(log.lines[2], "Set User Quota Reply: ");
    }
}

TEST_F(UserQuota, ReadsNoResultAfterTheFirstFailure) {
    const std::string ok = "<r><userQuota><set><result value=\"0\"/></set></userQuota></r>";
    const std::string failed = "<r><userQuota><set><result value=\"20008\"/></set></userQuota></r>";
    const std::string unreadable = "<r/>"; // would be fatal
    world.network->pieces = {ok, "", failed, "", unreadable, ""};
    EXPECT_EQ(controller.setUserQuotaInfo("VOL1:\\", UserQuotaList(600, row("ADD", "Morvane")), ""), "20008");
    EXPECT_THAT(world.network->pieces, IsEmpty());
    reply(unreadable);
    EXPECT_DEATH(controller.setUserQuotaInfo("VOL1:\\", {}, ""), "\"result\"");
}

} // namespace
} // namespace quorvan::test
