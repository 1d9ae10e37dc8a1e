// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Controller/Shell/HelpPanels.h"

#include "Quorvan/AppDelegate.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/RightsColumns.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quorvan {
namespace {

constexpr int textWidth = 60; // characters

QLabel* heading(const QString& text) {
    auto* label = new QLabel(text);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

QLabel* paragraph(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setMinimumWidth(textWidth * label->fontMetrics().averageCharWidth());
    return label;
}

QGridLayout* lettersOfTheRights() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(2);
    grid->setColumnStretch(1, 1);
    for (int row = 0; const RightsColumn& column : rightsColumns) {
        auto* sentence = paragraph(L(column.explainedKey).arg(plainL(column.nameKey)));
        grid->addWidget(heading(QString::fromLatin1(column.identifier)), row, 0, Qt::AlignTop);
        grid->addWidget(sentence, row++, 1);
    }
    return grid;
}

/// Adds a Close button below the content and runs the panel.
void runPanel(QDialog& panel, QVBoxLayout* content) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &panel, &QDialog::reject);
    content->addSpacing(6);
    content->addWidget(buttons);
    content->setSizeConstraint(QLayout::SetFixedSize);
    panel.exec();
}

} // namespace

void showAboutPanel(QWidget* window) {
    QDialog panel(window);
    panel.setWindowTitle(plainL("AboutQuorvan_title"));
    auto* content = new QVBoxLayout(&panel);
    content->setContentsMargins(30, 20, 30, 16);
    auto* picture = new QLabel;
    picture->setPixmap(namedIcon("quorvan").pixmap(QSize(96, 96), panel.devicePixelRatioF()));
    auto* name = heading(QStringLiteral("Quorvan"));
    for (QLabel* label : {picture, name, new QLabel(L("About_Version_Label").arg(QUORVAN_VERSION)),
                          new QLabel(L("About_Description_Label")), new QLabel(L("About_Licence_Label"))}) {
        label->setAlignment(Qt::AlignHCenter);
        content->addWidget(label);
    }
    runPanel(panel, content);
}

void showHelpPanel(QWidget* window) {
    QDialog panel(window);
    panel.setWindowTitle(plainL("QuorvanHelp_title"));
    auto* content = new QVBoxLayout(&panel);
    content->setSpacing(8);
    content->addWidget(heading(L("Help_Heading_Label")));
    content->addWidget(paragraph(L("Help_Selection_Label")));
    content->addWidget(paragraph(L("Help_Editing_Label")));
    content->addWidget(heading(L("Help_Rights_Label")));
    content->addLayout(lettersOfTheRights());
    content->addWidget(paragraph(L("Row_Explained_Label")));
    auto* log = paragraph(L("Help_Log_Label").arg(QString::fromStdString(AppDelegate::logFile())));
    log->setTextInteractionFlags(Qt::TextSelectableByMouse);
    content->addWidget(log);
    runPanel(panel, content);
}

} // namespace quorvan
