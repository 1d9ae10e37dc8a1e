// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/ServerDetails.h"
#include "Platform/Linux/SmbClientFileSystem.h"
#include "Quorvan/Controller/Shell/MainStoryboard.h"
#include "Quorvan/Controller/Shell/MainWindow.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"
#include "Tests/System/RealServer.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace quorvan::test {

/// The window over real SMB; hand-over, keychain and directory are in memory.
struct RealWindow : testing::Test {
    void SetUp() override {
        if (const std::string obstacle = RealServer::obstacle(); !obstacle.empty())
            GTEST_SKIP() << obstacle;
        server = std::make_unique<RealServer>();
        world.host = server->address;
        world.logIn(RealServer::user, RealServer::password);
        world.handOver("/Volumes/VOL1/Projects/Aurora", "VOL1:\\");
        platform::Services services = world.services();
        services.network = std::make_shared<platform::SmbClientFileSystem>(
            [](std::string_view line) { Log("%@", line); }, nullptr,
            platform::SmbTimeLimits{.silence = std::chrono::seconds(5)});
        const auto bundle = std::make_shared<FakeBundle>();
        bundle->texts["Managed_Server_Label"] = "on %1";
        services.bundle = bundle;
        services.alerts = alerts;
        installed = std::make_unique<platform::ScopedServices>(services);
        fillMainStoryboard();
        window = std::make_unique<MainWindow>();
        window->load();
        window->present();
    }
    void TearDown() override {
        window.reset();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        ServerDetails::forget();
    }
    template <class Control>
    Control* find(const char* name) const {
        QWidget* sheet = QApplication::activeModalWidget();
        for (auto* control : (sheet != nullptr ? sheet : window.get())->findChildren<Control*>(name))
            if (control->isVisible())
                return control;
        throw std::runtime_error(std::string("there is no ") + name);
    }
    void click(const char* button) const { QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton); }

    LogRecorder log;
    std::unique_ptr<RealServer> server;
    simulator::Embedded world = simulator::Embedded::demo();
    std::shared_ptr<RecordingAlerts> alerts = std::make_shared<RecordingAlerts>();
    std::unique_ptr<platform::ScopedServices> installed;
    std::unique_ptr<MainWindow> window;
};

} // namespace quorvan::test
