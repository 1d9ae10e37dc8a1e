// SPDX-License-Identifier: GPL-3.0-or-later
// The scenes about the inherited rights filter, effective rights, trustees of folders and file-system rights.
#include "Simulator/demo/Scenes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTabWidget>
#include <QTreeView>

namespace quorvan::demo {
namespace {

using simulator::Embedded;
namespace account = simulator::demo;

constexpr int inheritedTab = 1;
constexpr int effectiveTab = 2;
constexpr int directoriesTab = 3;

void openTab(Stage& stage, int tab) {
    stage.launch();
    stage.press("TrusteeRightsView");
    stage.find<QTabWidget>("tabView")->setCurrentIndex(tab);
    QApplication::processEvents(); // before which a splitter shows nothing
}

/// Picks the row of a category in the identity browser that is open.
void pick(Stage& stage, const char* category, int row) {
    stage.choose("userTypePopUp", category);
    stage.choose("domainPopUp", "/Active Directory/MERIDAL");
    stage.press("btnFetch");
    stage.select({row});
    stage.press("selectButton");
}

void showInheritedRights(const Output& output) {
    {
        Stage stage(output, Embedded::demo(account::supervisor, "VOL1:\\Projects\\Aurora\\Drawings"));
        openTab(stage, inheritedTab);
        stage.photograph("80-inherited", "a filter that holds one right back");
        stage.find<QAbstractButton>("writeIRF")->click();
        stage.photograph("81-inherited-edited", "another one cleared");
        stage.press("applyBtn");
        stage.photograph("82-inherited-applied", "… and sent");
        stage.refuse("<modifyInheritedRightsFilter");
        stage.find<QAbstractButton>("readIRF")->click();
        stage.expectDialog("109-alert-filter-refused", "the alert when the server takes no filter");
        stage.press("applyBtn");
        stage.photograph("110-filter-refused", "… and the page then");
    }
    Stage stage(output, Embedded::demo(account::readOnly));
    openTab(stage, inheritedTab);
    stage.photograph("83-inherited-read-only", "the filter for reading only");
}

void showEffectiveRights(const Output& output) {
    {
        Stage stage(output, Embedded::demo());
        openTab(stage, effectiveTab);
        stage.photograph("84-effective", "what the trustees may really do");
        stage.press("selectUserBtn");
        pick(stage, "Users", 5);
        stage.photograph("85-effective-chosen", "… and what one that was chosen may do");
        stage.press("selectUserBtn");
        pick(stage, "Users", 3);
        stage.press("whyBtn");
        stage.select({2}, "reasonTable");
        stage.photograph("101-why", "… and why");
        stage.press("closeBtn");
        stage.type("searchField", "team");
        stage.photograph("86-effective-search", "a search");
    }
    Stage stage(output, Embedded::demo(account::readOnly));
    openTab(stage, effectiveTab);
    stage.photograph("87-effective-read-only", "nobody can be chosen without Supervisor or Access Control");
}

void showDirectoryTrustees(const Output& output) {
    {
        Stage stage(output, Embedded::demo(account::supervisor, "VOL1:\\Projects\\Aurora\\Drawings"));
        openTab(stage, directoriesTab);
        stage.press("stoppedBtn");
        stage.photograph("105-stopped", "what a filter stops of the rights above");
    }
    {
        Stage stage(output, Embedded::demo());
        openTab(stage, directoriesTab);
        stage.photograph("88-directories", "the trustees of the folders below and above");
        stage.tick(1, "W", "subdirTable");
        stage.select({0}, "parentdirTable");
        stage.press("removeBtnParent");
        stage.photograph("89-directories-edited", "a right ticked below, a trustee removed above");
        stage.type("searchInSubField", "drawings");
        stage.type("searchInParentField", "zzz");
        stage.photograph("90-directories-search", "a search by path, and one without a match");
        stage.refuse("<removeTrustee");
        stage.press("applybtn");
        stage.photograph("111-directories-refused", "the server took neither change");
    }
    {
        Stage stage(output, Embedded::demo(account::readOnly, "VOL1:\\Projects\\Tideline"));
        openTab(stage, directoriesTab);
        stage.photograph("91-directories-read-only", "for reading only, and nothing below");
    }
    Stage stage(output, Embedded::demo(account::supervisorTree, "VOL1:\\"));
    openTab(stage, directoriesTab);
    stage.photograph("92-directories-root", "a whole volume, with the trustees of the tree");
}

void showFileSystemRights(const Output& output) {
    {
        Stage stage(output, Embedded::demo(account::supervisor, "VOL1:\\"));
        stage.launch();
        stage.press("FileSystemRightsView");
        stage.photograph("93-file-system-rights", "nobody is chosen yet");
        stage.press("selectUserBtn");
        pick(stage, "Groups", 3);
        stage.photograph("94-paths-of-a-group", "the paths of a group");
        stage.tick(0, "W", "fsrTable");
        stage.press("addBtn");
        auto* tree = stage.find<QTreeView>("fileBrowser");
        const QModelIndex root = tree->model()->index(0, 0);
        tree->expand(tree->model()->index(tree->model()->rowCount(root) - 1, 0, root));
        stage.photograph("95-folder-browser", "the folder browser as it opens");
        tree->setCurrentIndex(tree->model()->index(0, 0, root));
        stage.press("selectBtn");
        stage.photograph("96-path-added", "a path added and a right ticked");
        stage.press("applyBtn");
        stage.photograph("97-path-applied", "… and sent");
        stage.tick(0, "E", "fsrTable");
        stage.tick(2, "E", "fsrTable");
        stage.refuse("Projects");
        stage.press("applyBtn");
        stage.photograph("112-paths-partly-refused", "one of two changes was not taken");
        stage.world.server->misbehaviour = {};
        stage.press("selectUserBtn");
        pick(stage, "Users", 14);
        stage.photograph("98-paths-of-a-user", "the paths of a user");
        stage.press("grpBtn");
        stage.photograph("99-group-rights", "what that user holds through its groups");
    }
    Stage stage(output, Embedded::demo(account::accessControl));
    stage.launch();
    stage.press("FileSystemRightsView");
    stage.photograph("100-file-system-rights-read-only", "Access Control is not enough here");
}

} // namespace

void showMoreRights(const Output& output) {
    showInheritedRights(output);
    showEffectiveRights(output);
    showDirectoryTrustees(output);
    showFileSystemRights(output);
}

} // namespace quorvan::demo
