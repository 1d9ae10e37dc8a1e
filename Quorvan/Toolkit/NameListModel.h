// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Quorvan/Toolkit/ListModel.h"
#include "Quorvan/Toolkit/ShownText.h"
#include "Quorvan/Toolkit/TrusteeIcon.h"

#include <functional>
#include <string>

namespace quorvan {

/// One column of names that have an icon in common; each name is asked for when it is painted.
class NameListModel : public ListModel {
public:
    std::function<std::size_t()> count;
    std::function<const std::string&(std::size_t row)> name;
    std::function<const char*()> iconName;

    std::string identity(int row) const override { return name(static_cast<std::size_t>(row)); }
    int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : 1; }
    QVariant data(const QModelIndex& index, int role) const override {
        const auto row = static_cast<std::size_t>(index.row());
        if (!index.isValid() || row >= count()) // the names may have become fewer since the last reload
            return {};
        if (role == Qt::DisplayRole)
            return shownText(name(row));
        if (role == Qt::DecorationRole)
            return namedIcon(iconName());
        return {};
    }

protected:
    int listedRows() const override { return static_cast<int>(count()); }
};

} // namespace quorvan
