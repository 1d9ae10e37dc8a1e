// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/ServerDetails.h"
#include "Quorvan/Controller/RightsTabViewController.h"
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

#include <algorithm>
#include <string>
#include <vector>

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
    static constexpr const char* path = "VOL1:\\Tests\\Box";

    RightsTabFixture() {
        Storyboard::named("Main") = Storyboard();
        Storyboard::named("Main").add("optionsViewController", [] { return new ViewController; });
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        ServerDetails::forget();
        Shared::value().bothID = false;
        defaults()["loggedUserType"] = "ActiveDirectory";
        auto& people = *world.identities;
        for (const auto& [name, rights] : {std::pair<const char*, simulator::Mask>{"Müller", 0x1FB},
                                           {"admin", 0x041},
                                           {"Zoe", 0x000},
                                           {"ADMIN", 0x0FB}})
            world.server->setTrustee(path, people.addDomainUser(name, sid(name)), rights);
        world.server->setTrustee(path, people.addTreeUser("Vera", "Verlag", "guid-vera"), 0x041);
    }

    static std::string sid(const std::string& name) { return "S-1-5-21-" + name; }
    std::map<std::string, std::string>& defaults() { return world.sharedDefaults->values(groupSuiteName); }

    /// Opens the tab as it is opened in the window, for the rights that `user` holds on the folder.
    RightsTabViewController& open(const char* user = simulator::demo::supervisor) {
        world.logIn(user, simulator::demo::password);
        tab = new RightsTabViewController;
        host.insertChild(0, tab);
        host.resize(800, 500);
        host.beginAppearing();
        tab->resize(800, 500);
        host.show();
        host.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&host));
        host.endAppearing();
        return *tab;
    }

    // What the user does

    void close() {
        host.removeChild(tab);
        host.disappear();
        host.hide();
    }
    void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    void clickBox(int row, const char* identifier) {
        QTest::mouseClick(tab->rightsTable->viewport(), Qt::LeftButton, {},
                          tab->rightsTable->visualRect(tab->rightsTable->box(row, identifier)).center());
    }
    void select(int row, Qt::KeyboardModifiers modifiers = {}) {
        const QRect name = tab->rightsTable->visualRect(tab->rightsTable->box(row, "username"));
        QTest::mouseClick(tab->rightsTable->viewport(), Qt::LeftButton, modifiers, name.center());
    }
    void clickHeader() {
        QTest::mouseClick(tab->rightsTable->horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 8});
    }
    void search(const char* text) {
        tab->searchField->selectAll();
        if (*text == '\0')
            QTest::keyClick(tab->searchField, Qt::Key_Escape);
        else
            QTest::keyClicks(tab->searchField, QString::fromUtf8(text));
    }
    void reappear() {
        tab->disappear();
        tab->beginAppearing();
        tab->endAppearing();
    }

    // What there is to see

    /// The names in the table, top down.
    std::vector<std::string> shown() const {
        std::vector<std::string> names;
        const QAbstractItemModel* model = tab->rightsTable->model();
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
    /// Pending changes as "ADD admin 0x43".
    std::vector<std::string> pending() const {
        std::vector<std::string> changes;
        for (const auto& trustee : tab->trackTrusteeList)
            changes.push_back(trustee->status + " " + trustee->trusteeName + " " +
                              QStringLiteral("0x%1").arg(trustee->rights, 0, 16).toStdString());
        return changes;
    }
    std::vector<std::string> alerts() const {
        std::vector<std::string> messages;
        for (const auto& alert : alertPort->shown)
            messages.push_back(alert.message);
        return messages;
    }
    bool logged(const std::string& line) const {
        return std::find(log.lines.begin(), log.lines.end(), line) != log.lines.end();
    }

    // What the server saw and has

    /// The elements of the change requests that reached it, as "addTrustee S-1-5-21-Zoe", one text per
    /// request.
    std::vector<std::string> changeRequests() const {
        std::vector<std::string> found;
        for (const auto& request : world.server->requests()) {
            const QString text = QString::fromStdString(request.text);
            if (!text.contains("<trustees>"))
                continue;
            static const QRegularExpression change("<(addTrustee|removeTrustee)\\b.*?<userID>(.*?)</userID>");
            std::string line;
            for (auto it = change.globalMatch(text); it.hasNext();) {
                const auto match = it.next();
                line += (match.captured(1) + " " + match.captured(2) + "; ").toStdString();
            }
            found.push_back(line);
        }
        return found;
    }
    /// Nothing when it is no trustee of the folder.
    std::optional<simulator::Mask> onServer(const std::string& id) const {
        for (const auto& entry : world.server->trustees(path))
            if (entry.identity->id == id)
                return entry.rights;
        return std::nullopt;
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
    PageHost host;
    RightsTabViewController* tab = nullptr;
};

} // namespace quorvan::test
