// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any two texts, with a line feed between them, as the hand-over of the selection and of the path that the
// share is mapped to.
#include "Tests/Fuzz/Harness.h"

using namespace quorvan;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static test::FuzzWorld world;
    const std::string_view text = test::textOf(data, size);
    const std::size_t cut = std::min(text.find('\n'), text.size());
    const std::string selected(text.substr(0, cut));
    const std::string mapped(text.substr(std::min(cut + 1, text.size())));

    test::survive([&] {
        const std::string formatted = ServerDetails::getFormattedPath(selected);
        test::expect(formatted.find(':') != std::string::npos && formatted.find('/') == std::string::npos);
    });
    test::survive([&] {
        world.world.defaults->values["selectedPath"] = selected;
        world.world.defaults->values["mappedPath"] = mapped;
        ServerDetails::forget();
        const ServerDetails& details = ServerDetails::serverInfo();
        test::expect(details.selectedPathName->find(mapped) != std::string::npos);
    });
    return 0;
}
