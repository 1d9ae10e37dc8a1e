// SPDX-License-Identifier: GPL-3.0-or-later
#include "Platform/Linux/SmbUrl.h"

namespace quorvan::platform {
namespace {

constexpr std::string_view scheme = "smb://";
constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
constexpr std::string_view hexDigits = "0123456789ABCDEF";

int hexValue(char digit) {
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const int letter = (digit | 0x20) - 'a';
    return letter >= 0 && letter < 6 ? letter + 10 : -1;
}

/// A "%" that begins no escape stands for itself: share names may hold one.
std::string decode(std::string_view text) {
    std::string decoded;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const int high = at + 2 < text.size() && text[at] == '%' ? hexValue(text[at + 1]) : -1;
        const int low = high < 0 ? -1 : hexValue(text[at + 2]);
        if (low >= 0) {
            decoded += static_cast<char>(high * 16 + low);
            at += 2;
        } else {
            decoded += text[at];
        }
    }
    return decoded;
}

std::string encode(std::string_view text) {
    std::string encoded;
    for (const char character : text) {
        if (letters.find(character) != std::string_view::npos ||
            std::string_view("/-._~$").find(character) != std::string_view::npos) {
            encoded += character;
        } else {
            const auto byte = static_cast<unsigned char>(character);
            encoded += {'%', hexDigits[byte >> 4U], hexDigits[byte & 0xFU]};
        }
    }
    return encoded;
}

bool isServer(std::string_view text) {
    return !text.empty() && text.front() != ':' &&
           text.find_first_not_of(std::string(letters) + "-._:[]") == std::string_view::npos;
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
    SmbUrl parsed{std::string(url.substr(0, slash)), decode(trimSlashes(url.substr(slash)))};
    if (parsed.share.empty() || parsed.share.find('\0') != std::string::npos)
        return std::nullopt;
    return parsed;
}

std::string SmbUrl::host() const {
    if (server.front() == '[')
        return server.substr(1, server.find(']') - 1);
    return server.substr(0, server.find(':'));
}

std::string SmbUrl::name() const {
    return share.substr(share.rfind('/') + 1); // npos + 1 = 0
}

std::string SmbUrl::below(std::string_view path) const {
    return std::string(scheme) + server + "/" + encode(share) + encode(path);
}

} // namespace quorvan::platform
