// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/ContainerViewController.h"

#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NoticeLine.h"
#include "Quorvan/Toolkit/Storyboard.h"
#include "Quorvan/Toolkit/ViewState.h"

#include <QGraphicsOpacityEffect>
#include <QGuiApplication>
#include <QLabel>
#include <QPropertyAnimation>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace quorvan {
namespace {

constexpr int fadeMilliseconds = 150;

bool animates(const QWidget& widget) {
    return widget.isVisible() && QGuiApplication::platformName() != QLatin1String("offscreen") &&
           widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget) > 0;
}

QString sizeKey(const ViewController& page) {
    return QLatin1String("sizes/") + page.objectName();
}

} // namespace

void ContainerViewController::loadView() {
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(new NoticeLine(this));
}

void ContainerViewController::viewDidLoad() {
    ViewController* options = Storyboard::named("Main").instantiate("optionsViewController");
    insertChild(0, options);
    options->loadViewIfNeeded();
    showAboveNotice(options);
    resize(options->sizeHint());
}

void ContainerViewController::showAboveNotice(ViewController* page) {
    static_cast<QVBoxLayout*>(layout())->insertWidget(0, page, 1);
}

void ContainerViewController::viewWillAppear() {
    window()->setWindowTitle(plainL("RM_Window_Title"));
}

void ContainerViewController::showDestinationView(ViewController* sourceViewController,
                                                  ViewController* destinationViewController,
                                                  const QString& windowTitle) {
    if (waiting_)
        delete waiting_->destination;
    waiting_ = {sourceViewController, destinationViewController, windowTitle};
    if (switching_)
        return;
    const QScopedValueRollback switching(switching_, true);
    while (waiting_)
        perform(*std::exchange(waiting_, {}));
}

void ContainerViewController::perform(const Switch& next) {
    const QPixmap before = animates(*this) ? grab() : QPixmap();
    keepWindowSize();
    insertChild(1, next.destination);
    window()->setWindowTitle(next.title); // above the alerts of a destination that cannot load
    next.destination->beginAppearing();
    window()->setWindowTitle(next.title); // the options page has set its own, which is for the start alone
    layout()->removeWidget(next.source);
    showAboveNotice(next.destination);
    removeChild(next.source);
    if (waiting_)
        return; // it is to be replaced at once
    next.destination->show();
    fitWindow(*next.destination);
    if (!before.isNull())
        fadeFrom(before);
    next.destination->endAppearing();
}

void ContainerViewController::keepWindowSize() const {
    const QWidget* frame = window();
    if (page_ != nullptr && !frame->isMaximized() && !frame->isFullScreen() && frame->size() != fittedSize_)
        ViewState().setValue(sizeKey(*page_), frame->size());
}

/// The window grows by itself where the page needs more room than before.
bool ContainerViewController::event(QEvent* event) {
    const bool isTaken = ViewController::event(event);
    if (event->type() == QEvent::LayoutRequest)
        fittedSize_ = fittedSize_.expandedTo(window()->minimumSizeHint());
    return isTaken;
}

/// The window closes.
void ContainerViewController::hideEvent(QHideEvent* event) {
    keepWindowSize();
    ViewController::hideEvent(event);
}

/// The page that was shown goes out over the new one, which can be used from the start.
void ContainerViewController::fadeFrom(const QPixmap& before) {
    auto* cover = new QLabel(this);
    cover->setAttribute(Qt::WA_TransparentForMouseEvents);
    cover->setPixmap(before);
    cover->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    cover->setGeometry(rect());
    auto* effect = new QGraphicsOpacityEffect(cover);
    cover->setGraphicsEffect(effect);
    cover->show();
    auto* fade = new QPropertyAnimation(effect, "opacity", cover);
    fade->setDuration(fadeMilliseconds);
    fade->setStartValue(1.0);
    fade->setEndValue(0.0);
    connect(fade, &QAbstractAnimation::finished, cover, &QObject::deleteLater);
    fade->start();
}

/// The window keeps its place and takes the page's size, as far as the screen has room for it. One
/// that would grow over the edge of the screen moves in just far enough.
void ContainerViewController::fitWindow(ViewController& page) {
    QWidget* frame = window();
    if (frame->isMaximized() || frame->isFullScreen())
        return;
    layout()->activate();
    if (frame->layout() != nullptr)
        frame->layout()->activate();
    const QRect room = frame->screen()->availableGeometry();
    const QSize decoration = frame->frameGeometry().size() - frame->size();
    const QSize kept = ViewState().value(sizeKey(page)).toSize();
    const QSize wanted = kept.isEmpty() ? frame->sizeHint() : kept;
    frame->resize(wanted.boundedTo(room.size() - decoration).expandedTo(frame->minimumSizeHint()));
    fittedSize_ = frame->size();
    page_ = &page;

    const QRect now = frame->frameGeometry();
    const QPoint inside(qMax(room.left(), qMin(now.left(), room.right() + 1 - now.width())),
                        qMax(room.top(), qMin(now.top(), room.bottom() + 1 - now.height())));
    if (inside != now.topLeft() && room.contains(now.topLeft()))
        frame->move(inside);
}

} // namespace quorvan
