// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Rights/ViewTabController.h"

#include "Quorvan/Controller/Rights/DirectoryTrusteeViewController.h"
#include "Quorvan/Controller/Rights/EffectiveRightsViewController.h"
#include "Quorvan/Controller/Rights/InheritedRightsViewController.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Toolkit/Localized.h"

#include <QTabWidget>
#include <QVBoxLayout>

#include <utility>

namespace quorvan {
namespace {

template <class View>
ViewController* make() {
    return new View;
}

struct TabKind {
    const char* titleKey;
    const char* tipKey;
    ViewController* (*makeView)();
};
constexpr TabKind tabKinds[] = {
    {"Rights_Label", "Rights_Tip_Label", make<RightsTabViewController>},
    {"Inherited_Rights_Label", "Inherited_Rights_Tip_Label", make<InheritedRightsViewController>},
    {"Effective_Rights_Label", "Effective_Rights_Tip_Label", make<EffectiveRightsViewController>},
    {"Trustee_Directories_Label", "Trustee_Directories_Tip_Label", make<DirectoryTrusteeViewController>}};

} // namespace

void ViewTabController::loadView() {
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    tabView = outlet(new QTabWidget(this), "tabView", plainL("Trustee_Rights_Title"));
    page->addWidget(tabView);
    for (const TabKind& kind : tabKinds) {
        const int item = tabView->count();
        ViewController* view = kind.makeView();
        tabView->addTab(view, L(kind.titleKey));
        tabView->setTabToolTip(item, L(kind.tipKey));
        insertChild(static_cast<std::size_t>(item), view);
    }
}

void ViewTabController::viewDidLoad() {
    current_ = shownChildren().front();
    connect(tabView, &QTabWidget::currentChanged, this, [this] { tabDidChange(); });
}

std::vector<ViewController*> ViewTabController::shownChildren() const {
    return {childControllers().at(static_cast<std::size_t>(tabView->currentIndex()))};
}

void ViewTabController::tabDidChange() {
    ViewController* before = std::exchange(current_, shownChildren().front());
    if (!shown_)
        return;
    if (before != nullptr)
        before->disappear();
    const QPointer<ViewController> now = current_;
    now->beginAppearing();
    if (now != nullptr)
        now->endAppearing();
}

} // namespace quorvan
