// SPDX-License-Identifier: GPL-3.0-or-later
// The scenes about attributes, owner and quotas.
#include "Simulator/demo/Scenes.h"

#include <QAbstractButton>
#include <QTabWidget>

#include <cerrno>

namespace quorvan::demo {
namespace {

using simulator::Embedded;
namespace account = simulator::demo;

void openInformation(Stage& stage) {
    stage.launch();
    stage.press("DirectoryQuotaView");
}

void showQuota(Stage& stage) {
    stage.find<QTabWidget>("directoryQuotaTabView")->setCurrentIndex(1);
}

void showAttributes(const Output& output) {
    {
        Stage stage(output, Embedded::demo(account::supervisor, account::compressedFile));
        openInformation(stage);
        stage.photograph("25-file-attributes", "the attributes of a compressed file, which has no quota");
        stage.find<QAbstractButton>("readChk")->click();
        stage.photograph("26-read-only", "read only implies two others");
    }
    {
        Stage stage(output, Embedded::demo(account::supervisor, account::fileOfNobody));
        openInformation(stage);
        stage.photograph("27-owner-gone", "a file whose owner is gone");
    }
    Stage stage(output, Embedded::demo(account::readOnly));
    openInformation(stage);
    stage.photograph("28-information-read-only", "without Supervisor: owner and limit cannot be changed");
}

void showDirectoryQuota(const Output& output) {
    {
        Stage stage(output, Embedded::demo());
        openInformation(stage);
        stage.photograph("29-folder-attributes", "the attributes of a folder");
        showQuota(stage);
        stage.photograph("30-directory-quota", "a folder with a limit");
        stage.press("editLimitBtn");
        stage.photograph("31-limit-edited", "its limit can be typed");
        stage.type("dirQuotaLimit", "1.5");
        stage.expectDialog("32-invalid-limit", "the sheet after Apply with a limit that is none");
        stage.press("applyButton");
        stage.photograph("33-limit-as-before", "the limit as it was");
        stage.press("removeLimitBtn");
        stage.photograph("34-limit-removed", "the limit is to be removed");
        stage.press("applyButton");
        stage.photograph("35-unlimited", "the limit after that");
        stage.refuse("<addQuota");
        stage.press("editLimitBtn");
        stage.type("dirQuotaLimit", "3");
        stage.press("applyButton");
        stage.photograph("106-limit-refused", "a limit that the server did not take");
    }
    {
        Stage stage(output, Embedded::demo(account::supervisorTree, "VOL1:\\Public\\Briefkasten"));
        openInformation(stage);
        showQuota(stage);
        stage.photograph("36-over-the-limit", "a folder over its limit, seen by a user of the tree");
    }
    Stage stage(output, Embedded::demo(account::supervisor, account::folderWithoutQuota));
    openInformation(stage);
    showQuota(stage);
    stage.photograph("37-quota-not-set", "a folder whose quota nobody has set");
}

void openUserQuotas(Stage& stage) {
    stage.launch();
    stage.press("UserQuotaView");
}

void showUserQuotas(const Output& output) {
    {
        Stage stage(output, Embedded::demo());
        openUserQuotas(stage);
        stage.photograph("50-user-quotas", "the users with a quota on the volume; some are over it");
        stage.type("searchField", "m*a");
        stage.photograph("51-user-quotas-searched", "names that match a pattern");
        stage.type("searchField", "");
        stage.select({1, 2, 4}, "userQuotaTable");
        stage.press("editUQButton");
        stage.type("quotaLimitTextField", "25");
        stage.photograph("52-edit-user-quotas", "another limit for three users");
        stage.type("quotaLimitTextField", "10 GB");
        stage.expectDialog("53-edit-invalid-limit", "the sheet after OK with a limit that is none");
        stage.press("okBtn");
        stage.type("quotaLimitTextField", "25");
        stage.press("okBtn");
        stage.photograph("54-user-quotas-edited", "those that were edited come first");
        stage.select({0}, "userQuotaTable");
        stage.press("removeUQButton");
        stage.press("applyButton");
        stage.photograph("55-user-quotas-applied", "one removed, and all of it sent");
        stage.select({1, 2}, "userQuotaTable");
        stage.press("editUQButton");
        stage.type("quotaLimitTextField", "30");
        stage.press("okBtn");
        stage.refuse("<set type=");
        stage.expectDialog("108-alert-quotas-refused", "the alert when the server takes no limits");
        stage.press("applyButton");
        stage.photograph("107-user-quotas-refused", "… and the page then");
        stage.world.server->misbehaviour = {};
        stage.press("addUQButton");
        stage.photograph("56-add-user-quotas", "the dialog for new users, before any are chosen");
        stage.press("cancelBtn");
    }
    {
        Stage stage(output, Embedded::demo(account::readOnlyTree));
        openUserQuotas(stage);
        stage.photograph("57-user-quotas-read-only", "the tree's users, for reading only");
    }
    Stage stage(output, Embedded::demo());
    stage.world.server->misbehaviour.onlyPipe = "/Manage_KELP/user.cmd";
    stage.world.server->misbehaviour.openError = EACCES;
    stage.expectDialog("58-alert-quotas-failed", "the alert when the quotas cannot be read");
    openUserQuotas(stage);
    stage.photograph("59-no-user-quotas", "… and the page then");
}

void showDeletedFiles(const Output& output) {
    Stage stage(output, Embedded::demo());
    stage.launch();
    stage.chooseFromMenu("SalvagePurgeView", "salvageSegue");
    stage.photograph("38-salvage", "the page for salvaging, which says that it cannot");
    stage.press("moreInfoButton");
    stage.photograph("39-more-information", "the sheet that says more");
    stage.press("cancelButton");
    stage.press("closeButton");
    stage.chooseFromMenu("SalvagePurgeView", "purgeSegue");
    stage.photograph("40-purge", "the page for purging");
}

} // namespace

void showProperties(const Output& output) {
    showUserQuotas(output);
    showAttributes(output);
    showDirectoryQuota(output);
    showDeletedFiles(output);
}

void showMainProperties(const Output& output) {
    Stage stage(output, Embedded::demo());
    openInformation(stage);
    stage.photograph("29-folder-attributes", "the attributes of a folder");
    showQuota(stage);
    stage.press("editLimitBtn");
    stage.photograph("31-limit-edited", "its limit can be typed");
    stage.press("closeButton");
    stage.press("UserQuotaView");
    stage.photograph("50-user-quotas", "the users with a quota on the volume");
    stage.select({1, 2, 4}, "userQuotaTable");
    stage.press("editUQButton");
    stage.photograph("52-edit-user-quotas", "another limit for three users");
    stage.press("cancelBtn");
    stage.press("closeButton");
    stage.chooseFromMenu("SalvagePurgeView", "salvageSegue");
    stage.press("moreInfoButton");
    stage.photograph("39-more-information", "the sheet about deleted files");
    stage.press("cancelButton");
}

} // namespace quorvan::demo
