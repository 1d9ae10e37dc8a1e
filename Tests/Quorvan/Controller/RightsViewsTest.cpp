// SPDX-License-Identifier: GPL-3.0-or-later
// The tabs beside the trustee rights.
#include "Quorvan/Controller/Rights/DirectoryTrusteeViewController.h"
#include "Quorvan/Controller/Rights/EffectiveRightsViewController.h"
#include "Quorvan/Controller/Rights/InheritedRightsViewController.h"
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Modal/ParentPaths.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

namespace quorvan::test {
namespace {

struct RightsViewsTest : WindowTest {
    /// The letters of the ticked boxes of these names.
    std::string ticked(std::initializer_list<const char*> boxes) const {
        std::string letters;
        for (const char* box : boxes)
            letters += value(box, "checked") == "true" ? box[0] : '-';
        return letters;
    }
    std::string filter() const {
        return ticked({"supervisorIRF", "readIRF", "writeIRF", "eraseIRF", "createIRF", "modifyIRF",
                       "fscanIRF", "accessIRF"});
    }
    std::string rightsOfChosen() const {
        return ticked({"supervisorChk", "readChk", "writeChk", "eraseChk", "createChk", "modifyChk", "fsChk",
                       "accessChk"});
    }
};

TEST_F(RightsViewsTest, InheritedFilterIsEditedSentAndKept) {
    world.server->setFilter(box, 0x1F9);
    open("inherited");
    EXPECT_EQ(filter(), "sr-ecmfa");
    view<InheritedRightsViewController>().editedIRF |= 0x0004; // a bit that nobody knows
    act("readIRF, writeIRF, accessIRF");
    EXPECT_EQ(view<InheritedRightsViewController>().editedIRF, 0x1DE);
    EXPECT_TRUE(act("tab 0, tab 1").isEnabled("applyBtn")) << "the edits outlive a visit to another tab";
    act("applyBtn");
    EXPECT_EQ(world.server->filter(box), 0x1DA);
    EXPECT_FALSE(changesEnabled());

    EXPECT_TRUE(act("readIRF, readIRF").isEnabled("revertBtn")) << "a click never switches it off";
    act("readIRF, revertBtn");
    EXPECT_EQ(filter(), "s-wecmf-");
    EXPECT_FALSE(isEnabled("applyBtn"));
    breakPipes();
    EXPECT_THAT(act("eraseIRF, applyBtn").alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_TRUE(isEnabled("applyBtn"));
    act("revertBtn");
    EXPECT_EQ(filter(), "s-w-cmf-") << "what could not be sent is what Revert returns to";
    EXPECT_EQ(world.server->filter(box), 0x1DA);
}

TEST_F(RightsViewsTest, EffectiveRightsOfTrusteesAndOfOneThatIsChosen) {
    open("effective");
    EXPECT_THAT(rows(), ElementsAre("Müller SRWECMFA", "admin RF", "Zoe", "ADMIN RWECMFA",
                                    "ingrid.holm SRWECMFA", "tomas.beran RWECMFA", "lea.fournier RF"));
    auto& page = view<EffectiveRightsViewController>();
    take("selectUserBtn", "Users_Title", meridal, {"Zoe", "ADMIN"}); // only one can be chosen
    EXPECT_EQ(value("userGroupField"), "ADMIN");
    EXPECT_EQ(rightsOfChosen(), "-rwecmfa");
    page.onReturnSelectedUser({"Müller", "admin", "?"}, {"Müller", "admin"}, "");
    EXPECT_EQ(value("userGroupField"), "admin");
    EXPECT_EQ(rightsOfChosen(), "-r----f-");
    breakPipes();
    page.onReturnSelectedUser({"<b>Zoe"}, {"Zoe"}, "");
    EXPECT_EQ(value("userGroupField"), "<b>Zoe");
    EXPECT_THAT(value("userGroupField", "toolTip"), testing::HasSubstr("&lt;b&gt;")) << "shown as it is";
    EXPECT_EQ(rightsOfChosen(), "-r----f-") << "the rights of the one before";
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed"));
    EXPECT_DEATH(page.onReturnMorvaneSelectedUser({}), "no identity");
    mend();

    EXPECT_THAT(act("type searchField adm").rows(), ElementsAre("admin RF", "ADMIN RWECMFA"));
    act("tab 0");
    world.server->setTrustee(box, world.identities->addDomainUser("adminora", "adminora"), 1);
    EXPECT_THAT(act("tab 2").rows(), SizeIs(8)) << "each visit loads anew";
    act("type searchField admi");
    EXPECT_THAT(rows(), SizeIs(2)) << "the search goes on over the rows it began with";
    act("header, header");
    EXPECT_THAT(rows(), ElementsAre("admin RF", "ADMIN RWECMFA")) << "equal names stay in their order";
    EXPECT_EQ(act("type searchField , header").rows().front(), "admin RF");
}

TEST_F(RightsViewsTest, BothIdentitiesComeTogetherAndTheFirstFailsInSilence) {
    bundle->features->at("enableSettings") = false;
    open("effective", demo::supervisor, [] { Shared::value().bothID = true; });
    EXPECT_THAT(rows(), SizeIs(11));
    EXPECT_EQ(rows()[7], "CN=Vera.OU=Verlag.O=Meridal RF") << "behind Active Directory";
    take("selectUserBtn", "Users_Title", verlag, {"CN=Vera.OU=Verlag.O=Meridal"});
    EXPECT_EQ(rightsOfChosen(), "-r----f-");
    auto& misbehaviour = world.server->misbehaviour;
    misbehaviour.code = 7;
    misbehaviour.onlyWith = "getAllEffectiveRights><adOnly/>";
    EXPECT_THAT(act("tab 0, tab 2").rows(), SizeIs(4)) << "those of the tree";
    misbehaviour.onlyWith = "<rightsRequest><adOnly/>";
    EXPECT_EQ(act("tab 3").rows("subdirTable")[0], "CN=Vera.OU=Verlag.O=Meridal Box RF");
    EXPECT_EQ(rows("parentdirTable")[0], "CN=Vera.OU=Verlag.O=Meridal Box RF");
    EXPECT_THAT(alerts(), IsEmpty());
}

TEST(ParentPaths, EndWithTheRootInBothSpellings) {
    EXPECT_THAT(getParentPaths("VOL1:\\a\\b\\c"),
                ElementsAre("VOL1:\\a\\b\\c", "VOL1:\\a\\b", "VOL1:\\a", "VOL1:\\", "VOL1:"));
    EXPECT_THAT(getParentPaths("VOL1:\\a"), ElementsAre("VOL1:\\a", "VOL1:\\", "VOL1:"));
    EXPECT_THAT(getParentPaths("VOL1:\\"), ElementsAre("VOL1:\\", "VOL1:"));
    EXPECT_THAT(getParentPaths(""), IsEmpty());
    EXPECT_DEATH(getParentPaths("VOL1:"), "no backslash");
    EXPECT_EQ(volumeOfPath("\\VOL1:\\a"), "VOL1:");
    EXPECT_DEATH(volumeOfPath("\\\\"), "no volume");
}

TEST_F(RightsViewsTest, FolderTrusteesOfBothTablesGoOutInTheOrderOfTheEdits) {
    open("folders");
    const std::vector<std::string> below = {
        "Müller Box SRWECMFA", "admin Box RF",      "Zoe Box",
        "ADMIN Box RWECMFA",   "admin Box\\Low RF", "Zoe Box\\Low RWECMFA"};
    EXPECT_EQ(rows("subdirTable"), below);
    EXPECT_THAT(rows("parentdirTable"),
                ElementsAre("Müller Box SRWECMFA", "admin Box RF", "Zoe Box", "ADMIN Box RWECMFA",
                            "admin VOL1:\\Tests RMF", "ingrid.holm VOL1:\\ S", "tomas.beran VOL1:\\ RWECMFA",
                            "lea.fournier VOL1:\\ RF"))
        << "nearest first, and nothing from beside the path";
    EXPECT_TRUE(act("removeBtnSub, applybtn").isEnabled("applybtn") && changes().empty());
    act("tick:subdirTable 4W, tick:parentdirTable 4S, tick:subdirTable 4R"); // the same row again
    act("pick:subdirTable 5, pick:parentdirTable 1, removeBtnSub, removeBtnParent");
    EXPECT_THAT(rows("parentdirTable"), SizeIs(7));
    EXPECT_EQ(rows("subdirTable").back(), "admin Box\\Low WF");
    EXPECT_THAT(changes(), IsEmpty());
    EXPECT_EQ(act("tab 0, tab 3").rows("subdirTable"), below) << "the rows are the server's again";
    EXPECT_FALSE(changesEnabled("applybtn", "revertbtn"));
    act("tick:subdirTable 2R"); // … and what is pending waits for the next Apply
    breakPipes();
    EXPECT_THAT(act("applybtn").alerts(), ElementsAre("Err_Operation_Failed"));
    mend();
    act("applybtn");
    EXPECT_THAT(changes(), ElementsAre("add admin Box\\Low; add admin VOL1:\\Tests; remove Zoe Box\\Low; "
                                       "remove admin Box; add Zoe Box"));
    EXPECT_THAT(rows("subdirTable"),
                ElementsAre("Müller Box SRWECMFA", "Zoe Box R", "ADMIN Box RWECMFA", "admin Box\\Low WF"));
    EXPECT_EQ(rows("parentdirTable")[3], "admin VOL1:\\Tests SRMF");
    EXPECT_FALSE(isEnabled("applybtn"));

    const auto requests = world.server->requestCount();
    act("tick:subdirTable 0R, revertbtn");
    EXPECT_EQ(rows("subdirTable")[0], "Müller Box SRWECMFA") << "an edit reached what was loaded";
    EXPECT_FALSE(isEnabled("applybtn"));
    act("removeBtnParent, applybtn");
    EXPECT_EQ(world.server->requestCount(), requests);
}

TEST_F(RightsViewsTest, FolderTrusteesAreSearchedByNameAndPath) {
    open("folders").act("type searchInSubField low");
    EXPECT_THAT(rows("subdirTable"), ElementsAre("admin Box\\Low RF", "Zoe Box\\Low RWECMFA"));
    EXPECT_THAT(rows("parentdirTable"), SizeIs(8)) << "each table has its own search";
    act("tick:subdirTable 0W, pick:subdirTable 1, removeBtnSub, type searchInSubField q");
    EXPECT_EQ(emptyText("subdirTable"), "no path like q");
    act("type searchInSubField ");
    EXPECT_THAT(rows("subdirTable"),
                ElementsAre("Müller Box SRWECMFA", "admin Box RWF", "Zoe Box", "ADMIN Box RWECMFA",
                            "admin Box\\Low RF", "Zoe Box\\Low RWECMFA"))
        << "the first row of the identity follows, on whatever path";
    EXPECT_EQ(act("header:subdirTable").rows("subdirTable")[1], "ADMIN Box RWECMFA");
    EXPECT_EQ(rows("parentdirTable")[0], "Müller Box SRWECMFA");
    act("type searchInParentField tomas, header:parentdirTable");
    EXPECT_THAT(rows("parentdirTable"), ElementsAre("tomas.beran VOL1:\\ RWECMFA"));
    EXPECT_THAT(act("applybtn").changes(), ElementsAre("add admin Box\\Low; remove Zoe Box\\Low"));

    for (const char* expected : {"searchInSubField", "searchInParentField"}) {
        QTest::keySequence(&front(), QKeySequence::Find);
        EXPECT_TRUE(control(expected).hasFocus()) << "the search fields take turns";
    }
}

} // namespace
} // namespace quorvan::test
