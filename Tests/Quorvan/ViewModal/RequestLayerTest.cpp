// SPDX-License-Identifier: GPL-3.0-or-later
//
// What holds for the request layer as a whole: one pipe, one operation at a time.
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

} // namespace
} // namespace quorvan::test
