// SPDX-License-Identifier: GPL-3.0-or-later
// The directory quota of the information page.
#include "Quorvan/Controller/Information/InformationViewController.h"

#include "Common/Fatal.h"
#include "Common/ServerDetails.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Utils.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/QuotaLimit.h"
#include "Quorvan/Toolkit/ValueField.h"
#include "Quorvan/Toolkit/WarningColor.h"

#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include <algorithm>

namespace quorvan {

namespace {

/// Other than the rest of the page, the quota leaves a line in the log without credentials, too.
void logMissingCredentials(std::int32_t status) {
    if (status == errSecItemNotFound)
        Log("Failed with err - %d", status);
}

std::int64_t amountOf(const std::optional<std::string>& text) {
    return unwrap(decimalNumber(text.value_or("")), "A directory quota of \"%@\"", text.value_or(""));
}

int percentOf(std::int64_t part, std::int64_t whole) {
    if (whole <= 0)
        return part > 0 ? 101 : 0;
    const auto share = 100.0L * static_cast<long double>(part) / static_cast<long double>(whole);
    // Just above the limit is above it, however little.
    return part > whole ? 101 : static_cast<int>(std::max(0.0L, share));
}

} // namespace

bool InformationViewController::getDirectoryQuota() {
    if (const auto status = read(dirQuota, &XMLReadWriteController::getDirectoryQuotaHandleDFS);
        status != 0) {
        logMissingCredentials(status);
        reportFailed(status);
        return false;
    }
    updateDirectoryQuota();
    return true;
}

void InformationViewController::updateDirectoryQuota() {
    editedDirQuota = {dirQuota.quotaAmount, dirQuota.usedAmount};
    const std::string amount = unwrap(editedDirQuota.quotaAmount, "The server has named no directory quota");
    const bool isUnlimited = amount == DirectoryQuotaConstants::UNLIMITED;
    const bool isFinite = !isUnlimited && amount != DirectoryQuotaConstants::NOT_SET;
    std::int64_t used = 0; // without a limit the server's figure is not shown
    if (isFinite) {
        const std::int64_t limit = amountOf(amount);
        used = amountOf(editedDirQuota.usedAmount);
        std::int64_t available = 0;
        require(!__builtin_sub_overflow(limit, used, &available), "The available space has no number");
        dirQuotaLimit->setText(byteCount(limit));
        dirQuotaAvailable->setText(byteCount(available));
        showUsage(percentOf(used, limit));
    } else {
        dirQuotaLimit->setText(L(isUnlimited ? "User_Quota_Unlimited" : "User_Quota_Not_Set"));
        dirQuotaAvailable->setText(L("User_Quota_Maximum"));
        showUsage(std::nullopt);
    }
    dirQuotaUsed->setText(byteCount(used));
    setLimitEditable(false);
}

void InformationViewController::showUsage(std::optional<int> percent) {
    const bool isOver = percent > quotaBar->maximum();
    quotaBar->setVisible(percent.has_value());
    overLimitIcon->setVisible(isOver);
    if (!percent)
        return;
    quotaBar->setValue(std::min(*percent, quotaBar->maximum()));
    QPalette look;
    if (isOver)
        look.setColor(QPalette::Highlight, warningBarColor());
    quotaBar->setPalette(look);
    quotaBar->setFormat(isOver ? L("Quota_Exceeded_Label") : L("Quota_Usage_Label").arg(*percent));
}

void InformationViewController::setLimitEditable(bool editable) {
    selectUnit->setVisible(editable);
    dirQuotaLimit->setEditable(editable);
}

void InformationViewController::onClickEditQuota(QObject* sender) {
    if (sender->property("tag").toInt() == 1)
        setLimitEditable(true);
    const QString shown = dirQuotaLimit->text();
    // After a failed reading nothing is shown at all.
    if (shown == L("User_Quota_Not_Set") || shown == L("User_Quota_Unlimited") || shown.isEmpty()) {
        dirQuotaLimit->setText(QStringLiteral("1"));
        selectUnit->setCurrentIndex(quotaUnitGB);
    } else {
        const QStringList pieces = shown.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        require(pieces.size() >= 2, "The limit \"%@\" has no unit", shown.toStdString());
        selectUnit->setCurrentIndex(selectUnit->findText(pieces[1]));
        dirQuotaLimit->setText(pieces[0]);
    }
    selectedUnit = selectUnit->currentIndex();
    editedDirQuota.quotaAmount = dirQuotaLimit->text().toStdString();
    applyDirQuota = true;
    removeQuota = false;
    dirQuotaLimit->setFocus();
    dirQuotaLimit->selectAll();
    editLimitBtn->setEnabled(false);
    setApplyEnabled(true);
}

void InformationViewController::leaveLimitEditing() {
    if (dirQuotaLimit->isReadOnly())
        return;
    showKnownQuota();
    setLimitEditable(false);
    applyDirQuota = false;
    editLimitBtn->setEnabled(isSupervisor);
    editLimitBtn->setFocus();
    setApplyEnabled(applyAttrs || applyOwner);
}

void InformationViewController::onClickRemove() {
    dirQuotaLimit->setText(L("User_Quota_Not_Set"));
    showUsage(std::nullopt);
    applyDirQuota = true;
    removeQuota = true;
    setApplyEnabled(true);
    setLimitEditable(false);
    editLimitBtn->setEnabled(true);
}

void InformationViewController::onChangeQuotaLimit(const ValueField* field) {
    editedDirQuota.quotaAmount = field->text().toStdString();
    applyDirQuota = true;
    showPending();
}

void InformationViewController::onChangeUnit() {
    selectedUnit = selectUnit->currentIndex();
    showPending();
}

std::string InformationViewController::getQuotaLimit() {
    if (removeQuota) {
        editedDirQuota.quotaAmount = DirectoryQuotaConstants::UNLIMITED;
        return std::string(DirectoryQuotaConstants::UNLIMITED);
    }
    editedDirQuota.quotaAmount = dirQuotaLimit->text().toStdString();
    const auto bytes = quotaLimitInBytes(dirQuotaLimit->text(), selectedUnit);
    if (bytes)
        return std::to_string(*bytes);
    presentInvalidQuotaLimit(*this);
    return {};
}

bool InformationViewController::applyQuotaLimit(Outcome& outcome) {
    const std::string limit = getQuotaLimit();
    if (!limit.empty()) {
        editedDirQuota.quotaAmount = limit;
        setDirectoryQuota();
        if (isLost())
            return false;
        showKnownQuota();
        outcome.isKnown = getDirectoryQuota() && outcome.isKnown;
        const std::string now = dirQuota.quotaAmount.value_or("");
        const bool isMade = now == limit || (removeQuota && now == DirectoryQuotaConstants::NOT_SET);
        outcome.sent.push_back({"limit", PendingChange::Kind::changed, plainL("Quota_Change_Label"), {}, 1});
        outcome.now["limit"] = isMade ? 1 : 0;
    } else {
        showKnownQuota();
        outcome.isKnown = false; // the user has been told why nothing was sent
    }
    applyDirQuota = false;
    removeQuota = false;
    return true;
}

/// What was typed must not stay on show as if it were the limit, unless the server says so.
void InformationViewController::showKnownQuota() {
    if (dirQuota.quotaAmount)
        updateDirectoryQuota();
    else
        dirQuotaLimit->clear();
}

void InformationViewController::setDirectoryQuota() {
    fileAttributes = {};
    const std::string amount = editedDirQuota.quotaAmount.value_or("");
    if (const auto status = send([&] { xmlController->setDirectoryQuota(selectedPath, amount); });
        status != 0) {
        logMissingCredentials(status);
        reportFailed(status, 1);
    }
}

} // namespace quorvan
