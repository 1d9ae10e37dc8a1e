// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Selection/SelectionContext.h"
#include "Quorvan/Modal/RightsExplanation.h"
#include "Quorvan/Toolkit/ListTable.h"
#include "Quorvan/Toolkit/ViewController.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QLabel;
class QPushButton;
class QScrollArea;
class QWidget;

namespace quorvan {

class PathLabel;
class RightsBoxes;
class TextListModel;

/// The sheet that says why somebody holds rights on the selected path, or does not: what the server grants,
/// where each right comes from and what stops it, the way from the volume to the path, and which assignments
/// would have to be touched. It asks once, when it appears, and changes nothing.
class WhyViewController : public ViewController, public SelectionContext {
public:
    // Outlets
    PathLabel* pathLabel = nullptr;
    RightsBoxes* answerBoxes = nullptr; ///< what the server grants
    QLabel* differenceLabel = nullptr;  ///< only there where that cannot be explained
    ListTable* reasonTable = nullptr;
    ListTable* wayTable = nullptr;
    QLabel* noteLabel = nullptr; ///< what could not be seen
    /// What would change a right, and the way to it. As many as any right has needed yet.
    struct Change {
        QWidget* line = nullptr;
        QLabel* text = nullptr;
        QPushButton* goToBtn = nullptr;
    };
    std::vector<Change> changes;
    QScrollArea* changeArea = nullptr;
    QPushButton* copyBtn = nullptr;
    QPushButton* exportBtn = nullptr;
    QPushButton* closeBtn = nullptr;

    // Set before the sheet is presented, as are serverIP, selectedPath and domainIdentity
    RightsHolder who;         ///< of the tree: by the distinguished name
    bool changesWait = false; ///< on a page that would lose them if it were left

    void loadView() override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;
    QSize sizeHint() const override;

    /// Everything that the sheet says, for a ticket.
    QString asText() const;
    void exportText(const QString& file) const;

private:
    /// What a row of reasonTable is about.
    struct Reason {
        std::uint16_t right;
        std::optional<Contribution> contribution;
    };

    /// An assignment that would change a right if it were touched.
    struct Touch {
        QString text;
        std::size_t holder;
        std::size_t folder;
    };

    void addChange();
    void layOutControls();
    bool read();
    bool readWay();
    bool followLinks();
    void show();
    void addReasons(const RightExplanation& explained);
    QString changesAsText() const;
    QString holderOf(const Contribution& contribution) const;
    QString sentence(const Contribution& contribution, std::uint16_t right) const;
    QString difference() const;
    void showWay();
    const Reason* selectedReason() const;
    std::vector<Contribution> contributionsOf(const Reason& reason) const;
    QString pathOf(std::size_t folder) const;
    void showChanges();
    std::vector<Touch> touchesOf(const Reason& reason) const;
    void goTo(const Touch& touch);

    std::vector<FolderOnWay> way_;
    std::vector<RightsHolder> holders_;
    std::optional<Rights> served_; ///< nothing when the server does not say
    RightsExplanation explanation_;
    std::vector<Reason> reasons_;
    std::vector<Touch> touches_;
    QString server_; ///< where links have led to; empty where there were none
    TextListModel* reasonRows_ = nullptr;
    TextListModel* wayRows_ = nullptr;
};

/// What "Why…" asks about: somebody on a path.
struct WhyQuestion {
    RightsHolder who;
    std::string path;
    bool changesWait = false; ///< as of WhyViewController
};

/// Opens the sheet over a view.
void explainRights(ViewController& view, const SelectionContext& selection, const WhyQuestion& question);

/// Adds "Why does … have these rights here?" to the menu of a table; `questionOf` says what a row asks.
void addWhyAction(ViewController& view, const SelectionContext& selection, ListTable& table,
                  const std::function<WhyQuestion(int row)>& questionOf);

} // namespace quorvan
