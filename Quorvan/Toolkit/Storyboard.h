// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <string>

namespace quorvan {

class ViewController;

/// A named collection of views that are created by their identifiers, so that a view can lead to
/// another one without knowing its class. The composition root fills it before the first window.
class Storyboard {
public:
    using Factory = std::function<ViewController*()>;

    /// The storyboard of that name; it exists from the first time it is asked for.
    static Storyboard& named(const std::string& name);

    /// Says how to create `identifier`, anew when it is known already.
    void add(const std::string& identifier, Factory factory) { factories_[identifier] = std::move(factory); }

    /// A new view without parent, for the caller to take; an unknown identifier is fatal.
    ViewController* instantiate(const std::string& identifier) const;

private:
    std::map<std::string, Factory> factories_;
};

} // namespace quorvan
