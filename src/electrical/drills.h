// SPDX-License-Identifier: GPL-3.0-or-later
//
// Twist drills by number and by letter; diameters in inches.
#pragma once

#include "electrical/lookup_table.h"

#include <array>
#include <string_view>

namespace tallyforge {

class Engine;

/// Number drills 1 to 78.
extern const LookupTable kNumberDrills;

/// Letter drills by the key of the bank that shows them; a key of two letters holds the first.
extern const LookupTable kLetterDrills;
/// The letters on those keys, "A" or "W/X".
extern const std::array<std::string_view, 24> kDrillLetters;

/// X, rounded half to even, is a drill's number; its diameter.
void numberDrill(Engine& calc);

}  // namespace tallyforge
