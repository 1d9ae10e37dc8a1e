// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/AlertSheet.h"

#include "Common/Log.h"
#include "Quorvan/Toolkit/Localized.h"

#include <QMessageBox>

namespace quorvan {

void presentAlertSheet(QWidget& view, const QString& message) {
    auto* alert = new QMessageBox(QMessageBox::Warning, view.window()->windowTitle(), message,
                                  QMessageBox::NoButton, view.window());
    alert->setTextFormat(Qt::PlainText);
    alert->addButton(L("OK_title"), QMessageBox::AcceptRole);
    alert->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(alert, &QMessageBox::finished, alert, [] { Log("Close Modal"); });
    alert->open();
}

} // namespace quorvan
