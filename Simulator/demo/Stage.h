// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/AppDelegate.h"
#include "Simulator/Embedded.h"

#include <QPixmap>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>

namespace quorvan::demo {

/// Where the tour's pictures and its report go.
struct Output {
    QString folder; ///< also holds the log, below Library
    QString prefix; ///< of the file names: "light", "dark"
    std::function<void(const QString&)> say;
    bool hasPseudoTexts = false; ///< in the place of the English ones
};

/// One run of the application on its own simulated server, driven by clicks and keys, photographed.
class Stage {
public:
    Stage(const Output& output, simulator::Embedded world);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    simulator::Embedded world;
    std::map<std::string, bool> otherFeatures; ///< switches that differ from those of feature.plist

    void launch() { delegate_.launch(); }
    /// From now on the server takes no request that holds this text.
    void refuse(const char* text);
    void press(const char* control); ///< clicks a button, by its outlet
    void chooseFromMenu(const char* button, const char* item);
    void type(const char* control, const char* text); ///< into a text field
    /// Clicks a box of a rights table.
    void tick(int row, const char* right, const char* tableName = "rightsTable");
    void choose(const char* popUp, const char* item); ///< an item of a pop-up
    /// Selects rows of a list; of an identity browser when none is named.
    void select(std::initializer_list<int> rows, const char* listName = "userListTable");
    QWidget* window() const;
    /// The sheet that is open over the window, or the window itself.
    QWidget* front() const;

    /// Photographs the window, and the sheet over it, as `name`.png and says what it shows.
    void photograph(const char* name, const char* caption);
    /// Photographs a dialog or a menu that the next step opens, and closes it. Several are expected one
    /// after the other.
    void expectDialog(const char* name, const char* caption);

    /// A control that can be seen, by its outlet.
    template <class Control>
    Control* find(const char* name) const {
        for (Control* control : front()->findChildren<Control*>(QString::fromLatin1(name)))
            if (control->isVisible()) // that of a page which was left lives on for a moment
                return control;
        qFatal("The tour finds no %s", name);
    }

    AppDelegate& delegate() { return delegate_; }

private:
    platform::Services services();
    QPixmap picture() const;
    void save(const QPixmap& picture, const QWidget& of, const QString& name, const QString& caption);
    void lookForDialog();

    struct ExpectedDialog {
        QString name;
        QString caption;
    };

    const Output& output_;
    platform::ScopedServices installed_;
    AppDelegate delegate_;
    std::deque<ExpectedDialog> expected_;
    QTimer dialogTimer_;
};

} // namespace quorvan::demo
