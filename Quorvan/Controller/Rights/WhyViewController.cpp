// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/WhyViewController.h"

#include "Common/Fatal.h"
#include "Platform/Services.h"
#include "Quorvan/Controller/Rights/DirectoryTrusteeViewController.h"
#include "Quorvan/Controller/Rights/TrusteeRightsTabView.h"
#include "Quorvan/Controller/Rights/ViewTabController.h"
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/Export.h"
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
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvan {

namespace {

constexpr int changesInView = 3;

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
    answerBoxes = outlet(new RightsBoxes(4, this), "answerBoxes", L("Why_Served_Label"));
    answerBoxes->makeReadOnly();
    differenceLabel = outlet(new QLabel(this), "differenceLabel");
    QFont bold = font();
    bold.setBold(true);
    differenceLabel->setFont(bold);
    reasonRows_ = new TextListModel({L("Why_Right_Label"), L("Why_Holds_Label"), L("Why_Reason_Label")});
    reasonTable = outlet(new ListTable(reasonRows_, this, {Kind::amount, Kind::amount}), "reasonTable",
                         L("Why_Reason_Label"));
    reasonTable->setSelectionMode(QAbstractItemView::SingleSelection);
    wayRows_ = new TextListModel({L("Col_Path"), L("Why_Granted_Label"), L("Why_Passes_Label")});
    wayTable = outlet(new ListTable(wayRows_, this), "wayTable", L("Why_Way_Label"));
    noteLabel = outlet(new QLabel(this), "noteLabel");
    for (QLabel* text : {differenceLabel, noteLabel}) {
        text->setWordWrap(true);
        text->setTextFormat(Qt::PlainText);
        text->hide();
    }
    changeArea = outlet(new QScrollArea(this), "changeArea", L("Why_Change_Label"));
    changeArea->setFrameShape(QFrame::NoFrame);
    changeArea->setFocusPolicy(Qt::NoFocus); // it follows the buttons
    changeArea->setWidgetResizable(true);
    changeArea->setWidget(new QWidget);
    (new QVBoxLayout(changeArea->widget()))->setContentsMargins(0, 0, 0, 0);
    addChange();
    copyBtn = outlet(new QPushButton(L("Why_Copy_title"), this), "copyBtn");
    copyBtn->setToolTip(L("Why_Copy_Tip_Label"));
    exportBtn = outlet(new QPushButton(L("Why_Export_title"), this), "exportBtn");
    closeBtn = outlet(new QPushButton(L("Close_title"), this), "closeBtn");
    closeBtn->setDefault(true);
    connect(copyBtn, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(asText()); });
    connect(exportBtn, &QPushButton::clicked, this, [this] {
        const QString file =
            chooseExport(window(), "Why_Export_title", "Why_Export_Filter_Label", QStringLiteral("txt"));
        if (!file.isEmpty())
            exportText(file);
    });
    connect(closeBtn, &QPushButton::clicked, this, [this] { endSheet(); });
    connect(reasonTable->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        showWay();
        showChanges();
    });
    layOutControls();
}

void WhyViewController::addChange() {
    const std::string number = changes.empty() ? "" : std::to_string(changes.size() + 1);
    Change change;
    change.line = new QWidget(changeArea->widget());
    change.text = outlet(new QLabel(change.line), ("changeLabel" + number).c_str());
    change.text->setWordWrap(true);
    change.text->setTextFormat(Qt::PlainText);
    const QString title = changes.empty() ? L("Why_Go_To_title") : plainL("Why_Go_To_title");
    change.goToBtn = outlet(new QPushButton(title, change.line), ("goToBtn" + number).c_str());
    change.goToBtn->setToolTip(L("Why_Go_To_Tip_Label"));
    explainWhenGrey(*change.goToBtn,
                    [this] { return changesWait ? "Why_Leave_Pending_Label" : "Why_No_Assignment_Label"; });
    connect(change.goToBtn, &QPushButton::clicked, this, [this, at = changes.size()] { goTo(touches_[at]); });
    auto* line = new QHBoxLayout(change.line);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(change.text, 1);
    line->addWidget(change.goToBtn);
    changeArea->widget()->layout()->addWidget(change.line);
    if (!changes.empty())
        setTabOrder(changes.back().goToBtn, change.goToBtn);
    changes.push_back(change);
}

void WhyViewController::layOutControls() {
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {copyBtn, exportBtn})
        buttons->addWidget(button);
    buttons->addStretch();
    buttons->addWidget(closeBtn);
    auto* page = new QVBoxLayout(this);
    page->addWidget(pathLabel);
    page->addWidget(new QLabel(L("Why_Served_Label"), this));
    page->addWidget(answerBoxes);
    page->addWidget(differenceLabel);
    page->addWidget(reasonTable, 3);
    page->addWidget(new QLabel(L("Why_Way_Label"), this));
    page->addWidget(wayTable, 2);
    page->addWidget(noteLabel);
    page->addWidget(new QLabel(L("Why_Change_Label"), this));
    page->addWidget(changeArea);
    page->addLayout(buttons);
    setTabOrders({pathLabel, reasonTable, wayTable, changes[0].goToBtn, copyBtn, exportBtn, closeBtn});
}

void WhyViewController::viewDidLoad() {
    setWindowTitle(L("Why_Window_Title").arg(shown(who.name), shown(selectedPath)));
    pathLabel->setPath(QString::fromStdString(selectedPath));
    showChanges();
}

QSize WhyViewController::sizeHint() const {
    return {150 * fontMetrics().averageCharWidth(), 42 * fontMetrics().lineSpacing()};
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

/// False when something failed, which the user has been told. All of it is one wait.
bool WhyViewController::read() {
    const platform::BusyScope busy(platform::services().busy);
    if (!readWay())
        return false;
    if (std::ranges::any_of(way_, &FolderOnWay::isBehindLink) && (!followLinks() || !readWay()))
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

/// The way, and what the server itself says of its end.
bool WhyViewController::readWay() {
    auto pipe = openPipe(pipes::files);
    if (!pipe)
        return false;
    way_ = readRightsWay(*xmlController, selectedPath, domainIdentity);
    if (xmlController->loss() == 0)
        served_ = rightsOfUser(*xmlController, selectedPath, who.id, domainIdentity);
    pipe.reset();
    return !reportLoss();
}

/// Moves to where the links lead that the path lies below, as every operation on a selection does.
bool WhyViewController::followLinks() {
    TrusteeList trustees;
    Rights filter;
    Rights own;
    const std::int32_t status = renewController().initializeTrusteesHandleDFS(
        serverIP, trustees, selectedPath, filter, own, mappedPath, domainIdentity);
    if (status != 0)
        reportFailed(status);
    server_ = shown(serverIP);
    return status == 0;
}

void WhyViewController::show() {
    if (served_)
        answerBoxes->setRights(served_->uright);
    else
        answerBoxes->setUnknown();
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
            if (hasUnlistedMembers(assignment.id) &&
                std::ranges::find(holders_, assignment.id, &RightsHolder::id) == holders_.end())
                notes.append(
                    L("Why_Everyone_Label")
                        .arg(shown(folder.path), rightsInWords(assignment.rights), shown(assignment.name)));
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
        addRow(contribution.end == Contribution::End::none, sentence(contribution, explained.right),
               contribution);
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

/// A folder of the way, with its server where a link has led there.
QString WhyViewController::pathOf(std::size_t folder) const {
    const QString path = shown(way_[folder].path);
    return server_.isEmpty() ? path : L("Why_On_Server_Label").arg(path, server_);
}

QString WhyViewController::sentence(const Contribution& contribution, std::uint16_t right) const {
    const QString granted = L(contribution.holder == 0 ? "Why_Granted_Self_Label" : "Why_Granted_Group_Label")
                                .arg(holderOf(contribution), pathOf(contribution.folder));
    switch (contribution.end) {
    case Contribution::End::filtered:
        return granted + L("Why_Filtered_Label").arg(pathOf(contribution.endFolder));
    case Contribution::End::replaced:
        return granted + L("Why_Replaced_Label").arg(pathOf(contribution.endFolder));
    case Contribution::End::none:
        break;
    }
    return right == KelpRights::supervisor ? granted + L("Why_Unstoppable_Label") : granted;
}

/// The server is right; where its answer does not follow from what can be seen, that is said.
QString WhyViewController::difference() const {
    if (!served_)
        return L("Why_Unknown_Label");
    QStringList texts;
    const auto more = static_cast<std::uint16_t>(served_->uright & ~explanation_.rights);
    const auto less = static_cast<std::uint16_t>(explanation_.rights & ~served_->uright);
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

/// What a row of reasonTable rests on: its own contribution, or those of the Supervisor right.
std::vector<Contribution> WhyViewController::contributionsOf(const Reason& reason) const {
    if (reason.contribution)
        return {*reason.contribution};
    std::vector<Contribution> found;
    for (const RightExplanation& each : explanation_.reasons)
        if (each.right == KelpRights::supervisor)
            std::ranges::copy_if(each.contributions, std::back_inserter(found), [](const auto& contribution) {
                return contribution.end == Contribution::End::none;
            });
    return found;
}

/// Marks the way that the selected right has come, and the step that decides: what stops it, or else where
/// it was granted.
void WhyViewController::showWay() {
    enum class Part { none, passes, decides };
    std::vector<Part> parts(way_.size(), Part::none);
    if (const Reason* reason = selectedReason())
        for (const Contribution& each : contributionsOf(*reason)) {
            const bool isStopped = each.end != Contribution::End::none;
            const std::size_t end = isStopped ? each.endFolder : way_.size() - 1;
            for (std::size_t at = each.folder; at <= end; ++at)
                parts[at] = std::max(parts[at], Part::passes);
            parts[isStopped ? each.endFolder : each.folder] = Part::decides;
        }
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
                               {pathOf(at), granted.join(QLatin1String("; ")),
                                passesAll ? L("Why_Passes_All_Label") : rightsInWords(folder.filter)}};
        if (explanation_.lastInvisible && at <= *explanation_.lastInvisible)
            row.cells = {pathOf(at), L("Why_Not_Visible_Label"), L("Why_Not_Visible_Label")};
        if (parts[at] != Part::none) {
            const bool decides = parts[at] == Part::decides;
            row.sign = decides ? QStringLiteral("\u25b6") : QStringLiteral("\u25b7");
            row.mark = L(decides ? "Why_Decides_Label" : "Why_On_Way_Label");
        }
        rows.push_back(std::move(row));
    }
    wayRows_->setRows(std::move(rows));
    wayTable->reloadData();
}

std::vector<WhyViewController::Touch> WhyViewController::touchesOf(const Reason& reason) const {
    std::vector<Touch> touches;
    const auto add = [&](const char* key, const Contribution& each, std::uint16_t right, std::size_t folder) {
        touches.push_back(
            {L(key).arg(rightsInWords(right), holderOf(each), pathOf(folder)), each.holder, folder});
    };
    const std::vector<Contribution> all = contributionsOf(reason);
    for (const Contribution& each : all) {
        const std::uint16_t right = reason.contribution ? reason.right : KelpRights::supervisor;
        if (each.end == Contribution::End::none)
            add("Why_Take_Label", each, right, each.folder);
        else if (each.end == Contribution::End::replaced)
            add("Why_Give_Label", each, right, each.endFolder);
        else
            touches.push_back({L("Why_Let_Through_Label").arg(rightsInWords(right), pathOf(each.endFolder)),
                               each.holder, each.folder});
    }
    // A right that is held several times goes only with the last of its assignments.
    if (reason.contribution && reason.contribution->end == Contribution::End::none)
        for (const RightExplanation& explained : explanation_.reasons)
            for (const Contribution& each : explained.contributions)
                if (explained.right == reason.right && each.end == Contribution::End::none &&
                    (each.holder != all.front().holder || each.folder != all.front().folder))
                    add("Why_Take_Also_Label", each, reason.right, each.folder);
    return touches;
}

void WhyViewController::showChanges() {
    const Reason* reason = selectedReason();
    touches_ = reason != nullptr ? touchesOf(*reason) : std::vector<Touch>();
    while (changes.size() < touches_.size())
        addChange();
    for (std::size_t at = 0; at < changes.size(); ++at) {
        const Change& change = changes[at];
        const bool isThere = at < touches_.size();
        change.text->setText(isThere             ? touches_[at].text
                             : reason == nullptr ? L("Why_Nothing_Chosen_Label")
                                                 : L("Why_Nothing_There_Label"));
        change.line->setVisible(isThere || at == 0);
        change.goToBtn->setEnabled(isThere && !changesWait);
        change.goToBtn->setAccessibleDescription(change.text->text());
    }
    const int line = changes.front().goToBtn->sizeHint().height() + changeArea->widget()->layout()->spacing();
    changeArea->setFixedHeight(changesInView * line); // whether they are there or not: nothing jumps
}

/// Leads to the assignment's row, from a tab of the rights window to its neighbour, from another page to the
/// rights window.
void WhyViewController::goTo(const Touch& touch) {
    const std::string id = holders_[touch.holder].id;
    const std::string path = way_[touch.folder].path;
    ViewController* view = presentingController();
    endSheet();
    for (ViewController* below = view; below != nullptr && below->presentingController() != nullptr;) {
        view = below->presentingController(); // the page, below a sheet
        below->endSheet();
        below = view;
    }
    if (view == nullptr)
        return;
    auto* tabs = dynamic_cast<ViewTabController*>(view->parentController());
    if (tabs == nullptr) {
        auto* page = new TrusteeRightsTabView;
        view->replacePage(page, plainL("Trustee_Rights_Title"));
        tabs = page->findChild<ViewTabController*>();
    }
    if (tabs == nullptr)
        return; // the rights could not be read, which has led elsewhere
    tabs->tabView->setCurrentIndex(ViewTabController::trusteeDirTabLabel);
    auto* directories = dynamic_cast<DirectoryTrusteeViewController*>(
        tabs->childControllers()[ViewTabController::trusteeDirTabLabel]);
    if (directories != nullptr)
        directories->showAssignment(id, path);
}

QString WhyViewController::changesAsText() const {
    QStringList lines;
    if (selectedReason() != nullptr && !touches_.empty())
        lines.append(L("Why_Change_Label"));
    for (const Touch& touch : touches_)
        lines.append(touch.text);
    return lines.join(QLatin1Char('\n'));
}

QString WhyViewController::asText() const {
    QStringList lines = {windowTitle(),
                         L("Why_Served_Label") + QLatin1Char(' ') +
                             (served_ ? rightsInWords(served_->uright) : L("Why_Unknown_Label"))};
    if (!differenceLabel->text().isEmpty())
        lines.append(differenceLabel->text());
    for (const TextListModel* table : {reasonRows_, wayRows_}) {
        lines.append(QString());
        for (const TextListModel::Row& row : table->rows())
            lines.append(row.cells.join(QStringLiteral(" \u2013 ")));
    }
    for (const QString& more : {noteLabel->text(), changesAsText()})
        if (!more.isEmpty())
            lines += {QString(), more};
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void WhyViewController::exportText(const QString& file) const {
    exportTo(file, asText().toUtf8());
}

void explainRights(ViewController& view, const SelectionContext& selection, const WhyQuestion& question) {
    auto* sheet = dynamic_cast<WhyViewController*>(Storyboard::named("Main").instantiate("whyView"));
    require(sheet != nullptr, "The sheet of reasons is of another class");
    sheet->serverIP = selection.serverIP;
    sheet->selectedPath = question.path;
    sheet->mappedPath = selection.mappedPath;
    sheet->domainIdentity =
        std::string(isOfActiveDirectory(question.who.id) ? identityActiveDirectory : identityMorvane);
    sheet->who = question.who;
    sheet->changesWait = question.changesWait;
    view.presentAsSheet(sheet);
}

void addWhyAction(ViewController& view, const SelectionContext& selection, ListTable& table,
                  const std::function<WhyQuestion(int row)>& questionOf) {
    auto* action = new QAction(L("Why_title"), &table);
    action->setObjectName(QStringLiteral("whyAction"));
    setGrey(*action, "Why_Nothing_Selected_Label");
    table.addAction(action);
    QObject::connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, action,
                     [action, &table, questionOf] {
                         const std::vector<int> rows = table.selectedRowIndexes();
                         setGrey(*action, rows.empty()       ? "Why_Nothing_Selected_Label"
                                          : rows.size() == 1 ? nullptr
                                                             : "Why_One_Only_Label");
                         if (rows.size() == 1)
                             action->setText(L("Why_Named_title")
                                                 .arg(shown(questionOf(rows.front()).who.name)
                                                          .replace(QLatin1Char('&'), QLatin1String("&&"))));
                         else
                             action->setText(L("Why_title"));
                     });
    QObject::connect(action, &QAction::triggered, &view, [&view, &selection, &table, questionOf] {
        if (const std::vector<int> rows = table.selectedRowIndexes(); rows.size() == 1)
            explainRights(view, selection, questionOf(rows.front()));
    });
}

} // namespace quorvan
