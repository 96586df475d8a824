// SPDX-License-Identifier: GPL-3.0-or-later
//
// Reading and changing the units in force: the chosen row of a range with its label and factor, the
// tool tips that name units, and a new choice put in force or made the default. Keys and dialogs
// read the words whenever they need them, so that a change takes effect at once everywhere.
#pragma once

#include "dialogs/unit_tables.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tallyforge {

class Engine;
class SettingsFile;

/// Row of the lowest bit that is set in the range; empty where none is.
[[nodiscard]] std::optional<int> chosenRow(const UnitRange& range, const UnitWords& words);
/// The unit in force; the range's `none` where no bit is set (label "", factor 1 but for surfaces).
[[nodiscard]] const UnitRow& chosenUnit(const UnitRange& range, const UnitWords& words);
/// Size of the unit in force in the quantity's base unit.
[[nodiscard]] double unitScale(const UnitRange& range, const UnitWords& words);

/// The bit of a row, and all bits of a range.
[[nodiscard]] std::uint32_t bitOf(const UnitRange& range, int row);
[[nodiscard]] std::uint32_t bitsOf(const UnitRange& range);
/// Puts a row in force: its bit alone is set in the range. A row of -1 clears the range.
void chooseRow(const UnitRange& range, int row, UnitWords& words);

/// `pattern` with the labels of the units in force in the place of "{RANGE}". A name that no range
/// has stays as it stands.
[[nodiscard]] std::string withUnits(std::string_view pattern, const UnitWords& words);

/// A label of a dialog in the glyphs of the tape: "cm²" is held there as "cmý", "µF" as "æF".
[[nodiscard]] std::string MapUnitText(std::string_view label);

/// Asks whether the units in force of these ranges are to be the default, and writes them to the
/// settings on Yes. No other bits of the file change. A file that cannot be written is reported.
/// Returns whether the answer was Yes.
bool askToSaveUnits(Engine& calc, SettingsFile& settings, std::span<const UnitRange* const> ranges);

}  // namespace tallyforge
