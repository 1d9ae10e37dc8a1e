// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/IdentityBrowsers.h"
#include "Quorvan/Controller/Shared.h"
#include "Tests/Quorvan/Controller/RightsTabFixture.h"

#include <QComboBox>
#include <QMessageBox>

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
