// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/TrusteeRows.h"

#include "Quorvan/Toolkit/TrusteeIcon.h"

namespace quorvan {

QString TrusteeRows::text(int row, int /*textColumn*/) const {
    return QString::fromStdString(at(row).trusteeName);
}

QIcon TrusteeRows::icon(int row, int /*textColumn*/) const {
    return namedIcon(trusteeIconName(at(row).trusteeType));
}

} // namespace quorvan
