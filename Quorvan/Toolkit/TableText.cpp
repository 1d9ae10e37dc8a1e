// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/TableText.h"

#include <QAbstractItemModel>

#include <algorithm>
#include <numeric>
#include <utility>

namespace quorvan {
namespace {

QString cellText(const QModelIndex& index) {
    const QVariant ticked = index.data(Qt::CheckStateRole);
    if (ticked.isValid())
        return ticked.toInt() == Qt::Checked ? QStringLiteral("x") : QString();
    return index.data(Qt::DisplayRole).toString();
}

/// The letter of a right says little outside of the window; its name is there for screen readers.
QString headerText(const QAbstractItemModel& model, int column) {
    const QString name = model.headerData(column, Qt::Horizontal, Qt::AccessibleTextRole).toString();
    return name.isEmpty() ? model.headerData(column, Qt::Horizontal).toString() : name;
}

bool isControl(QChar letter) {
    return letter.category() == QChar::Other_Control;
}

QString onOneLine(QString text) {
    std::ranges::replace_if(text, &isControl, u' ');
    return text;
}

bool looksLikeFormula(const QString& text) {
    return !text.isEmpty() && (QStringLiteral("=+-@").contains(text.front()) || isControl(text.front()));
}

QString quoted(QString text) {
    if (looksLikeFormula(text))
        text.prepend(QLatin1Char('\''));
    if (text.contains(QLatin1Char('"')) || text.contains(QLatin1Char(',')) ||
        text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r')))
        text = QLatin1Char('"') + text.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
    return text;
}

} // namespace

std::vector<QStringList> tableCells(const QAbstractItemModel& model, const std::vector<int>& rows) {
    std::vector<int> wanted = rows;
    if (wanted.empty()) {
        wanted.resize(static_cast<std::size_t>(model.rowCount()));
        std::iota(wanted.begin(), wanted.end(), 0);
    }
    QStringList line;
    for (int column = 0; column < model.columnCount(); ++column)
        line.append(headerText(model, column));
    std::vector<QStringList> cells = {line};
    for (const int row : wanted) {
        line.clear();
        for (int column = 0; column < model.columnCount(); ++column)
            line.append(cellText(model.index(row, column)));
        cells.push_back(line);
    }
    return cells;
}

QString asTabSeparatedText(const std::vector<QStringList>& cells) {
    QString text;
    for (const QStringList& line : cells) {
        QStringList plain;
        for (const QString& cell : line)
            plain.append(onOneLine(cell));
        text += plain.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

QByteArray asCsv(const std::vector<QStringList>& cells) {
    QString text(QChar::ByteOrderMark);
    for (const QStringList& line : cells) {
        QStringList plain;
        for (const QString& cell : line)
            plain.append(quoted(cell));
        text += plain.join(QLatin1Char(',')) + QLatin1String("\r\n");
    }
    return text.toUtf8();
}

} // namespace quorvan
