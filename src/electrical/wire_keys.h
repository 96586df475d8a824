// SPDX-License-Identifier: GPL-3.0-or-later
//
// The wire keys of the Magnetics keypad: X is a gauge, a diameter or an area.
#pragma once

#include "electrical/wire_build.h"

#include <cstdint>

namespace tallyforge {

class Engine;

enum class WireLength : std::uint8_t { Foot, Inch, Metre, Millimetre, Centimetre, ThousandFeet };
/// X is a gauge: the copper's resistance over a length.
void wireResistance(Engine& calc, WireLength over);
/// The same over a pound, and the grams of an ohm; for the gauges of the table only.
void resistancePerPound(Engine& calc);
void gramsPerOhm(Engine& calc);

/// Circular mils over the film to the gauge, and back.
void areaToGauge(Engine& calc, WireBuild build);
void gaugeToArea(Engine& calc, WireBuild build);
/// Circular mils of the bare wire.
void gaugeToBareArea(Engine& calc);
/// Pounds per foot.
void gaugeToWeight(Engine& calc);
/// Diameter over the film, and back to the gauge that is not thinner.
void gaugeToInches(Engine& calc, WireBuild build);
void gaugeToMillimetres(Engine& calc, WireBuild build);
void inchesToGauge(Engine& calc, WireBuild build);
void millimetresToGauge(Engine& calc, WireBuild build);

/// The box for a gauge that the table of `build` does not hold; X stays.
void refuseGauge(Engine& calc, WireBuild build, double awg);

}  // namespace tallyforge
