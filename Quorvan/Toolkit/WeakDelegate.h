// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Fatal.h"

#include <QObject>
#include <QPointer>

namespace quorvan {

/// Whom a sheet answers to: the delegate behind a view, for as long as that view exists.
template <class Delegate>
class WeakDelegate {
public:
    void set(QObject& view, Delegate& delegate) {
        view_ = &view;
        delegate_ = &delegate;
    }

    /// The delegate; null when its view is gone. To ask before there was one is fatal.
    Delegate* get() const {
        require(delegate_ != nullptr, "A sheet has no delegate to answer to");
        return view_.isNull() ? nullptr : delegate_;
    }

private:
    QPointer<QObject> view_;
    Delegate* delegate_ = nullptr;
};

} // namespace quorvan
