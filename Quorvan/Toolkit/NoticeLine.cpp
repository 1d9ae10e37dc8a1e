// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/NoticeLine.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QStyle>

namespace quorvan {
namespace {

QPointer<NoticeLine>& theLine() {
    static QPointer<NoticeLine> line;
    return line;
}

/// Screen readers read out a notification that appears, wherever the focus is; of a label they do not.
QAccessibleInterface* notification(const QString& /*className*/, QObject* object) {
    auto* line = dynamic_cast<NoticeLine*>(object);
    return line != nullptr ? new QAccessibleWidget(line, QAccessible::Notification) : nullptr;
}

} // namespace

NoticeLine::NoticeLine(QWidget* parent)
    : QFrame(parent)
    , icon_(new QLabel(this))
    , text_(new QLabel(this)) {
    setObjectName("noticeLine");
    setFrameShape(QFrame::StyledPanel);
    text_->setObjectName("noticeText");
    text_->setTextFormat(Qt::PlainText); // it may quote what a server sent
    text_->setWordWrap(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(8, 4, 8, 4);
    line->addWidget(icon_, 0, Qt::AlignTop);
    line->addWidget(text_, 1);
    hide();
    QAccessible::installFactory(&notification); // once, however often it is called
    theLine() = this;
}

void NoticeLine::tell(Kind kind, const QString& text) {
    NoticeLine* const line = theLine();
    if (line == nullptr)
        return;
    const auto icon = kind == Kind::done ? QStyle::SP_MessageBoxInformation : QStyle::SP_MessageBoxWarning;
    const int edge = line->fontMetrics().height();
    line->icon_->setPixmap(line->style()->standardIcon(icon).pixmap(edge, edge));
    line->kind_ = kind;
    line->text_->setText(text);
    line->setAccessibleName(text);
    line->hide(); // so that one that is there already appears anew
    line->show();
}

void NoticeLine::forget() {
    if (NoticeLine* const line = theLine()) {
        line->text_->clear();
        line->hide();
    }
}

void NoticeLine::forget(Kind kind) {
    if (theLine() != nullptr && theLine()->kind_ == kind)
        forget();
}

} // namespace quorvan
