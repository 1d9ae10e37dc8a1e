// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityChoice.h"
#include "Quorvan/Modal/UserQuotaData.h"
#include "Quorvan/Toolkit/ViewController.h"
#include "Quorvan/Toolkit/WeakDelegate.h"

#include <optional>
#include <string>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace quorvan {

class ListTable;

/// Receives the users of the dialog with the limit that was entered for them; the dialog closes on true.
class AddUserQuotaDelegate {
public:
    virtual ~AddUserQuotaDelegate() = default;
    virtual bool onReturnAddedUsers(const UserQuotaList& users) = 0;
};

/// The sheet in which one limit is entered for several users: those that it is opened with, and those that
/// the user picks. It sends nothing itself.
class AddUserQuotaViewController : public ViewController, public IdentityChoice {
public:
    AddUserQuotaViewController();

    // Outlets
    QLabel* userNameLabel = nullptr;
    ListTable* userList = nullptr;
    QPushButton* selectTrusteeBtn = nullptr; ///< opens the browser
    QPushButton* takeOffBtn = nullptr;
    QLabel* quotaLimitLabel = nullptr;
    QLineEdit* quotaLimitTextField = nullptr;
    QComboBox* selectUnit = nullptr;
    QLabel* currentLimits = nullptr; ///< what the limits are, where one field cannot show it
    QPushButton* okBtn = nullptr;
    QPushButton* cancelBtn = nullptr;

    std::optional<WeakDelegate<AddUserQuotaDelegate>> delegate;
    std::optional<std::string> quotaLimit = "1"; ///< as typed last
    int selectedUnit = -1;                       ///< until the user picks one
    UserQuotaList users;                         ///< those to be edited are the caller's own rows
    bool edits = false;                          ///< users who have a quota; those who are new are added
    std::string domainIdentity;                  ///< the identity type that is browsed

    void loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;
    QSize sizeHint() const override;

    void initAddUserQuotaView();
    void onChangeQuotaLimit();
    void onChangeUnit();
    void onClickOk();
    void onCancel();

    bool onReturnMorvaneSelectedUser(const std::vector<User>& chosen) override;
    bool onReturnSelectedUser(const std::vector<std::string>& names, const std::vector<std::string>& ids,
                              const std::string& category) override;

private:
    void layOutControls();
    void showCurrentLimits();
    void showUsers();
    void takeOffSelected();
    void connectControls();
    void add(const std::vector<std::string>& names, const std::vector<std::string>& ids);
};

} // namespace quorvan
