// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/IdentityBrowsers.h"

#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Quorvan/Toolkit/ViewController.h"

namespace quorvan {

namespace {

void open(ViewController& view, IdentityBrowserDelegate& delegate, const char* browser,
          const IdentityWish& wish) {
    static_cast<void>(view);
    static_cast<void>(delegate);
    static_cast<void>(wish);
    static_cast<void>(Storyboard::named("Main").knows(browser));
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
    else
        openIdentityBrowser(view, delegate, identityType, wish);
}

} // namespace quorvan
