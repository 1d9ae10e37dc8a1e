// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ValueField.h"

namespace quorvan {

/// The path that a page is about.
class PathLabel : public ValueField {
public:
    explicit PathLabel(QWidget* parent = nullptr);

    void setPath(const QString& path);
};

} // namespace quorvan
