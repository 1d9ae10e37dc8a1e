// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of the file-system rights page and their layout.
#include "Quorvan/Controller/Rights/FileSystemRightsViewController.h"

#include "Quorvan/Controller/Rights/WhyViewController.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PageKeys.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/Segue.h"
#include "Quorvan/Toolkit/Storyboard.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quorvan {

namespace {

struct ShowPath {
    using Row = std::shared_ptr<FileRights>;
    static QString text(const Row& row, int /*textColumn*/) { return QString::fromStdString(row->fpath); }
    static QIcon icon(const Row& /*row*/, int /*textColumn*/) { return {}; }
    static std::uint16_t rights(const Row& row) { return row->frights; }
    static std::string identity(const Row& row) { return row->fpath; }
};

} // namespace

void FileSystemRightsViewController::loadView() {
    currentPath = outlet(new PathLabel(this), "currentPath", L("Managed_Path_Label"));
    fsrTitle = outlet(new QLabel(this), "fsrTitle");
    fsrTitle->setWordWrap(true);
    buildIdentity();
    buildTable();
    buildButtons();
    layOutControls();
}

void FileSystemRightsViewController::buildIdentity() {
    usergrpTitle = outlet(new QLabel(this), "usergrpTitle");
    namefield = outlet(new PathLabel(this), "namefield", L("User_Group_Label"));
    namefield->setPlaceholderText(L("Nobody_Chosen_Label"));
    selectUserBtn = outlet(new QPushButton(L("Choose_title"), this), "selectUserBtn");
    selectUserBtn->setToolTip(L("Choose_FSR_Tip_Label"));
    grpBtn = outlet(new QPushButton(this), "grpBtn");
    grpBtn->setToolTip(L("Group_Rights_Tip_Label"));
    explainWhenGrey(*selectUserBtn,
                    [this] { return isSupervisor ? "Why_Both_Shown_Label" : "Why_Needs_Supervisor_Label"; });
    explainWhenGrey(*grpBtn, [this] {
        return selectedTrusteeID.empty() ? "Why_Nobody_Chosen_Label" : "Why_Not_A_User_Label";
    });
    readOnlyLabel = outlet(new QLabel(L("FSR_Read_Only_Label"), this), "readOnlyLabel");
    readOnlyLabel->setWordWrap(true);
    connect(selectUserBtn, &QPushButton::clicked, this, [this] { onSelectTrusteeClick(selectUserBtn); });
    connect(grpBtn, &QPushButton::clicked, this, [this] {
        SheetSegue segue("browseGroupRights", this, Storyboard::named("Main").instantiate("groupRightsView"));
        prepare(segue);
        segue.perform();
    });
}

void FileSystemRightsViewController::buildTable() {
    fsrTable =
        outlet(new RightsTable(
                   {{"path", L("Col_Path"), Qt::ElideLeft}},
                   std::make_unique<RowsOf<std::shared_ptr<FileRights>, ShowPath>>(editedfrightsList), this),
               "fsrTable", plainL("File_System_Rights_Title"));
    fsrTable->setGreyRule([this](std::uint16_t /*bit*/) -> const char* {
        if (!isSupervisor)
            return "Why_Needs_Supervisor_Label";
        return selectedTrusteeID.empty() ? "Why_Nobody_Chosen_Label" : nullptr;
    });
    fsrTable->setClickHandler([this](const RightsCheckBox& sender) { onMouseClickCheckbox(sender); });
    addWhyAction(*this, *this, *fsrTable, [this](int row) {
        const std::string name =
            SelectedTrusteeName.empty() ? namefield->text().toStdString() : SelectedTrusteeName;
        return WhyQuestion{{selectedTrusteeID, name},
                           editedfrightsList[static_cast<std::size_t>(row)]->fpath,
                           !trackfrightsList.empty()};
    });
    fsrTable->setSortHandler([this] { sortDescriptorsDidChange(); });
}

void FileSystemRightsViewController::buildButtons() {
    addRemoveTitle = outlet(new QLabel(this), "addRemoveTitle");
    addBtn = outlet(new QPushButton(L("Add_title"), this), "addBtn");
    removeBtn = outlet(new QPushButton(L("Remove_title"), this), "removeBtn");
    cancelBtn = outlet(new QPushButton(this), "cancelBtn");
    pendingLine = outlet(new PendingLine(this), "pendingLine");
    revertBtn = outlet(new QPushButton(this), "revertBtn");
    applyBtn = outlet(new QPushButton(this), "applyBtn");
    pendingLine->setApplyButton(*applyBtn);
    addBtn->setToolTip(L("Add_Path_Tip_Label"));
    removeBtn->setToolTip(L("Remove_Path_Tip_Label"));
    cancelBtn->setToolTip(L("Close_Tip_Label"));
    revertBtn->setToolTip(L("Revert_Tip_Label"));
    applyBtn->setToolTip(L("Apply_Tip_Label"));
    for (QPushButton* button : {addBtn, removeBtn})
        explainWhenGrey(*button, [this] {
            return isSupervisor ? "Why_Nobody_Chosen_Label" : "Why_Needs_Supervisor_Label";
        });
    for (QPushButton* button : {revertBtn, applyBtn})
        explainWhenGrey(*button, "Why_Nothing_Waits_Label");
    for (QPushButton* button : {selectUserBtn, grpBtn, addBtn, removeBtn, revertBtn, applyBtn})
        button->setEnabled(false); // until an identity is chosen, or there is something to send
    connect(addBtn, &QPushButton::clicked, this, [this] { onAddPath(addBtn); });
    connect(removeBtn, &QPushButton::clicked, this, [this] { removeSelectedRow(removeBtn); });
    leaveOnBackKey(*cancelBtn);
    connect(cancelBtn, &QPushButton::clicked, this, [this] { onReturnMainMenu(); });
    fsrTable->setRemoveButton(removeBtn);
    reloadOnRefreshKey(*this, pendingLine, [this] {
        if (!selectedTrusteeID.empty())
            reloadChosenIdentity();
    });
    connect(revertBtn, &QPushButton::clicked, this, [this] { onRevertClick(revertBtn); });
    connect(applyBtn, &QPushButton::clicked, this, [this] { onApply(applyBtn); });
}

void FileSystemRightsViewController::layOutControls() {
    auto* identity = new QHBoxLayout;
    identity->addWidget(usergrpTitle);
    identity->addWidget(namefield, 1);
    identity->addWidget(selectUserBtn);
    identity->addWidget(grpBtn);

    auto* paths = new QHBoxLayout;
    paths->addWidget(addRemoveTitle);
    paths->addWidget(addBtn);
    paths->addWidget(removeBtn);
    paths->addStretch();

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cancelBtn);
    buttons->addStretch();
    buttons->addWidget(pendingLine);
    buttons->addWidget(revertBtn);
    buttons->addWidget(applyBtn);

    auto* page = new QVBoxLayout(this);
    page->addWidget(currentPath);
    page->addWidget(fsrTitle);
    page->addLayout(identity);
    page->addWidget(fsrTable, 1);
    page->addWidget(readOnlyLabel);
    page->addLayout(paths);
    page->addLayout(buttons);
    setTabOrders({currentPath, namefield, selectUserBtn, grpBtn, fsrTable, addBtn, removeBtn, cancelBtn,
                  pendingLine, revertBtn, applyBtn});
}

} // namespace quorvan
