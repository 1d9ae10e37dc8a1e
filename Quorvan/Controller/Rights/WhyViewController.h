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

namespace quorvan {

class PathLabel;
class RightsBoxes;
class TextListModel;

/// The sheet that says why somebody holds rights on the selected path, or does not: what the server grants,
/// where each right comes from and what stops it, and the way from the volume to the path. It asks once, when
/// it appears, and changes nothing.
class WhyViewController : public ViewController, public SelectionContext {
public:
    // Outlets
    PathLabel* pathLabel = nullptr;
    RightsBoxes* answerBoxes = nullptr; ///< what the server grants
    QLabel* differenceLabel = nullptr;  ///< only there where that cannot be explained
    ListTable* reasonTable = nullptr;
    ListTable* wayTable = nullptr;
    QLabel* noteLabel = nullptr; ///< what could not be seen
    QPushButton* goToBtn = nullptr;
    QPushButton* copyBtn = nullptr;
    QPushButton* closeBtn = nullptr;

    // Set before the sheet is presented, as are serverIP, selectedPath and domainIdentity
    RightsHolder who; ///< of the tree: by the distinguished name

    void loadView() override;
    void viewDidLoad() override;
    void viewWillAppear() override;
    void viewDidAppear() override;
    QSize sizeHint() const override;

    /// Everything that the sheet says, for a ticket.
    QString asText() const;

private:
    /// What a row of reasonTable is about.
    struct Reason {
        std::uint16_t right;
        std::optional<Contribution> contribution;
    };

    bool read();
    void show();
    void addReasons(const RightExplanation& explained);
    QString holderOf(const Contribution& contribution) const;
    QString sentence(const Contribution& contribution) const;
    QString difference() const;
    void showWay();
    const Reason* selectedReason() const;
    std::vector<std::size_t> decidingFolders() const;
    void goToAssignment();

    std::vector<FolderOnWay> way_;
    std::vector<RightsHolder> holders_;
    Rights served_;
    RightsExplanation explanation_;
    std::vector<Reason> reasons_;
    TextListModel* reasonRows_ = nullptr;
    TextListModel* wayRows_ = nullptr;
};

/// Opens the sheet over a tab of the rights window.
void explainRightsOf(ViewController& tab, const SelectionContext& selection, const RightsHolder& who);

/// Adds "Why…" to the menu of a table of a tab; `who` says who is in a row.
void addWhyAction(ViewController& tab, const SelectionContext& selection, ListTable& table,
                  std::function<RightsHolder(int row)> who);

} // namespace quorvan
