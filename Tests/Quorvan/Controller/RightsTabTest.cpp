// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/Controller/RightsTabFixture.h"

#include <cerrno>

namespace quorvan::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
namespace demo = simulator::demo;

using RightsTabTest = RightsTabFixture;

TEST_F(RightsTabTest, EnablesWhatTheUsersOwnRightsAllow) {
    const struct {
        const char* user;
        bool supervisorBox, edit;
    } cases[] = {
        {demo::supervisor, true, true}, {demo::accessControl, false, true}, {demo::readOnly, false, false}};
    for (const auto& [user, supervisorBox, edit] : cases) {
        SCOPED_TRACE(user);
        open(user);
        EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN"));
        EXPECT_FALSE(changesEnabled());
        clickCell(1, "S");
        EXPECT_EQ(ticked(1, "S"), supervisorBox);
        clickCell(1, "W");
        EXPECT_EQ(ticked(1, "W"), edit);
        EXPECT_EQ(changesEnabled(), edit);
        EXPECT_EQ(tab->removeBtn->isEnabled(), edit);
        EXPECT_EQ(tab->rightsTable->isSwitchedOn(), edit);
        EXPECT_EQ(tab->showCheck->isEnabled(), edit);
        EXPECT_EQ(tab->readOnlyLabel->isVisible(), !edit);
        EXPECT_EQ(tab->addBtn->isEnabled(), edit);
    }
}

TEST_F(RightsTabTest, TracksOneChangePerTrusteeAndSendsThemAllInOneRequest) {
    open();
    clickCell(0, "R");
    EXPECT_THAT(pending(), ElementsAre("ADD Müller 0x1fa"));
    clickCell(0, "R");
    EXPECT_THAT(pending(), ElementsAre("ADD Müller 0x1fb"));
    clickCell(0, "A");
    clickCell(2, "S"); // implies no other right
    EXPECT_THAT(pending(), ElementsAre("ADD Müller 0x1db", "ADD Zoe 0x100"));
    EXPECT_EQ(tab->trusteeList[0]->rights, 0x1FB) << "an edit reached what was loaded";
    EXPECT_THAT(changeRequests(), IsEmpty());

    tab->applyBtn->setFocus();
    QTest::keyClick(tab->applyBtn, Qt::Key_Space);
    EXPECT_THAT(changeRequests(), ElementsAre("addTrustee Müller; addTrustee Zoe; "));
    EXPECT_EQ(onServer("Müller"), 0x1DB);
    EXPECT_EQ(onServer("Zoe"), 0x100);
    EXPECT_THAT(pending(), IsEmpty());
    EXPECT_FALSE(changesEnabled());
    EXPECT_TRUE(tab->rightsTable->hasFocus()) << "the keyboard must not end up on the next button";
    EXPECT_EQ(world.network->openDescriptors(), 0U);

    // What the server refuses is not reported; the list shows what it has.
    clickCell(1, "W");
    world.server->setTrustee("VOL1:\\", *world.identities->findByName(demo::supervisor).front(), 0x041);
    click(tab->applyBtn);
    EXPECT_FALSE(ticked(1, "W"));
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_TRUE(tab->isSupervisor) << "a right once seen is never lowered";
}

TEST_F(RightsTabTest, KeepsEverythingWhenApplyFailsAndSendsItWithTheNext) {
    open();
    clickCell(1, "W");
    world.server->misbehaviour.openError = ENOENT;
    click(tab->applyBtn);
    EXPECT_THAT(log.take(), Contains("Failed with err - -1"));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));

    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    ServerDetails::serverInfo().keychainStatus = -25300;
    click(tab->applyBtn);
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Keychain_Not_Found"));
    EXPECT_THAT(log.take(), Not(Contains("Failed with err - -25300")));

    EXPECT_THAT(pending(), ElementsAre("ADD admin 0x43"));
    EXPECT_TRUE(changesEnabled());
    EXPECT_TRUE(ticked(1, "W"));
    EXPECT_THAT(host->titles, IsEmpty());

    world.server->misbehaviour = {};
    ServerDetails::serverInfo().keychainStatus = 0;
    click(tab->applyBtn);
    EXPECT_EQ(onServer("admin"), 0x43);
    EXPECT_FALSE(changesEnabled());
}

TEST_F(RightsTabTest, RemovesTheSelectedRowsInTheirOrder) {
    open();
    click(tab->removeBtn);
    click(tab->applyBtn);
    EXPECT_THAT(changeRequests(), IsEmpty());
    EXPECT_TRUE(changesEnabled()) << "even though nothing was selected";

    clickCell(3, "W");
    clickCell(3, "username");
    clickCell(0, "username", Qt::ControlModifier);
    click(tab->removeBtn);
    EXPECT_THAT(shown(), ElementsAre("admin", "Zoe"));
    EXPECT_THAT(pending(), ElementsAre("ADD ADMIN 0xf9", "REMOVE Müller 0x1fb", "REMOVE ADMIN 0xf9"));
    EXPECT_EQ(tab->removedTrusteeList.size(), 2U);
    EXPECT_THAT(tab->rightsTable->selectedRowIndexes(), IsEmpty())
        << "the next click would remove the next two";
    click(tab->applyBtn);
    EXPECT_THAT(changeRequests(),
                ElementsAre("addTrustee ADMIN; removeTrustee Müller; removeTrustee ADMIN; "));
    EXPECT_EQ(onServer("Müller"), -1);
}

TEST_F(RightsTabTest, SearchesWhileRowsAreEditedAndRemoved) {
    open();
    search("adm");
    EXPECT_THAT(shown(), ElementsAre("admin", "ADMIN"));
    clickCell(1, "R"); // mirrored into the rows that are not shown
    clickCell(0, "username");
    click(tab->removeBtn); // not mirrored: the row comes back when the search ends
    EXPECT_THAT(shown(), ElementsAre("ADMIN"));
    QTest::keyClick(tab->searchField, Qt::Key_X);
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_EQ(tab->rightsTable->emptyText(), "No_Match_Label");
    search("MULLER");
    EXPECT_THAT(shown(), ElementsAre("Müller"));
    search("");
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN"));
    EXPECT_FALSE(ticked(3, "R"));
    EXPECT_THAT(pending(), ElementsAre("ADD ADMIN 0xfa", "REMOVE admin 0x41"));

    // Revert leaves the search alone, and asks the server nothing; the rows that were saved when the
    // search began are back when it ends.
    search("zo");
    const auto requests = world.server->requestCount();
    click(tab->revertBtn);
    EXPECT_EQ(world.server->requestCount(), requests);
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN"));
    EXPECT_TRUE(ticked(3, "R"));
    EXPECT_THAT(pending(), IsEmpty());
    EXPECT_FALSE(changesEnabled());
    EXPECT_TRUE(tab->isSearching);
    search("");
    EXPECT_FALSE(ticked(3, "R"));
}

TEST_F(RightsTabTest, SortsByNameAndForgetsTheOrderWithTheRows) {
    open();
    clickHeader();
    EXPECT_THAT(shown(), ElementsAre("admin", "ADMIN", "Müller", "Zoe"));
    clickHeader();
    EXPECT_THAT(shown(), ElementsAre("Zoe", "Müller", "admin", "ADMIN"));
    search("m");
    clickHeader(); // only what is shown
    EXPECT_THAT(shown(), ElementsAre("admin", "ADMIN", "Müller"));
    search("");
    EXPECT_THAT(shown(), ElementsAre("Zoe", "Müller", "admin", "ADMIN"));
    EXPECT_FALSE(tab->rightsTable->sortDescriptor()->ascending) << "the header must tell how the rows stand";

    clickCell(0, "R");
    click(tab->applyBtn);
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN"));
    EXPECT_FALSE(tab->rightsTable->sortDescriptor());
}

TEST_F(RightsTabTest, KeepsPendingChangesHiddenOverAnotherVisit) {
    open();
    clickCell(0, "R");
    reappear();
    EXPECT_TRUE(ticked(0, "R")) << "the rows are the server's again";
    EXPECT_FALSE(changesEnabled());
    clickCell(1, "W");
    click(tab->applyBtn);
    EXPECT_THAT(changeRequests(), ElementsAre("addTrustee Müller; addTrustee admin; "));
    EXPECT_EQ(onServer("Müller"), 0x1FA);
}

TEST_F(RightsTabTest, ReturnsToTheMainMenuWhenTheLoadFails) {
    world.server->misbehaviour.mountError = EHOSTUNREACH;
    open();
    EXPECT_THAT(log.take(), Contains("Failed with err - " + std::to_string(EHOSTUNREACH)));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_THAT(host->titles, ElementsAre("Rights Management"));

    world.keychain->failure = -25300;
    Shared::value().bothID = true;
    open();
    EXPECT_THAT(alerts(),
                ElementsAre("Err_Operation_Failed", "Err_Keychain_Not_Found", "Err_Keychain_Not_Found"))
        << "one for each identity type";
    EXPECT_THAT(host->titles, ElementsAre("Rights Management")) << "the page can only be left once";
}

TEST_F(RightsTabTest, SwitchesToBothIdentityTypesAndDropsPendingChanges) {
    bundle->features->at("enableSettings") = false;
    open();
    EXPECT_EQ(tab->showCheck->text(), "Morvane_Trustee_Label");
    bundle->features->at("addBothTrustees") = false;
    open();
    EXPECT_EQ(tab->showCheck->text(), "Both_Trustee_Label");
    EXPECT_TRUE(tab->showCheck->isVisible());
    EXPECT_TRUE(tab->addBtn->isEnabled());
    clickCell(0, "R");
    click(tab->showCheck);
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN", "CN=Vera.OU=Verlag.O=Meridal"));
    EXPECT_THAT(pending(), IsEmpty());
    EXPECT_TRUE(changesEnabled()) << "the switch does not touch the buttons";
    EXPECT_FALSE(tab->addBtn->isEnabled());

    clickCell(4, "W");
    clickCell(1, "W");
    click(tab->applyBtn);
    EXPECT_THAT(changeRequests(), ElementsAre("addTrustee guid-vera; addTrustee admin; "));
    EXPECT_EQ(onServer("guid-vera"), 0x43);
    reappear();
    EXPECT_TRUE(tab->showCheck->isChecked());
    EXPECT_EQ(shown().size(), 5U);
    EXPECT_FALSE(tab->addBtn->isEnabled());
    click(tab->showCheck);
    EXPECT_EQ(shown().size(), 4U);
    EXPECT_TRUE(tab->addBtn->isEnabled());
    EXPECT_FALSE(Shared::value().bothID);
}

TEST_F(RightsTabTest, EndsWithoutAFeatureOrAServer) {
    for (const char* key : {"bothIdentities", "multiForest", "addBothTrustees", "enableSettings"}) {
        bundle->features = FakeBundle().features;
        bundle->features->erase(key);
        EXPECT_DEATH(open(), key);
        bundle->features->insert({key, std::nullopt});
        EXPECT_DEATH(open(), "is not a Boolean");
    }
    bundle->features.reset();
    EXPECT_DEATH(open(), "feature.plist is missing");
}

TEST_F(RightsTabTest, NamesEveryControlAndReachesItByTab) {
    open();
    clickCell(0, "R");
    for (const QWidget* control : tab->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        const QString name = button != nullptr ? button->text() : control->accessibleName();
        EXPECT_FALSE(name.isEmpty() && control->focusPolicy() != Qt::NoFocus)
            << control->objectName().toStdString();
    }
    QStringList visited;
    QTest::keySequence(tab, QKeySequence::Find);
    for (int step = 0; step < 7; ++step) {
        visited.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited, QStringList({"searchField", "rightsTable", "addBtn", "removeBtn", "revertBtn",
                                    "applyBtn", "searchField"}));
}

} // namespace
} // namespace quorvan::test
