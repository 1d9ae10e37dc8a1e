// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/AppDelegate.h"
#include "Simulator/Embedded.h"

#include <QString>
#include <QTimer>
#include <QWidget>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace quorvan::demo {

/// Where the tour's pictures and its report go.
struct Output {
    QString folder; ///< also holds the log, below Library
    QString prefix; ///< of the file names: "light", "dark"
    std::function<void(const QString&)> say;
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
    void press(const char* control);                  ///< clicks a button, by its outlet
    void type(const char* control, const char* text); ///< into a text field
    void tick(int row, const char* right);            ///< a box of the trustee table
    QWidget* window() const;

    /// Photographs the window as `name`.png and says what it shows.
    void photograph(const char* name, const char* caption);
    /// Photographs a dialog that the next step opens, and closes it. Several are expected one after the
    /// other.
    void expectDialog(const char* name, const char* caption);

    template <class Control>
    Control* find(const char* name) const {
        auto* control = window()->findChild<Control*>(QString::fromLatin1(name));
        if (control == nullptr)
            qFatal("The tour finds no %s", name);
        return control;
    }

    AppDelegate& delegate() { return delegate_; }

private:
    platform::Services services();
    void save(QWidget& widget, const QString& name, const QString& caption);
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
