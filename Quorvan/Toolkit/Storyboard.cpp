// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Toolkit/Storyboard.h"

#include "Common/Fatal.h"
#include "Quorvan/Toolkit/ViewController.h"

namespace quorvan {

Storyboard& Storyboard::named(const std::string& name) {
    static std::map<std::string, Storyboard> storyboards;
    return storyboards[name];
}

ViewController* Storyboard::instantiate(const std::string& identifier) const {
    const auto found = factories_.find(identifier);
    require(found != factories_.end(), "No view with the identifier %@", identifier);
    ViewController* view = found->second();
    view->setObjectName(QString::fromStdString(identifier));
    return view;
}

} // namespace quorvan
