// SPDX-License-Identifier: GPL-3.0-or-later
//
// The physical constants of the list that the constants key opens. The printed digits are the
// calculator's own and hold, also where today's knowledge differs; today's values (codata.h) stand
// beside them.
#pragma once

#include "dialogs/list_dialog.h"

#include <optional>
#include <string_view>

namespace tallyforge {

extern const ListTable kConstantsList;

/// Where the values in the list and those of today come from, as the dialog says it.
extern const std::string_view kConstantSources;

/// Name of a constant without its symbol: what stands before the last ", ".
[[nodiscard]] std::string_view constantName(std::string_view name);
/// The symbol behind the last ", " of a constant's name; empty where it has none.
[[nodiscard]] std::string_view constantSymbol(std::string_view name);

/// Today's value of the constant in row `row` of the list, where there is one.
[[nodiscard]] std::optional<OtherValue> valueOfToday(std::size_t row);

}  // namespace tallyforge
