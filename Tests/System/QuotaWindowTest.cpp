// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quorvan/Modal/Constants.h"
#include "Quorvan/Toolkit/ListTable.h"
#include "Quorvan/Toolkit/QuotaLimit.h"
#include "Tests/System/RealWindow.h"

#include <QLineEdit>

namespace quorvan::test {
namespace {

using testing::Contains;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct QuotaWindow : RealWindow {
    ListTable& table() const { return static_cast<ListTable&>(*find<QTableView>("userQuotaTable")); }
    void select(std::initializer_list<int> rows) const {
        table().clearSelection();
        for (const int row : rows)
            QTest::mouseClick(table().viewport(), Qt::LeftButton, Qt::ControlModifier,
                              table().visualRect(table().model()->index(row, 0)).center());
    }
    using Limits = std::vector<std::pair<std::string, std::string>>; ///< of users, by name
    Limits shown() const {
        Limits rows;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            rows.emplace_back(
                table().model()->index(row, 0).data().toString().section('\\', -1).toStdString(),
                table().model()->index(row, 1).data().toString().toStdString());
        return rows;
    }
    /// What the server itself says of its users of Active Directory that have a limit.
    Limits onServer() const {
        Limits rows;
        std::istringstream lines(server->kelp.ask("user-quotas\tVOL1"));
        for (std::string id, limit, used, name; std::getline(lines, id, '\t') &&
                                                std::getline(lines, limit, '\t') &&
                                                std::getline(lines, used, '\t') && std::getline(lines, name);)
            if (id.starts_with("S-1-") && limit != DirectoryQuotaConstants::UNLIMITED)
                rows.emplace_back(name, byteCount(std::stoll(limit)).toStdString());
        return rows;
    }
};

TEST_F(QuotaWindow, ChangesTwoLimitsAndRemovesOne) {
    click("UserQuotaView");
    const Limits before = onServer();
    EXPECT_EQ(before.size(), simulator::demo::usersWithQuota / 2);
    EXPECT_THAT(shown(), ElementsAreArray(before));

    select({1, 3});
    click("editUQButton");
    auto* limit = find<QLineEdit>("quotaLimitTextField");
    limit->selectAll();
    QTest::keyClicks(limit, "7");
    click("okBtn");
    select({4});
    click("removeUQButton");
    EXPECT_EQ(onServer(), before) << "nothing was sent yet";
    click("applyButton");
    EXPECT_THAT(alerts->shown, IsEmpty());
    EXPECT_FALSE(find<QPushButton>("applyButton")->isEnabled());

    Limits after = before;
    for (const std::size_t row : {1, 3})
        after[row].second = "7 GB";
    after.erase(after.begin() + 4);
    EXPECT_EQ(onServer(), after);
    EXPECT_THAT(shown(), ElementsAreArray(after));
    click("closeButton");
    click("UserQuotaView");
    EXPECT_THAT(shown(), ElementsAreArray(after)) << "read anew, by a page of its own";

    EXPECT_THAT(log.lines, Not(Contains(HasSubstr(RealServer::password))));
    DictionaryForMountedPIPE::mountDict().unmountAll();
    EXPECT_EQ(server->sessions("0 0"), "0 0");
}

} // namespace
} // namespace quorvan::test
