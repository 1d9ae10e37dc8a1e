// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::Optional;

using FileInfo = Session;

std::string infoReply(const std::string& inner, const char* status = "0") {
    return "<r><fileInfo><getFileInfo><result value=\"" + std::string(status) +
           "\"><description>done</description></result>" + inner + "</getFileInfo></fileInfo></r>";
}

TEST_F(FileInfo, FillsARecordWhenTheServerSaysSo) {
    OwnerInfo owner;
    reply(infoReply("<idInfo><creator><name>KELP\\bob</name></creator></idInfo>"));
    EXPECT_EQ(controller.getFileInfoOwner("VOL1:\\", owner, "Morvane"), "0");
    EXPECT_THAT(owner.name, Optional(std::string("KELP\\bob")));
    EXPECT_THAT(owner.id, Optional(std::string()));
    EXPECT_THAT(owner.result, Optional(std::string("done")));

    AttributesInfo attributes;
    reply(infoReply("<standardInfo><attributes><readOnly enabled=\"no\"/><other/><archive/><ReadOnly/>"
                    "</attributes></standardInfo>"));
    EXPECT_EQ(controller.getAttributes("VOL1:\\", attributes, "Morvane"), "0");
    EXPECT_THAT(attributes.attributes, Optional(ElementsAre("readOnly", "archive")));

    DirectoryQuotaInfo quota;
    reply(infoReply("<quotaInfo><quotaAmount>-1</quotaAmount></quotaInfo>"));
    EXPECT_EQ(controller.getDirectoryQuota("VOL1:\\", quota, "Morvane"), "0");
    EXPECT_THAT(quota.quotaAmount, Optional(std::string("-1")));
    EXPECT_THAT(quota.usedAmount, Optional(std::string()));

    reply(infoReply("", "20407"));
    EXPECT_EQ(controller.getFileInfoOwner("VOL1:\\", owner, "Morvane"), "20407");
    EXPECT_THAT(owner.name, Optional(std::string("KELP\\bob")));
}

TEST_F(FileInfo, LeavesItAsItIsWhenTheReplyIsNoXML) {
    OwnerInfo owner;
    AttributesInfo attributes;
    DirectoryQuotaInfo quota;
    const std::pair<std::function<std::string()>, const char*> cases[] = {
        {[&] { return controller.getFileInfoOwner("VOL1:\\", owner, "Morvane"); },
         "Error parsing ownerInfo - "},
        {[&] { return controller.getAttributes("VOL1:\\", attributes, "Morvane"); },
         "Error parsing ownerInfo - "},
        {[&] { return controller.getDirectoryQuota("VOL1:\\", quota, "Morvane"); },
         "Error parsing Directory Quota Response - "}};
    for (const auto& [run, message] : cases) {
        reply("no XML");
        EXPECT_EQ(run(), "0");
        EXPECT_TRUE(log.take().back().starts_with(message));
    }
    EXPECT_FALSE(owner.result || attributes.result || quota.result);
    reply(infoReply("<idInfo/>"));
    EXPECT_DEATH(controller.getFileInfoOwner("VOL1:\\", owner, "Morvane"), "\"creator\"");
    reply(infoReply("<standardInfo><attributes>t</attributes></standardInfo>"));
    EXPECT_DEATH(controller.getAttributes("VOL1:\\", attributes, "Morvane"), "text among the attributes");
}

} // namespace
} // namespace quorvan::test
