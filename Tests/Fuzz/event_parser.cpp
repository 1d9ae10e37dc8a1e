// SPDX-License-Identifier: GPL-3.0-or-later
//
// Any bytes as a reply: the event pass, the tree and the row reader agree on what is XML, and no text that
// comes out of them is ill-formed.
#include "Quorvan/ViewModal/Replies/ElementReaders.h"
#include "Tests/Fuzz/Harness.h"

using namespace quorvan;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const test::FuzzWorld world;
    std::string reply;
    appendRepairedUtf8(reply, test::textOf(data, size));

    test::survive([&] {
        XMLResponseParser parser({"fileInfo", "getFileInfo", "result"});
        parser.getdictionaryfromXMLData(reply);
        for (const auto& entry : parser.arrStack) {
            test::expect(isUtf8(entry->trusteeName.value_or("")));
            test::expect(isUtf8(entry->trusteeID.value_or("")));
            test::expect(isUtf8(entry->trusteeType.value_or("")));
            test::expect(isUtf8(entry->path.value_or("")));
        }
        if (!parser.error)
            test::expect(isUtf8(parser.result.status()));
    });

    const XMLDocument document(reply);
    std::string ofRows;
    RowReader rows({}, [&](XMLElement row) { ofRows += row.stringValue(); });
    const auto error = readReply(reply, rows);
    test::expect(error == document.error());
    if (error)
        return 0;
    std::string ofTree;
    for (const XMLElement child : document.rootElement().children()) {
        if (!child.isText())
            ofTree += child.stringValue();
    }
    test::expect(ofRows == ofTree && isUtf8(ofTree));
    return 0;
}
