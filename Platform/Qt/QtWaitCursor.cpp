// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Qt/QtWaitCursor.h"

#include <QApplication>
#include <QCursor>
#include <QLabel>

#include <utility>

namespace quorvan::platform {
namespace {

constexpr std::chrono::seconds worthSaying{2};

QWidget* windowOnTop() {
    if (QWidget* active = QApplication::activeWindow())
        return active;
    for (QWidget* each : QApplication::topLevelWidgets()) {
        if (each->isVisible())
            return each;
    }
    return nullptr;
}

} // namespace

QtWaitCursor::QtWaitCursor(Text text)
    : text_(std::move(text)) {}

QtWaitCursor::~QtWaitCursor() {
    delete line_.data();
}

void QtWaitCursor::begin() {
    if (depth_++ == 0)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtWaitCursor::end() {
    if (depth_ == 0 || --depth_ > 0)
        return;
    QGuiApplication::restoreOverrideCursor();
    delete line_.data();
}

void QtWaitCursor::waiting(std::chrono::seconds soFar) {
    QWidget* const window = windowOnTop();
    if (!text_ || soFar < worthSaying || window == nullptr)
        return;
    if (line_.isNull() || line_->parentWidget() != window) {
        delete line_.data();
        line_ = new QLabel(window);
        line_->setObjectName("waitingLine");
        line_->setAutoFillBackground(true);
        line_->setFrameShape(QFrame::StyledPanel);
        line_->setMargin(4);
    }
    line_->setText(text_(soFar));
    const int height = line_->sizeHint().height();
    line_->setGeometry(0, window->height() - height, window->width(), height);
    line_->show();
    line_->raise();
    line_->repaint(); // at once: the event loop does not run
}

} // namespace quorvan::platform
