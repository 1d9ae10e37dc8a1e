// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/TextDelegate.h"

#include "Quorvan/Toolkit/ListModel.h"

#include <QPainter>

namespace quorvan {

void TextDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    // The end of a name behind a domain tells it from others, and so does the end of a path.
    const QString head = option->text.section(QLatin1Char('\\'), 0, 0);
    const bool isQualified = head.size() < option->text.size() && !head.contains(QLatin1Char(' '));
    option->textElideMode = isQualified ? Qt::ElideLeft : elide_;
    const auto* list = dynamic_cast<const ListModel*>(index.model());
    if (const auto pending = list != nullptr ? list->pending(index.row()) : std::nullopt) {
        option->font.setBold(true);
        if (index.column() == 0)
            option->text.prepend(*pending == ListModel::Pending::added ? QStringLiteral("+ ")
                                                                       : QStringLiteral("\u270e "));
    }
    if (option->icon.isNull() || !option->state.testFlag(QStyle::State_Selected))
        return;
    const qreal ratio = option->widget != nullptr ? option->widget->devicePixelRatioF() : 1.0;
    QPixmap shape = option->icon.pixmap(option->decorationSize, ratio);
    if (index.column() == 0) { // the glyph of an identity; a sign keeps its own colours
        QPainter painter(&shape);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(shape.rect(), option->palette.color(QPalette::HighlightedText));
    }
    option->icon = QIcon();
    option->icon.addPixmap(shape, QIcon::Selected);
}

} // namespace quorvan
