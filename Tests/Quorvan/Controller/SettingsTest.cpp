// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Selection/Shared.h"
#include "Quorvan/Controller/Shell/SettingsController.h"
#include "Tests/Quorvan/Controller/RightsTabFixture.h"

#include <cerrno>

namespace quorvan::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
namespace demo = simulator::demo;

using SettingsTest = RightsTabFixture;

TEST_F(SettingsTest, SwitchesBothDirectoriesOnForThoseWhoMay) {
    const struct {
        const char *user, *type, *title;
        bool mayChange;
    } cases[] = {{demo::supervisor, "ActiveDirectory", "Morvane_Trustee_Label", true},
                 {demo::readOnlyTree, "Morvane", "AD_Trustee_Label", false},
                 {demo::accessControlTree, "Morvane", "AD_Trustee_Label", true}};
    for (const auto& [user, type, title, mayChange] : cases) {
        SCOPED_TRACE(user);
        const bool before = Shared::value().bothID;
        const auto& page = *openPage<SettingsController>(user, type);
        EXPECT_EQ(page.ListBoth->text(), title);
        EXPECT_EQ(page.ListBoth->isChecked(), before) << "the setting outlives the page";
        EXPECT_EQ(page.ListBoth->isEnabled(), mayChange);
        EXPECT_EQ(page.readOnlyLabel->isVisible(), !mayChange);
        EXPECT_EQ(page.LogInfoLabel->text(), "/Users/<username>/Library/Logs/tarnix");
        click(page.ListBoth);
        EXPECT_EQ(Shared::value().bothID, mayChange ? !before : before);
        EXPECT_THAT(host->titles, IsEmpty());
        click(page.CloseBtn);
        EXPECT_THAT(host->titles, ElementsAre("Rights Management"));
    }
}

TEST_F(SettingsTest, IsLeftWhenTheServerDoesNotAnswer) {
    world.server->misbehaviour.openError = ENOENT;
    openPage<SettingsController>(demo::supervisor, "ActiveDirectory");
    world.keychain->failure = -25300;
    openPage<SettingsController>(demo::supervisor, "ActiveDirectory");
    EXPECT_THAT(alerts(), ElementsAre("Err_Operation_Failed", "Err_Keychain_Not_Found"));
    EXPECT_THAT(host->titles, ElementsAre("Rights Management"));
}

} // namespace
} // namespace quorvan::test
