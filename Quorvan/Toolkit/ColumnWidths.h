// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <set>
#include <vector>

class QTableView;

namespace quorvan {

/// Gives the columns of a table their widths. Amounts and boxes always get what they need; texts get what
/// the rows that have been in view need, and share what there is where that is too little. In a
/// wide window what is left over stays empty where there are boxes, so that they stand near their names. A
/// width that the user has set stays, also on the next visit.
class ColumnWidths : public QObject {
public:
    enum class Kind {
        text,   ///< may be cut off, with dots
        amount, ///< an amount, or another text of a few characters; never cut off
        box,    ///< as wide as setBoxWidth() says
    };

    ColumnWidths(QTableView& table, std::vector<Kind> kinds);

    void setBoxWidth(int width) { boxWidth_ = width; }
    /// The room that the texts have when each box is as wide as `boxWidth`, and what they need.
    int roomForTexts(int boxWidth);
    int needOfTexts();
    /// To be called when the room or the rows in view have changed.
    void fit();
    /// Forgets what earlier rows needed.
    void forgetRows() { needs_.clear(); }

private:
    QString key(int column) const;
    void takeUsersWidths();
    void resized(int column, int width);
    int need(int column);
    int lastText() const; ///< of those whose width is not the user's; -1 when there is none

    QTableView& table_;
    std::vector<Kind> kinds_;
    std::vector<int> needs_; ///< the most that rows in view have needed
    std::set<int> users_;    ///< columns whose width the user has set
    int boxWidth_ = 0;
    bool isFitting_ = false;
    bool hasTakenUsers_ = false;
};

} // namespace quorvan
