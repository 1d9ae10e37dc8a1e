// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/WhyViewController.h"

#include "Common/Fatal.h"
#include "Quorvan/Controller/Rights/DirectoryTrusteeViewController.h"
#include "Quorvan/Controller/Rights/ViewTabController.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/GreyReason.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/PathLabel.h"
#include "Quorvan/Toolkit/PendingChanges.h"
#include "Quorvan/Toolkit/RightsBoxes.h"
#include "Quorvan/Toolkit/ShownText.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Quorvan/Toolkit/TextListModel.h"
#include "Quorvan/ViewModal/RightsWay.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace quorvan {

namespace {

constexpr const char* everyone = "S-1-1-0"; ///< which no directory lists as a group of anybody

QString shown(const std::string& text) {
    return shownText(QString::fromStdString(text));
}

bool isOfActiveDirectory(const std::string& id) {
    return id.starts_with("S-1-");
}

} // namespace

void WhyViewController::loadView() {
    using Kind = ColumnWidths::Kind;
    pathLabel = outlet(new PathLabel(this), "pathLabel", L("Managed_Path_Label"));
    auto* servedLabel = new QLabel(L("Why_Served_Label"), this);
    answerBoxes = outlet(new RightsBoxes(4, this), "answerBoxes", L("Why_Served_Label"));
    answerBoxes->setEnabled(false); // for reading
    differenceLabel = outlet(new QLabel(this), "differenceLabel");
    QFont bold = font();
    bold.setBold(true);
    differenceLabel->setFont(bold);
    reasonRows_ = new TextListModel({L("Why_Right_Label"), L("Why_Holds_Label"), L("Why_Reason_Label")});
    reasonTable = outlet(new ListTable(reasonRows_, this, {Kind::amount, Kind::amount}), "reasonTable",
                         L("Why_Reason_Label"));
    reasonTable->setSelectionMode(QAbstractItemView::SingleSelection);
    auto* wayLabel = new QLabel(L("Why_Way_Label"), this);
    wayRows_ = new TextListModel({L("Col_Path"), L("Why_Granted_Label"), L("Why_Passes_Label")});
    wayTable = outlet(new ListTable(wayRows_, this), "wayTable", L("Why_Way_Label"));
    noteLabel = outlet(new QLabel(this), "noteLabel");
    for (QLabel* text : {differenceLabel, noteLabel}) {
        text->setWordWrap(true);
        text->setTextFormat(Qt::PlainText);
        text->hide();
    }
    goToBtn = outlet(new QPushButton(L("Why_Go_To_title"), this), "goToBtn");
    goToBtn->setToolTip(L("Why_Go_To_Tip_Label"));
    goToBtn->setEnabled(false);
    explainWhenGrey(*goToBtn, "Why_No_Assignment_Label");
    copyBtn = outlet(new QPushButton(L("Why_Copy_title"), this), "copyBtn");
    copyBtn->setToolTip(L("Why_Copy_Tip_Label"));
    closeBtn = outlet(new QPushButton(L("Close_title"), this), "closeBtn");
    closeBtn->setDefault(true);
    connect(goToBtn, &QPushButton::clicked, this, [this] { goToAssignment(); });
    connect(copyBtn, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(asText()); });
    connect(closeBtn, &QPushButton::clicked, this, [this] { endSheet(); });
    connect(reasonTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { showWay(); });

    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {goToBtn, copyBtn})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(closeBtn);
    auto* page = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(pathLabel), static_cast<QWidget*>(servedLabel),
                            static_cast<QWidget*>(answerBoxes), static_cast<QWidget*>(differenceLabel)})
        page->addWidget(widget);
    page->addWidget(reasonTable, 3);
    page->addWidget(wayLabel);
    page->addWidget(wayTable, 2);
    page->addWidget(noteLabel);
    page->addLayout(buttons);
    setTabOrders({pathLabel, reasonTable, wayTable, goToBtn, copyBtn, closeBtn});
}

void WhyViewController::viewDidLoad() {
    setWindowTitle(L("Why_Window_Title").arg(shown(who.name)));
    pathLabel->setPath(QString::fromStdString(selectedPath));
}

QSize WhyViewController::sizeHint() const {
    return {115 * fontMetrics().averageCharWidth(), 36 * fontMetrics().lineSpacing()};
}

void WhyViewController::viewWillAppear() {
    if (read()) {
        explanation_ = explainRights(way_, holders_);
        show();
    } else {
        answerBoxes->setUnknown();
        reasonTable->setEmptyText(L("Why_Unknown_Label"));
        wayTable->setEmptyText(L("Why_Unknown_Label"));
    }
}

void WhyViewController::viewDidAppear() {
    reasonTable->setFocus();
}

/// False when something failed, which the user has been told.
bool WhyViewController::read() {
    auto pipe = openPipe(pipes::files);
    if (!pipe)
        return false;
    way_ = readRightsWay(*xmlController, selectedPath, domainIdentity);
    if (xmlController->loss() == 0)
        xmlController->getEffectiveRightsforUserOnPath(selectedPath, who.id, served_, domainIdentity);
    pipe.reset();
    if (reportLoss())
        return false;
    if (domainIdentity == identityActiveDirectory) {
        holders_ = holdersOfActiveDirectory(who);
        return true;
    }
    auto tree = openPipe(pipes::directoryTree);
    if (!tree)
        return false;
    holders_ = holdersOfTheTree(*xmlController, who);
    tree.reset();
    return !reportLoss();
}

void WhyViewController::show() {
    answerBoxes->setRights(served_.uright);
    const QString unexplained = difference();
    differenceLabel->setText(unexplained);
    differenceLabel->setVisible(!unexplained.isEmpty());
    for (const RightsColumn& column : rightsColumns)
        for (const RightExplanation& explained : explanation_.reasons)
            if (explained.right == column.bit)
                addReasons(explained);
    reasonTable->reloadData();

    QStringList notes;
    if (explanation_.lastInvisible)
        notes.append(L("Why_Invisible_Label").arg(shown(way_[*explanation_.lastInvisible].path)));
    for (const FolderOnWay& folder : way_)
        for (const auto& assignment : folder.assignments)
            if (assignment.id == everyone &&
                std::ranges::find(holders_, everyone, &RightsHolder::id) == holders_.end())
                notes.append(
                    L("Why_Everyone_Label").arg(shown(folder.path), rightsInWords(assignment.rights)));
    noteLabel->setText(notes.join(QLatin1Char('\n')));
    noteLabel->setVisible(!notes.isEmpty());
    showWay();
}

void WhyViewController::addReasons(const RightExplanation& explained) {
    std::vector<TextListModel::Row> rows = reasonRows_->rows();
    const auto addRow = [&](bool holds, const QString& why, std::optional<Contribution> contribution) {
        QString name;
        for (const RightsColumn& column : rightsColumns)
            if (column.bit == explained.right)
                name = plainL(column.nameKey);
        rows.push_back(
            {std::to_string(rows.size()), {name, L(holds ? "Why_Yes_Label" : "Why_No_Label"), why}});
        reasons_.push_back({explained.right, contribution});
    };
    for (const Contribution& contribution : explained.contributions)
        addRow(contribution.end == Contribution::End::none, sentence(contribution), contribution);
    const bool isHeldItself = std::ranges::any_of(explained.contributions, [](const Contribution& each) {
        return each.end == Contribution::End::none;
    });
    if (explained.isHeld && !isHeldItself)
        addRow(true, L("Why_By_Supervisor_Label"), {});
    else if (explained.contributions.empty())
        addRow(false, L("Why_Nowhere_Label"), {});
    reasonRows_->setRows(std::move(rows));
}

QString WhyViewController::holderOf(const Contribution& contribution) const {
    return shown(holders_[contribution.holder].name);
}

QString WhyViewController::sentence(const Contribution& contribution) const {
    const QString granted = L(contribution.holder == 0 ? "Why_Granted_Self_Label" : "Why_Granted_Group_Label")
                                .arg(holderOf(contribution), shown(way_[contribution.folder].path));
    if (contribution.end == Contribution::End::none)
        return granted;
    return granted +
           L(contribution.end == Contribution::End::filtered ? "Why_Filtered_Label" : "Why_Replaced_Label")
               .arg(shown(way_[contribution.endFolder].path));
}

/// The server is right; where its answer does not follow from what can be seen, that is said.
QString WhyViewController::difference() const {
    QStringList texts;
    const auto more = static_cast<std::uint16_t>(served_.uright & ~explanation_.rights);
    const auto less = static_cast<std::uint16_t>(explanation_.rights & ~served_.uright);
    if (more != 0)
        texts.append(L("Why_Served_More_Label").arg(rightsInWords(more)));
    if (less != 0)
        texts.append(L("Why_Served_Less_Label").arg(rightsInWords(less)));
    return texts.join(QLatin1Char('\n'));
}

const WhyViewController::Reason* WhyViewController::selectedReason() const {
    const std::vector<int> selected = reasonTable->selectedRowIndexes();
    return selected.empty() ? nullptr : &reasons_[static_cast<std::size_t>(selected.front())];
}

/// Where the selected right is decided: what stops it, or else where it was granted.
std::vector<std::size_t> WhyViewController::decidingFolders() const {
    const Reason* reason = selectedReason();
    std::vector<std::size_t> folders;
    if (reason != nullptr && reason->contribution) {
        const Contribution& chosen = *reason->contribution;
        folders.push_back(chosen.end == Contribution::End::none ? chosen.folder : chosen.endFolder);
    } else if (reason != nullptr) { // by the Supervisor right, or nowhere
        for (const RightExplanation& each : explanation_.reasons)
            for (const Contribution& contribution : each.contributions)
                if (each.right == KelpRights::supervisor && contribution.end == Contribution::End::none)
                    folders.push_back(contribution.folder);
    }
    return folders;
}

void WhyViewController::showWay() {
    const std::vector<std::size_t> deciding = decidingFolders();
    std::vector<TextListModel::Row> rows;
    for (std::size_t at = 0; at < way_.size(); ++at) {
        const FolderOnWay& folder = way_[at];
        QStringList granted;
        for (const RightsHolder& holder : holders_)
            for (const auto& assignment : folder.assignments)
                if (assignment.id == holder.id)
                    granted.append(shown(holder.name) + QLatin1String(": ") +
                                   rightsInWords(assignment.rights));
        constexpr std::uint16_t allButSupervisor = 0x00FB;
        const bool passesAll = (folder.filter & allButSupervisor) == allButSupervisor;
        TextListModel::Row row{folder.path,
                               {shown(folder.path), granted.join(QLatin1String("; ")),
                                passesAll ? L("Why_Passes_All_Label") : rightsInWords(folder.filter)}};
        if (explanation_.lastInvisible && at <= *explanation_.lastInvisible)
            row.cells = {shown(folder.path), L("Why_Not_Visible_Label"), L("Why_Not_Visible_Label")};
        if (std::ranges::find(deciding, at) != deciding.end()) {
            row.sign = QStringLiteral("\u25b6");
            row.mark = L("Why_Decides_Label");
        }
        rows.push_back(std::move(row));
    }
    wayRows_->setRows(std::move(rows));
    wayTable->reloadData();
    const Reason* reason = selectedReason();
    goToBtn->setEnabled(reason != nullptr && reason->contribution.has_value());
}

void WhyViewController::goToAssignment() {
    const Reason* reason = selectedReason();
    const ViewController* tab = presentingController();
    auto* tabs = tab != nullptr ? dynamic_cast<ViewTabController*>(tab->parentController()) : nullptr;
    if (reason == nullptr || !reason->contribution || tabs == nullptr)
        return;
    const std::string id = holders_[reason->contribution->holder].id;
    const std::string path = way_[reason->contribution->folder].path;
    endSheet();
    tabs->tabView->setCurrentIndex(ViewTabController::trusteeDirTabLabel);
    auto* directories = dynamic_cast<DirectoryTrusteeViewController*>(
        tabs->childControllers()[ViewTabController::trusteeDirTabLabel]);
    if (directories != nullptr)
        directories->showAssignment(id, path);
}

QString WhyViewController::asText() const {
    QStringList lines = {windowTitle(), pathLabel->text(),
                         L("Why_Served_Label") + QLatin1Char(' ') + rightsInWords(served_.uright)};
    if (!differenceLabel->text().isEmpty())
        lines.append(differenceLabel->text());
    for (const TextListModel* table : {reasonRows_, wayRows_}) {
        lines.append(QString());
        for (const TextListModel::Row& row : table->rows())
            lines.append(row.cells.join(QStringLiteral(" \u2013 ")));
    }
    if (!noteLabel->text().isEmpty())
        lines += {QString(), noteLabel->text()};
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void explainRightsOf(ViewController& tab, const SelectionContext& selection, const RightsHolder& who) {
    auto* sheet = dynamic_cast<WhyViewController*>(Storyboard::named("Main").instantiate("whyView"));
    require(sheet != nullptr, "The sheet of reasons is of another class");
    sheet->serverIP = selection.serverIP;
    sheet->selectedPath = selection.selectedPath;
    sheet->mappedPath = selection.mappedPath;
    sheet->domainIdentity =
        std::string(isOfActiveDirectory(who.id) ? identityActiveDirectory : identityMorvane);
    sheet->who = who;
    tab.presentAsSheet(sheet);
}

void addWhyAction(ViewController& tab, const SelectionContext& selection, ListTable& table,
                  std::function<RightsHolder(int row)> who) {
    auto* action = new QAction(L("Why_title"), &table);
    action->setObjectName(QStringLiteral("whyAction"));
    action->setEnabled(false);
    table.addAction(action);
    QObject::connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, action,
                     [action, &table] { action->setEnabled(table.selectedRowIndexes().size() == 1); });
    QObject::connect(action, &QAction::triggered, &tab, [&tab, &selection, &table, who = std::move(who)] {
        if (const std::vector<int> rows = table.selectedRowIndexes(); rows.size() == 1)
            explainRightsOf(tab, selection, who(rows.front()));
    });
}

} // namespace quorvan
