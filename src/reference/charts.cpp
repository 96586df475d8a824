// SPDX-License-Identifier: GPL-3.0-or-later
#include "reference/charts.h"

#include "dialogs/list_model.h"
#include "engine/engine.h"
#include "engine/results.h"
#include "numbers/number_format.h"
#include "platform/file_store.h"
#include "platform/installed_file.h"
#include "reference/colour_code.h"
#include "reference/csv.h"
#include "reference/hardware_charts.h"

#include <algorithm>

namespace tallyforge {

namespace {

constexpr std::size_t kLargestChart = 1U << 20U;

std::optional<CsvTable> readTable(Engine& calc, const HardwareChart& chart) {
    const std::string name(chart.file);
    try {
        auto table = readCsv(readWhole(installedFile(calc.platform, "charts", chart.file), kLargestChart));
        const auto has = [&](std::string_view head) { return table->column(head).has_value(); };
        if (table && has(chart.chief) && !table->rows.empty() &&
            std::all_of(chart.columns.begin(), chart.columns.end(),
                        [&](const HardwareColumn& column) { return has(column.source); })) {
            return table;
        }
        calc.message(BoxKind::Notice, chart.title, "The chart's file " + name + " is damaged!");
    } catch (const FileError&) {
        calc.message(BoxKind::Notice, chart.title, "The chart's file " + name + " was not found!");
    }
    return std::nullopt;
}

/// The picture's texts with the decimal character of the locale.
Drawing localised(Drawing drawing, char decimal) {
    for (DrawnShape& shape : drawing.shapes) {
        if (auto* text = std::get_if<DrawnText>(&shape)) {
            text->text = localValue(text->text, decimal);
        }
    }
    drawing.described = localValue(drawing.described, decimal);
    return drawing;
}

Chart chartOf(const HardwareChart& shown, const CsvTable& table, char decimal) {
    Chart chart{.form = std::string(shown.form), .title = std::string(shown.title), .columns = {}, .rows = {}};
    for (const HardwareColumn& column : shown.columns) {
        chart.columns.push_back(
            {.head = std::string(column.head), .unit = std::string(column.unit), .number = column.number});
    }
    const std::size_t chief = *table.column(shown.chief);
    for (const auto& cells : table.rows) {
        ChartRow row{.cells = {}, .value = localValue(cells[chief], decimal), .label = std::string(shown.label)};
        for (const HardwareColumn& column : shown.columns) {
            const std::string& cell = cells[*table.column(column.source)];
            row.cells.push_back(column.number ? localValue(cell, decimal) : cell);
        }
        chart.rows.push_back(std::move(row));
    }
    chart.note = shown.note;
    chart.source = shown.source;
    chart.helpTopic = shown.helpTopic;
    chart.figure = [draw = shown.figure(table), decimal](ChosenRow row) { return localised(draw(row), decimal); };
    return chart;
}

/// Shows the chart; what was taken, or nothing.
std::optional<ChartRow> takeRow(Engine& calc, ChartId id) {
    const auto chart = loadChart(calc, id);
    if (!chart) {
        return std::nullopt;
    }
    const auto row = ChartDialog(calc, *chart).pick();
    return row ? std::optional{chart->rows[*row]} : std::nullopt;
}

}  // namespace

std::optional<Chart> loadChart(Engine& calc, ChartId id) {
    if (id == ChartId::Colours) {
        return colourChart();
    }
    const HardwareChart& shown = hardwareChart(id);
    const auto table = readTable(calc, shown);
    return table ? std::optional{chartOf(shown, *table, calc.s.format.DecimalChar)} : std::nullopt;
}

void showChart(Engine& calc, ChartId id) {
    if (const auto taken = takeRow(calc, id)) {
        pushOnX(calc, {ValueCell{taken->value}, taken->label});
    } else {
        leaveX(calc);
    }
}

void showChartAside(Engine& calc, ChartId id) {
    if (const auto taken = takeRow(calc, id); taken && calc.commit.FetchX()) {
        pushAtOnce(calc, {ValueCell{taken->value}, taken->label}, true);
    }
    calc.focusEntry();
}

}  // namespace tallyforge
