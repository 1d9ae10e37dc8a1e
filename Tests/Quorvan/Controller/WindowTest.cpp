// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/Controller/WindowTest.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Controller/Identities/BrowseMorvaneUserListViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Controller/Shell/MainStoryboard.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Quorvan/Toolkit/ViewState.h"
#include "Tests/Support/Table.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>

#include <algorithm>

namespace quorvan::test {

namespace {

struct Page {
    const char* name;
    const char* entry; ///< of the menu
    int tab;
};
constexpr Page pages[] = {{"rights", "TrusteeRightsView", 0},
                          {"inherited", "TrusteeRightsView", 1},
                          {"effective", "TrusteeRightsView", 2},
                          {"folders", "TrusteeRightsView", 3},
                          {"files", "FileSystemRightsView", 0},
                          {"quota", "UserQuotaView", 0},
                          {"information", "DirectoryQuotaView", 0},
                          {"limit", "DirectoryQuotaView", 1},
                          {"settings", "SettingView", 0}};

std::string shortened(QString text) {
    return text.remove("VOL1:\\Tests\\").toStdString();
}

} // namespace

WindowTest::WindowTest() {
    platform::Services services = world.services();
    services.bundle = bundle;
    bundle->texts = {{"Managed_Server_Label", "on %1"},       {"Inherited_Box_Tip_Label", "filter %1"},
                     {"No_Match_Label", "nothing like %1"},   {"No_Groups_Below_Label", "no groups below %1"},
                     {"Domain_Silent_Label", "%1 is silent"}, {"Owner_Gone_Label", "gone: %1"},
                     {"Quota_Usage_Label", "%1 % used"},      {"No_Match_Path_Label", "no path like %1"}};
    services.alerts = alertPort;
    services.busy = std::make_shared<CountingBusyIndicator>();
    installed = std::make_unique<platform::ScopedServices>(services);
    Storyboard::named("Main") = Storyboard();
    fillMainStoryboard();
    Shared::value().bothID = false;
    SharedTreeName::value().treeName.clear();
    ViewState().clear(); // the tests of one run share it

    for (const char* name : {"Müller", "admin", "Zoe", "ADMIN"})
        world.identities->addDomainUser(name, name);
    world.identities->addTreeUser("Vera", "Verlag", "guid-vera");
    const std::tuple<const char*, const char*, simulator::Mask> trustees[] = {
        {"\\Box", "Müller", 0x1FB},   {"\\Box", "admin", 0x041},     {"\\Box", "Zoe", 0x000},
        {"\\Box", "ADMIN", 0x0FB},    {"\\Box", "guid-vera", 0x041}, {"\\Box\\Low", "admin", 0x041},
        {"\\Box\\Low", "Zoe", 0x0FB}, {"", "admin", 0x0C1},          {"\\Boxes", "Zoe", 0x041}};
    for (const auto& [path, id, rights] : trustees)
        world.server->setTrustee(std::string("VOL1:\\Tests") + path, *world.identities->findById(id), rights);
}

WindowTest::~WindowTest() {
    window.reset();
    Shared::value().bothID = false;
    forgetServer();
}

void WindowTest::openWindow(const char* user) {
    window.reset();
    forgetServer();
    world.logIn(user, demo::password);
    window = std::make_unique<MainWindow>();
    window->load();
    window->present();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &front(); }));
}

WindowTest& WindowTest::open(const char* page, const char* user, const std::function<void()>& before) {
    const auto* found = std::ranges::find(pages, std::string_view(page), &Page::name);
    openWindow(user);
    if (found->tab == 0)
        before();
    click(found->entry);
    if (found->tab != 0) {
        before();
        act("tab " + std::to_string(found->tab));
    }
    changes();
    return *this;
}

void WindowTest::select(const std::string& local) {
    world.handOver("/Volumes/" + local, local.substr(0, local.find('/')) + ":\\");
}

WindowTest& WindowTest::act(const std::string& script) {
    for (const QString& step : QString::fromStdString(script).split(", ")) {
        const QString verb = step.section(' ', 0, 0);
        const std::string object = step.section(' ', 1, 1).toStdString();
        const QString rest = step.section(' ', 2);
        if (verb == "type") {
            auto& field = control<QLineEdit>(object);
            field.setFocus();
            field.selectAll();
            QTest::keyClick(&field, Qt::Key_Delete);
            QTest::keyClicks(&field, rest);
        } else if (verb == "choose") {
            auto& popUp = control<QComboBox>(object);
            popUp.setFocus();
            for (const int wanted = popUp.findText(rest); wanted >= 0 && popUp.currentIndex() != wanted;)
                QTest::keyClick(&popUp, popUp.currentIndex() < wanted ? Qt::Key_Down : Qt::Key_Up);
            EXPECT_EQ(popUp.currentText(), rest);
        } else if (verb == "key") {
            const QKeyCombination key = QKeySequence(object.c_str())[0];
            QTest::keyClick(focus() != nullptr ? focus() : &front(), key.key(), key.keyboardModifiers());
        } else if (verb == "open") {
            open(object.c_str(), rest.isEmpty() ? demo::supervisor : rest.toUtf8().constData());
        } else if (verb == "break") {
            breakPipes();
        } else if (verb == "lose") {
            losePassword();
        } else if (verb == "mend") {
            mend();
        } else if (verb == "tab") {
            auto& bar = control<QTabBar>("");
            QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(std::stoi(object)).center());
            QCoreApplication::processEvents(); // the controls of a view that loads under the eyes follow
        } else if (const QStringList parts = verb.split(':');
                   QString("pick tick header").contains(parts[0])) {
            actOnTable(parts[0], table(parts.mid(1).join("").toStdString()), step.split(' ').mid(1));
        } else {
            click(step.toStdString());
        }
    }
    return *this;
}

void WindowTest::play(const char* scenario) {
    for (const QString& line : QString(scenario).split('\n')) {
        SCOPED_TRACE(line.trimmed().toStdString());
        const QStringList cells = line.section(" //", 0, 0).split('|');
        if (const std::string script = cells[0].trimmed().toStdString(); !script.empty())
            act(script);
        for (const QString& cell : cells.mid(1))
            expect(cell.trimmed().section(' ', 0, 0), cell.trimmed().section(' ', 1));
    }
}

void WindowTest::expect(const QString& what, const QString& wanted) {
    const std::string kind = what.section(':', 0, 0).toStdString();
    const std::string list = what.section(':', 1).toStdString();
    std::string seen;
    if (kind == "rows") {
        seen = joined(rows(list), ", ");
    } else if (kind == "row") {
        const QString row = wanted.section(' ', 0, 0);
        seen = row.toStdString() + ' ' + rows(list).at(row.toUInt());
    } else if (kind == "count") {
        seen = std::to_string(rows(list).size());
    } else if (kind == "empty") {
        seen = rows(list).empty() ? table(list).emptyText().toStdString() : "not empty";
    } else if (kind == "sent") {
        seen = joined(changes(), " / ");
    } else if (kind == "alerts") {
        seen = joined(alerts(), ", ");
    } else if (kind == "logged") {
        for (const std::string& line : log.lines)
            if (QString::fromStdString(line).trimmed() == wanted)
                seen = wanted.toStdString();
    } else if (kind == "title") {
        seen = title();
    } else if (kind == "focus") {
        seen = focus()->objectName().toStdString();
    } else {
        seen = state(kind);
    }
    EXPECT_EQ(seen, wanted.toStdString()) << kind;
}

void WindowTest::actOnTable(const QString& verb, ListTable& list, const QStringList& arguments) {
    if (verb == "header")
        QTest::mouseClick(list.horizontalHeader()->viewport(), Qt::LeftButton, {}, {20, 8});
    if (verb == "pick")
        list.clearSelection();
    for (const QString& each : arguments) {
        const bool isBox = verb == "tick";
        const int row = (isBox ? each.chopped(1) : each).toInt();
        const QModelIndex cell = isBox
                                     ? dynamic_cast<RightsTable&>(list).box(row, each.right(1).toStdString())
                                     : list.model()->index(row, 0);
        list.scrollTo(cell);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, isBox ? Qt::NoModifier : Qt::ControlModifier,
                          list.visualRect(cell).center());
    }
}

void WindowTest::click(const std::string& name) {
    if (auto* item = front().findChild<QAction*>(QString::fromStdString(name))) {
        EXPECT_TRUE(item->isEnabled()) << name;
        return item->trigger();
    }
    auto& target = control(name);
    EXPECT_TRUE(target.isEnabled()) << name;
    const bool hasMark = !target.inherits("QPushButton"); // is hit on its mark and text alone
    QTest::mouseClick(&target, Qt::LeftButton, {}, hasMark ? QPoint(8, target.height() / 2) : QPoint());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (QApplication::activeWindow() == nullptr)
        front().activateWindow(); // a desktop does so when a sheet closes
    EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &front(); }));
}

void WindowTest::browse(const char* button, const char* category, const char* place) {
    click(button);
    const bool isTree = *place == '.';
    if (isShown("MorvaneBtn"))
        act(isTree ? "MorvaneBtn, OkBtn" : "ADBtn, OkBtn");
    act(std::string("choose userTypePopUp ") + category +
        (isTree ? ", type treeTextField " : ", choose domainPopUp ") + place + ", btnFetch");
}

void WindowTest::take(const char* button, const char* category, const char* place, const Texts& names) {
    browse(button, category, place);
    const Texts listed = rows("userListTable");
    EXPECT_THAT(listed, testing::IsSupersetOf(names));
    std::string picked;
    for (const std::string& name : names)
        picked += ' ' + std::to_string(std::ranges::find(listed, name) - listed.begin());
    act("pick:userListTable" + picked + ", selectButton");
}

QWidget& WindowTest::front() const {
    QWidget* sheet = QApplication::activeModalWidget();
    return sheet != nullptr ? *sheet : *window;
}

bool WindowTest::isShown(const std::string& name) const {
    const auto found = front().findChildren<QWidget*>(QString::fromStdString(name));
    return std::ranges::any_of(found, &QWidget::isVisible);
}

std::string WindowTest::state(const std::string& names) const {
    QStringList states;
    for (const QString& name : QString::fromStdString(names).split(' ')) {
        if (!isShown(name.toStdString())) {
            states.append("hidden");
            continue;
        }
        const QWidget& each = control(name.toStdString());
        const QVariant checked = each.property("checked");
        const bool isButton = checked.isValid();
        QString text = each.property(each.inherits("QComboBox") ? "currentText" : "text").toString();
        if (isButton)
            text = !each.property("checkable").toBool() ? (each.isEnabled() ? "ready" : "")
                   : each.property("tristate").toBool() ? "unknown"
                   : checked.toBool()                   ? "on"
                                                        : "off";
        states.append(each.isEnabled() ? text : (text + " grey").trimmed());
    }
    return states.join(", ").toStdString();
}

std::string WindowTest::value(const char* name, const char* property) const {
    return control(name).property(property).toString().toStdString();
}

Texts WindowTest::rows(const std::string& name) const {
    const QAbstractItemModel* model = table(name).model();
    const std::vector<int> selected = table(name).selectedRowIndexes();
    Texts found;
    for (int row = 0; row < model->rowCount(); ++row) {
        QStringList texts;
        QString ticked;
        for (int column = 0; column < model->columnCount(); ++column) {
            const QModelIndex cell = model->index(row, column);
            if (const QVariant mark = cell.data(Qt::CheckStateRole); !mark.isValid())
                texts.append(cell.data().toString());
            else if (mark.toInt() == Qt::Checked)
                ticked += model->headerData(column, Qt::Horizontal).toString();
        }
        if (!ticked.isEmpty())
            texts.append(ticked);
        found.push_back((std::ranges::count(selected, row) != 0 ? ">" : "") + shortened(texts.join(' ')));
    }
    return found;
}

std::string WindowTest::reached() {
    QSet<const QWidget*> visited;
    QStringList names;
    if (focus() == nullptr)
        act("key Tab");
    for (; !visited.contains(focus()); act("key Tab")) {
        visited.insert(focus());
        names.append(focus()->objectName().replace("qt_tabwidget_tabbar", "tabs"));
    }
    if (isShown("readOnlyLabel"))
        names.append("read-only");
    return names.join(' ').trimmed().toStdString();
}

Texts WindowTest::alerts() {
    Texts messages;
    for (const auto& alert : alertPort->shown) {
        const bool isError = alert.windowTitle == "Error_Title";
        EXPECT_EQ(alert.style == platform::AlertStyle::critical, isError);
        messages.push_back(isError ? alert.message : alert.windowTitle + ": " + alert.message);
    }
    alertPort->shown.clear();
    return messages;
}

std::string WindowTest::dismissAlert() {
    auto& alert = dynamic_cast<QMessageBox&>(front());
    QTest::mouseClick(alert.buttons().front(), Qt::LeftButton);
    return alert.text().toStdString();
}

Texts WindowTest::changes() {
    static const QRegularExpression change(
        "<(add|remove)Trustee\\b.*?<userID>(.*?)</userID>.*?<fileName>(.*?)</fileName>|"
        "<id>(.*?)</id><quota>(.*?)</quota>|<quotaAmount>(.*?)<|<creatorID[^>]*>(.*?)<|"
        "<attributes>(.+?)</attributes>");
    Texts found;
    for (; seen_ < world.server->requests().size(); ++seen_) {
        QString line;
        const auto text = QString::fromStdString(world.server->requests()[seen_].text);
        for (const auto& match : change.globalMatch(text)) {
            QStringList parts = match.capturedTexts().mid(1);
            parts.removeAll(QString());
            line += (line.isEmpty() ? "" : "; ") + parts.join(' ');
        }
        if (!line.isEmpty())
            found.push_back(shortened(line));
    }
    return found;
}

int WindowTest::rightsOnServer(const char* id, const char* path) const {
    for (const auto& entry : world.server->trustees(path))
        if (entry.identity->id == id)
            return entry.rights;
    return -1;
}

std::size_t WindowTest::requestsTo(const std::string& pipe) const {
    return static_cast<std::size_t>(
        std::ranges::count(world.server->requests(), pipe, &simulator::RecordedRequest::pipeFile));
}

void WindowTest::mend() {
    world.server->misbehaviour = {};
    world.keychain->failure.reset();
}

void WindowTest::losePassword() {
    world.keychain->failure = -25300;
    forgetServer();
}

void WindowTest::forgetServer() {
    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    ServerDetails::forget();
}

std::string& WindowTest::defaultOf(const char* key) {
    return world.sharedDefaults->values(groupSuiteName)[key];
}

} // namespace quorvan::test
