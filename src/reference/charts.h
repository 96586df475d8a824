// SPDX-License-Identifier: GPL-3.0-or-later
//
// The charts of hardware and colour codes. Their numbers lie in the folder "charts" that came with
// the calculator; a chart whose file is missing or damaged says so, and nothing else happens.
#pragma once

#include "dialogs/chart_dialog.h"

#include <optional>
#include <span>
#include <string_view>

namespace tallyforge {

class Engine;

enum class ChartId { Nails, SteelWire, WoodScrews, PipeThreads, FineThreads, CoarseThreads, Colours };

/// The chart with its rows in the user's locale. Empty after a message where its file cannot be read.
[[nodiscard]] std::optional<Chart> loadChart(Engine& calc, ChartId id);

/// Shows a chart; a row that the user takes pushes its chief number.
void showChart(Engine& calc, ChartId id);

/// The same for a right button, which no dispatch follows: the number is committed at once.
void showChartAside(Engine& calc, ChartId id);

}  // namespace tallyforge
