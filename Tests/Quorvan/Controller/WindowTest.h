// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Shell/MainWindow.h"
#include "Quorvan/Toolkit/RightsTable.h"
#include "Simulator/Embedded.h"
#include "Tests/Support/Fakes.h"
#include "Tests/Support/LogRecorder.h"

#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>

#include <functional>
#include <stdexcept>

namespace quorvan::test {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
namespace demo = simulator::demo;
using Texts = std::vector<std::string>;

/// The program's window over a server in memory, worked with mouse and keys; texts are their keys. The folder
/// that is selected has four trustees of Active Directory and one of the tree.
///
/// Controls are meant by their names, those of the sheet in front when there is one, and tables by theirs; ""
/// is the only table or the first. Paths read without "VOL1:\Tests\".
struct WindowTest : testing::Test {
    static constexpr const char* box = "VOL1:\\Tests\\Box";
    static constexpr const char* meridal = "/Active Directory/MERIDAL";
    static constexpr const char* nordhavn = "/Active Directory/NORDHAVN";
    static constexpr const char* verlag = ".OU=Verlag.O=Meridal.";

    WindowTest();
    ~WindowTest() override;

    // The way to a page

    /// Logs in anew and opens the window with its menu.
    void openWindow(const char* user = demo::supervisor);
    /// … and goes to one of the pages: "rights", "inherited", "effective", "folders" (the tabs of the trustee
    /// rights), "files", "quota", "information", "limit" (its other tab), "settings".
    /// `before` is called when nothing but the page itself is left to load.
    WindowTest& open(
        const char* page, const char* user = demo::supervisor, const std::function<void()>& before = [] {});
    /// Selects a path as it is mounted, "VOL1/Projects".
    void select(const std::string& local);

    // What the user does

    /// Carries out, from left to right, what is separated by commas: "addBtn" clicks a control, "pick 3 0"
    /// selects these rows of a table and no others, "tick 0R 2S" clicks its check boxes, "header" its first
    /// header, "type FIELD text" replaces the text of a field, "choose POPUP item", "key Return" goes to the
    /// control with the keyboard, "tab 2" opens a tab. A table is named behind a colon: "pick:subdirTable 1".
    WindowTest& act(const std::string& script);
    void click(const std::string& name);
    /// Carries out a scenario of lines "SCRIPT | EXPECTED | EXPECTED … // why". Expected is "rows A, B" (or
    /// "rows:TABLE …"), "row 1 A", "count 5", "empty TEXT" of a list without rows, "sent A / B" and "alerts
    /// A, B" since the last time, "logged LINE", "title TEXT", "focus NAME", or a control's name and its
    /// state. Beside what act() does, a script may "open PAGE USER", "break pipes", "lose password" and
    /// "mend".
    void play(const char* scenario);
    /// Fetches a category, "Users_Title", from a domain or from below a place in the tree in the browser that
    /// the button opens.
    void browse(const char* button, const char* category, const char* place);
    /// … and returns these of it.
    void take(const char* button, const char* category, const char* place, const Texts& names);

    // What the user sees

    QWidget& front() const;
    static QWidget* focus() { return QApplication::focusWidget(); }
    template <class Control = QWidget>
    Control& control(const std::string& name) const {
        return visible<Control>(front(), name);
    }
    /// The view itself, of that class, for what controls do not tell.
    template <class View>
    View& view() const {
        return visible<View>(*window, "");
    }
    bool isShown(const std::string& name) const;
    bool isEnabled(const char* name) const { return control(name).isEnabled(); }
    /// What these controls show, "20 GB, on, grey": a field's text, a pop-up's item, whether a box is on or
    /// off, a button's "ready"; "grey" behind or instead of it when it is disabled, "hidden" for what is not
    /// there.
    std::string state(const std::string& names) const;
    /// The value of a control's property: what it reads, whether it is checked, …
    std::string value(const char* name, const char* property = "text") const;
    std::string title() const { return front().windowTitle().toStdString(); }
    /// The rows of a table: the texts of its columns, then the letters of the ticked boxes; ">" in front of
    /// those that are selected.
    Texts rows(const std::string& table = "") const;
    /// The controls that Tab reaches from where the keyboard is, until it is there again; "read only" at the
    /// end where the page says so.
    std::string reached();
    /// The alerts since the last call, errors by their message alone.
    Texts alerts();
    /// The text of the alert sheet in front, which is then dismissed.
    std::string dismissAlert();

    // What the server gets

    /// The changes since the last call, one text for each request: "add Zoe Box; remove …; " for trustees, ID
    /// and amount for quotas, the plain value for everything else.
    Texts changes();
    int rightsOnServer(const char* id, const char* path = box) const; ///< -1 when it is no trustee there
    std::size_t requestsTo(const std::string& pipe) const;
    /// From now on every pipe fails to open.
    void breakPipes() { world.server->misbehaviour.openError = ENOENT; }
    void mend();
    /// From now on there is no password for the server, and no connection that has been made with it.
    void losePassword();
    void forgetServer();
    std::string& defaultOf(const char* key);

    LogRecorder log;
    simulator::Embedded world = simulator::Embedded::demo(demo::supervisor, box);
    std::shared_ptr<FakeBundle> bundle = std::make_shared<FakeBundle>();
    std::shared_ptr<RecordingAlerts> alertPort = std::make_shared<RecordingAlerts>();
    std::unique_ptr<platform::ScopedServices> installed;
    std::unique_ptr<MainWindow> window;

private:
    template <class Widget>
    static Widget& visible(const QWidget& parent, const std::string& name) {
        for (auto* each :
             parent.findChildren<QWidget*>(name.empty() ? QString() : QString::fromStdString(name)))
            if (auto* found = dynamic_cast<Widget*>(each); found != nullptr && each->isVisible())
                return *found;
        throw std::runtime_error("there is no " + name);
    }
    void expect(const QString& what, const QString& wanted);
    void actOnTable(const QString& verb, ListTable& table, const QStringList& arguments);
    ListTable& table(const std::string& name) const { return control<ListTable>(name); }
    std::size_t seen_ = 0;
};

} // namespace quorvan::test
