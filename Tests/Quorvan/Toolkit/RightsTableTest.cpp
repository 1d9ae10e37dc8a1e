// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/RightsTable.h"

#include "Quorvan/Toolkit/NameSort.h"
#include "Quorvan/Toolkit/TrusteeRows.h"
#include "Tests/Support/Fakes.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gmock/gmock.h>

namespace quorvan {
namespace {

using testing::ElementsAre;

struct RightsTableTest : testing::Test {
    RightsTableTest() {
        world.bundle->texts = {{"Right_Ticked_Label", "%1, ticked"},
                               {"Right_Unticked_Label", "%1, not ticked"},
                               {"Supervisor_Explained_Label", "%1: has all"},
                               {"Supervisor_Label", "Su&pervisor"}};
        for (const char* name : {"Cara", "abel", "Bea", "Abel"})
            rows.push_back(std::make_shared<Trustees>(name, name, KelpRights::read, "", "Users", ""));
        table = new RightsTable({{"username", "Name"}}, std::make_unique<TrusteeRows>(rows), &window);
        table->setGreyRule(
            [](std::uint16_t bit) { return bit == KelpRights::supervisor ? "Why_Label" : nullptr; });
        table->setClickHandler([this](const RightsCheckBox& box) {
            clicks += std::to_string(box.row) + box.identifier + (box.ticked ? "+ " : "- ");
            rows[static_cast<std::size_t>(box.row)]->rights = box.ticked ? 0x1FB : 0;
        });
        table->setSortDescriptorPrototype(0, {"name", true});
        table->setSortHandler([this] {
            sortByName(rows, table->sortDescriptor()->ascending, trusteeNameOf);
            table->reloadData();
        });
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(table);
        layout->addWidget(&next);
        window.resize(600, 300);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        table->setFocus();
    }
    QPoint center(int row, const char* column) const {
        return table->visualRect(table->box(row, column)).center();
    }
    void click(int row, const char* column, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers, center(row, column));
    }
    void clickHeader(int column) {
        const QHeaderView* header = table->horizontalHeader();
        const QPoint place(header->sectionViewportPosition(column) + 8, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place);
    }
    void press(std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys)
            QTest::keyClick(table, key);
    }
    test::FakeWorld world;
    TrusteeList rows;
    std::string clicks; ///< "0R- " for each
    QWidget window;
    QLineEdit next;
    RightsTable* table;
};

TEST_F(RightsTableTest, ClicksBoxesWithTheMouseAndLeavesTheSelectionAlone) {
    click(2, "username");
    click(0, "R");
    click(1, "W");
    click(1, "A"); // ticked by the click before
    EXPECT_THAT(table->selectedRowIndexes(), ElementsAre(2));
    click(0, "S"); // may not be clicked, so it selects its row like any other place
    EXPECT_THAT(table->selectedRowIndexes(), ElementsAre(0));
    // Beside a box, and from one box to another, nothing is clicked.
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, center(3, "E") - QPoint(12, 0));
    QTest::mousePress(table->viewport(), Qt::LeftButton, {}, center(3, "E"));
    QTest::mouseRelease(table->viewport(), Qt::LeftButton, {}, center(2, "E"));
    EXPECT_THAT(table->selectedRowIndexes(), ElementsAre(3));

    // Switched off, it can be read with the keyboard, but takes neither ticks nor a selection.
    table->setGreyRule({});
    table->setSwitchedOn(false);
    click(0, "R");
    click(2, "username");
    press({Qt::Key_Right, Qt::Key_Space});
    EXPECT_EQ(clicks, "0R- 1W+ 1A- ");
    EXPECT_TRUE(table->selectedRowIndexes().empty());
    EXPECT_EQ(table->currentIndex().column(), 1);
}

TEST_F(RightsTableTest, IsOperatedByTheKeyboard) {
    press({Qt::Key_Space, Qt::Key_Down, Qt::Key_Right, Qt::Key_Space, Qt::Key_Right, Qt::Key_Space,
           Qt::Key_Right, Qt::Key_Down, Qt::Key_Space, Qt::Key_Space});
    EXPECT_EQ(clicks, "0R- 1W+ 1W- "); // S is passed, but not clicked
    press({Qt::Key_Tab});
    EXPECT_TRUE(next.hasFocus());
    QTest::keyClick(&next, Qt::Key_Tab, Qt::ShiftModifier);
    EXPECT_TRUE(table->hasFocus());
}

TEST_F(RightsTableTest, SortsByHeaderAndKeepsTheSelectedTrustees) {
    click(0, "username");
    click(3, "username", Qt::ControlModifier);
    clickHeader(2); // no text to sort by
    EXPECT_FALSE(table->sortDescriptor() || table->horizontalHeader()->isSortIndicatorShown());
    clickHeader(0);
    EXPECT_THAT(table->selectedRowIndexes(), ElementsAre(1, 3));
    clickHeader(0);
    EXPECT_THAT(table->selectedRowIndexes(), ElementsAre(0, 3));
    EXPECT_EQ(table->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    table->setSortDescriptor({});
    clickHeader(0);
    EXPECT_TRUE(table->sortDescriptor()->ascending);
}

TEST_F(RightsTableTest, SurvivesRowsThatChangeBeforeItIsToldAndKeepsTheKeyboardsPlace) {
    table->setCurrentIndex(table->box(3, "W"));
    rows.resize(2);
    table->viewport()->repaint();
    EXPECT_FALSE(table->box(3, "W").data(Qt::CheckStateRole).isValid());
    EXPECT_FALSE(table->model()->setData(table->box(3, "W"), Qt::Checked, Qt::CheckStateRole));
    table->reloadData();
    EXPECT_FALSE(table->currentIndex().isValid()) << "never somebody else's row";
    rows.clear();
    table->reloadData();
    table->setEmptyText("No rows");
    EXPECT_EQ(table->accessibleDescription(), "No rows");
}

TEST_F(RightsTableTest, ClicksTheBoxesOfSeveralRowsFromTheirMenu) {
    QString why; // an entry is grey
    const auto choose = [&](const QString& menuTitle, const QString& actionTitle) {
        bool isChosen = false;
        why.clear();
        QTimer::singleShot(0, table, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            const auto take = [&](QMenu& list, const QString& title) -> QAction* {
                for (QAction* action : list.actions())
                    if (action->text() == title && action->isEnabled())
                        return action;
                    else if (action->text() == title && list.toolTipsVisible())
                        why = action->toolTip();
                return nullptr;
            };
            QAction* const sub = take(*menu, menuTitle);
            if (QAction* const action = sub != nullptr ? take(*sub->menu(), actionTitle) : nullptr) {
                action->trigger();
                isChosen = true;
            }
            menu->close();
        });
        const QPoint place = center(0, "username");
        QContextMenuEvent event(QContextMenuEvent::Keyboard, place, table->mapToGlobal(place));
        QApplication::sendEvent(table->viewport(), &event);
        return isChosen;
    };
    table->setClickHandler([this](const RightsCheckBox& box) {
        auto& mask = rows[static_cast<std::size_t>(box.row)]->rights;
        mask = box.appliedTo(mask);
        clicks += std::to_string(box.row) + box.identifier + (box.ticked ? "+ " : "- ");
    });
    EXPECT_FALSE(choose("Grant_title", "Write_Label")) << "no row is selected";
    EXPECT_EQ(why, "Why_Nothing_Selected_Label");
    click(1, "username");
    click(3, "username", Qt::ControlModifier);
    rows[3]->rights = KelpRights::write | KelpRights::supervisor;
    EXPECT_TRUE(choose("Grant_title", "Write_Label"));
    EXPECT_EQ(std::exchange(clicks, {}), "1W+ ") << "the other one has it";
    EXPECT_TRUE(choose("Take_Away_title", "Read_Label"));
    EXPECT_EQ(std::exchange(clicks, {}), "1R- ");
    EXPECT_FALSE(choose("Grant_title", "Supervisor")) << "which this user may not grant";
    EXPECT_EQ(why, "Why_Label");
    EXPECT_TRUE(choose("Set_Rights_title", "Preset_Read_title"));
    EXPECT_EQ(std::exchange(clicks, {}), "1R+ 1W- 1F+ 3R+ 3W- 3F+ ");
    EXPECT_TRUE(choose("Set_Rights_title", "Preset_Write_title"));
    EXPECT_EQ(std::exchange(clicks, {}), "1W+ 1E+ 1C+ 1M+ 3W+ 3E+ 3C+ 3M+ ");
    EXPECT_TRUE(choose("Set_Rights_title", "Preset_All_title"));
    EXPECT_EQ(std::exchange(clicks, {}), "1A+ 3A+ ");
    EXPECT_TRUE(choose("Set_Rights_title", "Preset_None_title"));
    EXPECT_EQ(rows[1]->rights, 0);
    EXPECT_EQ(rows[3]->rights, KelpRights::supervisor);
    table->setSwitchedOn(false);
    EXPECT_FALSE(choose("Grant_title", "Write_Label"));
}

TEST_F(RightsTableTest, GivesNamesTheRoomThatTheyNeed) {
    QHeaderView* header = table->horizontalHeader();
    const auto word = [header] { return header->model()->headerData(2, Qt::Horizontal).toString(); };
    EXPECT_EQ(word(), "R");
    const int usual = table->columnWidth(0);
    const std::string longName(60, 'm');
    rows.push_back(std::make_shared<Trustees>(longName, "l", KelpRights::read, "", "Users", ""));
    table->reloadData();
    EXPECT_GE(table->columnWidth(0), usual);
    EXPECT_EQ(header->length(), table->viewport()->width()) << "all there is, and no more";
    window.resize(2600, 300);
    EXPECT_EQ(word(), "Read_Label");
    EXPECT_GE(table->columnWidth(0), table->fontMetrics().horizontalAdvance(QString(60, 'm')));
    EXPECT_LT(header->length(), table->viewport()->width()) << "boxes stay near their names";
    const int plain = table->columnWidth(0);
    table->setPending({{"l", ListModel::Pending::changed}});
    EXPECT_GT(table->columnWidth(0), plain) << "a marked name is longer";

    // A width that the user has set stays, also in the next table of that name.
    table->setObjectName("someTable");
    const QPoint edge(table->columnWidth(0) - 1, header->height() / 2);
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(header->viewport(), edge + QPoint(40, 0));
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge + QPoint(40, 0));
    const int set = table->columnWidth(0);
    EXPECT_EQ(set, edge.x() + 41);
    window.resize(1200, 300);
    EXPECT_EQ(table->columnWidth(0), set);
    RightsTable again({{"username", "Name"}}, std::make_unique<TrusteeRows>(rows));
    again.setObjectName("someTable");
    again.resize(1000, 300);
    again.show();
    EXPECT_EQ(again.columnWidth(0), set);
}

TEST_F(RightsTableTest, SpeaksToScreenReaders) {
    QAccessibleTableInterface* reader = QAccessible::queryAccessibleInterface(table)->tableInterface();
    for (const auto& [column, text, checks] :
         {std::tuple{2, "Read_Label, ticked", true}, {1, "Supervisor, not ticked", false}}) {
        EXPECT_EQ(reader->cellAt(0, column)->text(QAccessible::Name), text);
        EXPECT_EQ(reader->cellAt(0, column)->state().checkable, checks);
        EXPECT_EQ(reader->cellAt(0, column)->state().checked, checks);
    }
    const auto said = [this](int column, int role) {
        return table->model()->index(0, column).data(role).toString();
    };
    EXPECT_EQ(said(1, Qt::ToolTipRole), "Supervisor\nWhy_Label");
    EXPECT_EQ(said(1, Qt::AccessibleDescriptionRole), "Why_Label");
    EXPECT_EQ(said(2, Qt::ToolTipRole), "Read_Label");
    EXPECT_EQ(said(2, Qt::AccessibleDescriptionRole), "");
    QString letters;
    for (int column = 1; column < 9; ++column)
        letters += table->model()->headerData(column, Qt::Horizontal).toString();
    EXPECT_EQ(letters, "SRWECMFA");
    EXPECT_EQ(table->model()->headerData(1, Qt::Horizontal, Qt::ToolTipRole), "Supervisor: has all");
    EXPECT_EQ(table->model()->headerData(7, Qt::Horizontal, Qt::AccessibleTextRole), "File_Scan_Label");
}

} // namespace
} // namespace quorvan
