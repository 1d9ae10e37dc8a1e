// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSettings>

namespace quorvan {

/// How a person has arranged the windows: column widths and window sizes. It is state, not configuration:
/// `quorvan/windows.conf` below $XDG_STATE_HOME (`~/.local/state`), and losing it loses nothing else.
class ViewState : public QSettings {
public:
    ViewState();
};

} // namespace quorvan
