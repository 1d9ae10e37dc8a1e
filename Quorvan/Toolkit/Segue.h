// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/Localized.h"
#include "Quorvan/Toolkit/ViewController.h"

#include <optional>
#include <string>
#include <utility>

namespace quorvan {

/// The step from one view to another.
class Segue {
public:
    Segue(std::optional<std::string> segueIdentifier, ViewController* from, ViewController* to)
        : identifier(std::move(segueIdentifier))
        , source(from)
        , destination(to) {}
    Segue(const Segue&) = delete;
    Segue& operator=(const Segue&) = delete;
    virtual ~Segue() = default;

    virtual void perform() = 0;

    const std::optional<std::string> identifier;
    ViewController* const source;
    ViewController* const destination; ///< taken by whoever shows it in perform()
};

/// Shows the destination instead of the source's page, under a localised window title.
class PageSegue : public Segue {
public:
    PageSegue(std::optional<std::string> segueIdentifier, ViewController* from, ViewController* to,
              std::string windowTitleKey)
        : Segue(std::move(segueIdentifier), from, to)
        , titleKey_(std::move(windowTitleKey)) {}

    void perform() override { source->replacePage(destination, L(titleKey_)); }

private:
    std::string titleKey_;
};

/// Shows the destination as a sheet over the source's window.
class SheetSegue : public Segue {
public:
    using Segue::Segue;

    void perform() override { source->presentAsSheet(destination); }
};

} // namespace quorvan
