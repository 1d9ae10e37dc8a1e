// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace quorvan {

/// The field that narrows a list while the user types. Escape empties it, the down key moves on to
/// its first row, and the desktop's Find shortcut leads to it from anywhere in the window.
class SearchField : public QLineEdit {
public:
    explicit SearchField(QWidget* list, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void goToFirstHit();

    QWidget* list_;
};

} // namespace quorvan
