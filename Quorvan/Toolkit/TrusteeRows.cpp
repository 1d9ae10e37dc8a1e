// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/TrusteeRows.h"

#include "Quorvan/Toolkit/TrusteeIcon.h"

namespace quorvan {

QString ShowTrustee::text(const std::shared_ptr<Trustees>& trustee, int /*textColumn*/) {
    return QString::fromStdString(trustee->trusteeName);
}

QIcon ShowTrustee::icon(const std::shared_ptr<Trustees>& trustee, int /*textColumn*/) {
    return namedIcon(trusteeIconName(trustee->trusteeType.str()));
}

QString ShowDirectoryRights::text(const DirectoryRights& entry, int textColumn) {
    return textColumn == 0 ? ShowTrustee::text(entry.trustee, textColumn)
                           : QString::fromStdString(entry.path);
}

QIcon ShowDirectoryRights::icon(const DirectoryRights& entry, int textColumn) {
    return textColumn == 0 ? ShowTrustee::icon(entry.trustee, textColumn) : QIcon();
}

} // namespace quorvan
