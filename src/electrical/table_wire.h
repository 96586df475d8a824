// SPDX-License-Identifier: GPL-3.0-or-later
//
// The wire keys of the Tables keypad: aluminum, and the half sizes of copper. X is the gauge; a
// half size is given by itself or by the whole size below it, 4.5 or 4. A size that the table does
// not hold shows a box.
#pragma once

namespace tallyforge {

class Engine;

/// Ohms per foot of aluminum wire, AWG 8 to 44.
void aluminumResistance(Engine& calc);

/// Ohms per foot of copper, 4 1/2 to 50 1/2.
void halfSizeResistance(Engine& calc);
/// Diameter over the film in inches, and its circular mils: heavy 4 1/2, single 14 1/2 to 50 1/2.
void halfSizeHeavyDiameter(Engine& calc);
void halfSizeHeavyArea(Engine& calc);
void halfSizeSingleDiameter(Engine& calc);
void halfSizeSingleArea(Engine& calc);

}  // namespace tallyforge
