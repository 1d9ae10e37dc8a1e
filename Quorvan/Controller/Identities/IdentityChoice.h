// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Bundle.h"
#include "Quorvan/Controller/Identities/IdentityBrowsers.h"
#include "Quorvan/Controller/Selection/SelectionContext.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <unordered_set>

class QObject;
class QPushButton;

namespace quorvan {

/// What the views share in which the user chooses identities: the way to the browsers, and adding what was
/// chosen to a list.
class IdentityChoice : public IdentityBrowserDelegate {
public:
    std::optional<platform::FeatureDictionary> featureFlagDict;
    bool multiForestFlag = false;

    void onSelectTrusteeClick(QObject* sender);
    void onReturnIdentifySource(const std::string& identityType) override;
    void onBrowserClosed() override;

protected:
    /// `view` is the view itself, over which the browsers open, `domainIdentity` the identity type that it
    /// works in, which changes with the directory that the user chooses.
    IdentityChoice(ViewController& view, std::string& domainIdentity, IdentityWish wish);

    void readMultiForest();

    /// Whether the user is asked for the directory first.
    virtual bool bothIdentities() const;

    /// Keeps the identity type that was asked for: something of it has been chosen. Otherwise the view goes
    /// back to the type of what it shows when the browser closes.
    void keepIdentityType() { typeShown_.reset(); }

    /// Calls `add` with the position of each identity that is neither in `listed` nor further ahead in `ids`,
    /// and keeps the identity type when there is one. False when there were others.
    bool addOnce(std::unordered_set<std::string> listed, std::span<const std::string> ids,
                 const std::function<void(std::size_t)>& add);
    static void reportDuplicate();

private:
    ViewController& view_;
    std::string& domainIdentity_;
    const IdentityWish wish_;
    std::optional<std::string> typeShown_; ///< while a browser of another type may be open
};

/// The same for a view about the selected path, where the choice hangs on what the user may do there.
class IdentityChoiceOnPath : public SelectionContext, public IdentityChoice {
public:
    bool isSupervisor = false;
    bool isAccessControl = false;
    bool addBothTrusteesFlag = false;

protected:
    IdentityChoiceOnPath(ViewController& view, IdentityWish wish);

    void readFlags();
    /// Asks what the logged-in user may do with the path; a failure is reported, and nothing is learnt.
    bool loadOwnRights(XMLReadWriteController& controller);
    /// Some installations do not let the user choose while both directories are shown.
    void disableWhereBothAreShown(QPushButton* chooseBtn) const;
};

} // namespace quorvan
