// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/MainStoryboard.h"

#include "Quorvan/Controller/MainViewController.h"
#include "Quorvan/Controller/TrusteeRightsTabView.h"
#include "Quorvan/Toolkit/Storyboard.h"

namespace quorvan {

void fillMainStoryboard() {
    Storyboard& main = Storyboard::named("Main");
    main.add("optionsViewController", [] { return new MainViewController; });
    main.add("trusteeRightsView", [] { return new TrusteeRightsTabView; });
}

} // namespace quorvan
