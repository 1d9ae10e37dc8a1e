// SPDX-License-Identifier: GPL-3.0-or-later
// The rules that all views share about names: search, sort, icon.
#include "Quorvan/Toolkit/NameSort.h"
#include "Quorvan/Toolkit/SearchFilter.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"

#include <gmock/gmock.h>

namespace quorvan {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Names = std::vector<std::string>;

const std::string& itself(const std::string& name) {
    return name;
}

TEST(SearchFilter, FindsPartsAndPatternsWithoutCaseAndMarks) {
    const Names names = {"Admin", "sysadmins", "Jörg Süßkind", "a*n", "", "ÅNGSTRÖM", "né?", "Admin"};
    SearchFilter filter;
    filter.setRows(names, itself);
    const struct {
        const char* text;
        Names found;
    } cases[] = {
        {"adm", {"Admin", "sysadmins", "Admin"}},
        {"a*n", {"Admin", "a*n", "Admin"}}, // a pattern is for the whole name, so not sysadmins
        {"JORG", {"Jörg Süßkind"}},
        {"süSS", {"Jörg Süßkind"}},
        {"angström", {"ÅNGSTRÖM"}},
        {"*d", {"Jörg Süßkind"}},
        {"???", {"a*n", "né?"}}, // é is one character, and the marked name is as long as the plain one
        {"*e?", {"né?"}},
        {"e?", {"né?"}}, // a part, though no pattern of the whole name
        {"*n*n*", {}},
        {"**d**s**", {"sysadmins"}},
        {"*", names},
    };
    for (const auto& [text, found] : cases)
        EXPECT_EQ(filter.matching(names, text), found) << text;
}

TEST(SearchFilter, NeverFindsATextThatReachesFromOneNameIntoTheNext) {
    const Names names = {"ab", "cd", "cd"};
    SearchFilter filter;
    filter.setRows(names, itself);
    EXPECT_THAT(filter.matches("bc"), IsEmpty());
    EXPECT_THAT(filter.matches("cd"), ElementsAre(1, 2));
}

TEST(NameSort, ComparesLowerCaseCodePointsAndKeepsEqualNamesInPlace) {
    using Row = std::pair<std::string, int>;
    const std::vector<Row> rows = {{"Zoe", 0}, {"anna", 1},       {"ANNA", 2},
                                   {"Éva", 3}, {"annamaria2", 4}, {"Annamaria1", 5}};
    const auto sorted = [&rows](bool ascending) {
        auto copy = rows;
        sortByName(copy, ascending, [](const Row& row) -> const std::string& { return row.first; });
        std::vector<int> order;
        for (const Row& row : copy)
            order.push_back(row.second);
        return order;
    };
    EXPECT_THAT(sorted(true), ElementsAre(1, 2, 5, 4, 0, 3));
    EXPECT_THAT(sorted(false), ElementsAre(3, 0, 4, 5, 1, 2));
}

TEST(TrusteeIcon, FollowsTheTypeWhateverItsCase) {
    const std::pair<const char*, const char*> cases[] = {
        {"Users", "user"},
        {"GROUPS", "group"},
        {"inetOrgPerson", "user_Morvane"},
        {"groupOfNames", "group_Morvane"},
        {"Organizational Unit", "group_Morvane"},
        {"", "user"},
    };
    for (const auto& [type, icon] : cases)
        EXPECT_STREQ(trusteeIconName(type), icon) << type;
}

} // namespace
} // namespace quorvan
