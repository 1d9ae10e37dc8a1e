// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/IdentityChoice.h"

#include "Common/FeatureFlags.h"
#include "Quorvan/Controller/OwnRights.h"
#include "Quorvan/Controller/Shared.h"

#include <QPushButton>

namespace quorvan {

void IdentityChoice::readFlags() {
    featureFlagDict = readFeatureFlags();
    multiForestFlag = featureFlag(*featureFlagDict, "multiForest");
    addBothTrusteesFlag = featureFlag(*featureFlagDict, "addBothTrustees");
}

bool IdentityChoice::loadOwnRights() {
    const auto own =
        quorvan::loadOwnRights(renewController(), selectedPath, serverIP, mappedPath, domainIdentity);
    if (own) {
        isSupervisor = own->isSupervisor;
        isAccessControl = own->isAccessControl;
    }
    return own.has_value();
}

void IdentityChoice::disableWhereBothAreShown() {
    if (Shared::value().bothID && !addBothTrusteesFlag)
        selectUserBtn->setEnabled(false);
}

void IdentityChoice::onSelectTrusteeClick(QObject* /*sender*/) {
    openIdentityBrowser(view_, *this, domainIdentity, {"", false}, Shared::value().bothID, multiForestFlag);
}

void IdentityChoice::onReturnIdentifySource(const std::string& identityType) {
    domainIdentity = identityType;
    openIdentityBrowser(view_, *this, domainIdentity, {"", false});
}

} // namespace quorvan
