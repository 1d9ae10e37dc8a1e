// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QString>
#include <QWidget>

#include <cstddef>
#include <initializer_list>
#include <vector>

namespace quorvan {

class Sheet;

/// One view with the operations behind it. Its title is its windowTitle().
///
/// Whoever shows a view (the page container, the tab host, a sheet) drives the life cycle through
/// beginAppearing, endAppearing and disappear; a view only overrides the steps below. Outlets are
/// public members, filled by loadView() through outlet().
class ViewController : public QWidget {
public:
    explicit ViewController(QWidget* parent = nullptr);
    ~ViewController() override;

    // The steps of a view's life

    virtual void loadView() {}    ///< build the controls and their layout, nothing else
    virtual void viewDidLoad() {} ///< once, after loadView
    virtual void viewWillAppear() {}
    virtual void viewDidAppear() {}
    virtual void viewWillDisappear() {}

    // For the one who shows the view

    /// Runs loadView and viewDidLoad, the first time only.
    void loadViewIfNeeded();
    /// Loads the view and tells it, then those of its children that show with it, that it will
    /// appear. Call before the widget is made visible; a view that is shown already is left alone.
    void beginAppearing();
    /// Tells the same views that they have appeared, unless they have disappeared in the meantime.
    void endAppearing();
    /// Tells the view and its children that they are about to go away.
    void disappear();

    // The tree of views

    const std::vector<ViewController*>& childControllers() const { return childControllers_; }
    ViewController* parentController() const { return parentController_; }

    /// Takes a child; it lives as long as this view, inside it. Where it stands in this view's layout
    /// is for this view to say.
    void insertChild(std::size_t index, ViewController* child);
    /// Lets a child disappear and destroys it as soon as nothing runs in it any more.
    void removeChild(ViewController* child);

    /// The children that are shown whenever this view is: all of them; a tab host narrows that down.
    virtual std::vector<ViewController*> shownChildren() const { return childControllers_; }

    /// Shows `destination` instead of the page that this view belongs to, however deep inside it.
    /// Takes `destination`; it is dropped when this view belongs to no page (any more).
    void replacePage(ViewController* destination, const QString& windowTitle);

    // Sheets

    /// Shows a view as a sheet over this view's window and returns at once. Takes the view.
    void presentAsSheet(ViewController* controller);
    /// Closes and destroys the sheet that this view is in; nothing when it is not shown as one.
    void endSheet();
    ViewController* presentingController() const { return presentingController_; }

protected:
    /// Names a control after its outlet, for tests and for screen readers, and returns it. Buttons and
    /// other controls that carry their own text need no accessible name.
    template <class Widget>
    static Widget* outlet(Widget* widget, const char* name, const QString& accessibleName = {}) {
        widget->setObjectName(QString::fromLatin1(name));
        if (!accessibleName.isEmpty())
            widget->setAccessibleName(accessibleName);
        return widget;
    }

    /// The way of the Tab key, from the first control to the last.
    static void setTabOrders(std::initializer_list<QWidget*> controls);

private:
    friend class Sheet;
    enum class Appearance { hidden, appearing, shown };

    void forgetChild(ViewController* child);

    std::vector<ViewController*> childControllers_;
    ViewController* parentController_ = nullptr;
    QPointer<ViewController> presentingController_;
    QPointer<Sheet> sheet_;
    Appearance appearance_ = Appearance::hidden;
    bool loaded_ = false;
};

/// A view that shows one page at a time and replaces it on request.
class PageContainer {
public:
    virtual ~PageContainer() = default;

    /// `sourceViewController` is the child shown now; takes `destinationViewController`.
    virtual void showDestinationView(ViewController* sourceViewController,
                                     ViewController* destinationViewController,
                                     const QString& windowTitle) = 0;
};

} // namespace quorvan
