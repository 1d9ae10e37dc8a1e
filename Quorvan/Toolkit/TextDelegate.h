// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace quorvan {

/// Draws the texts of a list. A row whose change waits to be applied is bold and has a sign in front; the
/// icon of a selected row has the colour of its text, because in its own it could drown.
class TextDelegate : public QStyledItemDelegate {
public:
    explicit TextDelegate(QObject* parent, Qt::TextElideMode elide = Qt::ElideRight)
        : QStyledItemDelegate(parent)
        , elide_(elide) {}

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    Qt::TextElideMode elide_;
};

} // namespace quorvan
