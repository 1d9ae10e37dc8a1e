// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Selection/Shared.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

namespace quorvan::test {
namespace {

using RightsTabTest = WindowTest;

TEST_F(RightsTabTest, SendsOneChangeForEachTrusteeInOneRequest) {
    play(R"(
        open rights          | rows Müller SRWECMFA, admin RF, Zoe, ADMIN RWECMFA
        tick 0R 2S 0R 0A     | sent                            // S implies no other right
    )");
    control("applyBtn").setFocus(); // from where the keyboard must not end up on the next button
    play("key Space | sent add Müller Box; add Zoe Box | applyBtn grey | revertBtn grey | focus rightsTable");
    EXPECT_EQ(rightsOnServer("Müller"), 0x1DB);
    EXPECT_EQ(rightsOnServer("Zoe"), 0x100);
    EXPECT_EQ(world.network->openDescriptors(), 0U);
    act("tick 1W");
    world.server->setTrustee("VOL1:\\", *world.identities->findByName(demo::supervisor).front(), 0x041);
    play(R"(
        applyBtn             | sent add admin Box | alerts | row 1 admin RF   // what is refused is not reported
        tick 1S              | row 1 admin SRF    // a right once seen is never lowered
    )");
}

TEST_F(RightsTabTest, KeepsEverythingWhenApplyFailsAndSendsItWithTheNext) {
    play(R"(
        open rights, tick 1W, break pipes, applyBtn | alerts Err_Operation_Failed | logged Failed with err - -1
                             | title Trustee_Rights_Title | row 1 admin RWF | applyBtn ready | revertBtn ready
    )");
    log.take();
    play(R"(
        mend, lose password, applyBtn | alerts Err_Keychain_Not_Found
                             | title Trustee_Rights_Title | row 1 admin RWF | applyBtn ready | revertBtn ready
    )");
    EXPECT_THAT(log.lines, Not(Contains(testing::HasSubstr("Failed with err"))));
    mend();
    forgetServer();
    play("applyBtn | sent add admin Box | row 1 admin RWF | applyBtn grey");
}

TEST_F(RightsTabTest, RemovesTheSelectedRowsInTheirOrder) {
    play(R"(
        open rights, removeBtn, applyBtn | sent | applyBtn ready | revertBtn ready   // nothing was selected
        tick 3W, pick 3 0, removeBtn     | rows admin RF, Zoe  // … and the next click removes no more
        applyBtn             | sent add ADMIN Box; remove Müller Box; remove ADMIN Box | rows admin RF, Zoe
    )");
}

TEST_F(RightsTabTest, SearchesWhileRowsAreEditedAndRemoved) {
    // A tick goes into the rows that are not shown, too; a row that is removed comes back when the search
    // ends.
    play(R"(
        open rights, type searchField adm | rows admin RF, ADMIN RWECMFA
        tick 1R, pick 0, removeBtn   | rows ADMIN WECMFA
        type searchField admx        | empty nothing like admx
        type searchField MULLER      | rows Müller SRWECMFA
        key Escape                   | rows Müller SRWECMFA, admin RF, Zoe, ADMIN WECMFA
        type searchField zo
    )");
    // Revert leaves the search alone, and asks the server nothing; the rows that were saved when the search
    // began are back when it ends.
    const auto requests = world.server->requestCount();
    play(R"(
        revertBtn                    | rows Müller SRWECMFA, admin RF, Zoe, ADMIN RWECMFA | searchField zo | applyBtn grey
        type searchField             | row 3 ADMIN WECMFA
        removeBtn, applyBtn          | sent                    // nothing is pending
    )");
    EXPECT_EQ(world.server->requestCount(), requests);
    // The search ends with the reading: whoever was removed in it is not listed again when it is cleared.
    play(R"(
        tick 3R, type searchField admin, pick 0, removeBtn, applyBtn | sent add ADMIN Box; remove admin Box
                                     | searchField | rows Müller SRWECMFA, Zoe, ADMIN RWECMFA
        type searchField zo          | rows Zoe
        type searchField             | rows Müller SRWECMFA, Zoe, ADMIN RWECMFA
    )");
}

TEST_F(RightsTabTest, SortsByNameAndForgetsTheOrderWithTheRows) {
    play(R"(
        open rights, header          | rows admin RF, ADMIN RWECMFA, Müller SRWECMFA, Zoe
        header                       | rows Zoe, Müller SRWECMFA, admin RF, ADMIN RWECMFA
        type searchField m, header   | rows admin RF, ADMIN RWECMFA, Müller SRWECMFA     // only what is shown
        type searchField             | rows Zoe, Müller SRWECMFA, admin RF, ADMIN RWECMFA
    )");
    const auto& order = control<ListTable>("rightsTable").sortDescriptor();
    EXPECT_FALSE(order->ascending) << "the header must tell how the rows stand";
    play("header, tick 2R, applyBtn | rows Müller SWECMFA, admin RF, Zoe, ADMIN RWECMFA");
    EXPECT_FALSE(order);
    play("header, tick 2R, revertBtn | rows Müller SWECMFA, admin RF, Zoe, ADMIN RWECMFA");
    EXPECT_FALSE(order);
}

TEST_F(RightsTabTest, KeepsPendingChangesHiddenOverAnotherVisit) {
    play(R"(
        open rights, tick 0R, tab 1, tab 0 | row 0 Müller SRWECMFA | applyBtn grey  // the rows are the server's again
        tick 1W, applyBtn            | sent add Müller Box; add admin Box | row 0 Müller SWECMFA
    )");
}

TEST_F(RightsTabTest, SwitchesToBothIdentityTypesAndDropsPendingChanges) {
    play("open rights | showCheck hidden | showCheckCaption Rights_Label_Title");
    bundle->features->at("enableSettings") = false;
    EXPECT_EQ(open("rights").value("showCheck"), "Morvane_Trustee_Label");
    EXPECT_EQ(open("rights", demo::supervisorTree).value("showCheck"), "AD_Trustee_Label");
    bundle->features->at("addBothTrustees") = false;
    EXPECT_EQ(open("rights", demo::readOnly).value("showCheck"), "Both_Trustee_Label");
    play(R"(
                             | showCheck off grey
        open rights          | addBtn ready
        tick 0R, showCheck   | rows Müller SRWECMFA, admin RF, Zoe, ADMIN RWECMFA, CN=Vera.OU=Verlag.O=Meridal RF
                             | applyBtn ready | revertBtn ready | addBtn grey     // the switch does not touch them
        tick 4W 1W, applyBtn | sent add guid-vera Box; add admin Box | count 5    // what was pending is gone
        tick 0R, revertBtn   | count 5 | row 4 CN=Vera.OU=Verlag.O=Meridal RWF
        tab 1, tab 0         | showCheck on | count 5 | addBtn grey
        showCheck            | count 4 | addBtn ready
    )");
    EXPECT_FALSE(Shared::value().bothID);
}

} // namespace
} // namespace quorvan::test
