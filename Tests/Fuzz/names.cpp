// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any text as the name of an object of the directory tree, in either notation.
#include "Quorvan/Modal/DistinguishedName.h"
#include "Tests/Fuzz/Harness.h"

using namespace quorvan;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::FuzzWorld world;
    const std::string name(test::textOf(data, size));
    std::string context = "before";
    std::string object = "before";
    const bool converted = convertDntoContextAndNameRootLeft(name, context, object);
    test::expect(converted == (!context.empty() && !object.empty()));
    test::expect(context.size() + object.size() <= name.size());

    test::survive([&] {
        const std::string rootRight = getDNFromGroupNameRootRight(name);
        test::expect(rootRight == name || (rootRight.ends_with('.') && rootRight.size() <= name.size() + 2));
        test::expect(getDNFromGroupNameRootRight(rootRight) == rootRight);
    });
    return 0;
}
