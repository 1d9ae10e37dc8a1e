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

/// A control of the sheet in front, or of the window when there is none.
template <class Control>
Control* control(const MainWindow& window, const char* name) {
    const QWidget* sheet = QApplication::activeModalWidget();
    for (auto* each : (sheet != nullptr ? sheet : &window)->findChildren<Control*>(name))
        if (each->isVisible())
            return each;
    throw std::runtime_error(name);
}

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

    const auto alerts = std::make_shared<RecordingAlerts>();
    Services services = world.services();
    services.directory = client();
    services.bundle = std::make_shared<QtBundle>(QStringLiteral(FEATURES));
    services.alerts = alerts;
    const ScopedServices installed(services);
    const LogRecorder quiet;
    fillMainStoryboard();
    MainWindow window;
    window.load();
    window.present();
    const auto click = [&](const char* button) {
        QTest::mouseClick(control<QPushButton>(window, button), Qt::LeftButton);
    };
    const auto pick = [&](const char* name, const QString& item) {
        auto* popUp = control<QComboBox>(window, name);
        while (popUp->currentText() != item && popUp->currentIndex() + 1 < popUp->count())
            QTest::keyClick(popUp, Qt::Key_Down);
    };

    click("TrusteeRightsView");
    click("addBtn");
    pick("userTypePopUp", "Users");
    pick("domainPopUp", "/Active Directory/QUORVAN");
    click("btnFetch");
    auto* list = control<QTableView>(window, "userListTable");
    EXPECT_GT(list->model()->rowCount(), 2500);
    auto* search = control<QLineEdit>(window, "searchField");
    QTest::keyClicks(search, " (Q*X\\y");
    QTest::keyClick(search, Qt::Key_Return);
    ASSERT_EQ(list->model()->rowCount(), 1);
    const QModelIndex found = list->model()->index(0, 0);
    EXPECT_EQ(found.data().toString().toStdString(), odd);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(found).center());
    click("selectButton");
    EXPECT_EQ(rights(), -1) << "nothing is sent before Apply";
    click("applyBtn");
    EXPECT_EQ(rights(), 0x41);

    const auto* tab =
        dynamic_cast<RightsTabViewController*>(control<QPushButton>(window, "addBtn")->parent());
    ASSERT_NE(tab, nullptr);
    const auto& trustee = *tab->trusteeList.back();
    EXPECT_EQ(trustee.trusteeName, odd);
    EXPECT_EQ(trustee.trusteeID, sid);
    EXPECT_EQ(trustee.trusteeType, "Users") << "which only the directory knows";
    EXPECT_THAT(alerts->shown, testing::IsEmpty());
    EXPECT_THAT(log, testing::IsEmpty());
}

} // namespace
} // namespace quorvan::test
