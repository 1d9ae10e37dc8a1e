// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace quorvan {

class ViewController;

/// The window-modal dialog that carries a view presented as a sheet. Escape closes it, and so does the Back
/// key. It destroys itself, and the view with it, once it is closed.
class Sheet : public QDialog {
public:
    Sheet(ViewController& presenting, ViewController* content);

    void present();

private:
    ViewController* content_;
};

} // namespace quorvan
