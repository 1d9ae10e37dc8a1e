// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/ViewController.h"

#include "Quorvan/Toolkit/Sheet.h"

#include <algorithm>
#include <iterator>

namespace quorvan {

ViewController::ViewController(QWidget* parent)
    : QWidget(parent) {}

ViewController::~ViewController() {
    if (parentController_ != nullptr)
        parentController_->forgetChild(this);
    for (ViewController* child : childControllers_)
        child->parentController_ = nullptr;
}

void ViewController::loadViewIfNeeded() {
    if (loaded_)
        return;
    loaded_ = true;
    loadView();
    viewDidLoad();
}

void ViewController::beginAppearing() {
    if (appearance_ != Appearance::hidden)
        return;
    loadViewIfNeeded();
    appearance_ = Appearance::appearing;
    viewWillAppear();
    // A view whose load fails may have replaced its page by now; then nothing below it appears.
    for (ViewController* child : shownChildren())
        if (appearance_ == Appearance::appearing)
            child->beginAppearing();
}

void ViewController::endAppearing() {
    if (appearance_ != Appearance::appearing)
        return;
    appearance_ = Appearance::shown;
    viewDidAppear();
    for (ViewController* child : shownChildren())
        child->endAppearing();
}

void ViewController::disappear() {
    if (appearance_ == Appearance::hidden)
        return;
    appearance_ = Appearance::hidden;
    viewWillDisappear();
    for (ViewController* child : childControllers_)
        child->disappear();
}

void ViewController::insertChild(std::size_t index, ViewController* child) {
    const auto at =
        childControllers_.begin() + static_cast<std::ptrdiff_t>(std::min(index, childControllers_.size()));
    childControllers_.insert(at, child);
    child->parentController_ = this;
    if (!isAncestorOf(child))
        child->setParent(this);
}

void ViewController::removeChild(ViewController* child) {
    child->disappear();
    forgetChild(child);
    child->parentController_ = nullptr;
    child->hide();
    child->deleteLater();
}

void ViewController::forgetChild(ViewController* child) {
    std::erase(childControllers_, child);
}

void ViewController::replacePage(ViewController* destination, const QString& windowTitle) {
    ViewController* page = this;
    while (ViewController* above = page->parentController_ != nullptr ? page->parentController_
                                                                      : page->presentingController_.data()) {
        if (auto* container = dynamic_cast<PageContainer*>(above)) {
            container->showDestinationView(page, destination, windowTitle);
            return;
        }
        page = above;
    }
    delete destination;
}

void ViewController::setTabOrders(std::initializer_list<QWidget*> controls) {
    for (const auto* next = controls.begin() + 1; next < controls.end(); ++next)
        setTabOrder(*(next - 1), *next);
}

void ViewController::presentAsSheet(ViewController* controller) {
    auto* sheet = new Sheet(*this, controller);
    sheet->present();
}

void ViewController::endSheet() {
    if (sheet_ != nullptr)
        sheet_->close();
}

} // namespace quorvan
