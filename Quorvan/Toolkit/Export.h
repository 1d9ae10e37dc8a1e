// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

class QWidget;

namespace quorvan {

/// Asks for a file to write to, with the texts of two keys; "" when the user has thought better of it.
QString chooseExport(QWidget* parent, const char* titleKey, const char* filterKey, const QString& suffix);

/// Writes the file whole or not at all, and says in the window what came of it.
void exportTo(const QString& file, const QByteArray& content);

} // namespace quorvan
