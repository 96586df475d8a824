// SPDX-License-Identifier: GPL-3.0-or-later
//
// What is told of a unit in words: its exact size, the definition in force, where that is written
// down, and how far the table's factor is off.
#pragma once

#include "dialogs/conversion_table.h"

#include <string>
#include <string_view>

namespace tallyforge {

/// "NIST SP 811" and so on.
[[nodiscard]] std::string_view sourceName(Source source);

/// One of the unit in base units, by its definition: "0.0254 m". Fuel by volume is "235.2 mpg" too.
[[nodiscard]] std::string exactSize(const UnitGroup& group, int unit, char decimal);

/// The tool tip of a unit's buttons: "inch = 0.0254 m (25.4 millimeters; NIST SP 811)", and where
/// the table's factor is off, " // table 0.0040488377086 is off by -8.1 %".
[[nodiscard]] std::string unitTip(const UnitGroup& group, int unit, char decimal);

/// Says which stated factors of the pair are off ("gallon(dry) is off by -8.1 %"); empty where none
/// is, and for units that are -1.
[[nodiscard]] std::string deviationText(const UnitGroup& group, const UnitPair& pair, char decimal);

}  // namespace tallyforge
