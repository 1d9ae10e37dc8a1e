// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>

class QLabel;

namespace quorvan {

/// A line at the lower edge of the window that says what came of an operation, until the next one. It is no
/// question and so no alert; a screen reader is told of it.
class NoticeLine : public QFrame {
public:
    enum class Kind { done, problem };

    explicit NoticeLine(QWidget* parent);

    /// Shows a text in the line of the window; nothing when there is no window.
    static void tell(Kind kind, const QString& text);
    /// Hides the line.
    static void forget();
    /// … if what it says is of this kind.
    static void forget(Kind kind);

private:
    Kind kind_ = Kind::done;
    QLabel* icon_;
    QLabel* text_;
};

} // namespace quorvan
