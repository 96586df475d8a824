// SPDX-License-Identifier: GPL-3.0-or-later
//
// The wire keys of the Magnetics keypad: X is a gauge, a diameter or an area.
#pragma once

#include "electrical/wire_build.h"

namespace tallyforge {

class Engine;

/// X is a gauge; the copper's resistance per foot, with Shift per inch, with Ctrl per metre, with
/// Shift+Ctrl per millimetre, with Alt per centimetre, with Shift+Alt per 1000 feet, with Ctrl+Alt
/// per pound; with all three grams per ohm. Weights take the gauges of the table only.
void wireResistance(Engine& calc);

/// Plain: circular mils over the film to the gauge. A gauge with Shift to circular mils over the
/// film, with Ctrl of the bare wire, with Shift+Ctrl to its weight in pounds per foot, with Alt to
/// its diameter over the film in inches, with Ctrl+Alt in millimetres. With Shift+Alt a diameter
/// over the film in inches to the gauge that is not thinner, with all three one in millimetres.
void wireSize(Engine& calc, WireBuild build);

/// The box for a gauge that the table of `build` does not hold; X stays.
void refuseGauge(Engine& calc, WireBuild build, double awg);

}  // namespace tallyforge
