// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/MainMenu.h"

#include "Quorvan/Toolkit/Storyboard.h"
#include "Quorvan/Toolkit/ViewController.h"

namespace quorvan {

void returnToMainMenu(ViewController& view) {
    view.replacePage(Storyboard::named("Main").instantiate("optionsViewController"),
                     QStringLiteral("Rights Management"));
}

} // namespace quorvan
