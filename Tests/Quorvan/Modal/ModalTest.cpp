// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Modal/Users.h"
#include "Quorvan/Modal/Utils.h"

#include <gtest/gtest.h>

namespace quorvan {
namespace {

TEST(Trustees, NameTheTypeOfEveryone) {
    const auto typeOf = [](const char* id, const char* type) {
        return Trustees("", id, 0, "", type, "").trusteeType;
    };
    EXPECT_EQ(typeOf("S-1-1-0", ""), "Groups");
    EXPECT_EQ(typeOf("S-1-1-0", "Users"), "Users");
    EXPECT_EQ(typeOf("S-1-1-0 ", ""), "");

    Trustees original("Everyone", "S-1-1-0", 0x41, "ADD", "", "ActiveDirectory");
    original.trusteeType = "";
    const Trustees copy = original;
    EXPECT_EQ(copy.trusteeType, "Groups");
    EXPECT_EQ(copy.trusteeName, "Everyone");
    EXPECT_EQ(copy.rights, 0x41);
    EXPECT_EQ(copy.status, "ADD");
    EXPECT_EQ(copy.domainType, "ActiveDirectory");
}

TEST(Trustees, AreIndependentInACopiedList) {
    const TrusteeList list = {std::make_shared<Trustees>("a", "1", std::uint16_t{1}, "", "", "")};
    const TrusteeList copies = copyOf(list);
    copies[0]->rights = 2;
    EXPECT_EQ(list[0]->rights, 1);
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
    EXPECT_EQ(lowercased("ABC xyz"), "abc xyz");
    EXPECT_EQ(lowercased("ÄÖÜ Ωmega"), "äöü ωmega");
    EXPECT_EQ(foldedForSearch("MiXed"), "mixed");
    EXPECT_EQ(foldedForSearch("Ångström"), foldedForSearch("ANGSTRO\xCC\x88M"));
    EXPECT_EQ(foldedForSearch("Straße"), "strasse");
}

} // namespace
} // namespace quorvan
