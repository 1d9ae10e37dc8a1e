// SPDX-License-Identifier: GPL-3.0-or-later
#include "Simulator/demo/Stage.h"

#include "Common/ServerDetails.h"
#include "Platform/Qt/QtAlerts.h"
#include "Platform/Qt/QtBundle.h"
#include "Platform/Qt/QtWaitCursor.h"
#include "Quorvan/Controller/Rights/RightsTabViewController.h"
#include "Quorvan/Controller/Shell/MainWindow.h"
#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/RightsTable.h"
#include "Quorvan/ViewModal/XMLReadWrite.h"
#include "Simulator/demo/PseudoTexts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QTableView>
#include <QToolButton>

#include <utility>

namespace quorvan::demo {
namespace {

/// The installed resources with a few switches set otherwise.
class StageBundle : public platform::QtBundle {
public:
    StageBundle(const std::map<std::string, bool>& otherFeatures, bool hasPseudoTexts)
        : otherFeatures_(otherFeatures) {
        if (hasPseudoTexts)
            QCoreApplication::installTranslator(&pseudoTexts_); // asked before the others
    }

    std::optional<platform::FeatureDictionary> featureDictionary() override {
        auto features = QtBundle::featureDictionary();
        if (features)
            for (const auto& [key, value] : otherFeatures_)
                (*features)[key] = value;
        return features;
    }

private:
    const std::map<std::string, bool>& otherFeatures_;
    PseudoTexts pseudoTexts_;
};

/// No selection and no mount of an earlier run is left.
void startAfresh() {
    ServerDetails::forget();
    DictionaryForMountedPIPE::mountDict().PipeMapDict.clear();
    Shared::value().bothID = false;
}

} // namespace

Stage::Stage(const Output& output, simulator::Embedded embedded)
    : world(std::move(embedded))
    , output_(output)
    , installed_(services())
    , delegate_((output.folder + "/Library").toStdString()) {
    startAfresh();
    QObject::connect(&dialogTimer_, &QTimer::timeout, [this] { lookForDialog(); });
}

Stage::~Stage() {
    if (!expected_.empty())
        qFatal("The tour has not seen the dialog %s", qPrintable(expected_.front().name));
    startAfresh();
}

platform::Services Stage::services() {
    platform::Services services = world.services();
    services.bundle = std::make_shared<StageBundle>(otherFeatures, output_.hasPseudoTexts);
    services.alerts = std::make_shared<platform::QtAlerts>();
    services.busy = std::make_shared<platform::QtWaitCursor>();
    return services;
}

QWidget* Stage::window() const {
    return delegate_.mainWindow();
}

QWidget* Stage::front() const {
    QWidget* sheet = QApplication::activeModalWidget();
    return sheet != nullptr ? sheet : window();
}

void Stage::refuse(const char* text) {
    world.server->misbehaviour.code = 7;
    world.server->misbehaviour.onlyWith = text;
}

void Stage::press(const char* control) {
    find<QAbstractButton>(control)->click();
    QApplication::processEvents();
}

void Stage::chooseFromMenu(const char* button, const char* item) {
    find<QToolButton>(button)->menu()->findChild<QAction*>(QString::fromLatin1(item))->trigger();
    QApplication::processEvents();
}

void Stage::type(const char* control, const char* text) {
    auto* field = find<QLineEdit>(control);
    field->setFocus();
    field->setText(QString::fromUtf8(text));
    QApplication::processEvents();
}

void Stage::tick(int row, const char* right, const char* tableName) {
    auto* table = static_cast<RightsTable*>(find<QTableView>(tableName));
    table->setFocus();
    table->setCurrentIndex(table->box(row, right));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, " ");
    QApplication::sendEvent(table, &press);
    QApplication::processEvents();
}

void Stage::choose(const char* popUp, const char* item) {
    auto* box = find<QComboBox>(popUp);
    int index =
        box->findText(plainL(std::string(item) + "_Title")); // a category is shown in the user's language
    if (index < 0)
        index = box->findText(QString::fromUtf8(item));
    box->setCurrentIndex(index);
    emit box->activated(index);
    QApplication::processEvents();
}

void Stage::select(std::initializer_list<int> rows, const char* listName) {
    auto* list = find<QTableView>(listName);
    list->clearSelection();
    for (const int row : rows)
        list->selectionModel()->select(list->model()->index(row, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
    QApplication::processEvents();
}

/// The window with the sheet that lies over it, as the desktop would show them.
QPixmap Stage::picture() const {
    QApplication::processEvents();
    QPixmap whole = window()->grab();
    const QWidget* sheet = front();
    if (sheet == window())
        return whole;
    const QRect place(sheet->geometry().topLeft() - window()->geometry().topLeft(), sheet->size());
    const QRect room = window()->rect().united(place.adjusted(-1, -1, 1, 1));
    QPixmap both(room.size() * whole.devicePixelRatio());
    both.setDevicePixelRatio(whole.devicePixelRatio());
    both.fill(Qt::gray);
    QPainter painter(&both);
    painter.translate(-room.topLeft());
    painter.drawPixmap(0, 0, whole);
    painter.drawPixmap(place.topLeft(), front()->grab());
    painter.setPen(sheet->palette().color(QPalette::Shadow));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
    return both;
}

void Stage::save(const QPixmap& picture, const QWidget& of, const QString& name, const QString& caption) {
    const QString file = QStringLiteral("%1/%2-%3.png").arg(output_.folder, output_.prefix, name);
    if (!picture.save(file))
        qFatal("Cannot write %s", qPrintable(file));
    output_.say(QStringLiteral("%1  “%2”, %3×%4: %5")
                    .arg(file, of.windowTitle())
                    .arg(picture.width())
                    .arg(picture.height())
                    .arg(caption));
}

void Stage::photograph(const char* name, const char* caption) {
    save(picture(), *front(), QString::fromUtf8(name), QString::fromUtf8(caption));
}

void Stage::expectDialog(const char* name, const char* caption) {
    expected_.push_back({QString::fromUtf8(name), QString::fromUtf8(caption)});
    dialogTimer_.start(0);
}

void Stage::lookForDialog() {
    QWidget* const menu = QApplication::activePopupWidget();
    QWidget* const dialog =
        menu != nullptr ? menu : qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr)
        return;
    dialogTimer_.stop();
    ExpectedDialog expected = expected_.front();
    expected_.pop_front();
    if (const auto* box = qobject_cast<QMessageBox*>(dialog))
        expected.caption += QStringLiteral("; it says “%1”").arg(box->text());
    QApplication::processEvents();
    save(dialog->grab(), *dialog, expected.name, expected.caption);
    dialog->close();
    if (!expected_.empty())
        dialogTimer_.start(0);
}

} // namespace quorvan::demo
