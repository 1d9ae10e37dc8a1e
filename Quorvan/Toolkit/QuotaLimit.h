// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

class QComboBox;
class QWidget;

namespace quorvan {

/// The unit of limits without a chosen unit, as a position in the pop-up.
inline constexpr int quotaUnitGB = 1;

/// An amount of space for people: a number with at most two decimals, a blank, and the name of the largest
/// binary unit that leaves it at 1 or more ("20 GB", "1.5 TB", "0 KB"). Names no unit above PB, the
/// largest that can be entered, so that a whole number can always be entered again as it was shown.
QString byteCount(std::int64_t bytes);

/// Fills a pop-up with the units in which limits are entered. Where none is selected it shows the one that
/// counts then.
void fillQuotaUnits(QComboBox& popUp);

/// A limit as it is entered: a whole number of the largest unit in which it is one, and that unit's position.
struct EnteredLimit {
    std::int64_t amount;
    int unit;
};
/// Nothing for a limit that cannot be entered.
std::optional<EnteredLimit> enteredQuotaLimit(std::int64_t bytes);

/// The bytes of a limit that was typed as a whole number of the unit at a position of the pop-up (GB for
/// any position that is not there); nothing for any other text. More than 64 bits of bytes is fatal.
std::optional<std::int64_t> quotaLimitInBytes(const QString& text, int unit);

/// Tells the user of a view that a limit is a whole number.
void presentInvalidQuotaLimit(QWidget& view);

} // namespace quorvan
