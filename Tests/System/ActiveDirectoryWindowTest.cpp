// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Qt/QtBundle.h"
#include "Quorvan/Controller/MainStoryboard.h"
#include "Quorvan/Controller/MainWindow.h"
#include "Quorvan/Controller/RightsTabViewController.h"
#include "Quorvan/Toolkit/ListTable.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"
#include "Tests/System/ActiveDirectoryFixture.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace quorvan::test {
namespace {

/// The window, used with mouse and keyboard, over the simulated server and the real directory.
struct Window {
    Window(simulator::Embedded& server, const std::shared_ptr<DirectoryServices>& directory)
        : services([&] {
            Services all = server.services();
            all.directory = directory;
            all.bundle = std::make_shared<QtBundle>(QStringLiteral(FEATURES));
            all.alerts = alerts;
            return all;
        }()) {
        fillMainStoryboard();
        window = std::make_unique<MainWindow>();
        window->load();
        window->present();
    }

    /// A control of the sheet in front, or of the window when there is none.
    template <class Control>
    Control* find(const char* name) const {
        QWidget* sheet = QApplication::activeModalWidget();
        for (auto* control : (sheet != nullptr ? sheet : window.get())->findChildren<Control*>(name))
            if (control->isVisible())
                return control;
        throw std::runtime_error(std::string("there is no ") + name);
    }
    void click(const char* button) const {
        EXPECT_TRUE(find<QPushButton>(button)->isEnabled()) << button;
        QTest::mouseClick(find<QPushButton>(button), Qt::LeftButton);
    }
    void pick(const char* popUp, const char* item) const {
        auto* box = find<QComboBox>(popUp);
        while (box->currentText() != item && box->currentIndex() + 1 < box->count())
            QTest::keyClick(box, Qt::Key_Down);
        EXPECT_EQ(box->currentText(), item);
    }

    std::shared_ptr<RecordingAlerts> alerts = std::make_shared<RecordingAlerts>();
    ScopedServices services;
    std::unique_ptr<MainWindow> window;
};

TEST_F(ActiveDirectory, MakesAnOddlyNamedUserATrusteeThroughTheWindow) {
    int count = 1;
    char name[] = "active_directory_tests";
    char* arguments[] = {name, nullptr};
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    const QApplication application(count, arguments);
    const auto user = one(*client()->openNetworkNode(), users, recordName, odd);
    ASSERT_NE(user, nullptr);
    const std::string sid = user->values(smbSid).value().at(0);
    auto world = simulator::Embedded::demo();
    world.identities->addDomainUser(odd, sid);
    const auto rights = [&] {
        for (const auto& entry : world.server->trustees(simulator::demo::selection))
            if (entry.identity->id == sid)
                return static_cast<int>(entry.rights);
        return -1;
    };

    const LogRecorder quiet;
    const Window window(world, client());
    window.click("TrusteeRightsView");
    window.click("addBtn");
    window.pick("userTypePopUp", "Users");
    window.pick("domainPopUp", "/Active Directory/QUORVAN");
    window.click("btnFetch");
    auto* list = window.find<QTableView>("userListTable");
    EXPECT_GT(list->model()->rowCount(), 2500);
    auto* search = window.find<QLineEdit>("searchField");
    QTest::keyClicks(search, " (Q*X\\y");
    QTest::keyClick(search, Qt::Key_Return);
    ASSERT_EQ(list->model()->rowCount(), 1);
    const QModelIndex found = list->model()->index(0, 0);
    EXPECT_EQ(found.data().toString().toStdString(), odd);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(found).center());
    window.click("selectButton");
    EXPECT_EQ(rights(), -1) << "nothing is sent before Apply";
    window.click("applyBtn");
    EXPECT_EQ(rights(), 0x41);

    const auto* tab = dynamic_cast<RightsTabViewController*>(window.find<QPushButton>("addBtn")->parent());
    ASSERT_NE(tab, nullptr);
    const auto& trustee = *tab->trusteeList.back();
    EXPECT_EQ(trustee.trusteeName, odd);
    EXPECT_EQ(trustee.trusteeID, sid);
    EXPECT_EQ(trustee.trusteeType, "Users") << "which only the directory knows";
    EXPECT_THAT(window.alerts->shown, testing::IsEmpty());
    EXPECT_THAT(log, testing::IsEmpty());
}

} // namespace
} // namespace quorvan::test
