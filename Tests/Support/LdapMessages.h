// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <utility>
#include <vector>

/// What a directory server sends, in bytes.
namespace quorvan::test::ldap {

/// One element of a message.
inline std::string element(int tag, const std::string& content) {
    std::string text{static_cast<char>(tag), '\x82', static_cast<char>(content.size() >> 8U),
                     static_cast<char>(content.size() & 0xFFU)};
    return text + content;
}

inline std::string message(int id, const std::string& operation, const std::string& controls = "") {
    return element(0x30, std::string("\2\1") + static_cast<char>(id) + operation + controls);
}

inline std::string entry(int id, const std::vector<std::pair<std::string, std::string>>& attributes) {
    std::string list;
    for (const auto& [name, value] : attributes)
        list += element(0x30, element(4, name) + element(0x31, element(4, value)));
    return message(id, element(0x64, element(4, "CN=x,DC=a") + element(0x30, list)));
}

inline const std::string success("\x0a\1\0\4\0\4\0", 7);

inline std::string done(int id, const std::string& cookie = "") {
    const std::string paging = element(0x30, std::string("\2\1\0", 3) + element(4, cookie));
    return message(id, element(0x65, success),
                   element(0xA0, element(0x30, element(4, "1.2.840.113556.1.4.319") + element(4, paging))));
}

/// The answers to a login and to the two questions with which a conversation begins.
inline const std::string bound = message(1, element(0x61, success));
inline const std::string root =
    entry(2, {{"configurationNamingContext", "CN=C"}, {"namingContexts", "DC=a"}}) + done(2);
inline const std::string domains = entry(3, {{"nETBIOSName", "A"}, {"nCName", "DC=a"}}) + done(3);

} // namespace quorvan::test::ldap
