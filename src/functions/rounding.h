// SPDX-License-Identifier: GPL-3.0-or-later
//
// The rounding key.
#pragma once

namespace tallyforge {

class Engine;

namespace MathFunctions {

/// Kept as it is: a whole negative number loses one (-3 gives -4), and a number from 0 on is
/// rounded half to even after taking off a half, so that 1 gives 0, 2 gives 2 and 3 gives 2.
[[nodiscard]] double Floor(double x);
/// Kept likewise: 1 gives 2, 2 gives 2, 3 gives 4.
[[nodiscard]] double Ceiling(double x);

}  // namespace MathFunctions

/// Y rounded half to even at X places. Raises 5 below 0.
void roundToPlaces(Engine& calc);
void wholePart(Engine& calc);
void fractionalPart(Engine& calc);
void floorOfX(Engine& calc);
void ceilingOfX(Engine& calc);

}  // namespace tallyforge
