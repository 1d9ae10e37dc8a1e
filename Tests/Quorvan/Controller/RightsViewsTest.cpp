// SPDX-License-Identifier: GPL-3.0-or-later
// The tabs beside the trustee rights.
#include "Quorvan/Controller/Rights/EffectiveRightsViewController.h"
#include "Quorvan/Controller/Rights/InheritedRightsViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Modal/ParentPaths.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

namespace quorvan::test {
namespace {

struct RightsViewsTest : WindowTest {
    const std::string filter =
        "supervisorIRF readIRF writeIRF eraseIRF createIRF modifyIRF fscanIRF accessIRF";
    const std::string chosen =
        "userGroupField supervisorChk readChk writeChk eraseChk createChk modifyChk fsChk accessChk";
    const std::string readOnly =
        ", off grey, on grey, off grey, off grey, off grey, off grey, on grey, off grey";
};

TEST_F(RightsViewsTest, InheritedFilterIsEditedSentAndKept) {
    world.server->setFilter(box, 0x1F9);
    EXPECT_EQ(open("inherited").state(filter), "on grey, on, off, on, on, on, on, on");
    view<InheritedRightsViewController>().editedIRF |= 0x0004; // a bit that nobody knows
    act("readIRF, writeIRF, accessIRF");
    EXPECT_EQ(view<InheritedRightsViewController>().editedIRF, 0x1DE);
    play("tab 0, tab 1 | applyBtn ready | revertBtn ready // the edits outlive a visit to another tab");
    play("applyBtn | applyBtn grey | revertBtn grey | alerts");
    EXPECT_EQ(world.server->filter(box), 0x1DA);
    play(R"(
        readIRF, readIRF    | applyBtn ready | revertBtn ready  // a click never switches them off
        readIRF, revertBtn  | applyBtn grey  | revertBtn grey | readIRF off | writeIRF on
        break pipes, eraseIRF, applyBtn | alerts Err_Operation_Failed | applyBtn ready
        revertBtn           | eraseIRF off  // what could not be sent is what Revert returns to
    )");
    EXPECT_EQ(state(filter), "on grey, off, on, off, on, on, on, off");
    EXPECT_EQ(world.server->filter(box), 0x1DA);
}

TEST_F(RightsViewsTest, EffectiveRightsOfTrusteesAndOfOneThatIsChosen) {
    play(R"(
        open effective | rows Müller SRWECMFA, admin RF, Zoe, ADMIN RWECMFA, ingrid.holm SRWECMFA, tomas.beran RWECMFA, lea.fournier RF
    )");
    auto& page = view<EffectiveRightsViewController>();
    take("selectUserBtn", "Users_Title", meridal, {"Zoe", "ADMIN"}); // only one can be chosen
    EXPECT_EQ(state(chosen),
              "ADMIN, off grey, on grey, on grey, on grey, on grey, on grey, on grey, on grey");
    page.onReturnSelectedUser({"Müller", "admin", "?"}, {"Müller", "admin"}, "");
    EXPECT_EQ(state(chosen), "admin" + readOnly);
    const std::string unknown = ", unknown grey";
    world.server->misbehaviour.code =
        7; // a refusal holds no rights, and those of the one before are not hers
    page.onReturnSelectedUser({"Zoe"}, {"Zoe"}, "");
    EXPECT_EQ(state(chosen).substr(0, 17), ("Zoe" + unknown).substr(0, 17));
    mend();
    breakPipes();
    page.onReturnSelectedUser({"<b>Zoe"}, {"Zoe"}, "");
    EXPECT_EQ(state(chosen),
              "<b>Zoe" + unknown + unknown + unknown + unknown + unknown + unknown + unknown + unknown);
    EXPECT_THAT(value("userGroupField", "toolTip"), testing::HasSubstr("&lt;b&gt;")) << "shown as it is";
    EXPECT_DEATH(page.onReturnMorvaneSelectedUser({}), "no identity");
    play("mend, type searchField adm | alerts Err_Operation_Failed | rows admin RF, ADMIN RWECMFA");
    act("tab 0");
    world.server->setTrustee(box, world.identities->addDomainUser("adminora", "adminora"), 1);
    play(R"(
        tab 2                        | count 8  // each visit loads anew
        type searchField admi        | count 2  // the search goes on over the rows it began with
        header, header               | rows admin RF, ADMIN RWECMFA  // equal names stay in their order
        type searchField , header    | row 0 admin RF
    )");
}

TEST_F(RightsViewsTest, BothIdentitiesComeTogetherAndTheFirstFailsInSilence) {
    bundle->features->at("enableSettings") = false;
    open("effective", demo::supervisor, [] { Shared::value().bothID = true; });
    play("| count 11 | row 7 CN=Vera.OU=Verlag.O=Meridal RF // behind Active Directory");
    take("selectUserBtn", "Users_Title", verlag, {"CN=Vera.OU=Verlag.O=Meridal"});
    EXPECT_THAT(state(chosen), testing::EndsWith(readOnly));
    world.server->misbehaviour.code = 7;
    world.server->misbehaviour.onlyWith = "getAllEffectiveRights><adOnly/>";
    play("tab 0, tab 2 | count 4 // those of the tree");
    world.server->misbehaviour.onlyWith = "<rightsRequest><adOnly/>";
    play("tab 3 | row:subdirTable 0 CN=Vera.OU=Verlag.O=Meridal Box RF | alerts");
    EXPECT_EQ(rows("parentdirTable")[0], "CN=Vera.OU=Verlag.O=Meridal Box RF");
}

TEST(ParentPaths, EndWithTheRootInBothSpellings) {
    EXPECT_THAT(getParentPaths("VOL1:\\a\\b"), ElementsAre("VOL1:\\a\\b", "VOL1:\\a", "VOL1:\\", "VOL1:"));
    EXPECT_THAT(getParentPaths("VOL1:\\a"), ElementsAre("VOL1:\\a", "VOL1:\\", "VOL1:"));
    EXPECT_THAT(getParentPaths("VOL1:\\"), ElementsAre("VOL1:\\", "VOL1:"));
    EXPECT_THAT(getParentPaths(""), IsEmpty());
    EXPECT_DEATH(getParentPaths("VOL1:"), "no backslash");
    EXPECT_EQ(volumeOfPath("\\VOL1:\\a"), "VOL1:");
    EXPECT_DEATH(volumeOfPath("\\\\"), "no volume");
}

TEST_F(RightsViewsTest, FolderTrusteesOfBothTablesGoOutInTheOrderOfTheEdits) {
    // Above the path the nearest come first, and nothing stands there from beside it. What is pending
    // outlives a visit to another tab, though the rows are the server's again.
    play(R"(
        open folders | rows:subdirTable Müller Box SRWECMFA, admin Box RF, Zoe Box, ADMIN Box RWECMFA, admin Box\Low RF, Zoe Box\Low RWECMFA
                     | rows:parentdirTable Müller Box SRWECMFA, admin Box RF, Zoe Box, ADMIN Box RWECMFA, admin VOL1:\Tests RMF, ingrid.holm VOL1:\ S, tomas.beran VOL1:\ RWECMFA, lea.fournier VOL1:\ RF
        removeBtnSub, applybtn | applybtn ready | revertbtn ready | sent
        tick:subdirTable 4W, tick:parentdirTable 4S, tick:subdirTable 4R, pick:subdirTable 5, pick:parentdirTable 1
        removeBtnSub, removeBtnParent | count:parentdirTable 7 | row:subdirTable 4 admin Box\Low WF | sent
        tab 0, tab 3 | rows:subdirTable Müller Box SRWECMFA, admin Box RF, Zoe Box, ADMIN Box RWECMFA, admin Box\Low RF, Zoe Box\Low RWECMFA
                     | applybtn grey | revertbtn grey
        tick:subdirTable 2R, break pipes, applybtn | alerts Err_Operation_Failed
        mend, applybtn | sent add admin Box\Low; add admin VOL1:\Tests; remove Zoe Box\Low; remove admin Box; add Zoe Box
                     | rows:subdirTable Müller Box SRWECMFA, Zoe Box R, ADMIN Box RWECMFA, admin Box\Low WF
                     | row:parentdirTable 3 admin VOL1:\Tests SRMF | applybtn grey | revertbtn grey
    )");
    const auto requests = world.server->requestCount();
    play("tick:subdirTable 0R, revertbtn | row:subdirTable 0 Müller Box SRWECMFA | applybtn grey");
    act("removeBtnParent, applybtn");
    EXPECT_EQ(world.server->requestCount(), requests);
}

TEST_F(RightsViewsTest, FolderTrusteesAreSearchedByNameAndPath) {
    // A tick goes into the first row of the identity, on whatever path; each table has its own search, and
    // the key for it goes from one to the other.
    play(R"(
        open folders, type searchInSubField low | rows:subdirTable admin Box\Low RF, Zoe Box\Low RWECMFA | count:parentdirTable 8
        tick:subdirTable 0W, pick:subdirTable 1, removeBtnSub, type searchInSubField q | empty:subdirTable no path like q
        type searchInSubField    | rows:subdirTable Müller Box SRWECMFA, admin Box RWF, Zoe Box, ADMIN Box RWECMFA, admin Box\Low RF, Zoe Box\Low RWECMFA
        header:subdirTable       | row:subdirTable 1 ADMIN Box RWECMFA | row:parentdirTable 0 Müller Box SRWECMFA
        type searchInParentField tomas, header:parentdirTable | rows:parentdirTable tomas.beran VOL1:\ RWECMFA
        applybtn                 | sent add admin Box\Low; remove Zoe Box\Low
        key Ctrl+F               | focus searchInSubField
        key Ctrl+F               | focus searchInParentField
    )");
}

} // namespace
} // namespace quorvan::test
