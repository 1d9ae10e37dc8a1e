// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/IdentityBrowsers.h"
#include "Quorvan/Controller/MainStoryboard.h"
#include "Quorvan/Controller/Shared.h"
#include "Tests/Quorvan/Controller/RightsTabFixture.h"

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QRadioButton>
#include <QTableView>

#include <stdexcept>

namespace quorvan::test {

/// Stands in for a browser of identities: says what was wanted, and hands on an answer.
struct FakeBrowser : ViewController, IdentityBrowser {
    explicit FakeBrowser(const char* browserName) { setObjectName(QLatin1String(browserName)); }
    void prepare(ViewController&, IdentityBrowserDelegate& wanting, const IdentityWish& wanted) override {
        delegate = &wanting;
        wish = wanted;
    }
    IdentityBrowserDelegate* delegate = nullptr;
    IdentityWish wish;
};

/// A page about a path of the demo data, over a server in memory; texts are their keys.
struct PropertyFixture : testing::Test {
    explicit PropertyFixture(simulator::Embedded initial = simulator::Embedded::demo())
        : world(std::move(initial)) {
        bundle->texts = {{"Owner_Gone_Label", "gone: %1"}, {"Quota_Usage_Label", "%1 % used"}};
        Storyboard::named("Main") = Storyboard();
        Storyboard::named("Main").add("optionsViewController", [] { return new ViewController; });
        for (const char* browser : {"IdentifySource", "oldViewBrowseAD", "ViewBrowseAD", "ViewBrowseMorvane"})
            Storyboard::named("Main").add(browser, [browser] { return new FakeBrowser(browser); });
    }
    ~PropertyFixture() override { Shared::value().bothID = false; }

    /// Opens `page` as the window does, for `user`, on `path`.
    template <class Page>
    Page* open(const char* path, const char* user, const char* userType) {
        host = std::make_unique<PageHost>();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        ServerDetails::forget();
        world.logIn(user, simulator::demo::password);
        std::string local = path;
        local.erase(local.find(':'), 1);
        std::replace(local.begin(), local.end(), '\\', '/');
        world.handOver("/Volumes/" + local, "VOL1:\\");
        world.sharedDefaults->values(groupSuiteName)["loggedUserType"] = userType;
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
    static void click(QAbstractButton* button) { QTest::mouseClick(button, Qt::LeftButton); }
    static void type(QLineEdit* field, const char* text) {
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, QString::fromUtf8(text));
    }
    static void choose(QComboBox* popUp, int item) {
        while (popUp->currentIndex() != item)
            QTest::keyClick(popUp, popUp->currentIndex() < item ? Qt::Key_Down : Qt::Key_Up);
    }
    /// The text of the alert sheet over a view, which is then dismissed; "" when there is none.
    std::string dismissSheet(const QWidget* view) {
        auto* sheet = view->window()->findChild<QMessageBox*>();
        if (sheet == nullptr)
            return {};
        std::string text = sheet->text().toStdString();
        click(sheet->buttons().front());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return text;
    }
    /// The browser that was opened last over the window of a view.
    static FakeBrowser& browser(const QWidget* view) {
        FakeBrowser* last = nullptr;
        for (QWidget* each : view->window()->findChildren<QWidget*>())
            if (auto* found = dynamic_cast<FakeBrowser*>(each))
                last = found;
        EXPECT_NE(last, nullptr);
        return *last;
    }
    static void closeBrowser(const QWidget* view) {
        browser(view).endSheet();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    /// A control of the sheet in front.
    template <class Control>
    static Control* front(const char* name) {
        const QWidget* sheet = QApplication::activeModalWidget();
        Control* control = sheet != nullptr ? sheet->findChild<Control*>(name) : nullptr;
        if (control == nullptr)
            throw std::runtime_error(std::string("there is no ") + name);
        return control;
    }
    /// Picks rows of the real browser in front: of the tree's users below `place`, or of those of a domain.
    static void pickUsers(const char* place, std::initializer_list<int> rows) {
        choose(front<QComboBox>("userTypePopUp"), 0);
        if (*place == '.')
            type(front<QLineEdit>("treeTextField"), place);
        else
            while (front<QComboBox>("domainPopUp")->currentText() != place)
                QTest::keyClick(front<QComboBox>("domainPopUp"), Qt::Key_Down);
        click(front<QPushButton>("btnFetch"));
        auto* list = front<QTableView>("userListTable");
        for (const int row : rows)
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                              list->visualRect(list->model()->index(row, 0)).center());
        click(front<QPushButton>("selectButton"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    std::vector<std::string> alerts() {
        std::vector<std::string> messages;
        for (const auto& alert : std::exchange(alertPort->shown, {}))
            messages.push_back(alert.message);
        return messages;
    }
    /// What the requests since the last call say between `before` and `after`, one text for each that has it.
    std::vector<std::string> sent(const std::string& before, const std::string& after) {
        std::vector<std::string> found;
        for (; seen < world.server->requests().size(); ++seen) {
            const std::string& text = world.server->requests()[seen].text;
            if (auto at = text.find(before); at != std::string::npos) {
                at += before.size();
                found.push_back(text.substr(at, text.find(after, at) - at));
            }
        }
        return found;
    }
    simulator::Node& node(const char* path) { return *world.server->volumes().find(path); }

    LogRecorder log;
    simulator::Embedded world;
    std::shared_ptr<FakeBundle> bundle = std::make_shared<FakeBundle>();
    std::shared_ptr<RecordingAlerts> alertPort = std::make_shared<RecordingAlerts>();
    platform::ScopedServices installed{[this] {
        platform::Services services = world.services();
        services.bundle = bundle;
        services.alerts = alertPort;
        return services;
    }()};
    std::unique_ptr<PageHost> host;
    std::size_t seen = 0;
};

} // namespace quorvan::test
