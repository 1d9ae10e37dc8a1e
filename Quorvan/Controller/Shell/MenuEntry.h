// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QPushButton>

class QLabel;
class QVBoxLayout;

namespace quorvan {

/// One entry of the options page: a large button with an icon, a title and a line that says what the
/// page behind it is for.
class MenuEntry : public QPushButton {
public:
    MenuEntry(const char* iconName, const QString& description, QWidget* parent);

    QLabel* title; ///< filled through setTitle

    void setTitle(const QString& text);

    /// Puts the icon above the title and leaves the description to the tool tip.
    void makeCompact();
    /// Leaves the description to the tool tip, where there is no room for it.
    void hideDescription();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QIcon icon_;
    QLabel* description_;
    QVBoxLayout* texts_;
    bool compact_ = false;
};

} // namespace quorvan
