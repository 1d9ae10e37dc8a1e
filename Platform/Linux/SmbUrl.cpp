// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbUrl.h"

#include "Platform/PercentEscapes.h"

#include <algorithm>
#include <charconv>

namespace quorvan::platform {
namespace {

constexpr std::string_view scheme = "smb://";

bool isPort(std::string_view text) {
    return text.empty() || (text.front() == ':' && text.find_first_not_of("0123456789", 1) == text.npos);
}

/// A name or an address, one of IPv6 in brackets, and maybe a port.
bool isServer(std::string_view text) {
    const bool isV6 = text.substr(0, 1) == "[";
    const std::size_t end = std::min(text.find(isV6 ? ']' : ':'), text.size());
    const std::string_view host = text.substr(0, end).substr(isV6 ? 1 : 0);
    const std::string allowed = std::string(urlAlphanumerics) + (isV6 ? ".:" : "-._");
    return !host.empty() && host.find_first_not_of(allowed) == host.npos && (!isV6 || end < text.size()) &&
           isPort(text.substr(isV6 ? end + 1 : end));
}

std::string_view trimSlashes(std::string_view text) {
    while (!text.empty() && text.front() == '/')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == '/')
        text.remove_suffix(1);
    return text;
}

} // namespace

std::optional<SmbUrl> SmbUrl::parse(std::string_view url) {
    if (url.substr(0, scheme.size()) != scheme)
        return std::nullopt;
    url.remove_prefix(scheme.size());
    const std::size_t slash = url.find('/');
    if (slash == std::string_view::npos || !isServer(url.substr(0, slash)))
        return std::nullopt;
    SmbUrl parsed{std::string(url.substr(0, slash)), percentUnescaped(trimSlashes(url.substr(slash)))};
    if (parsed.share.empty() || parsed.share.find('\0') != std::string::npos)
        return std::nullopt;
    return parsed;
}

std::string SmbUrl::host() const {
    if (server.front() == '[')
        return server.substr(1, server.find(']') - 1);
    return server.substr(0, server.find(':'));
}

std::uint16_t SmbUrl::port() const {
    const std::size_t hostEnd = server.front() == '[' ? server.find(']') : 0;
    const std::size_t colon = server.find(':', hostEnd);
    std::uint16_t number = 0;
    if (colon != std::string::npos)
        std::from_chars(server.data() + colon + 1, server.data() + server.size(), number);
    return number != 0 ? number : 445;
}

SmbUrl SmbUrl::at(const std::string& address) const {
    const bool isV6 = address.find(':') != std::string::npos;
    return {(isV6 ? "[" + address + "]" : address) + ":" + std::to_string(port()), share};
}

std::string SmbUrl::name() const {
    return share.substr(share.rfind('/') + 1); // npos + 1 = 0
}

std::string SmbUrl::below(std::string_view path) const {
    return std::string(scheme) + server + "/" + percentEscaped(share) + percentEscaped(path);
}

} // namespace quorvan::platform
