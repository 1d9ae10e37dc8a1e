// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/DistinguishedName.h"
#include "Quorvan/Modal/Users.h"
#include "Quorvan/Modal/Utils.h"
#include "Tests/Support/Table.h"

#include <gtest/gtest.h>

namespace quorvan::test {
namespace {

TEST(Trustees, NameTheTypeOfEveryone) {
    for (const auto& [id, type, expected] :
         {std::array{"S-1-1-0", "", "Groups"}, {"S-1-1-0", "Users", "Users"}, {"S-1-1-0 ", "", ""}})
        EXPECT_EQ(Trustees("", id, 0, "", type, "").trusteeType, expected);

    const auto original =
        std::make_shared<Trustees>("Everyone", "S-1-1-0", std::uint16_t{0x41}, "ADD", "", "AD");
    original->trusteeType = "";
    const Trustees copy = *copyOf(TrusteeList{original})[0];
    original->rights = 2;
    EXPECT_EQ(joined({copy.trusteeName, copy.trusteeID, copy.trusteeType, copy.status, copy.domainType}),
              "Everyone > S-1-1-0 > Groups > ADD > AD");
    EXPECT_EQ(copy.rights, 0x41) << "a copy of its own";
}

TEST(KelpRights, ChangeOneBitOnly) {
    EXPECT_EQ(withRight(0x01FB, KelpRights::modify, false), 0x017B);
    EXPECT_EQ(withRight(0x0000, KelpRights::supervisor, true), 0x0100);
    EXPECT_EQ(withRight(0xF004, KelpRights::read, true), 0xF005);
}

TEST(Utils, NormaliseLowerAndFold) {
    EXPECT_EQ(normalizedNFC("VOL1:\\Cafe\xCC\x81"), "VOL1:\\Caf\xC3\xA9");
    EXPECT_EQ(normalizedNFC("VOL1:\\plain"), "VOL1:\\plain");
    EXPECT_EQ(normalizedNFC("bad \xC3("), "bad \xC3(");
    for (const auto& [text, lower, folded] : table<3>(R"(
ABC xyz    | abc xyz    | abc xyz
ÄÖÜ Ωmega  | äöü ωmega  | aou ωmega
Straße     | straße     | strasse
)")) {
        EXPECT_EQ(lowercased(text), lower);
        EXPECT_EQ(foldedForSearch(text), folded);
    }
    EXPECT_EQ(foldedForSearch("Ångström"), foldedForSearch("ANGSTRO\xCC\x88M"));
}

TEST(Utils, ReadWholeDecimalNumbers) {
    for (const auto& [text, number] : table<2>(R"(
0                    | 0
-5                   | -5
+5                   | 5
007                  | 7
9223372036854775807  | 9223372036854775807
-9223372036854775808 | -9223372036854775808
9223372036854775808  | none
+-5                  | none
+                    | none
12x                  | none
0x1                  | none
)")) {
        const auto read = decimalNumber(text);
        EXPECT_EQ(read ? std::to_string(*read) : "none", number) << text;
    }
    EXPECT_FALSE(decimalNumber("") || decimalNumber(" 1") || decimalNumber("1 "));
}

TEST(DistinguishedName, SeparatesNameAndContext) {
    for (const auto& [dn, context, name] : table<3>(R"(
\TREE\O=org\OU=unit\CN=user    | \TREE\O=org\OU=unit | user
\TREE\O=org\user               | \TREE\O=org         | user
TREE\CN=a=b                    | TREE                | b
.CN=user.OU=unit.O=org.TREE.   | \TREE\O=org\OU=unit | user
CN=user.OU=unit.O=org          | O=org\OU=unit       | user
CN=a=b.O=org                   | O=org               | a=b
user.                          |                     | user
\CN=user                       |                     | user
\TREE\                         | \TREE               |
=\                             | =                   |
.                              |                     |
..                             |                     |
=                              |                     |
\                              |                     |
.CN=John\.Doe.O=org.           |                     | .CN=John\.Doe.O=org.
\TREE\O=org\CN=a\=b            |                     | \TREE\O=org\CN=a\=b
)")) {
        std::string itsContext = "before";
        std::string itsName = "before";
        const bool complete = convertDntoContextAndNameRootLeft(dn, itsContext, itsName);
        EXPECT_EQ(complete, !context.empty() && !name.empty()) << dn;
        EXPECT_EQ(itsContext, context) << dn;
        EXPECT_EQ(itsName, name) << dn;
    }
}

TEST(DistinguishedName, PutsTheRootOnTheRight) {
    for (const auto& [group, rootRight] : table<2>(R"(
\TREE\O=org\CN=grp | .CN=grp.O=org.TREE.
TREE\O=org\CN=grp  | CN=grp.O=org.TREE.
\TREE\CN=grp\      | .CN=grp.TREE.
CN=grp.O=org       | CN=grp.O=org
grp                | grp.
=                  | =.
\                  | ..
\\                 | \\
\TREE\CN=a\=b      | \TREE\CN=a\=b
)"))
        EXPECT_EQ(getDNFromGroupNameRootRight(group), rootRight);
    EXPECT_DEATH(getDNFromGroupNameRootRight(""), "no name");
}

} // namespace
} // namespace quorvan::test
