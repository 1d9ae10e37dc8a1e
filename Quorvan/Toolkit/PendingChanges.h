// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ListTable.h"

#include <QToolButton>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

class QPushButton;

namespace quorvan {

/// A change that Apply would send.
struct PendingChange {
    enum class Kind { added, changed, removed };

    std::string identity; ///< of the row that it is about, as of ListModel
    Kind kind;
    QString name;           ///< what it is about
    QString what;           ///< what it makes of it; unused for one that is removed
    std::int64_t value = 0; ///< the same as a number: a mask of rights, bytes

    /// "Finance: Read, Write, File Scan", "Finance will be removed".
    QString text() const;
};

/// The rights of a mask in words, from left to right.
QString rightsInWords(std::uint16_t mask);

/// The line beside Apply that says how many changes wait for it, and lists them on a click. Hidden while
/// there are none.
class PendingLine : public QToolButton {
public:
    explicit PendingLine(QWidget* parent = nullptr);

    /// The button that sends the changes: pressing it takes the outcome of those before off the screen.
    void setApplyButton(QPushButton& apply);
    /// Shows the changes, and marks their rows in `tables`, where they belong to them.
    void show(std::vector<PendingChange> changes, const std::vector<ListTable*>& tables);
    /// The changes in words, and which of them no table lists at the moment.
    QStringList texts() const;

private:
    void openList();

    std::vector<PendingChange> changes_;
    std::vector<ListTable*> tables_;
};

/// The first of the changes in words, for a line of the window.
QString textsOf(const std::vector<PendingChange>& changes);

/// A change of rights.
PendingChange rightsChange(std::string identity, PendingChange::Kind kind, const std::string& name,
                           std::uint16_t rights);

/// Tells the user what came of an Apply: which of the changes that were sent the server has not made. `now`
/// holds the values that were read afterwards, by identity. Of several changes of one identity the last
/// counts.
void tellOutcome(const std::vector<PendingChange>& sent,
                 const std::unordered_map<std::string, std::int64_t>& now);

} // namespace quorvan
