// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ListModel.h"
#include "Quorvan/Toolkit/RightsColumns.h"

#include <QIcon>
#include <QString>

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quorvan {

/// The rows behind a rights table. Asked on demand, for the rows that are painted.
class RightsRowSource {
public:
    virtual ~RightsRowSource() = default;

    virtual int rowCount() const = 0;
    virtual QString text(int row, int textColumn) const = 0;
    virtual QIcon icon(int /*row*/, int /*textColumn*/) const { return {}; }
    virtual std::uint16_t rights(int row) const = 0;

    virtual std::string identity(int row) const = 0; ///< as of ListModel
};

/// A text column; text columns stand before the rights.
struct RightsTextColumn {
    std::string identifier;
    QString header;
    Qt::TextElideMode elide = Qt::ElideRight; ///< paths differ at their ends, and are cut off on the left
};

/// A rights check box in the moment in which the user has clicked it.
struct RightsCheckBox {
    int row;
    const char* identifier; ///< of RightsColumn
    bool ticked;            ///< after the click

    /// `mask` with this one right as it is now.
    std::uint16_t appliedTo(std::uint16_t mask) const;
};

/// What stops the rights of one row on their way down: the bits of rights, and the path that stops each.
using StoppedRights = std::vector<std::pair<std::uint16_t, QString>>;

/// Text columns and eight check-box columns over a row source.
class RightsTableModel : public ListModel {
public:
    /// Whether the ticked box of a right carries the mark of one that is stopped.
    static constexpr int stoppedRole = Qt::UserRole;

    /// The key of the text that says why the boxes of a right cannot be clicked; null while they can.
    using GreyRule = std::function<const char*(std::uint16_t bit)>;
    using ClickHandler = std::function<void(const RightsCheckBox&)>;

    RightsTableModel(std::vector<RightsTextColumn> textColumns, std::unique_ptr<RightsRowSource> rows);

    GreyRule whyGrey;     ///< without a rule no box can be clicked
    ClickHandler onClick; ///< puts a click into the rows; they are asked again afterwards

    const RightsTextColumn& textColumn(int column) const {
        return textColumns_[static_cast<std::size_t>(column)];
    }
    int textColumnCount() const { return static_cast<int>(textColumns_.size()); }
    /// The right of a column; null for a text column.
    const RightsColumn* right(int column) const;
    int columnOf(const std::string& identifier) const; ///< -1 when there is none
    void setHeader(int textColumn, const QString& header);
    /// Whether the headers of the rights are their names or their letters.
    void showWords(bool words);
    const QString& rightName(int column) const;
    /// Marks the rights that do not arrive, by the identities of the rows.
    void setStopped(std::unordered_map<std::string, StoppedRights> stopped);

    std::string identity(int row) const override { return rows_->identity(row); }
    int columnCount(const QModelIndex& parent = {}) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// The check state of a right is the only thing that can be set: it is a click on its box.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

protected:
    int listedRows() const override { return rows_->rowCount(); }

private:
    const char* whyFixed(const RightsColumn& box) const {
        return whyGrey ? whyGrey(box.bit) : "Why_Only_Shown_Label";
    }
    QVariant textData(const QModelIndex& index, int role) const;
    QVariant rightData(const QModelIndex& index, int role) const;
    /// The path that stops a right; empty where none does.
    QString stoppedBy(const QModelIndex& index) const;

    std::vector<RightsTextColumn> textColumns_;
    std::unique_ptr<RightsRowSource> rows_;
    std::array<QString, rightsColumns.size()> rightNames_;
    std::unordered_map<std::string, StoppedRights> stopped_;
    bool showsWords_ = false;
    QString tickedText_;
    QString untickedText_;
};

} // namespace quorvan
