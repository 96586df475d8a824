// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/csv.h"

#include <algorithm>

namespace tallyforge {

namespace {

// A cell may begin with "#", as the number of a drill does.
constexpr std::string_view kComment = "# ";
constexpr std::string_view kSourceMark = "# source: ";

/// Takes the first line from `text`, without its end.
std::string_view takeLine(std::string_view& text) {
    const auto end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

/// Takes a quoted cell with its quotes; two quotes inside are one.
std::string takeQuoted(std::string_view& line) {
    std::string cell;
    line.remove_prefix(1);
    while (!line.empty()) {
        const char character = line.front();
        line.remove_prefix(1);
        if (character != '"') {
            cell += character;
        } else if (line.starts_with('"')) {
            cell += '"';
            line.remove_prefix(1);
        } else {
            break;
        }
    }
    return cell;
}

std::vector<std::string> cellsOf(std::string_view line) {
    std::vector<std::string> cells;
    for (bool more = true; more;) {
        std::string cell = line.starts_with('"') ? takeQuoted(line) : std::string();
        const auto end = std::min(line.find(','), line.size());
        cell += line.substr(0, end);
        more = end < line.size();
        line.remove_prefix(more ? end + 1 : end);
        cells.push_back(std::move(cell));
    }
    return cells;
}

}  // namespace

std::optional<std::size_t> CsvTable::column(std::string_view head) const {
    const auto found = std::find(heads.begin(), heads.end(), head);
    return found == heads.end() ? std::nullopt : std::optional{static_cast<std::size_t>(found - heads.begin())};
}

std::optional<CsvTable> readCsv(std::string_view text) {
    // A last line without its end was cut.
    if (!text.ends_with('\n')) {
        return std::nullopt;
    }
    CsvTable table;
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        if (line.empty() || line.starts_with(kComment)) {
            if (line.starts_with(kSourceMark)) {
                table.source = line.substr(kSourceMark.size());
            }
        } else if (table.heads.empty()) {
            table.heads = cellsOf(line);
        } else if (table.rows.emplace_back(cellsOf(line)).size() != table.heads.size()) {
            return std::nullopt;
        }
    }
    return table.heads.empty() ? std::nullopt : std::optional{std::move(table)};
}

}  // namespace tallyforge
