// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/Sheet.h"

#include "Quorvan/Toolkit/ViewController.h"

#include <QShortcut>
#include <QVBoxLayout>

namespace quorvan {

Sheet::Sheet(ViewController& presenting, ViewController* content)
    : QDialog(presenting.window())
    , content_(content) {
    content->presentingController_ = &presenting;
    content->sheet_ = this;
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    const auto* back = new QShortcut(QKeySequence(QKeySequence::Back), this);
    connect(back, &QShortcut::activated, this, &QDialog::reject);
    connect(this, &QDialog::finished, this, [this] {
        content_->disappear();
        deleteLater();
    });
}

void Sheet::present() {
    content_->beginAppearing();
    setWindowTitle(content_->windowTitle());
    open();
    content_->endAppearing();
}

} // namespace quorvan
