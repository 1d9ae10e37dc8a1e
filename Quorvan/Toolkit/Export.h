// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

class QWidget;

namespace quorvan {

/// Asks for a file of that kind to write to; "" when the user has thought better of it.
QString chooseExport(QWidget* parent, const QString& title, const QString& suffix, const QString& filter);

/// Writes the file whole or not at all, and says in the window what came of it.
void exportTo(const QString& file, const QByteArray& content);

} // namespace quorvan
