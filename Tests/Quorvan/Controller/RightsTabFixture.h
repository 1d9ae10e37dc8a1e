// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Toolkit/SearchField.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace quorvan::test {

/// Takes the place of the window: shows a page and notes when it is to be replaced.
class PageHost : public ViewController, public PageContainer {
public:
    void showDestinationView(ViewController* source, ViewController* destination,
                             const QString& title) override {
        titles.push_back(title.toStdString());
        removeChild(source);
        insertChild(0, destination);
    }
    std::vector<std::string> titles;
};

/// The trustee rights tab of a folder with four trustees of Active Directory and one of the tree, over
/// a server in memory. Controls are clicked and typed into as a user does.
struct RightsTabFixture : testing::Test {
    using Texts = std::vector<std::string>;
    static constexpr const char* path = "VOL1:\\Tests\\Box";

    RightsTabFixture() {
        Storyboard::named("Main") = Storyboard();
        Storyboard::named("Main").add("optionsViewController", [] { return new ViewController; });
        Shared::value().bothID = false;
        for (const auto& [name, rights] : {std::pair<const char*, simulator::Mask>{"Müller", 0x1FB},
                                           {"admin", 0x041},
                                           {"Zoe", 0x000},
                                           {"ADMIN", 0x0FB}})
            world.server->setTrustee(path, world.identities->addDomainUser(name, name), rights);
        world.server->setTrustee(path, world.identities->addTreeUser("Vera", "Verlag", "guid-vera"), 0x041);
    }

    /// Opens the tab anew as the window does, for the rights that `user` holds on the folder.
    void open(const char* user = simulator::demo::supervisor, const char* identityType = "ActiveDirectory") {
        tab = openPage<RightsTabViewController>(user, identityType);
    }
    template <class Page>
    Page* openPage(const char* user, const char* identityType) {
        world.sharedDefaults->values(groupSuiteName)["loggedUserType"] = identityType;
        host = std::make_unique<PageHost>();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        ServerDetails::forget();
        world.logIn(user, simulator::demo::password);
        auto* page = new Page;
        host->insertChild(0, page);
        host->beginAppearing();
        page->resize(800, 500);
        host->resize(800, 500);
        host->show();
        host->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(host.get()));
        host->endAppearing();
        return page;
    }
    void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void clickCell(int row, const char* identifier, Qt::KeyboardModifiers modifiers = {}) {
        const QRect cell = tab->rightsTable->visualRect(tab->rightsTable->box(row, identifier));
        QTest::mouseClick(tab->rightsTable->viewport(), Qt::LeftButton, modifiers, cell.center());
    }
    void clickHeader() {
        QTest::mouseClick(tab->rightsTable->horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 8});
    }
    void search(const char* text) {
        QTest::keyClick(tab->searchField, Qt::Key_Escape);
        QTest::keyClicks(tab->searchField, QString::fromUtf8(text));
    }
    void reappear() {
        tab->disappear();
        tab->beginAppearing();
        tab->endAppearing();
    }

    Texts shown() const { return names(*tab->rightsTable); }
    static Texts names(const QTableView& table) {
        Texts names;
        const QAbstractItemModel* model = table.model();
        for (int row = 0; row < model->rowCount(); ++row)
            names.push_back(model->index(row, 0).data().toString().toStdString());
        return names;
    }
    bool ticked(int row, const char* identifier) const {
        return tab->rightsTable->box(row, identifier).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    bool changesEnabled() const {
        EXPECT_EQ(tab->applyBtn->isEnabled(), tab->revertBtn->isEnabled());
        return tab->applyBtn->isEnabled();
    }
    /// The pending changes as "ADD admin 0x43".
    Texts pending() const {
        Texts changes;
        for (const auto& trustee : tab->trackTrusteeList)
            changes.push_back(trustee->status + " " + trustee->trusteeName + " 0x" +
                              QString::number(trustee->rights, 16).toStdString());
        return changes;
    }
    Texts alerts() const {
        Texts messages;
        for (const auto& alert : alertPort->shown)
            messages.push_back(alert.message);
        return messages;
    }
    /// The changes that reached the server as "addTrustee Zoe; ", one text for each request.
    Texts changeRequests() const {
        static const QRegularExpression change(
            "<(addTrustee|removeTrustee)\\b[^>]*>(?:<adUser/>)?<userID>(.*?)<");
        Texts found;
        for (const auto& request : world.server->requests()) {
            std::string line;
            for (auto it = change.globalMatch(QString::fromStdString(request.text)); it.hasNext();) {
                const auto match = it.next();
                line += (match.captured(1) + " " + match.captured(2) + "; ").toStdString();
            }
            if (!line.empty())
                found.push_back(line);
        }
        return found;
    }
    /// -1 when it is no trustee of the folder.
    int onServer(const std::string& id) const {
        for (const auto& entry : world.server->trustees(path))
            if (entry.identity->id == id)
                return entry.rights;
        return -1;
    }

    LogRecorder log;
    simulator::Embedded world = simulator::Embedded::demo(simulator::demo::supervisor, path);
    std::shared_ptr<FakeBundle> bundle = std::make_shared<FakeBundle>();
    std::shared_ptr<RecordingAlerts> alertPort = std::make_shared<RecordingAlerts>();
    platform::ScopedServices installed{[this] {
        platform::Services services = world.services();
        services.bundle = bundle;
        services.alerts = alertPort;
        services.busy = std::make_shared<CountingBusyIndicator>();
        return services;
    }()};
    std::unique_ptr<PageHost> host;
    RightsTabViewController* tab = nullptr;
};

} // namespace quorvan::test
