// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ViewController.h"

#include <QPixmap>

#include <QPointer>

#include <optional>

namespace quorvan {

/// The content of the window: the page that is shown now is its child 0. It begins with the options
/// page.
class ContainerViewController : public ViewController, public PageContainer {
public:
    using ViewController::ViewController;

    void loadView() override;
    void viewDidLoad() override;
    void viewWillAppear() override;

    /// Replaces the page and gives the window the new page's size. A page that asks to be replaced
    /// while it is only about to appear is replaced as soon as the running switch is done, without
    /// being seen; of several such requests the last one counts. A page that the user has resized has that
    /// size again on the next visit.
    void showDestinationView(ViewController* sourceViewController, ViewController* destinationViewController,
                             const QString& windowTitle) override;

protected:
    bool event(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    struct Switch {
        ViewController* source;
        ViewController* destination;
        QString title;
    };

    void showAboveNotice(ViewController* page);
    void perform(const Switch& next);
    void fadeFrom(const QPixmap& before);
    void fitWindow(ViewController& page);
    void keepWindowSize() const;

    QPointer<ViewController> page_; ///< the page in front, once a page has been chosen
    QSize fittedSize_; ///< of the window as the page in front needs it; any other is the user's choice
    bool switching_ = false;
    std::optional<Switch> waiting_;
};

} // namespace quorvan
