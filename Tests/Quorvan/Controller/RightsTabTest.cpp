// SPDX-License-Identifier: GPL-3.0-or-later
#include "Tests/Quorvan/Controller/RightsTabFixture.h"

#include <cerrno>

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
namespace demo = simulator::demo;

using RightsTabTest = RightsTabFixture;

TEST_F(RightsTabTest, EnablesWhatTheUsersOwnRightsAllow) {
    const struct {
        const char* user;
        bool supervisorBox, otherBoxes, edit;
    } cases[] = {{demo::supervisor, true, true, true},
                 {demo::accessControl, false, true, true},
                 {demo::readOnly, false, false, false}};
    for (const auto& [user, supervisorBox, otherBoxes, edit] : cases) {
        ServerDetails::forget();
        DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
        open(user);
        EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN"));
        clickBox(1, "S");
        EXPECT_EQ(ticked(1, "S"), supervisorBox) << user;
        clickBox(1, "W");
        EXPECT_EQ(ticked(1, "W"), otherBoxes) << user;
        EXPECT_EQ(changesEnabled(), edit) << user;
        EXPECT_EQ(tab->removeBtn->isEnabled(), edit) << user;
        EXPECT_EQ(tab->rightsTable->isSwitchedOn(), edit) << user;
        EXPECT_EQ(tab->showCheck->isEnabled(), edit) << user;
        EXPECT_EQ(tab->readOnlyLabel->isVisible(), !edit) << user;
        EXPECT_FALSE(tab->addBtn->isEnabled()) << "there is nothing to add with yet";
        close();
    }
    EXPECT_THAT(alerts(), IsEmpty());
}

TEST_F(RightsTabTest, TracksOneChangePerTrusteeAndSendsThemAllInOneRequest) {
    open();
    EXPECT_FALSE(changesEnabled());
    clickBox(0, "R");
    EXPECT_THAT(pending(), ElementsAre("ADD Müller 0x1fa"));
    clickBox(0, "R");
    EXPECT_THAT(pending(), ElementsAre("ADD Müller 0x1fb"));
    clickBox(0, "A");
    clickBox(2, "S"); // implies no other right
    EXPECT_THAT(pending(), ElementsAre("ADD Müller 0x1db", "ADD Zoe 0x100"));
    EXPECT_EQ(tab->trusteeList[0]->rights, 0x1FB) << "an edit reached what was loaded";
    EXPECT_THAT(changeRequests(), IsEmpty());

    tab->applyBtn->setFocus();
    QTest::keyClick(tab->applyBtn, Qt::Key_Space);
    EXPECT_THAT(changeRequests(), ElementsAre("addTrustee S-1-5-21-Müller; addTrustee S-1-5-21-Zoe; "));
    EXPECT_EQ(onServer(sid("Müller")), 0x1DB);
    EXPECT_EQ(onServer(sid("Zoe")), 0x100);
    EXPECT_THAT(pending(), IsEmpty());
    EXPECT_FALSE(changesEnabled());
    EXPECT_TRUE(tab->rightsTable->hasFocus()) << "the keyboard must not end up on the next button";
    EXPECT_TRUE(ticked(2, "S"));
    EXPECT_EQ(world.network->openDescriptors(), 0U);
}

TEST_F(RightsTabTest, KeepsEverythingWhenApplyFailsAndSendsItWithTheNext) {
    open();
    clickBox(1, "W");
    world.server->misbehaviour.openError = ENOENT;
    click(tab->applyBtn);
    EXPECT_TRUE(logged("Failed with err - -1"));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));

    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    ServerDetails::serverInfo().keychainStatus = -25300;
    click(tab->applyBtn);
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Keychain_Not_Found"));
    EXPECT_FALSE(logged("Failed with err - -25300"));

    EXPECT_THAT(pending(), ElementsAre("ADD admin 0x43"));
    EXPECT_TRUE(changesEnabled());
    EXPECT_TRUE(ticked(1, "W"));
    EXPECT_THAT(host.titles, IsEmpty());

    world.server->misbehaviour = {};
    ServerDetails::serverInfo().keychainStatus = 0;
    click(tab->applyBtn);
    EXPECT_THAT(changeRequests(), ElementsAre("addTrustee S-1-5-21-admin; "));
    EXPECT_EQ(onServer(sid("admin")), 0x43);
    EXPECT_FALSE(changesEnabled());
}

TEST_F(RightsTabTest, ShowsWhatTheServerHasWhenItRefusesAChange) {
    open(demo::accessControl);
    clickBox(1, "W");
    world.server->addAccount(demo::accessControl, demo::password, *world.identities->findById(sid("Zoe")));
    click(tab->applyBtn);
    EXPECT_THAT(alerts(), IsEmpty());
    EXPECT_FALSE(ticked(1, "W"));
    EXPECT_THAT(pending(), IsEmpty());
    EXPECT_TRUE(tab->isAccessControl) << "a right once seen is never lowered";
}

TEST_F(RightsTabTest, RemovesTheSelectedRowsInTheirOrder) {
    open();
    click(tab->removeBtn);
    EXPECT_TRUE(changesEnabled()) << "even with nothing selected";
    click(tab->applyBtn);
    EXPECT_THAT(changeRequests(), IsEmpty());
    EXPECT_TRUE(changesEnabled());

    clickBox(3, "W");
    select(3);
    select(0, Qt::ControlModifier);
    click(tab->removeBtn);
    EXPECT_THAT(shown(), ElementsAre("admin", "Zoe"));
    EXPECT_THAT(pending(), ElementsAre("ADD ADMIN 0xf9", "REMOVE Müller 0x1fb", "REMOVE ADMIN 0xf9"));
    EXPECT_EQ(tab->removedTrusteeList.size(), 2U);
    EXPECT_THAT(tab->rightsTable->selectedRowIndexes(), IsEmpty())
        << "the next click would remove the next two";
    click(tab->applyBtn);
    EXPECT_THAT(changeRequests(), ElementsAre("addTrustee S-1-5-21-ADMIN; removeTrustee S-1-5-21-Müller; "
                                              "removeTrustee S-1-5-21-ADMIN; "));
    EXPECT_EQ(onServer(sid("Müller")), std::nullopt);
    EXPECT_EQ(onServer(sid("ADMIN")), std::nullopt);
}

TEST_F(RightsTabTest, SearchesWhileRowsAreEditedAndRemoved) {
    open();
    search("adm");
    EXPECT_THAT(shown(), ElementsAre("admin", "ADMIN"));
    clickBox(1, "R"); // mirrored into the rows that are not shown
    select(0);
    click(tab->removeBtn); // not mirrored: the row comes back with the next letter
    EXPECT_THAT(shown(), ElementsAre("ADMIN"));
    search("mueller");
    EXPECT_THAT(shown(), IsEmpty());
    EXPECT_EQ(tab->rightsTable->emptyText(), "No_Match_Label");
    search("MULLER");
    EXPECT_THAT(shown(), ElementsAre("Müller"));
    search("");
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN"));
    EXPECT_FALSE(ticked(3, "R"));
    EXPECT_THAT(pending(), ElementsAre("ADD ADMIN 0xfa", "REMOVE admin 0x41"));
    EXPECT_TRUE(changesEnabled());

    // Revert leaves the search alone; the rows saved when it began are back when it ends.
    search("zo");
    click(tab->revertBtn);
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN"));
    EXPECT_TRUE(ticked(3, "R"));
    EXPECT_TRUE(tab->isSearching);
    search("");
    EXPECT_FALSE(ticked(3, "R"));
    EXPECT_THAT(pending(), IsEmpty());
}

TEST_F(RightsTabTest, SortsByNameAndForgetsTheOrderWithTheRows) {
    open();
    clickHeader();
    EXPECT_THAT(shown(), ElementsAre("admin", "ADMIN", "Müller", "Zoe"));
    clickHeader();
    EXPECT_THAT(shown(), ElementsAre("Zoe", "Müller", "admin", "ADMIN"));
    search("m");
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "ADMIN"));
    clickHeader(); // only what is shown
    EXPECT_THAT(shown(), ElementsAre("admin", "ADMIN", "Müller"));
    search("");
    EXPECT_THAT(shown(), ElementsAre("Zoe", "Müller", "admin", "ADMIN"));
    EXPECT_FALSE(tab->rightsTable->sortDescriptor()->ascending) << "the header must tell how the rows stand";

    clickBox(0, "R");
    click(tab->applyBtn);
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN"));
    EXPECT_FALSE(tab->rightsTable->sortDescriptor());
}

TEST_F(RightsTabTest, RevertsWithoutAskingTheServer) {
    open();
    clickBox(0, "R");
    select(1);
    click(tab->removeBtn);
    const auto before = world.server->requestCount();
    click(tab->revertBtn);
    EXPECT_EQ(world.server->requestCount(), before);
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN"));
    EXPECT_TRUE(ticked(0, "R"));
    EXPECT_THAT(pending(), IsEmpty());
    EXPECT_FALSE(changesEnabled());
}

TEST_F(RightsTabTest, KeepsPendingChangesHiddenOverAnotherVisit) {
    open();
    clickBox(0, "R");
    reappear();
    EXPECT_TRUE(ticked(0, "R")) << "the rows are the server's again";
    EXPECT_FALSE(changesEnabled());
    EXPECT_THAT(pending(), ElementsAre("ADD Müller 0x1fa"));
    clickBox(1, "W");
    click(tab->applyBtn);
    EXPECT_THAT(changeRequests(), ElementsAre("addTrustee S-1-5-21-Müller; addTrustee S-1-5-21-admin; "));
    EXPECT_EQ(onServer(sid("Müller")), 0x1FA);
}

TEST_F(RightsTabTest, ReturnsToTheMainMenuWhenTheLoadFails) {
    world.server->misbehaviour.mountError = EHOSTUNREACH;
    open();
    EXPECT_TRUE(logged("Failed with err - " + std::to_string(EHOSTUNREACH)));
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_THAT(host.titles, ElementsAre("Rights Management"));
    EXPECT_NE(host.childControllers().front(), tab);
}

TEST_F(RightsTabTest, SaysWhereThePasswordHasToComeFrom) {
    world.keychain->failure = -25300;
    bundle->features->at("enableSettings") = false;
    Shared::value().bothID = true;
    open();
    EXPECT_THAT(alerts(), ElementsAre("Err_Keychain_Not_Found", "Err_Keychain_Not_Found"))
        << "one for each load";
    EXPECT_THAT(host.titles, ElementsAre("Rights Management")) << "the page can only be left once";
}

TEST_F(RightsTabTest, SwitchesToBothIdentityTypesAndDropsPendingChanges) {
    bundle->features->at("enableSettings") = false;
    bundle->features->at("addBothTrustees") = false;
    Storyboard::named("Main").add("ViewBrowseAD", [] { return new ViewController; });
    open();
    EXPECT_TRUE(tab->addBtn->isEnabled());
    EXPECT_EQ(tab->showCheck->text(), "Both_Trustee_Label");
    clickBox(0, "R");
    click(tab->showCheck);
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN", "CN=Vera.OU=Verlag.O=Meridal"));
    EXPECT_THAT(pending(), IsEmpty());
    EXPECT_TRUE(changesEnabled()) << "the switch does not touch the buttons";
    EXPECT_FALSE(tab->addBtn->isEnabled());
    EXPECT_TRUE(Shared::value().bothID);

    clickBox(4, "W");
    clickBox(1, "W");
    click(tab->applyBtn);
    EXPECT_THAT(changeRequests(), ElementsAre("addTrustee guid-vera; addTrustee S-1-5-21-admin; "));
    EXPECT_EQ(onServer("guid-vera"), 0x43);
    EXPECT_EQ(shown().size(), 5U);

    reappear();
    EXPECT_TRUE(tab->showCheck->isChecked());
    EXPECT_FALSE(tab->addBtn->isEnabled());
    click(tab->showCheck);
    EXPECT_EQ(shown().size(), 4U);
    EXPECT_TRUE(tab->addBtn->isEnabled());
    EXPECT_FALSE(Shared::value().bothID);
}

TEST_F(RightsTabTest, GivesTheSwitchTheRoleThatTheFeaturesAskFor) {
    const struct {
        bool settings, bothIdentities, addBoth;
        const char* userType;
        const char* title;
        bool isCheckBox;
    } cases[] = {
        {true, true, true, "ActiveDirectory", "Rights_Label_Title", false},
        {false, true, true, "ActiveDirectory", "Morvane_Trustee_Label", true},
        {false, true, true, "Morvane", "AD_Trustee_Label", true},
        {false, true, false, "Morvane", "Both_Trustee_Label", true},
        {false, false, true, "Morvane", "Rights_Label_Title", false},
    };
    for (const auto& [settings, bothIdentities, addBoth, userType, title, isCheckBox] : cases) {
        bundle->features = platform::FeatureDictionary{{"enableSettings", settings},
                                                       {"bothIdentities", bothIdentities},
                                                       {"addBothTrustees", addBoth},
                                                       {"multiForest", true}};
        defaults()["loggedUserType"] = userType;
        open();
        EXPECT_EQ(tab->showCheck->text(), title);
        EXPECT_EQ(tab->showCheck->isVisible(), isCheckBox) << title;
        EXPECT_EQ(tab->showCheckCaption->isVisible(), !isCheckBox) << title;
        close();
    }
}

TEST_F(RightsTabTest, EndsWithoutFeaturesOrSelection) {
    for (const char* key : {"bothIdentities", "multiForest", "addBothTrustees", "enableSettings"}) {
        bundle->features = FakeBundle().features;
        bundle->features->erase(key);
        EXPECT_DEATH(open(), key);
        bundle->features->insert({key, std::nullopt});
        EXPECT_DEATH(open(), "is not a Boolean");
    }
    bundle->features.reset();
    EXPECT_DEATH(open(), "feature.plist is missing");
    ServerDetails::serverInfo().mappedPathName.reset();
    EXPECT_DEATH(open(), "There is no mapped path");
}

TEST_F(RightsTabTest, NamesEveryControlAndReachesItByTab) {
    open();
    clickBox(0, "R");
    for (QWidget* control : tab->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
        if (control->focusPolicy() == Qt::NoFocus || !control->isVisible())
            continue;
        auto* button = qobject_cast<QAbstractButton*>(control);
        EXPECT_FALSE((button != nullptr ? button->text() : control->accessibleName()).isEmpty())
            << control->objectName().toStdString();
    }
    QStringList visited;
    tab->searchField->setFocus();
    for (int step = 0; step < 5; ++step) {
        visited.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited, QStringList({"searchField", "rightsTable", "removeBtn", "revertBtn", "applyBtn"}));
    tab->rightsTable->setFocus();
    QTest::keySequence(tab->rightsTable, QKeySequence::Find);
    EXPECT_TRUE(tab->searchField->hasFocus());
}

} // namespace
} // namespace quorvan::test
