// SPDX-License-Identifier: GPL-3.0-or-later
//
// Hours (or degrees) with minutes and seconds, as the number h.mmss, and as decimal hours.
#pragma once

namespace tallyforge {

class Engine;

namespace MathFunctions {

/// h.mmss to decimal hours, or decimal hours to h.mmss (seconds with their fraction from the third
/// digit on). The fraction is read from the fifteen decimal digits of the number, so that no
/// binary rest turns into a minute; the result never has 60 seconds or 60 minutes.
[[nodiscard]] double HmsConvert(double value, bool toDecimal);

}  // namespace MathFunctions

void toDecimalHours(Engine& calc);
void toHoursMinutes(Engine& calc);
/// Y and X, both h.mmss, added.
void addHoursMinutes(Engine& calc);

}  // namespace tallyforge
