// SPDX-License-Identifier: GPL-3.0-or-later
// The rules that all views share about names: search, sort, icon.
#include "Quorvan/Toolkit/NameSort.h"
#include "Quorvan/Toolkit/SearchFilter.h"
#include "Quorvan/Toolkit/ShownText.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"

#include <gmock/gmock.h>

namespace quorvan {
namespace {

using testing::ElementsAre;
using Names = std::vector<std::string>;

const std::string& itself(const std::string& name) {
    return name;
}

TEST(ShownText, IsShortAndDoesNothing) {
    const std::string accents = "e\u0301\u0302\u0303";
    const std::pair<std::string, QString> cases[] = {
        {"Zoë Größe", "Zoë Größe"},
        {std::string(1'000'000, 'x'), QString(1000, 'x') + QChar(0x2026)},
        {"a\nb\u202Ec", "a\\u{A}b\\u{202E}c"},
        {accents, QString::fromStdString(accents)},
        {accents + accents.substr(1) + accents.substr(1) + "x", QString::fromStdString(accents + "\uFFFDx")},
    };
    for (const auto& [text, shown] : cases)
        EXPECT_EQ(shownText(text), shown) << text.substr(0, 40);
}

TEST(SearchFilter, FindsPartsAndPatternsWithoutCaseAndMarks) {
    const Names names = {"Admin", "sysadmins", "Jörg Süßkind", "a*n", "", "ÅNGSTRÖM", "né?", "Admin"};
    SearchFilter filter;
    filter.setRows(names, itself);
    // A pattern is for the whole name, any other text for a part of it; é is one character.
    const std::pair<const char*, Names> cases[] = {{"adm", {"Admin", "sysadmins", "Admin"}},
                                                   {"a*n", {"Admin", "a*n", "Admin"}},
                                                   {"JORG", {"Jörg Süßkind"}},
                                                   {"süSS", {"Jörg Süßkind"}},
                                                   {"angström", {"ÅNGSTRÖM"}},
                                                   {"*d", {"Jörg Süßkind"}},
                                                   {"???", {"a*n", "né?"}},
                                                   {"*e?", {"né?"}},
                                                   {"e?", {"né?"}},
                                                   {"*n*n*", {}},
                                                   {"**d**s**", {"sysadmins"}},
                                                   {"nadm", {}},
                                                   {"*", names}};
    for (const auto& [text, found] : cases)
        EXPECT_EQ(filter.matching(names, text), found) << text;
    filter.setRows(Names{"ab", "cd", "cd"}, itself);
    EXPECT_TRUE(filter.matches("bc").empty()) << "from one name into the next";
    EXPECT_THAT(filter.matches("cd"), ElementsAre(1, 2));
}

TEST(NameSort, ComparesLowerCaseCodePointsAndKeepsEqualNamesInPlace) {
    using Row = std::pair<std::string, int>;
    const auto sorted = [](bool ascending) {
        std::vector<Row> rows = {{"Zoe", 0}, {"anna", 1},       {"ANNA", 2},
                                 {"Éva", 3}, {"annamaria2", 4}, {"Annamaria1", 5}};
        sortByName(rows, ascending, [](const Row& row) -> const std::string& { return row.first; });
        std::string order;
        for (const Row& row : rows)
            order += std::to_string(row.second);
        return order;
    };
    EXPECT_EQ(sorted(true), "125403");
    EXPECT_EQ(sorted(false), "304512");
}

TEST(TrusteeIcon, FollowsTheTypeWhateverItsCase) {
    const std::pair<const char*, const char*> cases[] = {{"Users", "user"},
                                                         {"GROUPS", "group"},
                                                         {"inetOrgPerson", "user_Morvane"},
                                                         {"groupOfNames", "group_Morvane"},
                                                         {"Organizational Unit", "group_Morvane"},
                                                         {"", "user"}};
    for (const auto& [type, icon] : cases)
        EXPECT_STREQ(trusteeIconName(type), icon) << type;
}

} // namespace
} // namespace quorvan
