// SPDX-License-Identifier: GPL-3.0-or-later
#include "Common/ServerDetails.h"

#include "Common/Fatal.h"
#include "Common/Log.h"
#include "Common/Utf8.h"
#include "Platform/Services.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quorvan {
namespace {

/// Substring test in which the empty text is never contained.
bool contains(const std::string& text, const std::string& part) {
    return !part.empty() && text.find(part) != std::string::npos;
}

std::vector<std::string> splitAtBackslash(const std::string& text) {
    std::vector<std::string> parts(1);
    for (const char character : text) {
        if (character == '\\')
            parts.emplace_back();
        else
            parts.back() += character;
    }
    return parts;
}

/// A slash as a rule; but a folder further down may be called "Volumesé".
void eraseFirstCharacter(std::string& text) {
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80)
        ++length;
    text.erase(0, length);
}

/// The selection in server form, seen from the server path that the share's root maps to. Parts are
/// compared as plain substrings, not component by component; the server paths of existing
/// installations depend on it.
std::string mapOntoServer(const std::string& formatted, const std::string& mapped) {
    if (contains(formatted, mapped))
        return formatted;
    const std::vector<std::string> parts = splitAtBackslash(formatted);
    const auto first = std::find_if(parts.begin() + 1, parts.end(),
                                    [&mapped](const std::string& part) { return !contains(mapped, part); });
    require(first != parts.end(), "No part of the selection \"%@\" lies below the mapped path \"%@\"",
            formatted, mapped);
    if (!contains(formatted, *first))
        return mapped;
    return mapped + "\\" + formatted.substr(formatted.find(*first));
}

} // namespace

std::unique_ptr<ServerDetails>& ServerDetails::instance() {
    static std::unique_ptr<ServerDetails> details;
    return details;
}

ServerDetails& ServerDetails::serverInfo() {
    std::unique_ptr<ServerDetails>& details = instance();
    if (!details) {
        std::unique_ptr<ServerDetails> fresh(new ServerDetails);
        fresh->retrieveSharedParams();
        fresh->getKeychainCred();
        details = std::move(fresh);
    }
    return *details;
}

void ServerDetails::forget() {
    instance().reset();
}

void ServerDetails::retrieveSharedParams() {
    std::optional<std::string> mapped;
    if (const auto suite = platform::services().sharedDefaults->openSuite(groupSuiteName)) {
        suite->synchronize();
        serverIP = suite->string("serverIP");
        selectedAbsolutePath = suite->string("selectedPath");
        mapped = suite->string("mappedPath");
    }
    const std::string formatted =
        getFormattedPath(unwrap(selectedAbsolutePath, "The shared defaults hold no \"selectedPath\""));
    mappedPathName = unwrap(mapped, "The shared defaults hold no \"mappedPath\"");
    selectedPathName = mapOntoServer(formatted, *mappedPathName);
    Log("Path selected is %@", formatted);
    Log("Path mapped and selected is %@", *selectedPathName);
}

std::string ServerDetails::getFormattedPath(const std::string& path) {
    static const std::string root = "Volumes";
    const std::size_t last = path.rfind(root);
    std::string formatted = last == std::string::npos ? path : path.substr(last + root.size());
    require(!formatted.empty(), "The path \"%@\" names nothing below /Volumes", path);
    eraseFirstCharacter(formatted);
    return serverForm(std::move(formatted), ":\\");
}

std::string ServerDetails::serverForm(std::string belowVolumes, const char* rootEnd) {
    if (belowVolumes.find('/') == std::string::npos)
        return belowVolumes + rootEnd;
    std::replace(belowVolumes.begin(), belowVolumes.end(), '/', '\\');
    return belowVolumes.insert(belowVolumes.find('\\'), 1, ':');
}

void ServerDetails::getKeychainCred() {
    const std::string& server = unwrap(serverIP, "The shared defaults hold no \"serverIP\"");
    platform::KeychainResult found = platform::services().keychain->findInternetPassword(server);
    if (found.status == 0 && found.item) {
        username = found.item->account;
        domain = found.item->domain;
        require(isUtf8(unwrap(found.item->data, "The keychain item has no data").reveal()),
                "The data of the keychain item is not UTF-8");
        password = std::move(found.item->data);
    }
    if (username && !username->empty() && *username != "No user account") {
        Log("Volume mapping with username %@", *username);
        keychainStatus = 0;
    } else {
        Log("Username not found in Keychain");
        keychainStatus = errSecItemNotFound;
    }
}

std::string ServerDetails::getIdentityType() {
    const auto suite = platform::services().sharedDefaults->openSuite(groupSuiteName);
    loggedUserType = suite ? suite->string("loggedUserType") : std::nullopt;
    return unwrap(loggedUserType, "The kind of the logged-in user is not known");
}

std::string ServerDetails::getIPfromHostname(const std::string& host) {
    Log("Getting ip of mapped server - %@", host);
    std::string address = platform::services().network->resolve(host);
    if (address.empty())
        Log("Could not resolve %@", host);
    else
        Log("Resolved %@ to %@", host, address);
    return address;
}

} // namespace quorvan
