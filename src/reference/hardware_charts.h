// SPDX-License-Identifier: GPL-3.0-or-later
//
// Which columns of the published tables the charts of hardware show, under which heads, which of
// them is the chief number, and how the figure is drawn from them.
#pragma once

#include "reference/chart_figures.h"
#include "reference/charts.h"
#include "reference/csv.h"

#include <functional>
#include <span>
#include <string_view>

namespace tallyforge {

struct HardwareColumn {
    std::string_view source;  ///< head in the data file
    std::string_view head;
    std::string_view unit{};
    bool number = true;
};

struct HardwareChart {
    ChartId id;
    std::string_view form, title;
    std::string_view file;  ///< in the folder "charts"
    std::span<const HardwareColumn> columns;
    std::string_view chief;  ///< column of the number that a double click takes
    std::string_view label;  ///< of its tape line
    std::string_view note;
    std::string_view source;
    /// Makes the figure of the table's rows.
    std::function<Drawing(ChosenRow)> (*figure)(const CsvTable& table);
    int helpTopic = 0;
};

/// All of them but the colours.
[[nodiscard]] std::span<const HardwareChart> hardwareCharts();
[[nodiscard]] const HardwareChart& hardwareChart(ChartId id);

}  // namespace tallyforge
