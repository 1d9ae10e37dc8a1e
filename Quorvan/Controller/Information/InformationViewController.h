// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Identities/IdentityChoice.h"
#include "Quorvan/Modal/Users.h"
#include "Quorvan/Toolkit/PendingChanges.h"
#include "Quorvan/Toolkit/ViewController.h"

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QTabWidget;
class QVBoxLayout;

namespace quorvan {

class PathLabel;
class ValueField;

/// The information page: attributes and owner of the selected path, and the quota of a folder.
///
/// Edits are collected and sent on Apply; each property that was changed is then read again, which shows
/// what the server made of it. Closing the page drops the edits.
class InformationViewController : public ViewController, public IdentityChoiceOnPath {
public:
    InformationViewController();

    // Outlets
    PathLabel* currentPath = nullptr;
    QLabel* pathLabel = nullptr;
    QLabel* ownerTextField = nullptr; ///< the caption of ownerField
    QLabel* ownerIcon = nullptr;
    ValueField* ownerField = nullptr;
    QPushButton* changeOwnerButton = nullptr;
    QLabel* readOnlyLabel = nullptr; ///< says why owner and limit cannot be changed, where that is so
    QTabWidget* directoryQuotaTabView = nullptr;
    QWidget* KelpAttributesTab = nullptr;
    QWidget* directoryQuotaTab = nullptr; ///< for folders only
    QCheckBox* readChk = nullptr;
    QCheckBox* hideChk = nullptr;
    QCheckBox* archiveChk = nullptr;
    QCheckBox* purgeImmediateChk = nullptr;
    QCheckBox* renameInhibitChk = nullptr;
    QCheckBox* deleteInhibitChk = nullptr;
    QCheckBox* immediateCompressChk = nullptr;
    QCheckBox* dontCompressChk = nullptr;
    QLabel* limitQuotaLabel = nullptr;
    ValueField* dirQuotaLimit = nullptr;
    QComboBox* selectUnit = nullptr;
    QPushButton* editLimitBtn = nullptr;
    QPushButton* removeLimitBtn = nullptr;
    QLabel* usedQuotaLabel = nullptr;
    ValueField* dirQuotaUsed = nullptr;
    QLabel* availableQuotaLable = nullptr;
    ValueField* dirQuotaAvailable = nullptr;
    QProgressBar* quotaBar = nullptr; ///< only there with a limit
    QLabel* overLimitIcon = nullptr;  ///< beside a bar that says so
    QPushButton* closeButton = nullptr;
    QPushButton* applyButton = nullptr;
    PendingLine* pendingLine = nullptr; ///< what waits for Apply

    const std::string selectedAbsolutePath; ///< where the selection is mounted

    OwnerInfo ownerInfo; ///< as last read, like the next two
    AttributesInfo fileAttributes;
    DirectoryQuotaInfo dirQuota;
    Owner editedOwner{"", ""};
    std::vector<std::string> editedFileAttributes; ///< those switched on, in the order that came about
    DirectoryQuota editedDirQuota;
    int selectedUnit = 0;
    bool applyAttrs = false; ///< these three say what Apply has to send
    bool applyOwner = false;
    bool applyDirQuota = false;
    bool removeQuota = false; ///< the limit to apply is none

    void loadView() override;
    void viewDidLoad() override;
    void viewDidAppear() override;
    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return false; }

    void loadStrings();
    void initInformationTab();
    void readAgain();
    /// These three read and show; false, and an alert, when that failed.
    bool getOwnerInformation();
    bool getFileAttributes();
    void updateOwnerInformation();
    void updateFileAttributes();
    void clearFileAttributes();
    void onAttrChange(QCheckBox* sender);
    void updateButtonState(const std::string& attribute, const QCheckBox* checkbox);
    /// What is read only can be neither renamed nor deleted.
    void disableRenameDeleteChk(const QCheckBox* sender);
    bool getDirectoryQuota();
    void updateDirectoryQuota();
    void onClickEditQuota(QObject* sender);
    void onClickRemove();
    void onChangeQuotaLimit(const ValueField* field);
    void onChangeUnit();
    /// The bytes to send in decimal; "" for a text that is no limit, after telling the user so.
    std::string getQuotaLimit();
    void checkMappedInUserRights();
    void onApply();
    void onReturnMainMenu();

    bool onReturnMorvaneSelectedUser(const std::vector<User>& users) override;
    bool onReturnSelectedUser(const std::vector<std::string>& names, const std::vector<std::string>& ids,
                              const std::string& category) override;

private:
    /// The attributes that are to be other than they were read.
    std::vector<PendingChange> changedAttributes() const;
    std::vector<PendingChange> pendingChanges() const;
    void showPending();
    void buildHeader(QVBoxLayout& page);
    QWidget* buildAttributes();
    QWidget* buildQuota();
    void buildButtons(QVBoxLayout& page);
    void connectControls();

    /// Asks the server for one kind of information about the path.
    template <class Info>
    std::int32_t read(Info& info,
                      std::int32_t (XMLReadWriteController::*request)(std::string&, std::string&, Info&,
                                                                      std::string&, const std::string&)) {
        return ((*xmlController).*request)(serverIP, selectedPath, info, mappedPath, domainIdentity);
    }
    /// Sends one change. How it went is for the next reading to show, unless no pipe could be opened or the
    /// connection was lost, whose status this returns.
    std::int32_t send(const std::function<void()>& request);
    bool isLost() const { return xmlController->loss() != 0; }
    void setFileAttributes(const std::string& attributes);
    void setOwner();
    void setDirectoryQuota();
    std::string attributeTags() const;
    /// What an Apply has sent and what was read afterwards, until the user is told.
    struct Outcome {
        std::vector<PendingChange> sent;
        std::unordered_map<std::string, std::int64_t> now;
        bool isKnown = true; ///< everything was read afterwards
    };
    /// Send one kind of change and read it again. False when the connection was lost.
    bool applyAttributes(Outcome& outcome);
    bool applyNewOwner(Outcome& outcome);
    bool applyQuotaLimit(Outcome& outcome);
    void showKnownQuota();
    void takeOwner(const std::string& name, const std::string& id);
    void showOwner(const std::string& name, const std::string& id);
    /// Nothing without a limit.
    void showUsage(std::optional<int> percent);
    /// Escape: the limit is what it was.
    void leaveLimitEditing();
    void setLimitEditable(bool editable);
    void setApplyEnabled(bool enabled);
};

} // namespace quorvan
