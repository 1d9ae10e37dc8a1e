// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Shell/MainStoryboard.h"
#include "Tests/Quorvan/Controller/RightsTabFixture.h"

#include <QApplication>
#include <QComboBox>
#include <QMessageBox>
#include <QRadioButton>

#include <stdexcept>

namespace quorvan::test {

/// A page about attributes or quotas, with the sheets that it opens; texts are their keys.
struct PropertyFixture : RightsTabFixture {
    PropertyFixture() {
        bundle->texts = {{"Owner_Gone_Label", "gone: %1"}, {"Quota_Usage_Label", "%1 % used"}};
        fillMainStoryboard();
    }
    ~PropertyFixture() override { Shared::value().bothID = false; }

    /// Opens `Page` for what is mounted at `local` below /Volumes, which is the server's `volume`.
    template <class Page>
    Page* openAt(const std::string& local, const char* user, const char* userType) {
        world.handOver("/Volumes/" + local, local.substr(0, local.find('/')) + ":\\");
        auto* page = openPage<Page>(user, userType);
        seen = world.server->requests().size();
        return page;
    }
    static void type(QLineEdit* field, const char* text) {
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, QString::fromUtf8(text));
    }
    static void choose(QComboBox* popUp, int item) {
        while (popUp->currentIndex() != item)
            QTest::keyClick(popUp, popUp->currentIndex() < item ? Qt::Key_Down : Qt::Key_Up);
    }
    /// A control of the sheet in front.
    template <class Control>
    static Control* front(const char* name) {
        const QWidget* sheet = QApplication::activeModalWidget();
        auto* control = sheet != nullptr ? sheet->findChild<Control*>(name) : nullptr;
        if (control == nullptr)
            throw std::runtime_error(std::string("there is no ") + name);
        return control;
    }
    static bool sheetIsOpen() { return QApplication::activeModalWidget() != nullptr; }
    /// The text of the alert sheet in front, which is then dismissed; "" when there is none.
    std::string dismissAlert() {
        auto* alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (alert == nullptr)
            return {};
        click(alert->buttons().front());
        return alert->text().toStdString();
    }
    /// Picks rows of a browser that `button` opens: of the tree's users below `place`, or of a domain's. With
    /// both directories the choice between them comes first.
    void pickUsers(QPushButton* button, const char* place, std::initializer_list<int> rows) {
        const bool ofTree = *place == '.';
        click(button);
        if (Shared::value().bothID) {
            click(front<QRadioButton>(ofTree ? "MorvaneBtn" : "ADBtn"));
            click(front<QPushButton>("OkBtn"));
        }
        choose(front<QComboBox>("userTypePopUp"), 0);
        if (ofTree)
            type(front<QLineEdit>("treeTextField"), place);
        else
            choose(front<QComboBox>("domainPopUp"), front<QComboBox>("domainPopUp")->findText(place));
        click(front<QPushButton>("btnFetch"));
        auto* list = front<QTableView>("userListTable");
        for (const int row : rows)
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                              list->visualRect(list->model()->index(row, 0)).center());
        click(front<QPushButton>("selectButton"));
    }
    Texts takeAlerts() {
        Texts messages = alerts();
        alertPort->shown.clear();
        return messages;
    }
    /// What the requests since the last call say between `before` and `after`, one text for each that has it.
    Texts sent(const std::string& before, const std::string& after) {
        Texts found;
        for (; seen < world.server->requests().size(); ++seen) {
            const std::string& text = world.server->requests()[seen].text;
            if (const auto at = text.find(before); at != std::string::npos)
                found.push_back(text.substr(at + before.size(),
                                            text.find(after, at + before.size()) - at - before.size()));
        }
        return found;
    }

    static constexpr const char* inTree = ".OU=Verlag.O=Meridal.";
    static constexpr const char* inDomain = "/Active Directory/MERIDAL";
    std::size_t seen = 0;
};

} // namespace quorvan::test
