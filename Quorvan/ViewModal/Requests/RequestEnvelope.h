// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Common/Format.h"
#include "Quorvan/Modal/Constants.h"

#include <string>
#include <string_view>

namespace quorvan {

/// What marks the command stream; some requests carry it in front of their own element as well.
inline constexpr std::string_view virtualIO = R"(<virtualIO><datastream name="command"/></virtualIO>)";

/// The admin envelope around a request.
inline std::string adminRequest(std::string_view request) {
    return fill("<adminRequest>%@%@</adminRequest>", {virtualIO, request});
}

/// The variant of a template for an identity type; "" for a type that is neither.
inline std::string_view variantFor(std::string_view identityType, std::string_view activeDirectory,
                                   std::string_view morvane) {
    if (identityType == identityActiveDirectory)
        return activeDirectory;
    return identityType == identityMorvane ? morvane : std::string_view();
}

/// A filled template of the identity type in its envelope. For a type that is neither the request is empty:
/// its exchange writes nothing and reads a reply all the same.
inline std::string variantRequest(std::string_view identityType, std::string_view activeDirectory,
                                  std::string_view morvane, std::initializer_list<FormatArgument> arguments) {
    const std::string_view variant = variantFor(identityType, activeDirectory, morvane);
    return variant.empty() ? "" : adminRequest(fill(variant, arguments));
}

} // namespace quorvan
