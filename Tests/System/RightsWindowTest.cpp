// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/RightsTable.h"
#include "Tests/System/RealWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeView>

namespace quorvan::test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct RightsWindow : RealWindow {
    void visitTab(int item) const {
        auto* tabs = find<QTabWidget>("tabView");
        while (tabs->currentIndex() != item)
            QTest::keyClick(tabs->tabBar(), tabs->currentIndex() < item ? Qt::Key_Right : Qt::Key_Left);
        QCoreApplication::processEvents(); // the controls of a view that loads under the eyes follow
    }
    static QModelIndex rowOf(const QAbstractItemView& list, const char* text, const QModelIndex& below = {}) {
        for (int row = 0; row < list.model()->rowCount(below); ++row)
            if (list.model()->index(row, 0, below).data().toString() == text)
                return list.model()->index(row, 0, below);
        throw std::runtime_error(std::string("there is no ") + text);
    }
    static void clickRow(QAbstractItemView& list, const QModelIndex& row) {
        list.scrollTo(row);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(row).center());
    }
    /// Finds a user of Active Directory in the sheet that Choose opens.
    void chooseUser(const char* name) const {
        click("selectUserBtn");
        const auto choose = [this](const char* popUp, const char* item) {
            auto* box = find<QComboBox>(popUp);
            box->setCurrentIndex(box->findText(item));
            emit box->activated(box->currentIndex());
        };
        choose("userTypePopUp", "Users_Title");
        choose("domainPopUp", "/Active Directory/MERIDAL");
        click("btnFetch");
        auto& list = *find<QTableView>("userListTable");
        clickRow(list, rowOf(list, name));
        click("selectButton");
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};

TEST_F(RightsWindow, SetsAFilterSeesWhatItCutsAndAddsAPathThatTheFolderTabShows) {
    constexpr const char* reader = "lea.fournier"; // read and file scan, inherited from the volume's root
    constexpr int inherited = 1;
    constexpr int effective = 2;
    constexpr int folders = 3;
    click("TrusteeRightsView");
    visitTab(effective);
    chooseUser(reader);
    EXPECT_TRUE(find<QCheckBox>("readChk")->isChecked() && find<QCheckBox>("fsChk")->isChecked());

    visitTab(inherited);
    QTest::mouseClick(find<QCheckBox>("readIRF"), Qt::LeftButton, {}, {8, 8});
    click("applyBtn");
    EXPECT_THAT(server->kelp.ask("filter\tVOL1:\\Projects\\Aurora"), Not(HasSubstr("read")));
    visitTab(effective);
    const auto& table = static_cast<RightsTable&>(*find<QTableView>("effRightsTable"));
    const int row = rowOf(table, reader).row();
    EXPECT_EQ(table.box(row, "R").data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
    EXPECT_EQ(table.box(row, "F").data(Qt::CheckStateRole).toInt(), Qt::Checked);
    chooseUser(reader);
    EXPECT_FALSE(find<QCheckBox>("readChk")->isChecked());
    EXPECT_TRUE(find<QCheckBox>("fsChk")->isChecked());
    click("closeBtn");

    click("FileSystemRightsView");
    chooseUser(reader);
    click("addBtn");
    auto& tree = *find<QTreeView>("fileBrowser");
    QModelIndex at = tree.model()->index(0, 0);
    for (const char* name : {"Projects", "Aurora", "Drawings"}) {
        tree.expand(at);
        at = rowOf(tree, name, at);
    }
    clickRow(tree, at);
    click("selectBtn");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    click("applyBtn");
    EXPECT_THAT(server->kelp.ask("trustees\tVOL1:\\Projects\\Aurora\\Drawings"),
                HasSubstr("\t0x0041\tlea.fournier"));
    click("cancelBtn");

    click("TrusteeRightsView");
    visitTab(folders);
    auto* field = find<QLineEdit>("searchInSubField");
    QTest::keyClicks(field, reader);
    const QAbstractItemModel* below = find<QTableView>("subdirTable")->model();
    ASSERT_EQ(below->rowCount(), 1);
    EXPECT_EQ(below->index(0, 1).data().toString(), "VOL1:\\Projects\\Aurora\\Drawings");
    EXPECT_THAT(alerts->shown, IsEmpty());
    EXPECT_THAT(log.lines, Not(Contains(HasSubstr(RealServer::password))));
    DictionaryForMountedPIPE::mountDict().unmountAll();
    EXPECT_EQ(server->sessions("0 0"), "0 0");
}

} // namespace
} // namespace quorvan::test
