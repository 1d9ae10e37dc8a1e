// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Identities/IdentityChoice.h"

#include "Common/Error.h"
#include "Common/FeatureFlags.h"
#include "Common/Log.h"
#include "Quorvan/Controller/Selection/OwnRights.h"
#include "Quorvan/Controller/Selection/Shared.h"

#include <QPushButton>

#include <utility>

namespace quorvan {

IdentityChoice::IdentityChoice(ViewController& view, std::string& domainIdentity, IdentityWish wish)
    : view_(view)
    , domainIdentity_(domainIdentity)
    , wish_(std::move(wish)) {}

void IdentityChoice::readMultiForest() {
    featureFlagDict = readFeatureFlags();
    multiForestFlag = featureFlag(*featureFlagDict, "multiForest");
}

void IdentityChoice::onSelectTrusteeClick(QObject* /*sender*/) {
    openIdentityBrowser(view_, *this, domainIdentity_, wish_, bothIdentities(), multiForestFlag);
}

bool IdentityChoice::bothIdentities() const {
    return Shared::value().bothID;
}

void IdentityChoice::onReturnIdentifySource(const std::string& identityType) {
    typeShown_ = std::exchange(domainIdentity_, identityType);
    openIdentityBrowser(view_, *this, domainIdentity_, wish_);
}

void IdentityChoice::onBrowserClosed() {
    if (typeShown_)
        domainIdentity_ = *std::exchange(typeShown_, {});
}

bool IdentityChoice::addOnce(std::unordered_set<std::string> listed, std::span<const std::string> ids,
                             const std::function<void(std::size_t)>& add) {
    bool areNew = true;
    for (std::size_t at = 0; at < ids.size(); ++at) {
        if (listed.insert(ids[at]).second) {
            keepIdentityType();
            add(at);
        } else {
            areNew = false;
        }
    }
    return areNew;
}

void IdentityChoice::reportDuplicate() {
    Log("Trustee is already present");
    displayErrorMsg(errorCode::msgDuplicateTrustee);
}

IdentityChoiceOnPath::IdentityChoiceOnPath(ViewController& view, IdentityWish wish)
    : IdentityChoice(view, SelectionContext::domainIdentity, std::move(wish)) {}

void IdentityChoiceOnPath::readFlags() {
    readMultiForest();
    addBothTrusteesFlag = featureFlag(*featureFlagDict, "addBothTrustees");
}

bool IdentityChoiceOnPath::loadOwnRights(XMLReadWriteController& controller) {
    const auto own = quorvan::loadOwnRights(controller, selectedPath, serverIP, mappedPath, domainIdentity);
    if (own) {
        isSupervisor = own->isSupervisor;
        isAccessControl = own->isAccessControl;
    }
    return own.has_value();
}

void IdentityChoiceOnPath::disableWhereBothAreShown(QPushButton* chooseBtn) const {
    if (Shared::value().bothID && !addBothTrusteesFlag)
        chooseBtn->setEnabled(false);
}

} // namespace quorvan
