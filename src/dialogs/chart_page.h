// SPDX-License-Identifier: GPL-3.0-or-later
//
// A chart as lines of print.
#pragma once

#include "dialogs/chart_dialog.h"
#include "platform/platform.h"

#include <vector>

namespace tallyforge {

/// Title, heads, rows in columns, and the source.
[[nodiscard]] std::vector<PrintLine> chartLines(const Chart& chart);

}  // namespace tallyforge
