// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>

namespace quorvan {

/// A name or path of the server as it is shown in lists, fields and tips: cut after a thousand characters,
/// which is more than fits anywhere, controls and marks that turn the direction as their numbers, and piles
/// of accents on one letter cut to the three that a language may have. Laying out more than that stops the
/// program for seconds.
QString shownText(const std::string& text);
QString shownText(const QString& text);

} // namespace quorvan
