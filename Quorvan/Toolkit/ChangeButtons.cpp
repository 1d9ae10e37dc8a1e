// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ChangeButtons.h"

#include <QPushButton>

namespace quorvan {

void setChangesEnabled(bool enabled, QPushButton* revert, QPushButton* apply, QWidget* content) {
    if (!enabled && (revert->hasFocus() || apply->hasFocus()))
        content->setFocus();
    apply->setEnabled(enabled);
    revert->setEnabled(enabled);
}

} // namespace quorvan
