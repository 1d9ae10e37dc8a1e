// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/ServerDetails.h"
#include "Platform/Linux/PlistSharedDefaults.h"
#include "Platform/Linux/SecretServiceKeychain.h"
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Platform/Linux/UnboundDirectory.h"
#include "Platform/Services.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"
#include "Tests/Support/PrivateKeyring.h"
#include "Tests/System/RealServer.h"

#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quorvan {
namespace {

using platform::SmbClientFileSystem;
using test::RealServer;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr const char* folderPath = "VOL1:\\Projects\\Aurora";

/// The request layer on the real adapters, in front of a real SMB server.
class Adapters : public testing::Test {
protected:
    void SetUp() override {
        if (const std::string obstacle = RealServer::obstacle(); !obstacle.empty())
            GTEST_SKIP() << obstacle;
        if (const std::string missing = test::PrivateKeyring::missingProgram(); !missing.empty())
            GTEST_SKIP() << missing << " is not installed";
        server = std::make_unique<RealServer>();
        keyring = std::make_unique<test::PrivateKeyring>();
    }
    void TearDown() override {
        for (const std::string& line : recorder.lines)
            EXPECT_THAT(line, Not(HasSubstr(RealServer::password)));
        ServerDetails::forget();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    }

    /// Starts over with the selection on `host`, and its password in the keyring unless that is empty.
    void select(const std::string& host, const std::string& password,
                std::chrono::milliseconds timeLimit = std::chrono::seconds(5)) {
        if (!password.empty())
            keyring->store({"server", host, "user", RealServer::user, "protocol", "smb"}, password);
        std::ofstream(keyring->home.path / "group.tarnix.common.plist")
            << "<plist version=\"1.0\"><dict><key>serverIP</key><string>" << host
            << "</string><key>selectedPath</key><string>/Volumes/VOL1/Projects/Aurora</string>"
               "<key>mappedPath</key><string>VOL1:\\</string></dict></plist>";
        const auto log = [](std::string_view line) { Log("%@", line); };
        services.reset();
        services = std::make_unique<platform::ScopedServices>(platform::Services{
            std::make_shared<platform::PlistSharedDefaults>(log),
            std::make_shared<platform::SecretServiceKeychain>(),
            std::make_shared<SmbClientFileSystem>(
                log, nullptr, platform::SmbTimeLimits{.silence = timeLimit, .secondTry = timeLimit / 2}),
            std::make_shared<platform::UnboundDirectory>(), std::make_shared<test::FakeVolumes>(),
            std::make_shared<test::FakeBundle>(), nullptr, nullptr});
        ServerDetails::forget();
        ServerDetails::serverInfo();
    }

    std::unique_ptr<RealServer> server;
    std::unique_ptr<test::PrivateKeyring> keyring;
    std::unique_ptr<platform::ScopedServices> services;
    test::LogRecorder recorder;
};

/// "ID MASK" of the Active Directory trustees, as the server itself tells it.
std::vector<std::string> trusteesOnServer(RealServer& server) {
    std::vector<std::string> found;
    std::istringstream lines(server.kelp.ask(std::string("trustees\t") + folderPath));
    for (std::string id, mask, name;
         std::getline(lines, id, '\t') && std::getline(lines, mask, '\t') && std::getline(lines, name);) {
        if (id.rfind("S-1-", 0) == 0)
            found.push_back(id + " " + std::to_string(std::stoi(mask, nullptr, 16)));
    }
    return found;
}

TEST_F(Adapters, ReadAndChangeTrusteesAndDropTheSessionsAtTheEnd) {
    select(server->address, RealServer::password);
    XMLReadWriteController controller;
    TrusteeList trustees;
    Rights filter;
    Rights effective;
    std::string host = server->address;
    std::string path = folderPath;
    std::string mapped = "VOL1:\\";
    ASSERT_EQ(controller.initializeTrusteesHandleDFS(host, trustees, path, filter, effective, mapped,
                                                     "ActiveDirectory"),
              0);
    std::vector<std::string> loaded;
    for (const auto& trustee : trustees)
        loaded.push_back(trustee->trusteeID + " " + std::to_string(trustee->rights));
    EXPECT_EQ(loaded, trusteesOnServer(*server));
    EXPECT_NE(effective.uright & 0x0100U, 0U);
    const std::string key = server->address + "/IPC$";
    EXPECT_THAT(recorder.take(),
                Contains("Adding new mount point to dictionary - key : " + key + " value : /IPC$"));

    ASSERT_EQ(controller.openPipe(server->address, "/IPC$", "/FilesCmdPipe"), 0);
    const std::vector<std::string> log = recorder.take();
    EXPECT_THAT(log, Contains(key + " is already mounted. Stat status 0"));
    EXPECT_THAT(log, Contains("Opened pipe /Volumes/IPC$/FilesCmdPipe with expected error on server " +
                              server->address + " and error id is 0"));
    trustees[0]->rights = 0x0041;
    trustees[0]->status = "ADD";
    trustees[1]->status = "REMOVE";
    controller.setTrustee({trustees[0], trustees[1]}, path, "ActiveDirectory");
    XMLReadWriteController::closePipe();
    EXPECT_THAT(trusteesOnServer(*server), Contains(trustees[0]->trusteeID + " 65"));
    EXPECT_THAT(trusteesOnServer(*server), Not(Contains(StartsWith(trustees[1]->trusteeID + " "))));

    ASSERT_EQ(controller.openPipe(server->address, "/_admin", "/Manage_KELP/TRELL.cmd"), 0);
    EXPECT_EQ(server->sessions("2 1"), "2 1");
    XMLReadWriteController::closePipe();
    recorder.take();
    DictionaryForMountedPIPE::mountDict().unmountAll();
    EXPECT_THAT(recorder.take(), ElementsAre("unmount " + key + "'s - /IPC$ : 0",
                                             "unmount " + server->address + "/_admin's - /_admin : 0"));
    EXPECT_EQ(server->sessions("0 0"), "0 0");
}

TEST_F(Adapters, GiveEachFailedMountItsErrorAndLogLine) {
    const std::string nobody = server->address.substr(0, server->address.rfind('.')) + ".254";
    const struct {
        std::string host, password, share, line;
        int status;
    } cases[] = {
        {server->address, "wrong", "/IPC$", "Error mounting virtual volume due to error code 13", EACCES},
        {server->address, RealServer::password, "/nowhere", "Virtual mount volume does not exist.", ENOENT},
        {nobody, RealServer::password, "/IPC$", "Error mounting virtual volume due to error code 111",
         ECONNREFUSED},
        {"no.such.host.invalid", RealServer::password, "/IPC$",
         "Error mounting virtual volume due to error code 113", EHOSTUNREACH},
        {"without.an.item", "", "/IPC$", "Keychain item not found, error returned: -25300", -25300},
    };
    for (const auto& item : cases) {
        select(item.host, item.password);
        recorder.take();
        XMLReadWriteController controller;
        EXPECT_EQ(controller.openPipe(item.host, item.share, "/FilesCmdPipe"), item.status);
        const std::vector<std::string> log = recorder.take();
        ASSERT_GE(log.size(), 2U);
        EXPECT_EQ(log[log.size() - 2], "Mounting pipe for smb://" + item.host + item.share);
        EXPECT_EQ(log.back(), item.line);
        EXPECT_EQ(server->sessions("0 0"), "0 0") << "after a failure nothing stays logged in";
    }
}

TEST_F(Adapters, GiveASecondMountAFreeName) {
    SmbClientFileSystem files([](std::string_view) {});
    const auto mount = [&] {
        return files.mount(server->url("IPC$"), RealServer::user, platform::Secret(RealServer::password), {});
    };
    EXPECT_THAT(mount().mountPoints, ElementsAre("/Volumes/IPC$"));
    EXPECT_THAT(mount().mountPoints, ElementsAre("/Volumes/IPC$-1"));
    const int file = files.open("/Volumes/IPC$-1/ZelSmbPipe");
    EXPECT_GT(file, 0);
    EXPECT_EQ(files.open("/Volumes/IPC$/NoSuchPipe"), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(server->sessions("2 1"), "2 1");

    EXPECT_EQ(files.unmount("/Volumes/IPC$-1", false), -1);
    EXPECT_EQ(errno, EBUSY);
    EXPECT_EQ(files.unmount("/Volumes/IPC$-1", true), 0);
    EXPECT_EQ(files.stat("/Volumes/IPC$-1"), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(files.close(file), -1);
    EXPECT_EQ(server->sessions("1 0"), "1 0");
    EXPECT_EQ(files.stat("/Volumes/IPC$"), 0);
    EXPECT_THAT(mount().mountPoints, ElementsAre("/Volumes/IPC$-1"));
}

TEST_F(Adapters, EndAnExchangeWhoseServerGoesAndReconnectForTheNext) {
    select(server->address, RealServer::password);
    XMLReadWriteController controller;
    const auto exchange = [&] {
        EXPECT_EQ(controller.openPipe(server->address, "/IPC$", "/FilesCmdPipe"), 0);
        std::string reply = controller.getTrusteeList(folderPath, "ActiveDirectory");
        XMLReadWriteController::closePipe();
        return reply;
    };
    const std::string lost = "Lost the server at /Volumes/IPC$/FilesCmdPipe: ";
    server->kelp.ask("misbehave\treplyMegabytes\t1");
    server->kelp.ask("misbehave\tdropAfter\t8192");
    EXPECT_EQ(exchange(), "") << "a part of a reply is none";
    EXPECT_NE(controller.loss(), 0);
    EXPECT_THAT(recorder.take(), Contains(StartsWith(lost)).Times(1));

    server->kelp.ask("behave");
    server->kelp.ask("misbehave\tpassingReadErrors\t3");
    EXPECT_THAT(exchange(), HasSubstr("S-1-5-21-"));
    EXPECT_THAT(recorder.take(), Not(Contains(StartsWith(lost))));

    // Slower than the time limit, but a second connection is answered.
    server->kelp.ask("misbehave\tdelay\t3000");
    select(server->address, RealServer::password, std::chrono::seconds(1));
    EXPECT_THAT(exchange(), HasSubstr("S-1-5-21-"));
    EXPECT_THAT(recorder.take(), Not(Contains(StartsWith(lost))));

    ASSERT_EQ(controller.openPipe(server->address, "/IPC$", "/FilesCmdPipe"), 0);
    server->front.reset();
    EXPECT_THAT(controller.getTrusteeList(folderPath, "ActiveDirectory"), IsEmpty());
    EXPECT_THAT(recorder.take(), Contains(StartsWith(lost)).Times(1));
    XMLReadWriteController::closePipe();
    EXPECT_NE(controller.openPipe(server->address, "/IPC$", "/FilesCmdPipe"), 0);
}

TEST_F(Adapters, AssembleAReplyOfTwentyMegabytes) {
    select(server->address, RealServer::password);
    server->kelp.ask("misbehave\treplyMegabytes\t20");
    XMLReadWriteController controller;
    ASSERT_EQ(controller.openPipe(server->address, "/IPC$", "/FilesCmdPipe"), 0);
    const std::string reply = controller.getTrusteeList(folderPath, "ActiveDirectory");
    EXPECT_GE(reply.size(), 20U << 20U);
    EXPECT_EQ(controller.getResultValue(reply, {"fileInfo", "getFileInfo", "result"}), "0");
    XMLReadWriteController::closePipe();
    ASSERT_TRUE(controller.dictResponse);
    EXPECT_GT(controller.dictResponse->size(), 10U) << "the padding must not swallow the entries";
    EXPECT_THAT(recorder.take(), Not(Contains(StartsWith("Lost the server"))));
}

} // namespace
} // namespace quorvan
