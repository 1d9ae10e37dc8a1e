// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/MenuEntry.h"

#include "Quorvan/Toolkit/TrusteeIcon.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace quorvan {
namespace {

constexpr int margin = 14;
constexpr int tightMargin = 4; // where the screen has no room for more
constexpr int iconEdge = 40;

} // namespace

MenuEntry::MenuEntry(const char* iconName, const QString& description, QWidget* parent)
    : QPushButton(parent)
    , title(new QLabel(this))
    , icon_(namedIcon(iconName))
    , description_(new QLabel(description, this))
    , texts_(new QVBoxLayout(this)) {
    QFont bold = font();
    bold.setBold(true);
    title->setFont(bold);
    description_->setForegroundRole(QPalette::ButtonText);
    title->setForegroundRole(QPalette::ButtonText);
    for (QLabel* label : {title, description_}) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        label->setTextFormat(Qt::PlainText);
        texts_->addWidget(label);
    }
    texts_->setSpacing(2);
    constexpr int besideIcon = margin + iconEdge + margin;
    texts_->setContentsMargins(isRightToLeft() ? margin : besideIcon, tightMargin,
                               isRightToLeft() ? besideIcon : margin, tightMargin);
    texts_->insertStretch(0);
    texts_->addStretch();
    setAccessibleDescription(description);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void MenuEntry::setTitle(const QString& text) {
    title->setText(text);
    setAccessibleName(text);
}

void MenuEntry::makeCompact() {
    compact_ = true;
    hideDescription();
    title->setWordWrap(true);
    title->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    delete texts_->takeAt(0); // the stretch above
    texts_->setContentsMargins(margin / 2, 2 * margin + iconEdge, margin / 2, margin / 2);
}

void MenuEntry::hideDescription() {
    description_->hide();
    if (toolTip().isEmpty())
        setToolTip(description_->text());
}

QSize MenuEntry::sizeHint() const {
    return layout()->sizeHint().expandedTo({0, iconEdge + 2 * margin});
}

/// Where the screen is too small for all entries, they do without their descriptions.
QSize MenuEntry::minimumSizeHint() const {
    const int least = title->minimumSizeHint().height() + 2 * tightMargin;
    return {layout()->minimumSize().width(), compact_ ? layout()->minimumSize().height() : least};
}

void MenuEntry::resizeEvent(QResizeEvent* event) {
    QPushButton::resizeEvent(event);
    if (compact_)
        return;
    const int both = title->sizeHint().height() + texts_->spacing() + description_->sizeHint().height();
    if (height() >= both + 2 * tightMargin)
        description_->show();
    else
        hideDescription();
}

void MenuEntry::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QPushButton::keyPressEvent(event);
}

void MenuEntry::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    const int edge = qMin(iconEdge, height() - 2 * tightMargin);
    QRect place(margin + (iconEdge - edge) / 2, (height() - edge) / 2, edge, edge);
    if (compact_)
        place.moveTopLeft({(width() - edge) / 2, 3 * margin / 2});
    else if (isRightToLeft())
        place.moveRight(width() - 1 - place.left());
    QPainter painter(this);
    icon_.paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
}

} // namespace quorvan
