// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ViewState.h"

#include <QDir>

namespace quorvan {
namespace {

QString stateFile() {
    const QString home = qEnvironmentVariable("XDG_STATE_HOME");
    // A relative path in the variable does not count.
    return (QDir::isAbsolutePath(home) ? home : QDir::homePath() + QLatin1String("/.local/state")) +
           QLatin1String("/quorvan/windows.conf");
}

} // namespace

ViewState::ViewState()
    : QSettings(stateFile(), QSettings::IniFormat) {}

} // namespace quorvan
