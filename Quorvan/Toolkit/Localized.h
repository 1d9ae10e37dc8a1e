// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>

namespace quorvan {

/// The text of a localisation key in the user's language; the key itself when it has none. Texts of
/// buttons and check boxes carry their mnemonic ("&Apply").
QString L(const std::string& key);

/// The form of a text for a number of things, which stands in it.
QString L(const std::string& key, int count);

/// A text without its mnemonic, for places that show no underlined letter.
QString plainL(const std::string& key);

} // namespace quorvan
