// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Selection/Shared.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

namespace quorvan::test {
namespace {

using RightsTabTest = WindowTest;

TEST_F(RightsTabTest, SendsOneChangeForEachTrusteeInOneRequest) {
    EXPECT_THAT(open("rights").rows(), ElementsAre("Müller SRWECMFA", "admin RF", "Zoe", "ADMIN RWECMFA"));
    act("tick 0R 2S 0R 0A"); // S implies no other right
    EXPECT_THAT(changes(), IsEmpty());
    control("applyBtn").setFocus();
    EXPECT_THAT(act("key Space").changes(), ElementsAre("add Müller Box; add Zoe Box"));
    EXPECT_EQ(rightsOnServer("Müller"), 0x1DB);
    EXPECT_EQ(rightsOnServer("Zoe"), 0x100);
    EXPECT_FALSE(changesEnabled());
    EXPECT_TRUE(control("rightsTable").hasFocus()) << "the keyboard must not end up on the next button";
    EXPECT_EQ(world.network->openDescriptors(), 0U);

    // What the server refuses is not reported; the list shows what it has.
    act("tick 1W");
    world.server->setTrustee("VOL1:\\", *world.identities->findByName(demo::supervisor).front(), 0x041);
    EXPECT_THAT(act("applyBtn, tick 1S").alerts(), IsEmpty());
    EXPECT_EQ(rows()[1], "admin SRF") << "a right once seen is never lowered";
}

TEST_F(RightsTabTest, KeepsEverythingWhenApplyFailsAndSendsItWithTheNext) {
    open("rights").act("tick 1W");
    for (const bool password : {true, false}) {
        password ? breakPipes() : losePassword();
        log.take();
        act("applyBtn");
        EXPECT_THAT(alerts(), ElementsAre(password ? "Err_Operation_Failed" : "Err_Keychain_Not_Found"));
        EXPECT_THAT(log.take(), Contains(testing::HasSubstr("Failed with err - ")).Times(password ? 1 : 0));
        EXPECT_EQ(title(), "Trustee_Rights_Title");
        EXPECT_EQ(rows()[1], "admin RWF");
        EXPECT_TRUE(changesEnabled());
        mend();
    }
    forgetServer();
    EXPECT_EQ(act("applyBtn").rightsOnServer("admin"), 0x43);
    EXPECT_FALSE(changesEnabled());
}

TEST_F(RightsTabTest, RemovesTheSelectedRowsInTheirOrder) {
    EXPECT_THAT(open("rights").act("removeBtn, applyBtn").changes(), IsEmpty());
    EXPECT_TRUE(changesEnabled()) << "even though nothing was selected";
    act("tick 3W, pick 3 0, removeBtn");
    EXPECT_THAT(rows(), ElementsAre("admin RF", "Zoe")) << "… and the next click removes no more";
    EXPECT_THAT(act("applyBtn").changes(), ElementsAre("add ADMIN Box; remove Müller Box; remove ADMIN Box"));
    EXPECT_EQ(rightsOnServer("Müller"), -1);
    EXPECT_THAT(rows(), ElementsAre("admin RF", "Zoe"));
}

TEST_F(RightsTabTest, SearchesWhileRowsAreEditedAndRemoved) {
    EXPECT_THAT(open("rights").act("type searchField adm").rows(), ElementsAre("admin RF", "ADMIN RWECMFA"));
    act("tick 1R");           // mirrored into the rows that are not shown
    act("pick 0, removeBtn"); // not mirrored: the row comes back when the search ends
    EXPECT_THAT(rows(), ElementsAre("ADMIN WECMFA"));
    EXPECT_THAT(act("type searchField admx").rows(), IsEmpty());
    EXPECT_EQ(emptyText(), "nothing like admx");
    EXPECT_THAT(act("type searchField MULLER").rows(), ElementsAre("Müller SRWECMFA"));
    EXPECT_THAT(act("key Escape").rows(), ElementsAre("Müller SRWECMFA", "admin RF", "Zoe", "ADMIN WECMFA"));

    // Revert leaves the search alone, and asks the server nothing; the rows that were saved when the search
    // began are back when it ends.
    act("type searchField zo");
    const auto requests = world.server->requestCount();
    act("revertBtn");
    EXPECT_EQ(world.server->requestCount(), requests);
    EXPECT_THAT(rows(), ElementsAre("Müller SRWECMFA", "admin RF", "Zoe", "ADMIN RWECMFA"));
    EXPECT_FALSE(changesEnabled());
    EXPECT_EQ(value("searchField"), "zo");
    EXPECT_EQ(act("type searchField ").rows()[3], "ADMIN WECMFA");
    EXPECT_THAT(act("removeBtn, applyBtn").changes(), IsEmpty()) << "nothing is pending";

    act("tick 3R, type searchField admin, pick 0, removeBtn, applyBtn");
    EXPECT_THAT(changes(), ElementsAre("add ADMIN Box; remove admin Box"));
}

TEST_F(RightsTabTest, SortsByNameAndForgetsTheOrderWithTheRows) {
    const auto names = [this] {
        std::string text;
        for (const std::string& row : rows())
            text += row.substr(0, row.find(' ')) + ' ';
        return text;
    };
    open("rights").act("header");
    EXPECT_EQ(names(), "admin ADMIN Müller Zoe ");
    act("header");
    EXPECT_EQ(names(), "Zoe Müller admin ADMIN ");
    act("type searchField m, header"); // only what is shown
    EXPECT_EQ(names(), "admin ADMIN Müller ");
    act("type searchField ");
    EXPECT_EQ(names(), "Zoe Müller admin ADMIN ");
    EXPECT_FALSE(control<ListTable>("").sortDescriptor()->ascending)
        << "the header must tell how the rows stand";
    for (const char* change : {"applyBtn", "revertBtn"}) {
        act("header, tick 2R");
        click(change);
        EXPECT_EQ(names(), "Müller admin Zoe ADMIN ");
        EXPECT_FALSE(control<ListTable>("").sortDescriptor());
    }
}

TEST_F(RightsTabTest, KeepsPendingChangesHiddenOverAnotherVisit) {
    open("rights");
    EXPECT_EQ(act("tick 0R, tab 1, tab 0").rows()[0], "Müller SRWECMFA") << "the rows are the server's again";
    EXPECT_FALSE(changesEnabled());
    EXPECT_THAT(act("tick 1W, applyBtn").changes(), ElementsAre("add Müller Box; add admin Box"));
    EXPECT_EQ(rightsOnServer("Müller"), 0x1FA);
}

TEST_F(RightsTabTest, SwitchesToBothIdentityTypesAndDropsPendingChanges) {
    EXPECT_FALSE(open("rights").isShown("showCheck"));
    EXPECT_EQ(value("showCheckCaption"), "Rights_Label_Title");
    bundle->features->at("enableSettings") = false;
    for (const auto& [user, title] :
         {std::pair{demo::supervisor, "Morvane_Trustee_Label"}, {demo::supervisorTree, "AD_Trustee_Label"}}) {
        EXPECT_EQ(open("rights", user).value("showCheck"), title);
    }
    EXPECT_FALSE(open("rights", demo::readOnly).isEnabled("showCheck"));
    bundle->features->at("addBothTrustees") = false;
    EXPECT_EQ(open("rights").value("showCheck"), "Both_Trustee_Label");
    EXPECT_TRUE(isEnabled("addBtn"));
    act("tick 0R, showCheck");
    EXPECT_THAT(rows(), ElementsAre("Müller SRWECMFA", "admin RF", "Zoe", "ADMIN RWECMFA",
                                    "CN=Vera.OU=Verlag.O=Meridal RF"));
    EXPECT_TRUE(changesEnabled()) << "the switch does not touch the buttons";
    EXPECT_FALSE(isEnabled("addBtn"));
    act("tick 4W 1W, applyBtn");
    EXPECT_THAT(changes(), ElementsAre("add guid-vera Box; add admin Box")) << "what was pending is gone";
    EXPECT_EQ(rightsOnServer("guid-vera"), 0x43);
    EXPECT_THAT(rows(), SizeIs(5));
    EXPECT_EQ(act("tab 1, tab 0").value("showCheck", "checked"), "true");
    EXPECT_THAT(rows(), SizeIs(5));
    EXPECT_FALSE(isEnabled("addBtn"));
    EXPECT_THAT(act("showCheck").rows(), SizeIs(4));
    EXPECT_TRUE(isEnabled("addBtn"));
    EXPECT_FALSE(Shared::value().bothID);
}

} // namespace
} // namespace quorvan::test
