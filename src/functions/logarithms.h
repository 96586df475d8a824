// SPDX-License-Identifier: GPL-3.0-or-later
//
// Powers, logarithms and exponentials.
#pragma once

namespace tallyforge {

class Engine;

/// Plain: Y^X. Shift: n with Y^n = X. Ctrl: 2^X. Alt: n with 2^n = X. Raises 5, 6, 11.
void powers(Engine& calc);

/// Plain: ln X; a negative X shows a box and commits nothing, 0 raises 5. Shift: e^X.
void naturalLogarithm(Engine& calc);

/// Plain: ln(X + 1); -1 and below show a box and commit nothing. Shift: e^X - 1.
void logarithmOfOnePlus(Engine& calc);

/// Plain: the common logarithm; a negative X shows a box and commits 0, "No Data!". Shift: 10^X.
void commonLogarithm(Engine& calc);

}  // namespace tallyforge
