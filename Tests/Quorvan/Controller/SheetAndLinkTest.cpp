// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/FileSystemRightsViewController.h"
#include "Tests/Quorvan/Controller/WindowTest.h"

namespace quorvan::test {
namespace {

using SheetAndLinkTest = WindowTest;

std::size_t changesOf(const simulator::KelpServer& server, const std::string& path) {
    return static_cast<std::size_t>(
        std::ranges::count_if(server.requests(), [&path](const simulator::RecordedRequest& request) {
            return request.text.find("<addTrustee") != std::string::npos &&
                   request.text.find("<fileName>" + path + "</fileName>") != std::string::npos;
        }));
}

TEST_F(SheetAndLinkTest, AChangeBehindALinkLeavesThePageAndTheOtherChangesWhereTheyAre) {
    // Where the rule for what lies behind a link at the selection itself ends up.
    const std::string target = std::string(demo::linkTarget) + "Partners";
    world.secondServer->addPath(target);
    open("files");
    take("selectUserBtn", "Users_Title", meridal, {"Zoe"});
    auto& page = view<FileSystemRightsViewController>();
    const std::string server = page.serverIP;
    page.onReturnSelectedPath({"file:///Volumes/VOL1/Partners", "file:///Volumes/VOL1/Projects"});
    act("applyBtn");
    EXPECT_EQ(changesOf(*world.server, demo::link), 1U);
    EXPECT_EQ(changesOf(*world.secondServer, target), 1U);
    EXPECT_EQ(changesOf(*world.server, "VOL1:\\Projects"), 1U);
    EXPECT_EQ(changesOf(*world.secondServer, "VOL1:\\Projects"), 0U);
    EXPECT_EQ(page.serverIP, server);
    EXPECT_EQ(page.selectedPath, box);
    EXPECT_THAT(rows(), ElementsAre("Box", "Box\\Low RWECMFA")) << "the list is the selection's again";
}

} // namespace
} // namespace quorvan::test
