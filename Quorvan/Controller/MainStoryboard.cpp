// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/MainStoryboard.h"

#include "Quorvan/Controller/BrowseFolderViewController.h"
#include "Quorvan/Controller/BrowseMorvaneUserListViewController.h"
#include "Quorvan/Controller/BrowseUserListViewController.h"
#include "Quorvan/Controller/FileSystemRightsViewController.h"
#include "Quorvan/Controller/GroupRightsViewController.h"
#include "Quorvan/Controller/IdentifySourceViewController.h"
#include "Quorvan/Controller/InformationViewController.h"
#include "Quorvan/Controller/MainViewController.h"
#include "Quorvan/Controller/OldBrowseUserListViewController.h"
#include "Quorvan/Controller/SalvagePurgeViewController.h"
#include "Quorvan/Controller/SettingsController.h"
#include "Quorvan/Controller/TrusteeRightsTabView.h"
#include "Quorvan/Controller/UserQuotaViewController.h"
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
    main.add("NewFileBrowser", [] { return new BrowseFolderViewController; });
    // Installations that ask for the browser with columns get the tree.
    main.add("OldFileBrowser", [] { return new BrowseFolderViewController; });
}

} // namespace quorvan
