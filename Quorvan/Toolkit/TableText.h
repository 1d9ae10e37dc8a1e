// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

class QAbstractItemModel;

namespace quorvan {

/// Rows of a table with its headers in front, as texts; a right that is held is an "x". All rows when none
/// are named.
std::vector<QStringList> tableCells(const QAbstractItemModel& model, const std::vector<int>& rows);

/// For the clipboard: a line for each row, cells set apart by tabs, which a spreadsheet takes for columns.
QString asTabSeparatedText(const std::vector<QStringList>& cells);

/// For a file: RFC 4180 in UTF-8 behind a byte order mark, by which spreadsheets know it. A cell that one of
/// them would take for a formula is quoted by an apostrophe: names come from a server.
QByteArray asCsv(const std::vector<QStringList>& cells);

} // namespace quorvan
