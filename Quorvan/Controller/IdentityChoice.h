// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Bundle.h"
#include "Quorvan/Controller/IdentityBrowsers.h"
#include "Quorvan/Controller/SelectionContext.h"

#include <optional>

class QObject;
class QPushButton;

namespace quorvan {

/// What the views share in which the user chooses one user or group to learn about.
class IdentityChoice : public SelectionContext, public IdentityBrowserDelegate {
public:
    QPushButton* selectUserBtn = nullptr; ///< an outlet; laid out disabled

    bool isSupervisor = false;
    bool isAccessControl = false;
    std::optional<platform::FeatureDictionary> featureFlagDict;
    bool multiForestFlag = false;
    bool addBothTrusteesFlag = false;

    void onSelectTrusteeClick(QObject* sender);
    void onReturnIdentifySource(const std::string& identityType) override;

protected:
    /// `view` is the view itself, over which the browsers open.
    explicit IdentityChoice(ViewController& view)
        : view_(view) {}

    void readFlags();
    /// Asks what the logged-in user may do with the path; a failure is reported, and nothing is learnt.
    bool loadOwnRights();
    /// Some installations do not let the user choose while both directories are shown.
    void disableWhereBothAreShown();

private:
    ViewController& view_;
};

} // namespace quorvan
