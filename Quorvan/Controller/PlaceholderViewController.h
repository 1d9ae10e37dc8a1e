// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ViewController.h"

namespace quorvan {

/// Stands where a view will be that does not exist yet, and says so.
class PlaceholderViewController : public ViewController {
public:
    /// `title` and `description` say what the view will be called and be for.
    PlaceholderViewController(QString title, QString description)
        : title_(std::move(title))
        , description_(std::move(description)) {}

    void loadView() override;

private:
    QString title_;
    QString description_;
};

} // namespace quorvan
