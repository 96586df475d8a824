// SPDX-License-Identifier: GPL-3.0-or-later
//
// The three keys that every keypad but one has in its bottom row.
#pragma once

namespace tallyforge {

class Engine;

/// X becomes 1/X, label "1/X". Raises 11 for 0, 13 for a text that is no number, 6 beyond the
/// range of a double.
void reciprocal(Engine& calc);

/// X becomes X times X. Raises 13, and 6 beyond the range of a double.
void square(Engine& calc);

/// X becomes its square root. Raises 5 for a negative number, and 13.
void squareRoot(Engine& calc);

}  // namespace tallyforge
