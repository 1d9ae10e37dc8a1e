// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Selection/FailedOperation.h"

#include "Quorvan/Toolkit/FailedStatus.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NoticeLine.h"

namespace quorvan {

void reportFailedOperation(const XMLReadWriteController& controller, const std::string& server,
                           std::int32_t status, std::size_t changesInDoubt) {
    if (controller.loss() != 0) {
        const QString lost = L("Connection_Lost_Label").arg(QString::fromStdString(server));
        const QString doubt = changesInDoubt == 0
                                  ? L("Connection_Lost_Reading_Label")
                                  : L("Connection_Lost_Changes_Label", static_cast<int>(changesInDoubt));
        NoticeLine::tell(NoticeLine::Kind::problem, lost + QLatin1Char(' ') + doubt);
    }
    reportFailedStatus(status);
}

} // namespace quorvan
