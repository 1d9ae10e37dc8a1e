// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/DistinguishedName.h"
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using DirectoryTree = Session;

std::string treeReply(const std::string& operation, const std::string& inner, const char* status = "0") {
    return "<r><result value=\"0\"/><trellObject><" + operation + "><result value=\"" + status + "\"/>" +
           inner + "</" + operation + "></trellObject></r>";
}

TEST_F(DirectoryTree, ListsWhatItFinds) {
    std::vector<User> users;
    reply(treeReply("trellSearch",
                    "<e><dn>a</dn><dn>b</dn><objectClass>user</objectClass><userID>1</userID></e>"
                    "<e><dn>c</dn><objectClass/></e>text<e/><x><y/></x>"));
    EXPECT_EQ(controller.getMorvaneBrowse("O=org", users), "0");
    std::vector<std::string> texts;
    for (const User& user : users)
        texts.push_back(user.trusteeName + "|" + user.trusteeType + "|" + user.trusteeID);
    EXPECT_THAT(texts, ElementsAre("b|user|1", "c||", "||"));

    users.clear();
    reply(treeReply("trellSearch", "<e><dn>a</dn></e>", "9"));
    EXPECT_EQ(controller.getMorvaneBrowse("O=org", users), "9");
    reply("no XML");
    EXPECT_EQ(controller.getMorvaneBrowse("O=org", users), "");
    EXPECT_TRUE(log.lines.back().starts_with("Error parsing TRELL Response : error "));
    EXPECT_THAT(users, IsEmpty());
    reply("<r><result value=\"0\"/></r>");
    EXPECT_DEATH(controller.getMorvaneBrowse("O=org", users), "\"result\"");
}

TEST_F(DirectoryTree, TellsGuidsAndGroups) {
    const struct {
        std::string reply;
        const char* guid;
        std::string status;
        std::vector<std::string> groups;
    } cases[] = {
        {treeReply("getAttribute",
                   "<trellAttribute><value>a</value><value>b</value><x>c</x></trellAttribute>"),
         "a",
         "0",
         {"a", "b", ""}},
        {treeReply("getAttribute", "<trellAttribute><x/><value>b</value></trellAttribute>"),
         "0",
         "0",
         {"", "b"}},
        {treeReply("getAttribute", "<trellAttribute><value/></trellAttribute>"), "", "0", {""}},
        {treeReply("getAttribute", "<trellAttribute/>"), "0", "0", {}},
        {treeReply("getAttribute", "", "9"), "9", "9", {}},
        {"no XML", "0", "0", {}},
    };
    for (const auto& [text, guid, status, names] : cases) {
        reply(text);
        EXPECT_EQ(controller.getGuid_Morvane("\\TREE", "o"), guid) << text;
        std::vector<Group> groups;
        reply(text);
        EXPECT_EQ(controller.getGroupMemberShip_Morvane("", groups, "\\TREE", "o"), status) << text;
        ASSERT_EQ(groups.size(), names.size());
        for (std::size_t index = 0; index < names.size(); ++index)
            EXPECT_EQ(groups[index].groupName + groups[index].id + groups[index].DN, names[index]);
    }
    EXPECT_TRUE(log.lines.back().starts_with("Error parsing TRELL Morvane Groups Response : error "));
    EXPECT_TRUE(
        log.lines[log.lines.size() - 6].starts_with("Error parsing TRELL Morvane Guid Response : error "));
}

TEST(DistinguishedName, SeparatesNameAndContext) {
    const struct {
        const char* dn;
        const char* context;
        const char* name;
        bool complete;
    } cases[] = {
        {R"(\TREE\O=org\OU=unit\CN=user)", R"(\TREE\O=org\OU=unit)", "user", true},
        {R"(\TREE\O=org\user)", R"(\TREE\O=org)", "user", true},
        {R"(TREE\CN=a=b)", "TREE", "b", true},
        {".CN=user.OU=unit.O=org.TREE.", R"(\TREE\O=org\OU=unit)", "user", true},
        {"CN=user.OU=unit.O=org", R"(O=org\OU=unit)", "user", true},
        {"CN=a=b.O=org", "O=org", "a=b", true},
        {"user.", "", "user", false},
        {R"(\CN=user)", "", "user", false},
        {R"(\TREE\)", R"(\TREE)", "", false},
        {R"(=\)", "=", "", false},
        {"", "", "", false},
        {".", "", "", false},
        {"..", "", "", false},
        {"=", "", "", false},
        {R"(\)", "", "", false},
        {R"(.CN=John\.Doe.O=org.)", "", R"(.CN=John\.Doe.O=org.)", false},
        {R"(\TREE\O=org\CN=a\=b)", "", R"(\TREE\O=org\CN=a\=b)", false},
    };
    for (const auto& [dn, context, name, complete] : cases) {
        std::string itsContext = "before";
        std::string itsName = "before";
        EXPECT_EQ(convertDntoContextAndNameRootLeft(dn, itsContext, itsName), complete) << dn;
        EXPECT_EQ(itsContext, context) << dn;
        EXPECT_EQ(itsName, name) << dn;
    }
}

TEST(DistinguishedName, PutsTheRootOnTheRight) {
    for (const auto& [group, rootRight] :
         std::map<std::string, std::string>{{R"(\TREE\O=org\CN=grp)", ".CN=grp.O=org.TREE."},
                                            {R"(TREE\O=org\CN=grp)", "CN=grp.O=org.TREE."},
                                            {R"(\TREE\CN=grp\)", ".CN=grp.TREE."},
                                            {"CN=grp.O=org", "CN=grp.O=org"},
                                            {"grp", "grp."},
                                            {"=", "=."},
                                            {R"(\)", ".."},
                                            {R"(\\)", R"(\\)"},
                                            {R"(\TREE\CN=a\=b)", R"(\TREE\CN=a\=b)"}})
        EXPECT_EQ(getDNFromGroupNameRootRight(group), rootRight);
    EXPECT_DEATH(getDNFromGroupNameRootRight(""), "no name");
}

} // namespace
} // namespace quorvan::test
