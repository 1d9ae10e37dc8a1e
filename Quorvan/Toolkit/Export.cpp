// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/Export.h"

#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/NoticeLine.h"

#include <QFileDialog>
#include <QSaveFile>

namespace quorvan {

QString chooseExport(QWidget* parent, const char* titleKey, const char* filterKey, const QString& suffix) {
    QFileDialog dialog(parent, plainL(titleKey));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.setNameFilter(L(filterKey));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void exportTo(const QString& file, const QByteArray& content) {
    QSaveFile out(file); // takes the place of what is there only when it is whole
    if (out.open(QIODevice::WriteOnly) && out.write(content) == content.size() && out.commit())
        NoticeLine::tell(NoticeLine::Kind::done, L("Exported_Label").arg(file));
    else
        NoticeLine::tell(NoticeLine::Kind::problem, L("Not_Exported_Label").arg(file, out.errorString()));
}

} // namespace quorvan
