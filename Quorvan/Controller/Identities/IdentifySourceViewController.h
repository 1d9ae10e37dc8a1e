// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityBrowsers.h"
#include "Quorvan/Toolkit/ViewController.h"
#include "Quorvan/Toolkit/WeakDelegate.h"

#include <string>

class QLabel;
class QPushButton;
class QRadioButton;

namespace quorvan {

/// The sheet that asks which of the two directories is to be browsed.
class IdentifySourceViewController : public ViewController, public IdentityBrowser {
public:
    IdentifySourceViewController();

    WeakDelegate<IdentifySourceDelegate> delegate;
    const std::string domainIdentity; ///< of the logged-in user

    // Outlets
    QLabel* SelectSourceOfIdentityLabel = nullptr;
    QRadioButton* MorvaneBtn = nullptr;
    QRadioButton* ADBtn = nullptr;
    QPushButton* OkBtn = nullptr;
    QPushButton* CancelBtn = nullptr;

    void prepare(ViewController& view, IdentityBrowserDelegate& receiver, const IdentityWish& wish) override;
    void loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;

    void initMainView();
    void onClickMorvaneButton() { chooseActiveDirectory(false); }
    void onClickADButton() { chooseActiveDirectory(true); }
    void onClickOkay();
    void onClickCancel() { endSheet(); }

private:
    void chooseActiveDirectory(bool on);
};

} // namespace quorvan
