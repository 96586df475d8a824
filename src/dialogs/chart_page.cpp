// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogs/chart_page.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tallyforge {

namespace {

constexpr Font kTable{.face = Face::Terminal, .points = 9.0F};
constexpr std::string_view kBetween = "  ";

/// `cell` as wide as its column: numbers stand right, names left.
std::string filled(const std::string& cell, std::size_t width, bool right) {
    const std::string blanks(width - std::min(width, cell.size()), ' ');
    return right ? blanks + cell : cell + blanks;
}

}  // namespace

PrintJob chartPage(const Chart& chart, std::optional<std::size_t> chosen) {
    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < chart.columns.size(); ++column) {
        widths.push_back(columnHead(chart.columns[column]).size());
        for (const ChartRow& row : chart.rows) {
            widths.back() = std::max(widths.back(), row.cells[column].size());
        }
    }
    const auto line = [&](const auto& cellOf) {
        std::string text;
        for (std::size_t column = 0; column < widths.size(); ++column) {
            text += (column == 0 ? std::string() : std::string(kBetween)) +
                    filled(cellOf(column), widths[column], chart.columns[column].number);
        }
        return text.erase(text.find_last_not_of(' ') + 1);
    };
    const std::string heads = line([&](std::size_t column) { return columnHead(chart.columns[column]); });
    std::vector<std::string> lines{{}, heads, std::string(heads.size(), '-')};
    for (const ChartRow& row : chart.rows) {
        lines.push_back(line([&](std::size_t column) { return row.cells[column]; }));
    }
    PrintJob job{.title = {chart.title, {.points = 14.0F, .bold = true}},
                 .blocks = {blockOf(std::move(lines), kTable)}};
    for (const std::string& text : {chart.note, chart.source}) {
        if (!text.empty()) {
            job.blocks.push_back(blockOf({{}}, kTable));
            job.blocks.push_back(blockOf({text}, {.points = 8.0F}));
        }
    }
    if (chart.figure) {
        job.pictures.push_back(chart.figure(chosen));
    }
    return job;
}

}  // namespace tallyforge
