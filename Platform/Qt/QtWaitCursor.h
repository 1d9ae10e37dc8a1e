// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/BusyIndicator.h"

#include <QPointer>
#include <QString>

#include <functional>

class QLabel;

namespace quorvan::platform {

/// The wait cursor over all windows of the program, from the first begin() to the last end(); and, when that
/// takes long, a line at the lower edge of the window that says how long it has been.
class QtWaitCursor : public BusyIndicator {
public:
    using Text = std::function<QString(std::chrono::seconds soFar)>;

    /// Shows no line without `text`.
    explicit QtWaitCursor(Text text = {});
    ~QtWaitCursor() override;
    QtWaitCursor(const QtWaitCursor&) = delete;
    QtWaitCursor& operator=(const QtWaitCursor&) = delete;

    void begin() override;
    void end() override;
    void waiting(std::chrono::seconds soFar) override;

private:
    Text text_;
    int depth_ = 0;
    QPointer<QLabel> line_; ///< in the window, while it is shown
};

} // namespace quorvan::platform
