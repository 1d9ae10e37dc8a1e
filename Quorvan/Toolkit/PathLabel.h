// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineEdit>

namespace quorvan {

/// The path that a page is about: looks like a label, can be selected and copied, and leaves out its
/// middle while it is too long for its place.
class PathLabel : public QLineEdit {
public:
    explicit PathLabel(QWidget* parent = nullptr);

    void setPath(const QString& path);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quorvan
