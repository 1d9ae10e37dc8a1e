// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Information/InformationViewController.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Common/ServerDetails.h"
#include "Platform/Services.h"
#include "Quorvan/Controller/Information/InformationAttributes.h"
#include "Quorvan/Controller/Shell/MainMenu.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/PlainToolTip.h"
#include "Quorvan/Toolkit/ShownText.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>

#include <algorithm>

namespace quorvan {

InformationViewController::InformationViewController()
    : IdentityChoiceOnPath(static_cast<ViewController&>(*this), {"Users", false, true})
    , selectedAbsolutePath(
          unwrap(ServerDetails::serverInfo().selectedAbsolutePath, "There is no selected path")) {}

void InformationViewController::viewDidLoad() {
    editLimitBtn->setProperty("tag", 1);
    currentPath->setPath(selectedPathName());
    readFlags();
    loadStrings();
    initInformationTab();
    disableWhereBothAreShown(changeOwnerButton);
}

void InformationViewController::viewDidAppear() {
    directoryQuotaTabView->setFocus();
}

void InformationViewController::readAgain() {
    renewController();
    getOwnerInformation();
    getFileAttributes();
    getDirectoryQuota();
}

void InformationViewController::initInformationTab() {
    renewController();
    getOwnerInformation();
    getFileAttributes();
    for (QPushButton* button : {changeOwnerButton, editLimitBtn, removeLimitBtn})
        button->setEnabled(false);
    dirQuotaUsed->setEditable(false);
    dirQuotaAvailable->setEditable(false);
    using Kind = platform::LocalVolumes::Kind;
    const Kind kind = platform::services().volumes->kindOf(selectedAbsolutePath);
    if (kind != Kind::folder)
        directoryQuotaTabView->removeTab(directoryQuotaTabView->indexOf(directoryQuotaTab));
    getDirectoryQuota();
    checkMappedInUserRights();
    if (kind == Kind::nothing)
        Log("Could not check the filetype for path %@ - %@", selectedAbsolutePath,
            "nothing is mounted there");
    else if (kind == Kind::folder)
        dontCompressChk->setEnabled(false);
}

std::int32_t InformationViewController::send(const std::function<void()>& request) {
    const ScopedPipe pipe(*xmlController, serverIP, pipes::files);
    if (!pipe.isOpen())
        return pipe.status();
    request();
    return xmlController->loss();
}

bool InformationViewController::getOwnerInformation() {
    if (const auto status = read(ownerInfo, &XMLReadWriteController::getFileInfoOwnerHandleDFS);
        status != 0) {
        reportFailed(status);
        return false;
    }
    updateOwnerInformation();
    return true;
}

void InformationViewController::updateOwnerInformation() {
    if (!ownerInfo.name)
        return;
    showOwner(*ownerInfo.name, ownerInfo.id.value_or(""));
}

void InformationViewController::showOwner(const std::string& name, const std::string& id) {
    ownerField->setPlaceholderText(id.empty() ? L("No_Owner_Label")
                                              : L("Owner_Gone_Label").arg(shownText(id)));
    ownerField->setText(shownText(name));
    ownerField->setToolTip(plainToolTip(shownText(id)));
    ownerField->setCursorPosition(0);
    const int edge = ownerField->fontMetrics().height();
    // The owner may be of either directory, whichever the page works in.
    const QIcon icon = userIcon(id.starts_with("S-1-") ? identityActiveDirectory : identityMorvane);
    ownerIcon->setPixmap(icon.pixmap(QSize(edge, edge), devicePixelRatioF()));
    ownerIcon->setVisible(!name.empty());
}

bool InformationViewController::getFileAttributes() {
    if (const auto status = read(fileAttributes, &XMLReadWriteController::getAttributesHandleDFS);
        status != 0) {
        reportFailed(status);
        return false;
    }
    updateFileAttributes();
    return true;
}

void InformationViewController::updateFileAttributes() {
    if (!fileAttributes.attributes)
        return;
    KelpAttributesTab->setEnabled(true);
    editedFileAttributes = *fileAttributes.attributes;
    clearFileAttributes();
    for (const std::string& name : editedFileAttributes) {
        for (const AttributeBox& each : attributeBoxes)
            if (name == each.attribute)
                (this->*each.box)->setChecked(true);
        if (name == "readOnly")
            for (QCheckBox* box : {renameInhibitChk, deleteInhibitChk})
                box->setEnabled(false);
    }
}

void InformationViewController::clearFileAttributes() {
    for (const AttributeBox& each : attributeBoxes)
        (this->*each.box)->setChecked(false);
    for (QCheckBox* box : {renameInhibitChk, deleteInhibitChk})
        box->setEnabled(true);
}

void InformationViewController::onAttrChange(QCheckBox* sender) {
    const QString identifier = sender->property("identifier").toString();
    for (const AttributeBox& each : attributeBoxes)
        if (identifier == QLatin1String(each.identifier))
            updateButtonState(each.attribute, sender);
    if (identifier == QLatin1String("readChkID"))
        disableRenameDeleteChk(sender);
    applyAttrs = true;
    setApplyEnabled(true);
}

void InformationViewController::updateButtonState(const std::string& attribute, const QCheckBox* checkbox) {
    const auto found = std::find(editedFileAttributes.begin(), editedFileAttributes.end(), attribute);
    if (checkbox->isChecked() && found == editedFileAttributes.end())
        editedFileAttributes.push_back(attribute);
    else if (!checkbox->isChecked() && found != editedFileAttributes.end())
        editedFileAttributes.erase(found);
}

void InformationViewController::disableRenameDeleteChk(const QCheckBox* sender) {
    updateButtonState("renameInhibit", sender);
    updateButtonState("deleteInhibit", sender);
    for (QCheckBox* box : {renameInhibitChk, deleteInhibitChk}) {
        box->setChecked(sender->isChecked());
        box->setEnabled(!sender->isChecked());
    }
}

/// What is switched on is named twice: alone in front, and among all attributes in their order.
std::string InformationViewController::attributeTags() const {
    const auto isOn = [this](std::string_view name) {
        return std::find(editedFileAttributes.begin(), editedFileAttributes.end(), name) !=
               editedFileAttributes.end();
    };
    const FileAttributes::Tags& enabled = FileAttributes::FILE_ATTRIBUTES_TAG_ENABLED;
    std::string tags;
    for (const std::string& name : editedFileAttributes)
        if (const auto tag = enabled.find(name); tag != enabled.end())
            tags += tag->second;
    for (const std::string_view name : FileAttributes::FILE_ATTRIBUTES)
        tags += (isOn(name) ? enabled : FileAttributes::FILE_ATTRIBUTES_TAG_DISABLED).at(name);
    return tags;
}

void InformationViewController::checkMappedInUserRights() {
    const bool isKnown = loadOwnRights(*xmlController);
    if (isSupervisor) {
        for (QPushButton* button : {changeOwnerButton, editLimitBtn, removeLimitBtn})
            button->setEnabled(true);
        applyButton->setEnabled(false);
    }
    readOnlyLabel->setVisible(isKnown && !isSupervisor);
}

bool InformationViewController::onReturnMorvaneSelectedUser(const std::vector<User>& users) {
    if (!users.empty())
        takeOwner(users.front().trusteeName, users.front().trusteeID);
    return true;
}

bool InformationViewController::onReturnSelectedUser(const std::vector<std::string>& names,
                                                     const std::vector<std::string>& ids,
                                                     const std::string& /*category*/) {
    if (!ids.empty() && !names.empty())
        takeOwner(names.front(), ids.front());
    return true;
}

void InformationViewController::takeOwner(const std::string& name, const std::string& id) {
    keepIdentityType();
    editedOwner = {name, id};
    showOwner(name, id);
    applyOwner = true;
    setApplyEnabled(true);
}

void InformationViewController::setFileAttributes(const std::string& attributes) {
    const auto status = send([&] { xmlController->setAttributes(selectedPath, attributes); });
    if (status != 0)
        reportFailed(status, 1);
}

void InformationViewController::setOwner() {
    const std::string id = editedOwner.ownerID.value_or("");
    const auto status = send([&] { xmlController->setFileInfoOwner(selectedPath, id, domainIdentity); });
    if (status != 0)
        reportFailed(status, 1);
    if (!isLost())
        editedOwner = {"", ""};
}

std::vector<PendingChange> InformationViewController::changedAttributes() const {
    std::vector<PendingChange> changes;
    const std::vector<std::string> before = fileAttributes.attributes.value_or(std::vector<std::string>());
    for (const AttributeBox& each : attributeBoxes)
        if (const bool on = hasAttribute(editedFileAttributes, each); on != hasAttribute(before, each))
            changes.push_back({each.attribute, PendingChange::Kind::changed, plainL(each.titleKey),
                               L(on ? "Attribute_On_Label" : "Attribute_Off_Label"), on ? 1 : 0});
    return changes;
}

std::vector<PendingChange> InformationViewController::pendingChanges() const {
    const auto change = [](const char* key, QString what) {
        return PendingChange{key, PendingChange::Kind::changed, plainL(key), std::move(what), 0};
    };
    std::vector<PendingChange> changes;
    if (applyAttrs)
        changes = changedAttributes();
    if (applyAttrs && changes.empty()) // ticked and cleared again: what is there is sent once more
        changes.push_back(change("Attributes_Change_Label", L("Attributes_As_Before_Label")));
    if (applyOwner)
        changes.push_back(
            change("Owner_Change_Label", QString::fromStdString(editedOwner.ownerName.value_or(""))));
    if (applyDirQuota)
        changes.push_back(change("Quota_Change_Label",
                                 removeQuota ? L("Pending_None_Label")
                                             : dirQuotaLimit->text() + ' ' + selectUnit->currentText()));
    return changes;
}

void InformationViewController::showPending() {
    pendingLine->show(pendingChanges(), {});
}

void InformationViewController::onApply() {
    Outcome outcome;
    // What the connection is lost in stays pending, and so does all that comes after it.
    if (applyAttrs && !applyAttributes(outcome))
        return;
    if (applyOwner && !applyNewOwner(outcome))
        return;
    if (applyDirQuota && !applyQuotaLimit(outcome))
        return;
    setApplyEnabled(false);
    if (isSupervisor)
        editLimitBtn->setEnabled(true);
    setLimitEditable(false);
    if (outcome.isKnown)
        tellOutcome(outcome.sent, outcome.now);
}

bool InformationViewController::applyAttributes(Outcome& outcome) {
    outcome.sent = changedAttributes();
    setFileAttributes(attributeTags());
    if (isLost())
        return false;
    outcome.isKnown = getFileAttributes() && outcome.isKnown;
    applyAttrs = false;
    for (const AttributeBox& each : attributeBoxes)
        outcome.now[each.attribute] = hasAttribute(editedFileAttributes, each) ? 1 : 0;
    return !isLost();
}

bool InformationViewController::applyNewOwner(Outcome& outcome) {
    const Owner wanted = editedOwner;
    setOwner();
    if (isLost())
        return false;
    outcome.isKnown = getOwnerInformation() && outcome.isKnown;
    applyOwner = false;
    const bool isOwner = ownerInfo.id == wanted.ownerID || ownerInfo.name == wanted.ownerName;
    outcome.sent.push_back({"owner", PendingChange::Kind::changed, plainL("Owner_Change_Label"), {}, 1});
    outcome.now["owner"] = isOwner ? 1 : 0;
    return !isLost();
}

void InformationViewController::setApplyEnabled(bool enabled) {
    // A button that goes grey under the keyboard would hand it on to whatever comes next.
    if (!enabled && applyButton->hasFocus())
        directoryQuotaTabView->setFocus();
    applyButton->setEnabled(enabled);
    showPending();
}

void InformationViewController::onReturnMainMenu() {
    returnToMainMenu(*this);
}

} // namespace quorvan
