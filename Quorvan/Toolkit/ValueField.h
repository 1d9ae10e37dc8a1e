// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace quorvan {

/// A value of a page: looks like a label, can be selected and copied, and leaves out its middle while it
/// is too long for its place. One that is made editable looks like any text field.
class ValueField : public QLineEdit {
public:
    explicit ValueField(QWidget* parent = nullptr);

    void setEditable(bool editable);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quorvan
