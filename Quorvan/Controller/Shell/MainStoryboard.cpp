// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/MainStoryboard.h"

#include "Quorvan/Controller/Identities/BrowseMorvaneUserListViewController.h"
#include "Quorvan/Controller/Identities/BrowseUserListViewController.h"
#include "Quorvan/Controller/Identities/IdentifySourceViewController.h"
#include "Quorvan/Controller/Identities/OldBrowseUserListViewController.h"
#include "Quorvan/Controller/Information/InformationViewController.h"
#include "Quorvan/Controller/Quota/UserQuotaViewController.h"
#include "Quorvan/Controller/Rights/BrowseFolderViewController.h"
#include "Quorvan/Controller/Rights/FileSystemRightsViewController.h"
#include "Quorvan/Controller/Rights/GroupRightsViewController.h"
#include "Quorvan/Controller/Rights/TrusteeRightsTabView.h"
#include "Quorvan/Controller/Rights/WhyViewController.h"
#include "Quorvan/Controller/Shell/MainViewController.h"
#include "Quorvan/Controller/Shell/SalvagePurgeViewController.h"
#include "Quorvan/Controller/Shell/SettingsController.h"
#include "Quorvan/Toolkit/Storyboard.h"

namespace quorvan {

void fillMainStoryboard() {
    Storyboard& main = Storyboard::named("Main");
    main.add("optionsViewController", [] { return new MainViewController; });
    main.add("userQuotaView", [] { return new UserQuotaViewController; });
    main.add("informationView", [] { return new InformationViewController; });
    main.add("trusteeRightsView", [] { return new TrusteeRightsTabView; });
    main.add("salvagePurgeView", [] { return new SalvagePurgeViewController; });
    main.add("settingsView", [] { return new SettingsController; });
    main.add("IdentifySource", [] { return new IdentifySourceViewController; });
    main.add("ViewBrowseMorvane", [] { return new BrowseMorvaneUserListViewController; });
    main.add("ViewBrowseAD", [] { return new BrowseUserListViewController; });
    main.add("oldViewBrowseAD", [] { return new OldBrowseUserListViewController; });
    main.add("fileSystemRightsView", [] { return new FileSystemRightsViewController; });
    main.add("groupRightsView", [] { return new GroupRightsViewController; });
    main.add("whyView", [] { return new WhyViewController; });
    main.add("NewFileBrowser", [] { return new BrowseFolderViewController; });
    // Installations that ask for the browser with columns get the tree.
    main.add("OldFileBrowser", [] { return new BrowseFolderViewController; });
}

} // namespace quorvan
