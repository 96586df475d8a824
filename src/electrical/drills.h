// SPDX-License-Identifier: GPL-3.0-or-later
//
// Twist drills by number and by letter; diameters in inches.
#pragma once

#include "electrical/lookup_table.h"

#include <string>
#include <string_view>

namespace tallyforge {

class Engine;

/// Number drills 1 to 78.
extern const LookupTable kNumberDrills;

/// Letter drills, by the code of the letter, 'A' to 'Z'.
extern const LookupTable kLetterDrills;

/// The letters of the bank's keys 0 to 23, "A" or "W/X".
[[nodiscard]] std::string_view drillLetters(int key);
/// " Letter A drill is 0.2340 Ø ", with both letters of a key of two, Latin-1.
[[nodiscard]] std::string letterDrillTip(int key);

/// X, rounded half to even, is a drill's number; its diameter.
void numberDrill(Engine& calc);

}  // namespace tallyforge
