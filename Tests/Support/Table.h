// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorvan::test {

/// The rows of a table that is written as text: a row a line. A line that begins with blanks continues the
/// one before, behind one blank unless it begins with a tag or a bracket. Cells stand between bars; the
/// blanks around them are no part of them, and those that a row lacks are empty.
template <std::size_t columns>
std::vector<std::array<std::string, columns>> table(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream input(text);
    for (std::string line; std::getline(input, line);) {
        if (const std::size_t begin = line.find_first_not_of(' '); begin > 0 && begin != std::string::npos)
            lines.back() += (line[begin] == '<' || line[begin] == '[' ? "" : " ") + line.substr(begin);
        else if (!line.empty())
            lines.push_back(line);
    }
    std::vector<std::array<std::string, columns>> rows;
    for (const std::string& line : lines) {
        std::istringstream cells(line);
        auto& row = rows.emplace_back();
        for (std::string& cell : row) {
            std::getline(cells, cell, '|');
            cell.erase(cell.find_last_not_of(' ') + 1);
            cell.erase(0, cell.find_first_not_of(' '));
        }
        if (std::string rest; std::getline(cells, rest))
            throw std::invalid_argument("A row has too many cells: " + line);
    }
    return rows;
}

/// Texts on one line, as a table's cell holds them.
inline std::string joined(const std::vector<std::string>& texts, const char* between = " > ") {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : between) + text;
    return all;
}

} // namespace quorvan::test
