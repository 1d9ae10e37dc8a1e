// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Identities/BrowseMorvaneUserListViewController.h"
#include "Quorvan/Controller/Identities/BrowseUserListViewController.h"
#include "Quorvan/Controller/Identities/IdentifySourceViewController.h"
#include "Quorvan/Controller/Identities/OldBrowseUserListViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Controller/Shell/MainStoryboard.h"
#include "Quorvan/Toolkit/ListTable.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"
#include "Tests/Quorvan/Controller/RightsTabFixture.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QRadioButton>

#include <cerrno>

namespace quorvan::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;
using testing::Pointee;
using testing::SizeIs;
namespace demo = simulator::demo;
using Texts = std::vector<std::string>;
using Morvane = BrowseMorvaneUserListViewController;
using ActiveDirectory = BrowseUserListViewController;
using Old = OldBrowseUserListViewController;
using Source = IdentifySourceViewController;

/// The browsers over the trustee rights tab, used with mouse and keyboard.
struct IdentityBrowsersTest : RightsTabFixture {
    static constexpr const char* verlag = ".OU=Verlag.O=Meridal.";
    static constexpr const char* nordhavn = "/Active Directory/NORDHAVN";

    IdentityBrowsersTest() {
        fillMainStoryboard();
        SharedTreeName::value().treeName.clear();
        bundle->texts = {{"No_Groups_Below_Label", "no groups below %1"},
                         {"Domain_Silent_Label", "%1 is silent"}};
    }
    ~IdentityBrowsersTest() override { host.reset(); }

    /// The sheet that the user sees, when it is of that kind.
    template <class Sheet>
    static Sheet* sheet() {
        const QWidget* front = QApplication::activeModalWidget();
        for (QWidget* widget : front != nullptr ? front->findChildren<QWidget*>() : QList<QWidget*>())
            if (auto* found = dynamic_cast<Sheet*>(widget))
                return found;
        return nullptr;
    }
    static bool sheetGetsTheKeyboard() {
        return QTest::qWaitFor(
            [] { return QApplication::activeWindow() == QApplication::activeModalWidget(); });
    }
    template <class Sheet>
    Sheet* add() {
        click(tab->addBtn);
        EXPECT_TRUE(sheetGetsTheKeyboard());
        return sheet<Sheet>();
    }
    static void pick(QComboBox* popUp, const char* item) {
        popUp->setFocus();
        while (popUp->currentText() != item && popUp->currentIndex() + 1 < popUp->count())
            QTest::keyClick(popUp, Qt::Key_Down);
        EXPECT_EQ(popUp->currentText(), item);
    }
    static void type(QLineEdit* field, const char* text) {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QString::fromUtf8(text));
    }
    static void enter(QLineEdit* field, const char* text) {
        type(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }
    static Texts names(const IdentityBrowserSheet& browser) {
        return RightsTabFixture::names(*browser.userListTable);
    }
    void fetch(const ActiveDirectory& browser, const char* category, const char* domain) {
        pick(browser.userTypePopUp, category);
        pick(browser.domainPopUp, domain);
        click(browser.btnFetch);
    }
    void fetch(const Morvane& browser, const char* category, const char* base) {
        pick(browser.userTypePopUp, category);
        enter(browser.treeTextField, base);
    }
    static void clickName(const IdentityBrowserSheet& browser, int row, Qt::KeyboardModifiers with = {}) {
        ListTable* list = browser.userListTable;
        QTest::mouseClick(list->viewport(), Qt::LeftButton, with,
                          list->visualRect(list->model()->index(row, 0)).center());
    }
};

TEST_F(IdentityBrowsersTest, ListsOneCategoryOfTheTreeBelowABase) {
    open(demo::supervisorTree, "Morvane");
    auto* browser = add<Morvane>();
    ASSERT_NE(browser, nullptr);
    EXPECT_EQ(browser->userTypePopUp->count(), 3);
    EXPECT_EQ(browser->userTypePopUp->currentIndex(), -1);
    EXPECT_FALSE(browser->btnFetch->isEnabled());
    EXPECT_FALSE(browser->selectButton->isEnabled());
    type(browser->treeTextField, verlag);
    EXPECT_TRUE(browser->btnFetch->isEnabled());
    const auto requests = world.server->requestCount();
    QTest::keyClick(browser->treeTextField, Qt::Key_Return);
    EXPECT_EQ(world.server->requestCount(), requests) << "without a category there is nothing to ask for";

    pick(browser->userTypePopUp, "Users_Title");
    QTest::keyClick(browser->treeTextField, Qt::Key_Return);
    const Texts users = names(*browser);
    EXPECT_THAT(users, Contains("CN=Vera.OU=Verlag.O=Meridal"));
    EXPECT_FALSE(browser->btnFetch->isEnabled());
    QTest::keyClick(browser->treeTextField, Qt::Key_Return);
    EXPECT_EQ(sheet<Morvane>(), browser) << "Return in a field closed the sheet";

    clickName(*browser, 0);
    type(browser->searchField, "MARCHAND");
    EXPECT_THAT(names(*browser), ElementsAre("CN=Étienne Marchand.OU=Verlag.O=Meridal"));
    clickName(*browser, 0);
    browser->searchField->setFocus();
    QTest::keyClick(browser->searchField, Qt::Key_Return);
    EXPECT_EQ(sheet<Morvane>(), browser) << "Return in a search closed the sheet";
    QTest::keyClick(browser->searchField, Qt::Key_Escape);
    EXPECT_EQ(names(*browser), users);

    type(browser->searchField, "a");
    pick(browser->userTypePopUp, "Groups_Title");
    EXPECT_EQ(browser->searchField->text(), "");
    EXPECT_THAT(names(*browser), IsEmpty());
    click(browser->btnFetch);
    EXPECT_THAT(names(*browser), Contains("CN=Redaktion.OU=Verlag.O=Meridal"));
    EXPECT_TRUE(browser->userListTable->hasFocus()) << "Fetch went grey under the keyboard";
    type(browser->searchField, "redak"); // of the groups, not of the users that were searched before
    EXPECT_THAT(names(*browser), ElementsAre("CN=Redaktion.OU=Verlag.O=Meridal"));
    type(browser->treeTextField, ".OU=Leitung.O=Meridal.");
    QTest::keyClick(browser->searchField, Qt::Key_Backspace);
    EXPECT_THAT(names(*browser), IsEmpty()) << "they are not below the new base";
    click(browser->btnFetch);
    QTest::keyClick(browser->searchField, Qt::Key_Escape);
    EXPECT_EQ(browser->userListTable->emptyText(), "no groups below .OU=Leitung.O=Meridal.");
    QTest::keyClick(browser->window(), Qt::Key_Escape);

    auto* next = add<Morvane>();
    EXPECT_EQ(next->treeTextField->text(), ".OU=Leitung.O=Meridal.");
    openIdentityBrowser(*tab, *tab, "Morvane", {"Users", false});
    auto* single = sheet<Morvane>();
    EXPECT_EQ(single->userTypePopUp->count(), 1);
    enter(single->treeTextField, ".OU=Nowhere.O=Meridal.");
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed")) << "there is no such base";
    world.server->misbehaviour.openError = ENOENT;
    log.take();
    enter(single->treeTextField, verlag);
    EXPECT_THAT(alerts(), SizeIs(3)) << "a pipe that does not open is reported twice";
    const Texts lines = log.take();
    EXPECT_THAT(lines, Contains("Failed with err - -1"));
    EXPECT_THAT(lines, Contains("Failed with kelp err - "));
    EXPECT_TRUE(single->btnFetch->isEnabled());
}

TEST_F(IdentityBrowsersTest, AddsTreeUsersAndSaysOnceWhoIsThereAlready) {
    open(demo::supervisorTree, "Morvane");
    auto* browser = add<Morvane>();
    fetch(*browser, "Users_Title", verlag);
    const Texts users = names(*browser);
    QTest::keyClick(browser->userListTable, Qt::Key_A, Qt::ControlModifier);
    click(browser->selectButton);
    EXPECT_EQ(sheet<Morvane>(), browser) << "a refused answer leaves the sheet open";
    EXPECT_THAT(alerts(), ElementsAre("Err_Msg_Duplicate_Trustee")) << "Vera is a trustee";
    EXPECT_THAT(log.take(), Contains("Trustee is already present"));
    EXPECT_EQ(shown().size(), users.size());
    click(browser->selectButton);
    EXPECT_THAT(alerts(), SizeIs(2)) << "one message for all of them";
    EXPECT_EQ(shown().size(), users.size());
    click(browser->cancelButton);
    EXPECT_EQ(sheet<Morvane>(), nullptr);

    EXPECT_TRUE(changesEnabled());
    EXPECT_EQ(pending().front(), "ADD " + shown()[1] + " 0x41");
    EXPECT_EQ(trusteeIconName(tab->editedTrusteeList.back()->trusteeType), std::string("user_Morvane"));
    click(tab->applyBtn);
    EXPECT_EQ(onServer(tab->trusteeList.back()->trusteeID), 0x41);
}

TEST_F(IdentityBrowsersTest, ListsADomainOfActiveDirectoryAndAsksItAnewToSearch) {
    open();
    auto* browser = add<ActiveDirectory>();
    ASSERT_NE(browser, nullptr);
    EXPECT_THAT(browser->availableDomains,
                ElementsAre("/Active Directory/MERIDAL", nordhavn, "/Active Directory/FJERNØY"));
    EXPECT_EQ(browser->domainPopUp->currentIndex(), -1);
    EXPECT_EQ(browser->userTypePopUp->currentIndex(), -1);
    EXPECT_FALSE(browser->btnFetch->isEnabled());
    pick(browser->domainPopUp, nordhavn);
    EXPECT_TRUE(browser->btnFetch->isEnabled());
    click(browser->btnFetch);
    EXPECT_THAT(names(*browser), IsEmpty()) << "no category was picked";
    EXPECT_FALSE(browser->btnFetch->isEnabled());
    EXPECT_FALSE(browser->searchField->isEnabled());

    pick(browser->userTypePopUp, "Groups_Title");
    click(browser->btnFetch);
    const Texts groups = names(*browser);
    EXPECT_THAT(groups, SizeIs(demo::secondForestGroups));
    EXPECT_THAT(groups, Contains(demo::groupWithoutSid));
    type(browser->searchField, "gJEST");
    const auto queries = world.directory->state().queries;
    EXPECT_EQ(names(*browser), groups) << "it is not asked for each letter";
    QTest::keyClick(browser->searchField, Qt::Key_Return);
    EXPECT_THAT(names(*browser), ElementsAre(demo::groupWithoutSid));
    EXPECT_EQ(world.directory->state().queries, queries + 1);
    type(browser->searchField, "fyr");
    QTRY_COMPARE(names(*browser).front(), std::string("Fyrvæsen"));
    QTest::keyClick(browser->searchField, Qt::Key_Escape);
    EXPECT_EQ(names(*browser), groups);

    world.directory->state().failQueries = true;
    enter(browser->searchField, "x");
    EXPECT_THAT(names(*browser), IsEmpty());
    EXPECT_THAT(alerts(), ElementsAre("Err_AD_Connect"));
    pick(browser->domainPopUp, "/Active Directory/FJERNØY");
    EXPECT_THAT(names(*browser), IsEmpty());
    EXPECT_EQ(browser->searchField->text(), "");
    click(browser->btnFetch);
    EXPECT_EQ(browser->userListTable->emptyText(), "/Active Directory/FJERNØY is silent");
    EXPECT_THAT(alerts(), SizeIs(1)) << "a listing that fails is only logged";
    EXPECT_THAT(log.take(), Contains("Error in Open Directory Session - " + std::to_string(EHOSTUNREACH)));
}

TEST_F(IdentityBrowsersTest, AddsAccountsOfActiveDirectoryWithTheirTypes) {
    open();
    auto* browser = add<ActiveDirectory>();
    fetch(*browser, "Groups_Title", nordhavn);
    clickName(*browser, 2);
    clickName(*browser, 0, Qt::ControlModifier);
    const std::size_t hints = world.directory->state().prefetched.size();
    click(browser->selectButton);
    EXPECT_EQ(sheet<ActiveDirectory>(), nullptr);
    EXPECT_EQ(world.directory->state().prefetched.size(), hints + 2) << "both in one go";
    EXPECT_THAT(pending(), ElementsAre("ADD Havnevakt 0x41", "ADD Tollklarering 0x41"));
    EXPECT_THAT(tab->editedTrusteeList.back(), Pointee(Field(&Trustees::trusteeType, "Groups")));

    // A directory that has gone silent is reported once, and the accounts are added without type.
    world.directory->state().failQueries = true;
    EXPECT_TRUE(tab->onReturnSelectedUser({"a", "b", "c"}, {"S-1-5-1", "S-1-5-2"}, "Users"));
    EXPECT_THAT(alerts(), ElementsAre("Err_AD_Connect"));
    EXPECT_THAT(tab->editedTrusteeList.back(), Pointee(Field(&Trustees::trusteeName, "b")));
    EXPECT_TRUE(tab->onReturnSelectedUser({}, {"S-1-5-3"}, ""));
}

TEST_F(IdentityBrowsersTest, AnswersTheViewThatAskedAsLongAsItExists) {
    open();
    openIdentityBrowser(*tab, *tab, "neither", {});
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    openIdentityBrowser(*tab, *tab, "ActiveDirectory", {"Users", false});
    auto* browser = sheet<ActiveDirectory>();
    EXPECT_EQ(browser->userTypePopUp->count(), 1);
    fetch(*browser, "Users_Title", nordhavn);
    clickName(*browser, 1);
    clickName(*browser, 0, Qt::ControlModifier);
    QTest::mouseDClick(browser->userListTable->viewport(), Qt::LeftButton, {}, {20, 8});
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_THAT(pending(), ElementsAre("ADD åse.ågren 0x41"));
    EXPECT_EQ(tab->editedTrusteeList.back()->trusteeID, "S-1-5-21-310277445-4071925506-88213697-5000");

    auto passing = std::make_unique<ViewController>(host.get());
    openIdentityBrowser(*passing, *tab, "ActiveDirectory", {"Users"});
    browser = sheet<ActiveDirectory>();
    fetch(*browser, "Users_Title", nordhavn);
    browser->onSelect();
    EXPECT_EQ(sheet<ActiveDirectory>(), browser) << "nothing was selected";
    clickName(*browser, 1);
    passing.reset();
    QTest::keyClick(browser->userListTable, Qt::Key_Return);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_THAT(pending(), SizeIs(1)) << "there is nobody to answer to";
}

TEST_F(IdentityBrowsersTest, AsksForTheDirectoryWhereBothAreShown) {
    Shared::value().bothID = true;
    open();
    EXPECT_THAT(shown(), ElementsAre("Müller", "admin", "Zoe", "ADMIN", "CN=Vera.OU=Verlag.O=Meridal"));
    auto* source = add<Source>();
    ASSERT_NE(source, nullptr);
    EXPECT_TRUE(source->ADBtn->isChecked());
    click(source->MorvaneBtn);
    EXPECT_FALSE(source->ADBtn->isChecked());
    click(source->CancelBtn);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(tab->domainIdentity, "ActiveDirectory");

    source = add<Source>();
    source->ADBtn->setFocus();
    QTest::keyClick(source->ADBtn, Qt::Key_Up);
    QTest::keyClick(source->MorvaneBtn, Qt::Key_Return);
    EXPECT_EQ(tab->domainIdentity, "Morvane");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    auto* browser = sheet<Morvane>();
    ASSERT_NE(browser, nullptr) << "the browser went with the sheet that opened it";
    EXPECT_TRUE(sheetGetsTheKeyboard());
    EXPECT_TRUE(browser->userTypePopUp->hasFocus());
    fetch(*browser, "Users_Title", verlag);
    clickName(*browser, 0);
    click(browser->selectButton);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_THAT(shown(), SizeIs(6));
    EXPECT_THAT(tab->editedTrusteeList.back(), Pointee(Field(&Trustees::domainType, "Morvane")));

    for (const char* identityType : {"Morvane", "anything"}) {
        open(demo::supervisorTree, identityType);
        source = add<Source>();
        EXPECT_TRUE(source->MorvaneBtn->isChecked()) << identityType;
        click(source->CancelBtn);
    }
}

TEST_F(IdentityBrowsersTest, LeadsTheTabKeyThroughNamedControls) {
    open();
    auto* browser = add<ActiveDirectory>();
    for (const char* name :
         {"userTypePopUp", "domainPopUp", "userListTable", "cancelButton", "userTypePopUp"}) {
        QWidget* at = QApplication::focusWidget();
        EXPECT_EQ(at->objectName(), name);
        EXPECT_FALSE(at->accessibleName().isEmpty() && at != browser->cancelButton);
        QTest::keyClick(at, Qt::Key_Tab);
    }
}

TEST_F(IdentityBrowsersTest, PicksFromTheSingleForestByName) {
    bundle->features->at("multiForest") = false;
    open();
    auto* browser = add<Old>();
    ASSERT_NE(browser, nullptr);
    EXPECT_EQ(browser->userTypeTable->count(), 2);
    EXPECT_EQ(names(*browser).front(), demo::supervisor);
    enter(browser->searchField, "t");
    EXPECT_THAT(names(*browser), Contains(demo::accessControl));
    clickName(*browser, 0);
    QTest::keyClick(browser->userTypeTable, Qt::Key_Down);
    EXPECT_THAT(names(*browser), Contains("Ticketing")) << "the search goes on in the groups";
    EXPECT_FALSE(browser->selectButton->isEnabled());
    QTest::keyClick(browser->searchField, Qt::Key_Escape);
    EXPECT_EQ(names(*browser).front(), "Festival Team") << "the groups come back, not the users";
    clickName(*browser, 0);
    click(browser->selectButton);
    EXPECT_THAT(pending(), ElementsAre("ADD Festival Team 0x41"));
    EXPECT_EQ(tab->editedTrusteeList.back()->trusteeID,
              world.identities->findByName("Festival Team").front()->id);

    browser = add<Old>();
    world.directory->state().bound = false;
    enter(browser->searchField, "x");
    EXPECT_THAT(names(*browser), IsEmpty());
    EXPECT_THAT(log.take(), Contains("Could not find a Active Directory on the server"));
    EXPECT_THAT(alerts(), IsEmpty());
}

} // namespace
} // namespace quorvan::test
