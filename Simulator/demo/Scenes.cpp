// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/demo/Scenes.h"

#include <QAbstractButton>
#include <QAction>
#include <QScrollBar>
#include <QTableView>

#include <cerrno>

namespace quorvan::demo {
namespace {

using simulator::Embedded;
namespace account = simulator::demo;

void openTrusteeRights(Stage& stage) {
    stage.launch();
    stage.press("TrusteeRightsView");
}

void showPages(const Output& output) {
    Stage stage(output, Embedded::demo());
    stage.launch();
    stage.photograph("01-options", "the options page");
    stage.press("TrusteeRightsView");
    stage.photograph("02-trustees", "the trustees of a folder, seen by a supervisor");
    const QSize usual = stage.window()->size();
    stage.window()->resize(1280, 720);
    stage.photograph("104-wide", "in a wide window there is room for words");
    stage.window()->resize(usual);
    stage.press("closeBtn");
    stage.photograph("04-returned", "back on the options page");
}

void showEditing(const Output& output) {
    Stage stage(output, Embedded::demo());
    openTrusteeRights(stage);
    stage.tick(2, "W");
    stage.tick(2, "E");
    stage.select({4}, "rightsTable");
    stage.press("removeBtn");
    stage.photograph("05-edited", "two rights ticked, a trustee removed: Revert and Apply wake up");
    stage.expectDialog("102-waiting", "what waits for Apply, in words");
    stage.press("pendingLine");
    stage.press("applyBtn");
    stage.photograph("06-applied", "sent and loaded anew");
    stage.type("searchField", "a");
    stage.photograph("07-searching", "names that contain an a, with or without accent");
    stage.type("searchField", "zzz");
    stage.photograph("08-no-match", "a search without a match");
}

void showOtherUsers(const Output& output) {
    {
        Stage stage(output, Embedded::demo(account::accessControl));
        openTrusteeRights(stage);
        stage.photograph("09-access-control",
                         "with Access Control: everything but Supervisor can be changed");
        stage.tick(2, "W");
        stage.tick(3, "W");
        simulator::KelpServer& server = *stage.world.server;
        server.setTrustee(account::selection, *server.identities().findByName("Finance").front(),
                          simulator::right::supervisor);
        stage.press("applyBtn");
        stage.photograph("103-partly-refused",
                         "sent and loaded anew; one of the two has become a Supervisor meanwhile");
    }
    {
        Stage stage(output, Embedded::demo(account::readOnly));
        openTrusteeRights(stage);
        stage.photograph("10-read-only", "without either right: for reading only");
    }
    {
        Stage stage(output, Embedded::demo(account::supervisorTree));
        openTrusteeRights(stage);
        stage.photograph("11-directory-tree", "a user of the Morvane tree sees the tree's trustees");
    }
}

void showOtherPaths(const Output& output) {
    {
        Stage stage(output, Embedded::demo(account::supervisor, account::crowded));
        openTrusteeRights(stage);
        stage.find<QTableView>("rightsTable")->verticalScrollBar()->setValue(60);
        stage.photograph("12-crowded", "two hundred trustees");
    }
    Stage stage(output, Embedded::demo(account::supervisor, "VOL1:\\Projects\\Tideline"));
    openTrusteeRights(stage);
    stage.photograph("13-no-trustees", "a folder without trustees of its own");
}

void showOtherFeatures(const Output& output) {
    Stage stage(output, Embedded::demo());
    stage.otherFeatures = {{"enableSettings", false}};
    stage.launch();
    stage.photograph("14-without-settings", "the options page of an installation without settings");
    stage.press("TrusteeRightsView");
    stage.find<QAbstractButton>("showCheck")->click();
    stage.photograph("15-both-directories", "the trustees of both directories");
}

void showFailures(const Output& output) {
    {
        Stage stage(output, Embedded::demo());
        stage.world.server->misbehaviour.openError = ECONNREFUSED;
        stage.expectDialog("16-alert-operation-failed", "the alert when the server does not answer");
        stage.launch();
        stage.photograph("17-nobody-known", "nobody knows who is logged in: no page can be opened yet");
    }
    Stage stage(output, Embedded::demo());
    stage.launch();
    stage.world.server->misbehaviour.onlyPipe = "/FilesCmdPipe";
    stage.world.server->misbehaviour.openError = EACCES;
    stage.expectDialog("18-alert-load-failed", "the alert when the trustees cannot be loaded");
    stage.press("TrusteeRightsView");
    stage.photograph("19-back-on-options", "a failed load leads back to the options page");
}

void showMissingPassword(const Output& output) {
    Stage stage(output, Embedded::demo());
    stage.world.keychain->items.clear();
    stage.world.sharedDefaults->values("group.tarnix.common")["loggedUserType"] = "ActiveDirectory";
    stage.expectDialog("20-alert-at-start", "without a keyring item the check of the user fails");
    stage.launch();
    stage.expectDialog("21-alert-keychain", "the alert when the password is missing");
    stage.expectDialog("22-alert-at-return", "… and the check fails again");
    stage.press("TrusteeRightsView");
}

void showHelp(const Output& output) {
    Stage stage(output, Embedded::demo());
    stage.launch();
    stage.expectDialog("23-help", "Help");
    stage.delegate().QuorvanHelp->trigger();
    stage.expectDialog("24-about", "About");
    stage.delegate().AboutQuorvan->trigger();
}

void showIdentityBrowsers(const Output& output) {
    {
        Stage stage(output, Embedded::demo());
        openTrusteeRights(stage);
        stage.press("addBtn");
        stage.photograph("60-browse-ad", "Add: the Active Directory browser as it opens");
        stage.choose("userTypePopUp", "Users");
        stage.choose("domainPopUp", "/Active Directory/NORDHAVN");
        stage.press("btnFetch");
        stage.select({1, 3});
        stage.photograph("61-browse-ad-fetched", "the users of the second forest, two of them selected");
        stage.choose("domainPopUp", "/Active Directory/FJERNØY");
        stage.press("btnFetch");
        stage.photograph("62-browse-ad-silent", "a domain that cannot be reached");
        stage.choose("domainPopUp", "/Active Directory/MERIDAL");
        stage.press("btnFetch");
        stage.select({20, 21});
        stage.press("selectButton");
        stage.photograph("63-added", "the chosen users at the end of the list, with read and file scan");
        stage.press("addBtn");
        stage.choose("userTypePopUp", "Users");
        stage.choose("domainPopUp", "/Active Directory/MERIDAL");
        stage.press("btnFetch");
        stage.select({20});
        stage.expectDialog("64-alert-duplicate", "the alert for somebody who is a trustee already");
        stage.press("selectButton");
    }
    {
        Stage stage(output, Embedded::demo(account::supervisorTree));
        openTrusteeRights(stage);
        stage.press("addBtn");
        stage.photograph("65-browse-morvane", "the browser of the Morvane tree as it opens");
        stage.choose("userTypePopUp", "Users");
        stage.type("treeTextField", ".OU=Verlag.O=Meridal.");
        stage.press("btnFetch");
        stage.select({1});
        stage.photograph("66-browse-morvane-fetched", "the users below a container");
        stage.type("searchField", "ana");
        stage.photograph("67-browse-morvane-search", "those whose names contain a text");
        stage.choose("userTypePopUp", "Containers");
        stage.press("btnFetch");
        stage.photograph("68-browse-morvane-none", "no containers there");
    }
    Stage stage(output, Embedded::demo());
    stage.otherFeatures = {{"multiForest", false}};
    openTrusteeRights(stage);
    stage.press("addBtn");
    stage.select({2});
    stage.photograph("69-old-browse-ad", "the browser of installations with a single forest");
}

void showSettings(const Output& output) {
    {
        Stage stage(output, Embedded::demo(account::readOnly));
        stage.launch();
        stage.press("SettingView");
        stage.photograph("70-settings-read-only", "the settings page of a user who may not change it");
    }
    Stage stage(output, Embedded::demo());
    stage.launch();
    stage.press("SettingView");
    stage.find<QAbstractButton>("ListBoth")->click();
    stage.photograph("71-settings", "the settings page");
    stage.press("CloseBtn");
    stage.press("TrusteeRightsView");
    stage.press("addBtn");
    stage.photograph("72-identify-source", "with both directories: which one is to be browsed?");
    stage.find<QAbstractButton>("MorvaneBtn")->click();
    stage.press("OkBtn");
    stage.photograph("73-next-sheet", "… and the browser that follows");
}

} // namespace

void showEverything(const Output& output) {
    showPages(output);
    showEditing(output);
    showOtherUsers(output);
    showOtherPaths(output);
    showOtherFeatures(output);
    showFailures(output);
    showMissingPassword(output);
    showHelp(output);
    showIdentityBrowsers(output);
    showSettings(output);
    showProperties(output);
    showMoreRights(output);
}

void showMainPages(const Output& output) {
    {
        Stage stage(output, Embedded::demo());
        stage.launch();
        stage.photograph("01-options", "the options page");
        stage.press("TrusteeRightsView");
        stage.tick(2, "W");
        stage.photograph("02-trustees", "the trustee table, edited");
        stage.press("addBtn");
        stage.choose("userTypePopUp", "Users");
        stage.choose("domainPopUp", "/Active Directory/NORDHAVN");
        stage.press("btnFetch");
        stage.photograph("61-browse-ad-fetched", "the Active Directory browser");
    }
    showMainProperties(output);
    showMoreRights(output);
}

} // namespace quorvan::demo
