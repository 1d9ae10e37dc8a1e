// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any text as what the adapters take from elsewhere: identifiers and filters of a directory, addresses, the
// mount table, the table of shares and the property list of the hand-over.
#include "Handover/Handover.h"
#include "Platform/Linux/LdapFilter.h"
#include "Platform/Linux/PlistSharedDefaults.h"
#include "Platform/Linux/SmbUrl.h"
#include "Platform/PercentEscapes.h"
#include "Tests/Fuzz/Harness.h"
#include "Tests/Support/ChildProcess.h"

#include <algorithm>
#include <fstream>

using namespace quorvan;
using namespace quorvan::platform;

namespace {

/// The input as a file of that name.
std::string put(const test::TemporaryFolder& folder, const char* name, std::string_view text) {
    const std::string file = folder.path / name;
    std::ofstream(file, std::ios::binary | std::ios::trunc) << text;
    return file;
}

void checkTexts(const std::string& text) {
    if (const auto sid = sidText(text))
        test::expect(sidBytes(*sid) == text);
    sidBytes(text);
    const std::string escaped = escapeForFilter(text);
    test::expect(escaped.find_first_of(std::string_view("*()\0", 4)) == std::string::npos);
    test::expect(percentUnescaped(percentEscaped(text)) == text);
    if (const auto url = SmbUrl::parse(text)) {
        test::expect(!url->host().empty());
        test::expect(SmbUrl::parse(url->below("")).has_value());
        url->port();
        url->name();
    }
}

void checkHandover(const std::string& selection, const MountPlaces& places, const ShareTable& shares) {
    const auto found = handoverOf(selection, places, shares);
    if (const auto* handover = std::get_if<Handover>(&found)) {
        const std::string path = ServerDetails::getFormattedPath(handover->selectedPath);
        test::expect(path.find(handover->mappedPath) != std::string::npos);
        test::expect(path.find("\\..\\") == std::string::npos);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static test::FuzzWorld world;
    static const test::TemporaryFolder folder;
    const std::string text(test::textOf(data, size));
    checkTexts(text);

    const std::string file = put(folder, "input.plist", text);
    const ShareTable shares({file});
    const MountPlaces places{file, "/nonexistent"};
    for (const ShareMount& mount : shareMounts(places))
        if (const auto place = shares.placeOf(mount))
            test::expect(place->localPath().starts_with("/Volumes"));
    test::survive([&] { checkHandover(text, places, shares); });
    test::survive([&] { checkHandover("smb://files/" + text, places, shares); });
    test::survive([&] { checkHandover("smb://files/bob/x", places, shares); });

    PlistSharedDefaults defaults([](std::string_view) {}, folder.path);
    const auto suite = defaults.openSuite("input");
    suite->string("serverIP");
    suite->setString("serverIP", "mine");
    suite->synchronize();
    return 0;
}
