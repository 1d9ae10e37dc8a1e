// SPDX-License-Identifier: GPL-3.0-or-later
//
// What holds for the request layer as a whole: one pipe and one operation at a time, and replies and names
// that are written unlike the usual.
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/DistinguishedName.h"
#include "Quorvan/ViewModal/ScopedPipe.h"
#include "Quorvan/ViewModal/UsersViewModal.h"
#include "Tests/Quorvan/ViewModal/Session.h"

namespace quorvan::test {
namespace {

using testing::ElementsAre;

using RequestLayer = Session;
using Strings = std::vector<std::string>;

const std::int32_t descriptorAtStart = XMLReadWriteController::fileDes;

TEST_F(RequestLayer, StartsWithoutAPipe) {
    EXPECT_EQ(descriptorAtStart, -1) << "0 would be somebody's standard input";
}

TEST_F(RequestLayer, ClosesAPipeOnceAndOnlyWhenItCouldBeOpened) {
    {
        ScopedPipe pipe(controller, "srv1", pipes::userQuotas);
        EXPECT_TRUE(pipe.isOpen());
        EXPECT_EQ(world.network->calls.back(), "open /Volumes/IPC$/Manage_KELP/user.cmd");
        log.take();
        pipe.close();
        EXPECT_THAT(log.lines, ElementsAre("pipe closed"));
        EXPECT_EQ(world.network->calls.back(), "close 7");
        const ScopedPipe next(controller, "srv1", pipes::files);
        log.take();
    }
    EXPECT_THAT(log.take(), ElementsAre("pipe closed"));
    world.network->openResult = -1;
    world.network->openError = EACCES;
    EXPECT_EQ(ScopedPipe(controller, "srv1", pipes::rights).status(), -1);
    EXPECT_THAT(log.lines, testing::Not(testing::Contains("pipe closed")));
}

/// A silent directory whose failure is reported while a list is read from the pipe.
TEST_F(RequestLayer, TellsTheUserAboutTheDirectoryWhenThePipeIsClosed) {
    struct : RecordingAlerts {
        std::vector<std::string>* lines = nullptr;
        void runModal(const std::string& title, const std::string& message,
                      platform::AlertStyle style) override {
            RecordingAlerts::runModal(title, message, style);
            lines->push_back("alert " + message);
        }
    } alerts;
    alerts.lines = &log.lines;
    platform::Services services = platform::services();
    services.alerts = std::shared_ptr<platform::Alerts>(std::shared_ptr<void>(), &alerts);
    const platform::ScopedServices installed(services);
    world.directory->answers = false;
    const std::string trustee =
        "<trusteeInfo><name>a</name><id>S-1-5-1</id><rights><read/></rights></trusteeInfo>";
    const auto readList = [&] {
        reply("<r><fileInfo><getFileInfo>" + trustee + trustee +
              "<result value=\"0\"/></getFileInfo></fileInfo></r>");
        TrusteeList trustees;
        Rights rights;
        controller.initializeTrustees("VOL1:\\a", "ActiveDirectory", trustees, rights, rights);
        EXPECT_EQ(trustees.size(), 2U);
        Strings lines = log.take();
        std::erase_if(lines, [](const std::string& line) {
            return !line.starts_with("Error in") && !line.starts_with("alert");
        });
        return lines;
    };
    const char* const failed = "Error in Open Directory Session";
    {
        const ScopedPipe pipe(controller, "srv1", pipes::files);
        EXPECT_THAT(readList(), ElementsAre(failed, failed));
    }
    EXPECT_THAT(log.take(), ElementsAre("pipe closed", "alert Err_AD_Connect"));
    EXPECT_THAT(readList(), ElementsAre(failed, "alert Err_AD_Connect", failed)) << "at once, without a pipe";
}

TEST_F(RequestLayer, LetsNoOperationBeginInsideAnother) {
    ScopedPipe pipe(controller, "srv1", pipes::files);
    EXPECT_DEATH(controller.openPipe("srv1", "/IPC$", "/RightsCmdPipe"), "while a pipe is in use");
    struct : CountingBusyIndicator {
        std::function<void()> onBegin;
        void begin() override {
            if (const auto run = std::exchange(onBegin, nullptr))
                run();
        }
        void end() override {}
    } busy;
    platform::Services services = platform::services();
    services.busy = std::shared_ptr<platform::BusyIndicator>(std::shared_ptr<void>(), &busy);
    const platform::ScopedServices installed(services);
    busy.onBegin = [&] { controller.getUserType(); };
    EXPECT_DEATH(controller.getUserType(), "in the middle of another exchange");
    pipe.close();
    busy.onBegin = [&] { controller.openPipe("srv1", "/IPC$", "/RightsCmdPipe"); };
    EXPECT_DEATH(controller.getUserType(), "while a pipe is in use");
    busy.onBegin = nullptr;
    EXPECT_EQ(controller.getUserType(), "ActiveDirectory") << "and the next one runs";
}

TEST_F(RequestLayer, ReadsRepliesThatAreWrittenOnSeveralLines) {
    AttributesInfo attributes;
    reply("<r>\n <fileInfo>\n  <getFileInfo> <standardInfo> <attributes>\n\t<archive/>\r\n <hidden/>\n"
          "</attributes> </standardInfo> <result value=\"0\"/></getFileInfo></fileInfo></r>");
    EXPECT_EQ(controller.getAttributes("VOL1:\\a", attributes, "Morvane"), "0");
    EXPECT_THAT(*attributes.attributes, ElementsAre("archive", "hidden"));
    Strings rights;
    reply("<r><fileInfo><getFileInfo><rightsInfo><effectiveRights>\n<read/>\n</effectiveRights></rightsInfo>"
          "<result value=\"0\"/></getFileInfo></fileInfo></r>");
    EXPECT_EQ(controller.getEffectiveRightsForMappedUser("VOL1:\\a", rights, "Morvane"), "0");
    EXPECT_THAT(rights, ElementsAre("read"));
    const auto attribute = [this](const std::string& values) {
        reply("<r><result value=\"0\"/><trellObject><getAttribute><result value=\"0\"/><trellAttribute>" +
              values + "</trellAttribute></getAttribute></trellObject></r>");
    };
    attribute("\n <value>g-1</value>\n");
    EXPECT_EQ(controller.getGuid_Morvane("", ""), "g-1");
    attribute("\n <value> two words </value>\n text <value>b</value> <!-- --> \n");
    std::vector<Group> groups;
    EXPECT_EQ(controller.getGroupMemberShip_Morvane("", groups, "", ""), "0");
    Strings names;
    for (const Group& group : groups)
        names.push_back(group.groupName);
    EXPECT_THAT(names, ElementsAre(" two words ", "", "b")) << "a text that says something stays a child";
}

/// What is logged and answered, in this order, for a reply that breaks off after a complete row.
TEST_F(RequestLayer, SaysOfEveryBrokenReplyWhatItSpoils) {
    const std::string path = "VOL1:\\a";
    const std::string kelp = "Error parsing KELP Reply - ";
    const std::string ofInfo = "Error parsing ownerInfo ";
    const std::string ofQuota = "Error parsing Directory Quota Response - ";
    const std::string ofUsers = "Error parsing UserQuota Response : error ";
    const std::string ofPaths = "Error parsing FSR Response : error ";
    const std::string ofTree = "Error parsing TRELL ";
    XMLReadWriteController& c = controller;
    OwnerInfo owner;
    AttributesInfo attributes;
    DirectoryQuotaInfo quota;
    UserQuotaList users;
    std::vector<DirectoryRights> directories;
    std::vector<IdentityFileRights> files;
    std::vector<User> objects;
    std::vector<Group> groups;
    Strings names = {"kept"};
    const struct {
        std::function<std::string()> run;
        std::string status;
        Strings complaints;
    } cases[] = {
        {[&] { return c.getFileInfoOwner(path, owner, "Morvane"); }, "0", {kelp, ofInfo + "- "}},
        {[&] { return c.getAttributes(path, attributes, "Morvane"); }, "0", {kelp, ofInfo + "- "}},
        {[&] { return c.getDirectoryQuota(path, quota, "Morvane"); }, "0", {kelp, ofQuota}},
        {[&] { return c.getUserQuotaInfo(path, users, "ActiveDirectory"); }, "0", {ofUsers, kelp}},
        {[&] { return c.getIRRequest(path, directories, "Morvane"); }, "0", {kelp}},
        {[&] { return c.getFSRights(path, {"S-1"}, files, "Morvane"); }, "0", {ofPaths}},
        {[&] { return c.getEffectiveRightsForMappedUser(path, names, "Morvane"); },
         "-1",
         {ofInfo + ": error "}},
        {[&] { return c.getMorvaneBrowse("O=org", objects); }, "", {kelp, ofTree + "Response : error "}},
        {[&] { return c.getGuid_Morvane("", ""); }, "0", {kelp, ofTree + "Morvane Guid Response : error "}},
        {[&] { return c.getGroupMemberShip_Morvane("", groups, "", ""); },
         "0",
         {kelp, ofTree + "Morvane Groups Response : error "}},
    };
    const std::string result = "<result value=\"0\"/>";
    for (const auto& [run, status, complaints] : cases) {
        reply("<r>" + result + "<userQuota><browse>" + result +
              "<userList><user><id>S-1</id></user></userList></browse></"
              "userQuota><file><rightsInfo><trusteeList>"
              "<trusteeInfo><name>a</name><id>S-1</id><rights><read/></rights></trusteeInfo></trusteeList>"
              "</rightsInfo><path>VOL1:</path></file><trellObject><trellSearch>" +
              result + "<entry><dn>a</dn></entry></trellSearch><getAttribute>" + result +
              "<trellAttribute><value>a</value></trellAttribute></getAttribute></trellObject>");
        EXPECT_EQ(run(), status);
        Strings said;
        for (const std::string& line : log.take()) {
            if (const std::size_t reason = line.find("line "); line.starts_with("Error"))
                said.push_back(line.substr(0, reason == std::string::npos ? line.find("77") : reason));
        }
        EXPECT_EQ(said, complaints);
    }
    EXPECT_FALSE(owner.name || attributes.attributes || quota.quotaAmount);
    EXPECT_TRUE(users.empty() && files.empty() && objects.empty() && groups.empty());
    EXPECT_THAT(names, ElementsAre("kept"));
    EXPECT_EQ(directories.size(), 1U) << "what came before the error counts";
    EXPECT_TRUE(world.directory->queries.empty()) << "rows that are not kept need no names";
}

TEST_F(RequestLayer, TakesEndTagsThatNeverBegan) {
    XMLResponseParser parser;
    parser.didEndElement("read");
    EXPECT_EQ(parser.rightsBit, 0x0001);
    parser.didEndElement("rights");
    EXPECT_EQ(parser.rightsBit, 0);
    EXPECT_DEATH(parser.didEndElement("file"), "\"file\" ended in the reply and never began");
}

TEST_F(RequestLayer, KeepsEscapedNamesWhole) {
    for (const char* name : {R"(.CN=Smith\, Jo.O=org.TREE.)", R"(CN=a\+b.O=org)", R"(\TREE\O=a\.b\CN=c)"}) {
        std::string context;
        std::string object;
        EXPECT_FALSE(convertDntoContextAndNameRootLeft(name, context, object));
        EXPECT_EQ(context + object, name);
        EXPECT_EQ(getDNFromGroupNameRootRight(name), name);
    }
}

TEST_F(RequestLayer, WritesTheTagsOfAllAttributes) {
    std::string tags;
    for (const std::string_view name : FileAttributes::FILE_ATTRIBUTES) {
        tags += FileAttributes::FILE_ATTRIBUTES_TAG_ENABLED.at(name);
        tags += FileAttributes::FILE_ATTRIBUTES_TAG_DISABLED.at(name);
    }
    EXPECT_EQ(tags, R"(<readOnly enabled="yes"/><readOnly enabled="no"/>)"
                    R"(<hidden enabled="yes"/><hidden enabled="no"/>)"
                    R"(<archive enabled="yes"/><archive enabled="no"/>)"
                    R"(<immediatePurge enabled="yes"/><immediatePurge enabled="no"/>)"
                    R"(<renameInhibit enabled="yes"/><renameInhibit enabled="no"/>)"
                    R"(<deleteInhibit enabled="yes"/><deleteInhibit enabled="no"/>)"
                    R"(<compressImmediate enabled="yes"/><compressImmediate enabled="no"/>)"
                    R"(<doNotCompress enabled="yes"/><doNotCompress enabled="no"/>)");
}

} // namespace
} // namespace quorvan::test
