// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/ServerDetails.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/DistinguishedName.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"

#include <gmock/gmock.h>

namespace quorvan {
namespace {

namespace demo = simulator::demo;
using simulator::Embedded;
using testing::Contains;
using testing::ElementsAre;

constexpr const char* file = "VOL1:\\Projects\\Aurora\\Texte\\Grußwort.odt";

/// The real request layer in front of simulated servers: what one of them says the other must take.
class Client : public testing::Test {
protected:
    ~Client() override {
        XMLReadWriteController::closePipe();
        ServerDetails::forget();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    }

    platform::Services servicesWithTexts() const {
        platform::Services services = world.services();
        services.bundle = std::make_shared<test::FakeBundle>();
        return services;
    }

    void open(const char* share, const char* pipe) {
        XMLReadWriteController::closePipe();
        ASSERT_EQ(controller.openPipe(world.host, share, pipe), 0);
    }

    Embedded world = Embedded::demo();
    test::LogRecorder recorder;
    platform::ScopedServices installed{servicesWithTexts()};
    XMLReadWriteController controller;
};

TEST_F(Client, ReadsAndChangesWhatBelongsToAPath) {
    open("/IPC$", "/FilesCmdPipe");
    for (const auto& [type, id] :
         {std::pair("ActiveDirectory", world.server->findAccount(demo::readOnly)->identity->id),
          std::pair("Morvane", world.server->findAccount(demo::readOnlyTree)->identity->id)}) {
        TrusteeList trustees;
        EXPECT_EQ(controller.getEffectiveRightsforPath(demo::selection, trustees, type), "0");
        EXPECT_GT(trustees.size(), 10U);
        Rights rights;
        EXPECT_EQ(controller.getEffectiveRightsforUserOnPath(demo::selection, id, rights, type), "0");
        EXPECT_EQ(rights.uright, 0x0041);
        std::vector<std::string> names;
        EXPECT_EQ(controller.getEffectiveRightsForMappedUser(demo::selection, names, type), "0");
        EXPECT_THAT(names, Contains("supervisor"));

        controller.setFileInfoOwner(file, id, type);
        OwnerInfo owner;
        EXPECT_EQ(controller.getFileInfoOwner(file, owner, type), "0");
        EXPECT_EQ(owner.id, id);
        EXPECT_NE(owner.name, "");
        std::string tags = R"(<archive enabled="yes"/>)";
        for (const std::string_view each : FileAttributes::FILE_ATTRIBUTES)
            tags += (each == "archive" ? FileAttributes::FILE_ATTRIBUTES_TAG_ENABLED
                                       : FileAttributes::FILE_ATTRIBUTES_TAG_DISABLED)
                        .at(each);
        controller.setAttributes(file, tags);
        AttributesInfo attributes;
        EXPECT_EQ(controller.getAttributes(file, attributes, type), "0");
        EXPECT_THAT(attributes.attributes.value(), ElementsAre("archive"));
        controller.setDirectoryQuota(file, "2048");
        DirectoryQuotaInfo quota;
        EXPECT_EQ(controller.getDirectoryQuota(file, quota, type), "0");
        EXPECT_EQ(quota.quotaAmount, "2048");
        EXPECT_EQ(quota.usedAmount, "0");
    }
    EXPECT_EQ(controller.setInheritedRights(0x0041, file), 0);
    EXPECT_EQ(world.server->filter(file), 0x0041);
}

TEST_F(Client, ReadsTheRightsOfAllPaths) {
    open("/IPC$", "/RightsCmdPipe");
    for (const auto& [type, name] :
         {std::pair("ActiveDirectory", "Finance"), std::pair("Morvane", "CN=Lektorat.OU=Verlag.O=Meridal")}) {
        std::vector<DirectoryRights> all;
        EXPECT_EQ(controller.getIRRequest("VOL1:\\Projects", all, type), "0");
        std::erase_if(all, [&](const auto& each) { return each.trustee->trusteeName != name; });
        ASSERT_EQ(all.size(), 2U);
        EXPECT_EQ(all[0].path, demo::selection);
        std::vector<IdentityFileRights> files;
        EXPECT_EQ(controller.getFSRights("VOL1:\\Projects", {all[0].trustee->trusteeID}, files, type), "0");
        EXPECT_EQ(files.size(), 2U);
    }
}

TEST_F(Client, ReadsAndChangesUserQuotas) {
    open("/_admin", "/Manage_KELP/user.cmd");
    UserQuotaList domain;
    UserQuotaList tree;
    EXPECT_EQ(controller.getUserQuotaInfo(demo::selection, domain, "ActiveDirectory"), "0");
    EXPECT_EQ(controller.getUserQuotaInfo(demo::selection, tree, "Morvane"), "0");
    ASSERT_EQ(domain.size() + tree.size(), demo::usersWithQuota);
    UserQuotaList all = domain;
    while (all.size() < 600) // two requests of 300 users and an empty one
        all.insert(all.end(), tree.begin(), tree.end());
    for (const auto& each : all)
        each->action = each->domainIdentity == "Morvane" ? "REMOVE" : "MODIFY";
    domain.front()->quotaLimit = 77;
    EXPECT_EQ(controller.setUserQuotaInfo(demo::selection, all, "ActiveDirectory"), "0");
    EXPECT_EQ(world.server->requestCount(), 5U);
    UserQuotaList again;
    EXPECT_EQ(controller.getUserQuotaInfo(demo::selection, again, "Morvane"), "0");
    EXPECT_TRUE(again.empty());
    EXPECT_EQ(controller.getUserQuotaInfo(demo::selection, again, "ActiveDirectory"), "0");
    EXPECT_EQ(again.front()->quotaLimit, 77);
}

TEST_F(Client, FindsTheGroupsOfATreeUser) {
    open("/_admin", "/Manage_KELP/TRELL.cmd");
    std::vector<User> found;
    EXPECT_EQ(controller.getMorvaneBrowse(".OU=Archiv.O=Meridal.T=meridal-tree.", found), "0");
    std::erase_if(found, [](const User& each) { return each.trusteeName.find("Tōru") == std::string::npos; });
    ASSERT_EQ(found.size(), 1U);
    std::string context;
    std::string name;
    ASSERT_TRUE(convertDntoContextAndNameRootLeft(found[0].trusteeName, context, name));
    EXPECT_EQ(controller.getGuid_Morvane(context, name), found[0].trusteeID);
    std::vector<Group> groups;
    EXPECT_EQ(controller.getGroupMemberShip_Morvane("", groups, context, name), "0");
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(getDNFromGroupNameRootRight(groups[1].groupName),
              ".CN=Praktikanten.OU=Verlag.O=Meridal.MERIDAL-TREE.");
    ASSERT_TRUE(convertDntoContextAndNameRootLeft(groups[1].groupName, context, name));
    const auto* group = world.identities->findById(controller.getGuid_Morvane(context, name));
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(group->name, "CN=Praktikanten.OU=Verlag.O=Meridal");
}

TEST_F(Client, FindsTheCodeOfAFailureInEveryReply) {
    world.server->misbehaviour.code = 77;
    const std::string type = "ActiveDirectory";
    TrusteeList trustees;
    Rights rights;
    std::vector<DirectoryRights> directories;
    UserQuotaList quotas;
    std::vector<User> users;
    std::string server;
    std::string path;
    open("/IPC$", "/FilesCmdPipe");
    EXPECT_EQ(controller.initializeTrustees(file, type, trustees, rights, rights), "77");
    EXPECT_EQ(controller.setTrusteeAdd(Trustees("", "1", 0, "", "", type), file, type), "77");
    EXPECT_EQ(controller.setInheritedRights(0, file), 77);
    EXPECT_EQ(controller.getEffectiveRightsforPath(file, trustees, type), "77");
    open("/IPC$", "/RightsCmdPipe");
    EXPECT_EQ(controller.getIRRequest(file, directories, type), "77");
    open("/_admin", "/Manage_KELP/user.cmd");
    EXPECT_EQ(controller.getUserQuotaInfo(file, quotas, type), "77");
    EXPECT_EQ(controller.setUserQuotaInfo(file, {}, type), "77");
    open("/_admin", "/Manage_KELP/TRELL.cmd");
    EXPECT_EQ(controller.getMorvaneBrowse("O=Meridal", users), "77");
    EXPECT_EQ(controller.getGuid_Morvane("O=Meridal", "x"), "77");
    open("/IPC$", "/ZelSmbPipe");
    EXPECT_EQ(controller.getDFSPathInfo("VOL1:\\", server, path), "77");
}

TEST_F(Client, FollowsLinksToOtherServersAndFromThere) {
    // A link below a folder, and a share below the link: only a walk from the top finds the way.
    world.server->volumes().make("VOL1:\\Home\\Away")->link =
        simulator::Link{demo::secondHost, "DATA", "Festival Partners"};
    const struct {
        std::string mapped, selected, server, path;
    } cases[] = {
        {demo::link, "VOL1:\\Partners\\Contracts", "files2", "DATA:\\Festival Partners\\Contracts"},
        {demo::linkOnSameServer, "VOL1:\\Current Project\\Budget", "files",
         "VOL1:\\Projects\\Aurora\\Budget"},
        {"VOL1:\\Home\\Away\\Archive", "VOL1:\\Home\\Away\\Archive\\Größere Formate", "files",
         "VOL1:\\Archiv\\Größere Formate"},
    };
    for (const auto& each : cases) {
        std::string server = world.host;
        std::string path = each.selected;
        std::string mapped = each.mapped;
        OwnerInfo owner;
        EXPECT_EQ(controller.getFileInfoOwnerHandleDFS(server, path, owner, mapped, "Morvane"), 0);
        EXPECT_EQ(server, each.server);
        EXPECT_EQ(path, each.path);
        const simulator::KelpServer& target = server == "files2" ? *world.secondServer : *world.server;
        EXPECT_EQ(owner.id, ownerOf(*target.volumes().find(path)));
    }
}

} // namespace
} // namespace quorvan
