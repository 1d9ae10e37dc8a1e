// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Identities/IdentityBrowsers.h"

#include "Common/Fatal.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Quorvan/Toolkit/ViewController.h"

namespace quorvan {

namespace {

void open(ViewController& view, IdentityBrowserDelegate& delegate, const char* browser,
          const IdentityWish& wish) {
    ViewController* sheet = Storyboard::named("Main").instantiate(browser);
    auto* prepared = dynamic_cast<IdentityBrowser*>(sheet);
    require(prepared != nullptr, "\"%@\" of the storyboard is no identity browser", browser);
    prepared->prepare(view, delegate, wish);
    view.presentAsSheet(sheet);
}

} // namespace

void openIdentityBrowser(ViewController& view, IdentityBrowserDelegate& delegate,
                         const std::string& identityType, const IdentityWish& wish) {
    if (identityType == identityActiveDirectory)
        open(view, delegate, "ViewBrowseAD", wish);
    else if (identityType == identityMorvane)
        open(view, delegate, "ViewBrowseMorvane", wish);
}

void openIdentityBrowser(ViewController& view, IdentityBrowserDelegate& delegate,
                         const std::string& identityType, const IdentityWish& wish, bool bothIdentities,
                         bool multiForest) {
    if (bothIdentities)
        open(view, delegate, "IdentifySource", wish);
    else if (!multiForest)
        open(view, delegate, "oldViewBrowseAD", wish);
    else if (wish.anyTypeBrowses && identityType != identityActiveDirectory)
        open(view, delegate, "ViewBrowseMorvane", wish);
    else
        openIdentityBrowser(view, delegate, identityType, wish);
}

} // namespace quorvan
