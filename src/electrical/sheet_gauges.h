// SPDX-License-Identifier: GPL-3.0-or-later
//
// Thickness of sheet metal by gauge, in inches.
#pragma once

#include "electrical/lookup_table.h"

namespace tallyforge {

class Engine;

extern const LookupTable kSheetSteel;      ///< gauges 3 to 38
extern const LookupTable kStainlessSteel;  ///< -5 (6/0) to 38
extern const LookupTable kSheetAluminum;   ///< -5 (000000) to 38

/// X is a gauge; the thickness of the sheet. A gauge that the table does not hold shows a box, and
/// X and the stack stay.
void sheetSteel(Engine& calc);
void stainlessSteel(Engine& calc);
void sheetAluminum(Engine& calc);

}  // namespace tallyforge
