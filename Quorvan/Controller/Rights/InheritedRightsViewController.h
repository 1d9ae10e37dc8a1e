// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Controller/Selection/SelectionContext.h"
#include "Quorvan/Toolkit/PendingChanges.h"
#include "Quorvan/Toolkit/ViewController.h"

#include <cstdint>

class QCheckBox;
class QLabel;
class QPushButton;

namespace quorvan {

class PathLabel;
class RightsBoxes;

/// The second tab of the rights window: which rights the selected path lets through from the folders above.
///
/// The filter comes from the trustee rights tab, once; from then on this view keeps its own idea of what
/// the server holds. What an Apply could not send counts as held, too.
class InheritedRightsViewController : public ViewController, public SelectionContext {
public:
    // Outlets
    QLabel* deselectLabel = nullptr;
    PathLabel* currentPath = nullptr;
    RightsBoxes* filterBoxes = nullptr; ///< holds the eight boxes below
    QCheckBox* readIRF = nullptr;
    QCheckBox* eraseIRF = nullptr;
    QCheckBox* modifyIRF = nullptr;
    QCheckBox* accessIRF = nullptr;
    QCheckBox* writeIRF = nullptr;
    QCheckBox* createIRF = nullptr;
    QCheckBox* fscanIRF = nullptr;
    QCheckBox* supervisorIRF = nullptr; ///< always disabled: no filter stops that right
    QLabel* readOnlyLabel = nullptr;
    QPushButton* applyBtn = nullptr;
    PendingLine* pendingLine = nullptr; ///< what waits for Apply
    QPushButton* revertBtn = nullptr;

    std::uint16_t irf = 0; ///< as the server holds it
    std::uint16_t editedIRF = 0;
    QObject* observer = nullptr; ///< reserved; always null
    bool isSupervisorOrAC = false;

    void loadView() override;
    void viewDidLoad() override;

    void initMainView();
    /// Shows editedIRF.
    void setIRF();
    void onAnyIRFClick(QCheckBox* sender);
    void onApply(QObject* sender);
    void onRevert(QObject* sender);

private:
    bool hasFailed_ = false; ///< the last Apply
    std::vector<PendingChange> pendingChanges() const;
    void showPending();
    void buildBoxes();
    void layOutControls();
    void setChangesEnabled(bool enabled);
};

} // namespace quorvan
