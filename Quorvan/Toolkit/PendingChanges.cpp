// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/PendingChanges.h"

#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NoticeLine.h"
#include "Quorvan/Toolkit/RightsColumns.h"
#include "Quorvan/Toolkit/ShownText.h"

#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTime>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace quorvan {
namespace {

constexpr int mostListed = 30; ///< changes or names in one list

QStringList shortened(QStringList texts) {
    const auto more = static_cast<int>(texts.size()) - mostListed;
    if (more <= 0)
        return texts;
    texts.erase(texts.begin() + mostListed, texts.end());
    texts.append(L("Pending_More_Label", more));
    return texts;
}

} // namespace

QString PendingChange::text() const {
    return kind == Kind::removed ? L("Pending_Removed_Label").arg(name)
                                 : L("Pending_Change_Label").arg(name, what);
}

QString rightsInWords(std::uint16_t mask) {
    QStringList names;
    for (const RightsColumn& right : rightsColumns)
        if ((mask & right.bit) != 0)
            names.append(plainL(right.nameKey));
    return names.isEmpty() ? L("Pending_No_Rights_Label") : names.join(QStringLiteral(", "));
}

PendingLine::PendingLine(QWidget* parent)
    : QToolButton(parent) {
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setToolTip(L("Pending_Tip_Label"));
    connect(this, &QToolButton::clicked, this, [this] { openList(); });
    hide();
}

void PendingLine::setApplyButton(QPushButton& apply) {
    connect(&apply, &QPushButton::pressed, this, [] { NoticeLine::forget(); });
}

void PendingLine::show(std::vector<PendingChange> changes, const std::vector<ListTable*>& tables) {
    if (!changes.empty())
        NoticeLine::forget(NoticeLine::Kind::done); // not of these
    changes_ = std::move(changes);
    tables_ = tables;
    std::unordered_map<std::string, ListModel::Pending> marks;
    for (const PendingChange& change : changes_)
        if (change.kind != PendingChange::Kind::removed)
            marks[change.identity] = change.kind == PendingChange::Kind::added ? ListModel::Pending::added
                                                                               : ListModel::Pending::changed;
    for (ListTable* table : tables_)
        table->setPending(marks);
    setText(changes_.empty() ? QString() : L("Pending_Count_Label", static_cast<int>(changes_.size())));
    setVisible(!changes_.empty());
}

QStringList PendingLine::texts() const {
    QStringList texts;
    for (const PendingChange& change : changes_) {
        const bool isListed = tables_.empty() || change.kind == PendingChange::Kind::removed ||
                              std::ranges::any_of(tables_, [&](const ListTable* table) {
                                  return table->lists(change.identity);
                              });
        const QString text = shownText(change.text());
        texts.append(isListed ? text : L("Pending_Not_Shown_Label").arg(text));
    }
    return texts;
}

void PendingLine::openList() {
    QMenu list;
    for (const QString& text : shortened(texts()))
        list.addAction(QString(text).replace(QLatin1Char('&'), QLatin1String("&&")));
    list.exec(mapToGlobal(QPoint(0, -list.sizeHint().height())));
}

QString textsOf(const std::vector<PendingChange>& changes) {
    QStringList texts;
    for (const PendingChange& change : changes)
        texts.append(shownText(change.text()));
    return shortened(texts).join(QStringLiteral("; "));
}

PendingChange rightsChange(std::string identity, PendingChange::Kind kind, const std::string& name,
                           std::uint16_t rights) {
    return {std::move(identity), kind, QString::fromStdString(name), rightsInWords(rights), rights};
}

void tellOutcome(const std::vector<PendingChange>& sent,
                 const std::unordered_map<std::string, std::int64_t>& now) {
    std::unordered_set<std::string> judged;
    QStringList refused;
    for (auto change = sent.rbegin(); change != sent.rend(); ++change) {
        if (!judged.insert(change->identity).second)
            continue;
        const auto found = now.find(change->identity);
        const bool isMade = change->kind == PendingChange::Kind::removed
                                ? found == now.end()
                                : found != now.end() && found->second == change->value;
        if (!isMade)
            refused.prepend(shownText(change->name));
    }
    if (refused.isEmpty()) {
        const QString time = QLocale().toString(QTime::currentTime(), QLocale::ShortFormat);
        NoticeLine::tell(NoticeLine::Kind::done, L("Applied_Label").arg(time));
        return;
    }
    NoticeLine::tell(NoticeLine::Kind::problem, L("Not_Applied_Label", static_cast<int>(judged.size()))
                                                    .arg(QString::number(refused.size()),
                                                         shortened(refused).join(QStringLiteral(", "))));
}

} // namespace quorvan
