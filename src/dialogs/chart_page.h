// SPDX-License-Identifier: GPL-3.0-or-later
//
// A chart on paper.
#pragma once

#include "dialogs/chart_dialog.h"
#include "platform/print_job.h"

#include <cstddef>
#include <optional>

namespace tallyforge {

/// Title, heads, rows in columns, note and source, and its figure with `row` brought out.
[[nodiscard]] PrintJob chartPage(const Chart& chart, std::optional<std::size_t> row);

}  // namespace tallyforge
